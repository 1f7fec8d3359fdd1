#include "corvane/operation/OperationReorderFootnoteDefinitions.h"

namespace CVN::Operation {

std::vector<Result> ReorderFootnoteDefinitions::run(const Ondo::Tree&, std::int64_t, std::int64_t,
                                                    std::int64_t, std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
