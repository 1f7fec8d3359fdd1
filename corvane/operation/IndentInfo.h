#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "corvane/operation/LineWalk.h"
#include "corvane/operation/Operation.h"

namespace CVN::Operation {

// Where items and lines stand, for the command that indents them.
//
// Columns are counted from behind the markers of the quotes around an item, so that they compare between the
// lines of a quote; tab stops are where they are on the line. An item in an item of the same quote, or of
// none, continues its chain: what the columns of one chain say decides which item a line belongs to.

constexpr std::int64_t codeIndentation = 4; ///< what stands this far behind an item's text is code

/// The indentation of a line, with regard to an item that starts on it or holds it.
struct IndentInfo {
    std::int64_t indentationOffset; ///< behind the markers of the quotes around the item
    std::int64_t indentationLength; ///< in code units
    std::int64_t logicalWidth;      ///< in columns
    std::int64_t contentWidth;      ///< the column to which the text of the item is aligned
    std::int64_t startColumn;       ///< the real column that counts as 0

    std::int64_t indentationEnd() const { return indentationOffset + indentationLength; }
};

struct ItemColumns {
    std::int64_t marker;
    std::int64_t content; ///< where the text of further lines begins
};

/// Nothing for a lazy line, which lacks the markers of the quotes. `content` becomes the content width.
std::optional<IndentInfo> indentInfoOf(const Ondo::Tree& tree, const Ondo::Node::Iterator& line,
                                       const Ondo::Node* item, std::int64_t content);

ItemColumns columnsOf(const Ondo::Tree& tree, const Ondo::Node::Iterator& item);

/// The marker of an item, on its first line.
Ondo::Node::Iterator markerOf(const Ondo::Node::Iterator& item);

/// The first item that starts on a line; without a node when none does.
Ondo::Node::Iterator itemStartingOn(Ondo::Node::Iterator line);

/// The item before another one in its list, or at the end of a list right above its own. None when that one
/// is empty and a blank line follows: nothing can belong to it then.
Ondo::Node::Iterator itemBefore(Ondo::Node::Iterator item);

/// The list that an item ends with; without a node when there is none.
Ondo::Node::Iterator listAtEnd(Ondo::Node::Iterator item);

/// Whether an item ends in a block that nothing has closed, and that takes whatever comes next in the item.
bool takesWhatFollows(const Ondo::Node* item);

/// The item that an item stands in, in the same quote; null when there is none.
const Ondo::Node* chainParent(const Ondo::Node* item);
/// The same for a position.
Ondo::Node::Iterator chainParent(Ondo::Node::Iterator item);

/// How many items of its chain an item has around it, and itself.
std::int64_t chainDepth(const Ondo::Node* item);

// Blank lines

/// Whether a line has nothing but blanks and the markers of quotes.
bool isBlankLine(const Ondo::Node::Iterator& line);
/// Whether an item has no content, and so nothing but blank lines.
bool isEmptyItem(const Ondo::Node* item);

// The blanks that indent lines

/// The columns that blanks take up from a real column on.
std::int64_t widthFrom(std::int64_t startColumn, std::u16string_view blanks);

/// Blanks of a width from a real column on: with the style Tabs, tabs as far as they go.
std::u16string blanksOf(std::int64_t width, std::int64_t startColumn, IndentStyle style);

bool hasTab(std::u16string_view blanks);
std::u16string blanksIn(const Ondo::Tree& tree, const IndentInfo& info);
/// With regard to an item; empty for a lazy line.
std::u16string blanksOfLine(const Ondo::Tree& tree, const Ondo::Node::Iterator& line, const Ondo::Node* item);
/// Of the first line below an item's own that isn't blank.
std::u16string blanksBelow(const Ondo::Tree& tree, const Ondo::Node::Iterator& item);

/// With so many tabs more in front, or less, each with the spaces before it; they must be there.
std::u16string withTabs(std::u16string blanks, std::int64_t tabs);
/// With so many columns more at the end, or less, as far as there are spaces.
std::u16string widened(std::u16string blanks, std::int64_t columns);

// Lines

/// Whether the line ends at the offset.
bool isLineEnd(const Ondo::Tree& tree, std::int64_t offset);

// Blocks and what is around them

/// The block that a further line cannot move without; null for a line of a paragraph and one that starts a
/// block.
const Ondo::Node* blockHolding(const Ondo::Node* line);
/// Whether a line is indented code that stands directly in an item.
bool isCodeOf(const Ondo::Node* item, Ondo::Node::Iterator line);

bool isAncestor(const Ondo::Node* node, const Ondo::Node* of);
/// Whether nothing of an ancestor stands before a node.
bool isFirstIn(const Ondo::Node* ancestor, const Ondo::Node* node);
void climbTo(const Ondo::Node* ancestor, Ondo::Node::Iterator& at);

} // namespace CVN::Operation
