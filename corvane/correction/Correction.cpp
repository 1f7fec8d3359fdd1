#include "corvane/correction/Correction.h"

namespace CVN::Correction {

Correction::~Correction() = default;

} // namespace CVN::Correction
