#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"

namespace CVN::Operation {

/// Indentation: the blanks at the start of a line that place it in a list item or block quote.
///
/// Widths are columns, with tab stops at every 4; lengths and offsets count UTF-16 code units.
class CORVANE_EXPORT Indent : public Operation {
public:
    Indent(IndentAction action, IndentStyle style) : action_(action), style_(style) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

    /// Whether a space is a line's indentation: blanks at the start of a line, or beside a marker, of a block
    /// that stands directly in an item or quote. Then its width, as if `indentationText`, its text, began at
    /// column 0; otherwise 0.
    static std::pair<bool, std::int64_t> spaceAsIndentation(const Ondo::Node* node,
                                                            std::u16string_view indentationText);
    /// The same, for who knows the innermost block around the space, which can be far up.
    static std::pair<bool, std::int64_t>
    spaceAsIndentation(const Ondo::Node* node, std::u16string_view indentationText, const Ondo::Node* block);

private:
    IndentAction action_;
    IndentStyle style_;
};

} // namespace CVN::Operation
