#include "corvane/operation/OperationInsertBlock.h"

namespace CVN::Operation {

std::vector<Result> InsertBlock::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                     std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
