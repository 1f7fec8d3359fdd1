#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "corvane/operation/IndentInfo.h"
#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"

namespace CVN::Operation {

/// Moves list items a level in or out, each with all that hangs below it, by rewriting the blanks at the
/// start of its lines.
///
/// Indenting puts an item under the one before it: its marker goes to that one's text, and an ordered item
/// counts from 1 again; no item goes into a block that nothing closes. Undenting puts an item beside the one
/// around it, and what follows a line of an item that isn't its first leaves the item as well; a line feed in
/// front keeps such a line from joining the item again. A line stays with an item that starts in the range,
/// and a block of several lines goes as a whole. All other lines keep their columns with regard to the first
/// one that moves; in the simplified dialect those that tabs lead into items get a tab more or less. Blank
/// lines move with nothing; the one with the caret goes through the columns of the items above it. What is
/// not in a list or directly below one stays.
///
/// Indentation is the blanks at the start of a line, behind the markers of quotes. Widths are columns, with
/// tab stops at every 4; lengths and offsets count UTF-16 code units.
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

    /// How many quotes, lists and blocks of indented code a node stands in, itself included.
    static std::int64_t blockNestLevel(const Ondo::Node* node);

    /// The outermost item of the chain of an item: of those that stand in each other without a quote between.
    static const Ondo::Node* uppermostDirectAcendentListItem(const Ondo::Node* item);

    /// Whether a caret stands on the empty line behind the last line ending, which has no node of its own.
    /// The node is the leaf at the offset.
    static bool isAtVirtualBlankLine(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                     const Ondo::Node* node);

    /// The item above a blank line that the line could belong to: the last one there, or the one around it.
    /// None behind other blocks, and for an empty item beyond another blank line, which nothing can follow.
    static Ondo::Node::Iterator findPreviousRelevantListItem(Ondo::Node::Iterator node,
                                                             bool virtualBlankLine);

    /// The columns of a stretch of the line that starts at `lineStart`. Offsets are those in the text.
    static std::int64_t logicalIndentation(std::int64_t lineStart, std::int64_t offset, std::int64_t length,
                                           std::u16string_view text);

    /// The length of an item's marker without a task's box.
    static std::int64_t markerIndentWidth(Ondo::Node* item);

private:
    using At = Ondo::Node::Iterator;

    struct Selection {
        std::int64_t offset;
        std::int64_t length;
    };
    /// The text of an item, which indentation can reach.
    struct Level {
        std::int64_t width = 0;
        const Ondo::Node* item = nullptr; ///< null for column 0
        std::int64_t slack = 0;           ///< so many columns more still lead there
    };
    /// A line that moves, and all lines behind it up to the end of an item.
    struct Move {
        At line;
        At item;
        bool startsItem; ///< whether the item starts on the line
        IndentInfo info; ///< of the line
        At beside;       ///< the item that tells the column: the one before or the one around
        Level level;     ///< where the line goes
        IndentStyle style;
        std::u16string blanks; ///< with which it goes there
    };
    /// How lines move.
    struct Shift {
        std::int64_t columns;
        std::int64_t shrink; ///< of these, those by which the marker above them gets shorter
        IndentStyle style;
        std::int64_t depth;  ///< how many items of the chain they all stand in
        std::int64_t levels; ///< and how many more they will
        std::u16string from; ///< what the first line was indented with
        std::u16string to;   ///< and is now
    };

    std::vector<Move> movesIn(const Ondo::Tree& tree, At line, std::int64_t lastLine) const;
    std::optional<Move> moveIn(const Ondo::Tree& tree, const At& line, const Move* before) const;
    std::optional<Move> moveOut(const Ondo::Tree& tree, const At& line, const Ondo::Node* first,
                                const Move* before) const;
    /// The item that starts on a line, or the line itself, with the block that holds it, and where it stands:
    /// of an item around the line node `first` only, as an item in the range moves as a whole or stays.
    std::optional<Move> leaving(const Ondo::Tree& tree, At line, const Ondo::Node* first) const;
    bool isMoving(const Ondo::Tree& tree, const Move& move) const;

    void indentLine(const Ondo::Tree& tree, const Move& move, std::vector<Result>& results,
                    Selection selection) const;
    void undentLine(const Ondo::Tree& tree, const Move& move, std::vector<Result>& results,
                    Selection selection) const;
    void indentBlankLine(const Ondo::Tree& tree, const At& line, std::int64_t offset, bool isVirtual,
                         std::vector<Result>& results, Selection selection) const;
    void undentBlankLine(const Ondo::Tree& tree, const At& line, Selection range, bool isVirtual,
                         std::vector<Result>& results, Selection selection) const;

    /// With the columns of the line's text, or of the item's where the line isn't its first.
    static std::optional<IndentInfo> indentInfo(const At& lineNode, const At& item, const Ondo::Tree& tree);
    static Level levelUnder(const Ondo::Tree& tree, const At& item, const Move* before);
    /// Beside the item or the first one around it whose marker stands before a width.
    static Level levelBeside(const Ondo::Tree& tree, At item, std::int64_t width);
    /// The first level beyond a width, from the item and those around it; the item's own if there is none.
    static Level nextLevelIndentation(At item, std::int64_t width, const Ondo::Tree& tree);
    /// The last level before a width, or column 0.
    static Level previousLevelIndentation(At item, std::int64_t width, const Ondo::Tree& tree);

    /// The blanks that bring a line to a width beside the node, an item; empty for a width of 0.
    static std::u16string indentationString(std::int64_t width, const Ondo::Node* node, IndentStyle style);
    /// The style for moving an item beside another one, which may be none.
    IndentStyle styleFor(const Ondo::Tree& tree, const At& item, const At& beside) const;
    /// The blanks that lead to a level, and where as many tabs as items would not, what does.
    static std::u16string blanksTo(const Ondo::Tree& tree, const Level& level, std::int64_t startColumn,
                                   IndentStyle style);
    static std::int64_t shiftOf(const Move& move);
    static Shift shiftBelow(const Ondo::Tree& tree, const Move& move, std::int64_t shrink);
    static std::u16string shifted(const Ondo::Tree& tree, const IndentInfo& info, const Shift& shift);
    std::int64_t shiftBehind(const Ondo::Tree& tree, const Move& move, const At& next) const;
    void keepBehind(const Ondo::Tree& tree, const Move& move, std::vector<Result>& results,
                    Selection selection) const;
    void shiftLine(const Ondo::Tree& tree, const At& line, const At& item, const Shift& shift,
                   std::vector<Result>& results, Selection selection) const;
    void shiftLines(const Ondo::Tree& tree, const At& item, std::int64_t from, const Shift& shift,
                    std::vector<Result>& results, Selection selection) const;

    IndentAction action_;
    IndentStyle style_;
};

} // namespace CVN::Operation
