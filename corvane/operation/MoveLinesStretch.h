#pragma once

#include <cstdint>

#include "corvane/tree/Node.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

/// Whole lines of a note: from the start of a line to that of another, or to the end of the text. A value, in
/// UTF-16 code units, good until the next edit.
///
/// It keeps its outer leaves, so that what lies there, or beside it, is known without a search from the start
/// of a long list or table.
struct LineStretch {
    Ondo::Node::Iterator first; ///< the leaf that the first line starts with; none for an empty stretch
    Ondo::Node::Iterator last;  ///< the leaf that the last line ends with
    std::int64_t start;
    std::int64_t end; ///< behind the last line's ending

    /// The lines from that of one leaf to that of another.
    LineStretch(Ondo::Node::Iterator from, Ondo::Node::Iterator to);
    /// The line behind a final line ending: nothing yet.
    explicit LineStretch(std::int64_t textEnd) : start(textEnd), end(textEnd) {}

    std::int64_t length() const { return end - start; }
    bool contains(std::int64_t from, std::int64_t to) const { return start <= from && to <= end; }
};

/// The lines that a range touches. A range that ends where a line starts doesn't touch that line; an empty
/// range touches its line.
LineStretch linesOf(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length);

/// The lines, and the whole of the folded sections that they start and end in.
LineStretch withFoldedSections(const LineStretch& lines);

/// Whether the lines can move without a row leaving its table, or a table losing its first two rows. They are
/// no part of a table, whole tables among others, or a single row that finds another data row beside it:
/// above it when `up` is set, else below it.
bool leaveTablesWhole(const LineStretch& lines, bool up);

/// Whether the lines are part of a table that goes on above or below them.
bool isPartOfTable(const LineStretch& lines);

/// Whether lines that lie between two offsets would move past a fence of front matter, or past all of it.
bool crossesFrontMatter(const Ondo::Tree& tree, std::int64_t start, std::int64_t end);

/// Whether a text without front matter would get some, were two stretches to change places, the lower one
/// right behind the upper one. Reads on through the text only when a fence would come to be its first line.
bool makesFrontMatter(const Ondo::Tree& tree, const LineStretch& upper, const LineStretch& lower);

/// What lines pass: the line right above, or below them. Lines that aren't part of a table pass the
/// folded section, or the table, that this line lies in. There must be one.
LineStretch lineAbove(const Ondo::Tree& tree, const LineStretch& lines);
LineStretch lineBelow(const LineStretch& lines);

/// Whether a line that starts with a pipe would come to stand right below a table that is not its own, were
/// two stretches to change places, the lower one right behind the upper one.
bool swapJoinsTables(const Ondo::Tree& tree, const LineStretch& upper, const LineStretch& lower);

} // namespace CVN::Operation
