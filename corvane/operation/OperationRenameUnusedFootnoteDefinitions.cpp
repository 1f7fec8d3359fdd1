#include "corvane/operation/OperationRenameUnusedFootnoteDefinitions.h"

namespace CVN::Operation {

std::vector<Result> RenameUnusedFootnoteDefinitions::run(const Ondo::Tree&, std::int64_t, std::int64_t,
                                                         std::int64_t, std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
