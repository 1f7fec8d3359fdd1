#include "corvane/operation/OperationToggleTask.h"

namespace CVN::Operation {

std::vector<Result> ToggleTask::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                    std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
