#include "corvane/operation/OperationRenameTag.h"

namespace CVN::Operation {

std::vector<Result> RenameTag::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                   std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
