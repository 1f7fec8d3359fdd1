#include "corvane/operation/OperationDeletePrevious.h"

namespace CVN::Operation {

std::vector<Result> DeletePrevious::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                        std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
