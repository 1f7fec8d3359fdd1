#include "corvane/operation/OperationUpdateLinks.h"

namespace CVN::Operation {

std::vector<Result> UpdateLinks::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                     std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
