#include "corvane/operation/OperationExitInlines.h"

namespace CVN::Operation {

std::vector<Result> ExitInlines::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                     std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
