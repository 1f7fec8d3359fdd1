#include "corvane/operation/OperationRemoveStrayMetaComments.h"

namespace CVN::Operation {

std::vector<Result> RemoveStrayMetaComments::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                                 std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
