#include "corvane/operation/OperationAddTagAtTop.h"

namespace CVN::Operation {

std::vector<Result> AddTagAtTop::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                     std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
