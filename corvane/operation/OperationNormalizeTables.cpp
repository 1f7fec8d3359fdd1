#include "corvane/operation/OperationNormalizeTables.h"

namespace CVN::Operation {

std::vector<Result> NormalizeTables::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                         std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
