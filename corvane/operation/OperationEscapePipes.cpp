#include "corvane/operation/OperationEscapePipes.h"

namespace CVN::Operation {

std::vector<Result> EscapePipes::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                     std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
