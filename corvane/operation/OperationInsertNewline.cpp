#include "corvane/operation/OperationInsertNewline.h"

namespace CVN::Operation {

std::vector<Result> InsertNewline::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                       std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
