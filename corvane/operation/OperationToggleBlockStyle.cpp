#include "corvane/operation/OperationToggleBlockStyle.h"

namespace CVN::Operation {

std::vector<Result> ToggleBlockStyle::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                          std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
