#include "corvane/operation/OperationInsertFootnote.h"

namespace CVN::Operation {

std::vector<Result> InsertFootnote::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                        std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
