#include "corvane/scan/Lines.h"

#include <algorithm>
#include <cstring>

#include "corvane/scan/Go.h"

namespace Ondo {

namespace {

constexpr std::int64_t tabStop = 4;

/// The column behind `unit`, when it stands at `column`.
constexpr std::int64_t columnBehind(char16_t unit, std::int64_t column) {
    return unit == u'\t' ? column + tabStop - column % tabStop : column + 1;
}

std::int64_t columnAt(std::int64_t offset, std::int64_t from, std::int64_t column, std::u16string_view view) {
    for (std::int64_t at = from; at < offset; ++at)
        column = columnBehind(view.at(static_cast<std::size_t>(at)), column);
    return column;
}

/// Behind the spaces and tabs at `from`, up to `end`.
std::int64_t skipBlanks(std::int64_t from, std::int64_t end, std::u16string_view view) {
    while (from < end && Predicate::isSpaceOrTab(view[static_cast<std::size_t>(from)]))
        ++from;
    return from;
}

std::int64_t skipBlanksBackward(std::int64_t from, std::int64_t limit, std::u16string_view view) {
    while (from > limit && Predicate::isSpaceOrTab(view[static_cast<std::size_t>(from - 1)]))
        --from;
    return from;
}

/// Whether one of four code units is below U+000E, as all line endings are: looked at at once.
bool mayEndLine(const char16_t* units) {
    constexpr std::uint64_t lanes = 0x0001'0001'0001'0001;
    std::uint64_t four = 0;
    std::memcpy(&four, units, sizeof four);
    return ((four - lanes * 0x000E) & ~four & (lanes * 0x8000)) != 0;
}

/// The first line ending character at or behind `from`, or `size`.
std::int64_t findLineEnd(std::int64_t from, std::int64_t size, std::u16string_view view) {
    const char16_t* const units = view.data();
    while (true) {
        while (from + 4 <= size && !mayEndLine(units + from))
            from += 4;
        const std::int64_t checked = std::min(from + 4, size);
        for (; from < checked; ++from)
            if (Predicate::isLineEndingCharacter(units[from])) return from;
        if (from == size) return size;
    }
}

/// Behind the line ending at `end`; `end` when there is none.
std::int64_t skipLineEnding(std::int64_t end, std::int64_t size, std::u16string_view view) {
    if (end == size) return end;
    const bool isPair = view[static_cast<std::size_t>(end)] == u'\r' && end + 1 < size &&
                        view[static_cast<std::size_t>(end + 1)] == u'\n';
    return end + (isPair ? 2 : 1);
}

Lines::Line lineAt(std::int64_t start, std::int64_t size, std::u16string_view view) {
    const std::int64_t contentStart = skipBlanks(start, size, view);
    const std::int64_t end = findLineEnd(contentStart, size, view);
    Lines::Line line{start,        start,
                     contentStart, skipBlanksBackward(end, contentStart, view),
                     end,          skipLineEnding(end, size, view)};
    line.contentColumn = columnAt(contentStart, start, 0, view);
    return line;
}

} // namespace

Lines::Lines(std::u16string_view view) {
    const auto size = static_cast<std::int64_t>(view.size());
    constexpr std::size_t usualLineLength = 40;
    lines_.reserve(view.size() / usualLineLength + 2);
    lines_.push_back(lineAt(0, size, view));
    while (lines_.back().next > lines_.back().end)
        lines_.push_back(lineAt(lines_.back().next, size, view));
}

void Lines::Line::setLeading(std::int64_t offset, std::u16string_view view) {
    const bool isForward = offset >= contentStart;
    const std::int64_t from = isForward ? contentStart : start;
    const std::int64_t column = columnAt(offset, from, isForward ? contentColumn : 0, view);
    leading = offset;
    contentStart = skipBlanks(offset, std::min(end, static_cast<std::int64_t>(view.size())), view);
    contentColumn = columnAt(contentStart, offset, column, view);
    contentEnd = std::max(contentEnd, contentStart);
}

std::int64_t Lines::Line::indentationAtOffsetRelativeToStart(std::int64_t offset, std::int64_t start,
                                                             std::u16string_view view) {
    return columnAt(offset, start, 0, view);
}

std::int64_t Lines::Line::indentationAtOffset(std::int64_t offset, std::u16string_view view) const {
    if (offset == contentStart) return contentColumn;
    return indentationAtOffsetRelativeToStart(offset, start, view);
}

std::optional<std::int64_t> Lines::Line::indentationAfterNextTab(std::int64_t indentation,
                                                                 std::u16string_view view) const {
    std::int64_t column = indentationAtOffset(leading, view);
    for (std::int64_t at = leading; at < contentStart; ++at) {
        const char16_t unit = view.at(static_cast<std::size_t>(at));
        column = columnBehind(unit, column);
        if (unit == u'\t' && column > indentation) return column;
    }
    return std::nullopt;
}

} // namespace Ondo
