#include "corvane/operation/OperationNormalizeIndentation.h"

namespace CVN::Operation {

std::vector<Result> NormalizeIndentation::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                              std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
