#include "corvane/operation/OperationToggleInlineStyle.h"

namespace CVN::Operation {

std::vector<Result> ToggleInlineStyle::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                           std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
