#include "corvane/operation/OperationMoveLines.h"

namespace CVN::Operation {

std::vector<Result> MoveLines::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                   std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
