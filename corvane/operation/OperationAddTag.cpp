#include "corvane/operation/OperationAddTag.h"

namespace CVN::Operation {

std::vector<Result> AddTag::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
