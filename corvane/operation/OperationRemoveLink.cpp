#include "corvane/operation/OperationRemoveLink.h"

namespace CVN::Operation {

std::vector<Result> RemoveLink::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                    std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
