#include "corvane/operation/OperationInsertFootnoteDefinition.h"

namespace CVN::Operation {

std::vector<Result> InsertFootnoteDefinition::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                                  std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
