#pragma once

#include "corvane/correction/Correction.h"
#include "corvane/operation/Operation.h"

namespace CVN::Correction {

/// Gives the further lines of pasted text the prefix of the item or quote where it lands: the one that the
/// return key without a new marker would write, quote markers and blanks. The style tells what the blanks in
/// the place of an item's marker are.
///
/// Each line feed gets the prefix, those before empty lines and at the end of the text included. The
/// selection moves along. No opinion about a text without a line feed, where lines have no prefix, and unless
/// the selection proposed lies behind the pasted text.
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
