#include "corvane/operation/OperationRenumberOrderedList.h"

namespace CVN::Operation {

std::vector<Result> RenumberOrderedList::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                             std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
