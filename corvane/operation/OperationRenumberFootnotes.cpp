#include "corvane/operation/OperationRenumberFootnotes.h"

namespace CVN::Operation {

std::vector<Result> RenumberFootnotes::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                           std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
