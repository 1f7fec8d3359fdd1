#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "corvane/scan/Export.h"

namespace Ondo {

/// The table of a text's lines, which the block rules rewrite while they parse.
///
/// A container rule moves the `leading` of its lines behind its own prefix and sets their base indentation,
/// parses its content, and restores the lines that turned out not to belong to it. A nested rule thus sees
/// each line as beginning after the prefixes of its containers, at any depth, with no stack of containers.
///
/// Offsets count UTF-16 code units. Columns count from 0 with tab stops at every 4. An empty text has one
/// line of length zero; a text that ends in a line ending has a further, empty line at its very end.
class CORVANE_EXPORT Lines {
public:
    struct CORVANE_EXPORT Line {
        std::int64_t start;               ///< first code unit
        std::int64_t leading;             ///< where the line begins for the current container
        std::int64_t contentStart;        ///< first character at or behind `leading` that is no space or tab
        std::int64_t contentEnd;          ///< behind the last such character; `contentStart` on a blank line
        std::int64_t end;                 ///< the line ending, or the end of the text
        std::int64_t next;                ///< the next line's start; `end` when there is no line ending
        std::int64_t baseIndentation = 0; ///< columns that the prefixes before `leading` take up
        /// The base that the further lines of the innermost container carry. It differs from baseIndentation
        /// only on the first line of a list item, whose own text may begin further right.
        std::int64_t followingIndentation = 0;
        std::int64_t contentColumn = 0; ///< real column of `contentStart`
        std::int64_t prefix = -1; ///< the last piece before `leading`, in the parser's list; -1 for none
        bool lazy = false;        ///< lacks its container's marker: only an open paragraph may take it

        bool isBlank() const { return contentStart == end; }
        /// The empty entry behind the final line ending (or of an empty text).
        bool isEmptyEntry() const { return start == next; }

        /// Moves `leading`, and `contentStart` behind the blanks there; raises `contentEnd` if it was lower.
        void setLeading(std::int64_t offset, std::u16string_view view);
        /// Sets the columns of the prefixes, for this line and as what further lines carry.
        void setBaseIndentation(std::int64_t columns) { baseIndentation = followingIndentation = columns; }

        /// The column of `offset` when column 0 is at `start`; 0 when it is not beyond it.
        static std::int64_t indentationAtOffsetRelativeToStart(std::int64_t offset, std::int64_t start,
                                                               std::u16string_view view);
        /// The real column in the document.
        std::int64_t indentationAtOffset(std::int64_t offset, std::u16string_view view) const;
        /// The column relative to the enclosing containers, which rules compare with 3 and 4.
        std::int64_t localIndentationAtOffset(std::int64_t offset, std::u16string_view view) const {
            return indentationAtOffset(offset, view) - baseIndentation;
        }
        /// localIndentationAtOffset(contentStart), without a walk.
        std::int64_t localIndentation() const { return contentColumn - baseIndentation; }
        /// The first column, among the blanks at `leading`, to which a tab carries the position beyond
        /// `indentation`; nothing when no tab does.
        std::optional<std::int64_t> indentationAfterNextTab(std::int64_t indentation,
                                                            std::u16string_view view) const;
    };

    explicit Lines(std::u16string_view view);

    Line& operator[](std::int64_t index) { return lines_[static_cast<std::size_t>(index)]; }
    const Line& operator[](std::int64_t index) const { return lines_[static_cast<std::size_t>(index)]; }
    std::int64_t size() const { return static_cast<std::int64_t>(lines_.size()); }

private:
    std::vector<Line> lines_;
};

} // namespace Ondo
