#pragma once

#include "corvane/correction/Correction.h"
#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Correction {

/// Gives the lines of pasted text the prefix of the item or quote where they land.
class CORVANE_EXPORT PasteLineEndingCorrection : public Correction {
public:
    explicit PasteLineEndingCorrection(Operation::IndentStyle style) : style_(style) {}

    std::vector<Operation::Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::u16string_view replacement, std::int64_t selectionOffset,
                                       std::int64_t selectionLength) const override;

private:
    Operation::IndentStyle style_;
};

} // namespace CVN::Correction
