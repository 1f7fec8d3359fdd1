#pragma once

#include "corvane/correction/Correction.h"
#include "corvane/operation/Operation.h"

namespace CVN::Correction {

class CORVANE_EXPORT MathBlockCorrection : public Correction {
public:
    explicit MathBlockCorrection(Operation::IndentStyle style) : style_(style) {}

    std::vector<Operation::Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::u16string_view replacement, std::int64_t selectionOffset,
                                       std::int64_t selectionLength) const override;

private:
    Operation::IndentStyle style_;
};

} // namespace CVN::Correction
