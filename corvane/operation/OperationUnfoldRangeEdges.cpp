#include "corvane/operation/OperationUnfoldRangeEdges.h"

namespace CVN::Operation {

std::vector<Result> OperationUnfoldRangeEdges::run(const Ondo::Tree&, std::int64_t, std::int64_t,
                                                   std::int64_t, std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
