#include "corvane/correction/InvalidCharacterCorrection.h"

namespace CVN::Correction {

std::vector<Operation::Result> InvalidCharacterCorrection::run(const Ondo::Tree&, std::int64_t, std::int64_t,
                                                               std::u16string_view, std::int64_t,
                                                               std::int64_t) const {
    return {};
}

} // namespace CVN::Correction
