#include "corvane/operation/OperationEscapeTag.h"

namespace CVN::Operation {

std::vector<Result> EscapeTag::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                   std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
