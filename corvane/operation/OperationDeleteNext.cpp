#include "corvane/operation/OperationDeleteNext.h"

namespace CVN::Operation {

std::vector<Result> DeleteNext::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                    std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
