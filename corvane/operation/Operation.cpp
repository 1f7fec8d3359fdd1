#include "corvane/operation/Operation.h"

namespace CVN::Operation {

Operation::~Operation() = default;

} // namespace CVN::Operation
