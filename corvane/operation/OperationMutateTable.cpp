#include "corvane/operation/OperationMutateTable.h"

namespace CVN::Operation {

std::vector<Result> MutateTable::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                     std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
