#include "corvane/operation/OperationNormalizeCallouts.h"

namespace CVN::Operation {

std::vector<Result> NormalizeCallouts::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                           std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
