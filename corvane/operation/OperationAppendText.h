#pragma once

#include <string_view>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Adds text at the end of a note, before its tags and footnotes.
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
