#include "corvane/operation/OperationUpdateWikiLinks.h"

namespace CVN::Operation {

std::vector<Result> UpdateWikiLinks::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                         std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
