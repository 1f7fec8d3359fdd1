#include "corvane/operation/OperationToggleFold.h"

namespace CVN::Operation {

std::vector<Result> ToggleFold::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                    std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
