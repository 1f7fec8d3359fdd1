#include "corvane/operation/OperationAppendText.h"

namespace CVN::Operation {

std::vector<Result> AppendText::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                    std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
