#include "corvane/correction/TableSpaceCorrection.h"

#include <algorithm>
#include <optional>

#include "corvane/correction/EditedLine.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Correction {

using namespace Operation;
using Ondo::Node;

namespace {

/// Between two pipes; empty between adjacent ones.
struct Cell {
    std::int64_t start;
    std::int64_t end;
};

bool isPipe(const Node* node) {
    return isOfType(node, Ondo::ONDO_TABLE_PIPE_MARKER_NODE);
}

bool isInTextRow(const Node* node) {
    return selfOrAncestor(node, Ondo::ONDO_TABLE_HEADER_ROW_NODE) ||
           selfOrAncestor(node, Ondo::ONDO_TABLE_DATA_ROW_NODE);
}

/// The cell that holds a range; nothing when none does.
std::optional<Cell> cellAround(const Ondo::Tree& tree, std::int64_t offset, std::int64_t end) {
    Node::Iterator right = leafAt(tree, offset);
    if (!right.node || !isInTextRow(right.node)) return {};
    Node::Iterator left = right;
    do
        left.previousInSequence();
    while (left.node && !isPipe(left.node) && isInTextRow(left.node));
    while (right.node && !isPipe(right.node) && isInTextRow(right.node))
        ++right;
    const bool isInRow = isPipe(left.node) && isPipe(right.node) && left->maker == right->maker;
    if (!isInRow || left.end() > offset || right.offset < end) return {};
    return Cell{left.end(), right.offset};
}

/// The units at the end of a text that are no-break spaces.
std::int64_t trailingNbsp(std::u16string_view text) {
    const auto last = text.find_last_not_of(nbsp);
    return static_cast<std::int64_t>(text.size() - (last == std::u16string_view::npos ? 0 : last + 1));
}

bool isSpaces(std::u16string_view text) {
    return text.find_first_not_of(u' ') == std::u16string_view::npos;
}

} // namespace

TableSpaceCorrection::Parts TableSpaceCorrection::splitTrim(std::u16string_view cell) {
    constexpr std::u16string_view blanks = u" \t";
    const std::size_t start = std::min(cell.find_first_not_of(blanks), cell.size());
    const std::size_t end = start < cell.size() ? cell.find_last_not_of(blanks) + 1 : cell.size();
    return {cell.substr(0, start), cell.substr(start, end - start), cell.substr(end)};
}

std::vector<Result> TableSpaceCorrection::run(const Ondo::Tree& tree, std::int64_t offset,
                                              std::int64_t length, std::u16string_view replacement,
                                              std::int64_t selectionOffset,
                                              std::int64_t selectionLength) const {
    if (replacement.empty() || replacement.find_first_of(u"\r\n\t") != std::u16string_view::npos) return {};
    const bool endsCell = replacement.front() == u'|';
    if (!endsCell && replacement.find(u'|') != std::u16string_view::npos) return {};
    const auto cell = cellAround(tree, offset, offset + length);
    if (!cell) return {};

    const std::int64_t end = offset + length;
    const bool isAtEnd = splitTrim(tree.markdownIn({end, cell->end - end})).text.empty();
    const Parts before = splitTrim(tree.markdownIn({cell->start, offset - cell->start}));
    const bool isBehindText = isAtEnd && !before.text.empty() && before.trailing.empty();
    const std::int64_t held = isBehindText && replacement.front() != u' ' ? trailingNbsp(before.text) : 0;

    std::u16string text(replacement);
    if (isBehindText && isSpaces(replacement)) std::fill(text.begin(), text.end(), nbsp);
    const bool needsSpaceBefore = !endsCell && offset == cell->start && text.front() != u' ';
    const bool needsSpaceBehind = !endsCell && end == cell->end && text.back() != u' ';
    if (text == replacement && held == 0 && !needsSpaceBefore && !needsSpaceBehind) return {};
    if (needsSpaceBefore) text.insert(0, 1, u' ');
    if (needsSpaceBehind) text += u' ';

    std::optional<Change> spaces;
    if (held > 0) spaces = Change{offset - held, held, std::u16string(static_cast<std::size_t>(held), u' ')};
    const PendingEdit edit{tree, offset, length, replacement, selectionOffset, selectionLength};
    return keepingEdit(padded(edit, text, needsSpaceBefore ? 1 : 0, needsSpaceBehind ? 1 : 0), {}, spaces);
}

} // namespace CVN::Correction
