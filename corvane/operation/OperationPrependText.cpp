#include "corvane/operation/OperationPrependText.h"

namespace CVN::Operation {

std::vector<Result> PrependText::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                     std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
