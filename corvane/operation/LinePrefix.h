#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "corvane/tree/Node.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

/// The column behind a unit that starts at a column: tabs go to the next multiple of 4.
constexpr std::int64_t columnBehind(char16_t unit, std::int64_t column) {
    return unit == u'\t' ? column - column % 4 + 4 : column + 1;
}

/// The start of a line up to its text: blanks and the markers of containers, as they are written.
///
/// Indexes count units from the start of the line. A value, good until the next edit.
struct LinePrefix {
    struct Marker {
        const Ondo::Node* container; ///< an item that starts on this line, or a quote
        std::size_t start;
        std::size_t end;
    };

    std::int64_t offset;               ///< of the line
    const Ondo::Node* block;           ///< the deepest block that the line starts with, or lies in
    bool startsBlock;                  ///< the block's first line
    const Ondo::Node* next;            ///< the leaf behind the prefix; null at the end of the text
    std::u16string text;               ///< with all blanks in front of the line's text
    std::vector<std::int64_t> columns; ///< of each index, and behind the last
    std::vector<Marker> markers;
    bool isBlank; ///< nothing follows

    /// `line` is a node that starts where the line does.
    LinePrefix(const Ondo::Tree& tree, Ondo::Node::Iterator line);

    std::size_t size() const { return text.size(); }
    std::int64_t textColumn() const { return columns.back(); }
    /// In the note, behind the prefix.
    std::int64_t textOffset() const { return offset + static_cast<std::int64_t>(size()); }
    /// Where the text behind a quote's marker is reckoned from: a tab gives its first column to a bare ">".
    std::int64_t columnBehindQuote(const Marker& marker) const;
    /// Whether nothing but a tab of one column stands between an item's marker, which has no blank of its
    /// own, and the line's text.
    bool isTextBehindNarrowTab(const Marker& marker) const;
    /// Where the blanks behind a marker end, or those of the line behind the marker -1.
    std::size_t blanksEnd(std::size_t marker) const {
        return marker + 1 < markers.size() ? markers[marker + 1].start : size();
    }
    /// Behind the first tab, of the blanks at an index, that goes beyond a column; null without one.
    std::optional<std::int64_t> columnBehindNextTab(std::size_t at, std::int64_t column) const;
};

/// Where the text behind an item's marker stands, by the rules for list items of CommonMark 0.31.2.
struct PrefixColumns {
    std::int64_t text;    ///< right behind the marker: what the rest of its line is reckoned from
    std::int64_t content; ///< what further lines need

    /// For a marker of the prefix whose container is an item.
    PrefixColumns(const LinePrefix& prefix, std::size_t marker);
};

} // namespace CVN::Operation
