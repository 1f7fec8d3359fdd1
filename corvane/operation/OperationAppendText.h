#pragma once

#include <string_view>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Adds lines of text at the end of a note: above a last block of nothing but tags, unless that is the line
/// of tags below the title, and above the footnotes that end the note. An exact text goes to the very end as
/// it stands. Nothing happens for an empty text.
///
/// The view of the text must outlive the command.
class CORVANE_EXPORT AppendText : public Operation {
public:
    AppendText(std::u16string_view text, bool exact) : text_(text), exact_(exact) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    std::u16string_view text_;
    bool exact_;
};

} // namespace CVN::Operation
