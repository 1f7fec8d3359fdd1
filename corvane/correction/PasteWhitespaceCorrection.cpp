#include "corvane/correction/PasteWhitespaceCorrection.h"

namespace CVN::Correction {

std::vector<Operation::Result> PasteWhitespaceCorrection::run(const Ondo::Tree&, std::int64_t, std::int64_t,
                                                              std::u16string_view, std::int64_t,
                                                              std::int64_t) const {
    return {};
}

} // namespace CVN::Correction
