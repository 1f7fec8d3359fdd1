#include "corvane/operation/OperationJumpTableCell.h"

namespace CVN::Operation {

std::vector<Result> JumpTableCell::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                       std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
