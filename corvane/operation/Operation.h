#pragma once

#include <cstdint>
#include <vector>

#include "corvane/operation/OperationResult.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

/// A command of an editor: given a note, a range and a selection, it answers with the replacements that carry
/// it out. It only reads the tree, and the answer is good for that text alone.
///
/// The parameters of a command are those of its constructor. An object has no other state: it is made for one
/// call.
class CORVANE_EXPORT Operation {
public:
    /// An empty list when there is nothing to do. The range is what the command applies to; several commands
    /// look at the selection alone or work on the whole note. Range and selection lie in the text, in UTF-16
    /// code units.
    virtual std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                    std::int64_t selectionOffset, std::int64_t selectionLength) const = 0;
    virtual ~Operation();
};

// The variants of commands. The numbers are fixed.

enum class InlineToggles : std::uint32_t {
    Strong,
    Emphase,
    Strikethrough,
    Underline,
    Highlight,
    HighlightRed,
    HighlightBlue,
    HighlightGreen,
    HighlightYellow,
    HighlightPurple,
    NoInlineToggle,
    CodeSpan,
    MathSpan
};

enum class BlockToggles : std::uint32_t {
    Heading1,
    Heading2,
    Heading3,
    Heading4,
    Heading5,
    Heading6,
    BulletList,
    OrderedList,
    TaskList,
    BlockQuote,
    FencedCode,
    MathBlock,
    Callout,
    CalloutNote,
    CalloutTip,
    CalloutCaution,
    CalloutWarning,
    CalloutImportant
};

enum class IndentAction : std::uint32_t { Indent, Undent };

/// What indentation is written with.
enum class IndentStyle : std::uint32_t { Spaces, Tabs };

enum class ToggleTaskType : std::uint32_t { Toggle, Uncheck, Check };

enum class MoveLinesDirection : std::uint32_t { Up, Down };

enum class JumpTableCellDirection : std::uint32_t { Next, Previous };

enum class MutateTableAction : std::uint32_t {
    AddRowAbove,
    AddRowBelow,
    DeleteRow,
    MoveRowUp,
    MoveRowDown,
    AddColumnBefore,
    AddColumnAfter,
    DeleteColumn,
    MoveColumnLeft,
    MoveColumnRight,
    AlignNone,
    AlignLeft,
    AlignCenter,
    AlignRight
};

enum class InsertBlockType : std::uint32_t { ThematicBreak, Table };

enum class ToggleFoldType : std::uint32_t { ToggleAtSelection, FoldAll, UnfoldAll };

/// What a new line in a list item or quote begins with: what makes another item, or what stays in this one.
enum class InsertNewlineListItemOption : std::uint32_t { NewItem, SecondaryRow };

} // namespace CVN::Operation
