#include "corvane/operation/OperationRemoveTag.h"

namespace CVN::Operation {

std::vector<Result> RemoveTag::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                   std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
