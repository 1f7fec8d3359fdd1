#include "corvane/operation/OperationSelectAllText.h"

namespace CVN::Operation {

std::vector<Result> SelectAllText::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                       std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
