#include "corvane/operation/LinePrefix.h"

#include "corvane/block/List.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

using Ondo::Node;

namespace {

constexpr std::int64_t codeWidth = 4;
constexpr std::int64_t taskBoxWidth = 4;

bool isLineEnd(char16_t unit) {
    return unit == 0 || unit == u'\n' || unit == u'\r';
}

const Node* deepestFirstBlock(const Node* node) {
    if (!node->isBlock()) return node->parentBlock();
    while (node->firstChild && node->firstChild->isBlock())
        node = node->firstChild;
    return node;
}

std::vector<std::int64_t> columnsOf(std::u16string_view text) {
    std::vector<std::int64_t> columns{0};
    for (const char16_t unit : text)
        columns.push_back(columnBehind(unit, columns.back()));
    return columns;
}

} // namespace

LinePrefix::LinePrefix(const Ondo::Tree& tree, Node::Iterator line)
    : offset(line.offset), block(deepestFirstBlock(line.node)), startsBlock(line->isBlock()) {
    Node::Iterator leaf = line;
    toFirstLeaf(leaf);
    std::int64_t end = offset;
    for (; leaf.node && (leaf->type == Ondo::ONDO_SPACE_NODE || isContainerMarker(leaf.node));
         toNextLeaf(leaf)) {
        if (leaf->type == Ondo::ONDO_SPACE_NODE) continue;
        end = leaf.end();
        markers.push_back({leaf->maker, static_cast<std::size_t>(leaf.offset - offset),
                           static_cast<std::size_t>(end - offset)});
    }
    next = leaf.node;
    while (unitAt(tree, end) == u' ' || unitAt(tree, end) == u'\t')
        ++end;
    text = tree.markdownIn({offset, end - offset});
    columns = columnsOf(text);
    isBlank = isLineEnd(unitAt(tree, end));
}

std::int64_t LinePrefix::columnBehindQuote(const Marker& marker) const {
    const bool isBare = marker.end == marker.start + 1;
    const bool isBeforeTab = isBare && marker.end < size() && text[marker.end] == u'\t';
    return columns[marker.end] + (isBeforeTab ? 1 : 0);
}

bool LinePrefix::isTextBehindNarrowTab(const Marker& marker) const {
    return marker.end + 1 == size() && text[marker.end] == u'\t' && text[marker.end - 1] != u' ' &&
           columns[marker.end] + 1 == textColumn();
}

std::optional<std::int64_t> LinePrefix::columnBehindNextTab(std::size_t at, std::int64_t column) const {
    for (; at < size() && (text[at] == u' ' || text[at] == u'\t'); ++at)
        if (text[at] == u'\t' && columns[at + 1] > column) return columns[at + 1];
    return std::nullopt;
}

PrefixColumns::PrefixColumns(const LinePrefix& prefix, std::size_t marker) {
    const LinePrefix::Marker& at = prefix.markers[marker];
    const auto* const item = static_cast<const Ondo::Block::ListItemNode*>(at.container);
    const std::size_t blanksEnd = prefix.blanksEnd(marker);
    const bool isLast = marker + 1 == prefix.markers.size();
    const bool hasSpace = prefix.text[at.end - 1] == u' ';
    const bool hasTab = !hasSpace && at.end < blanksEnd && prefix.text[at.end] == u'\t';
    text = prefix.columns[at.end] + (hasTab ? 1 : 0);
    content = prefix.columns[blanksEnd];
    if (item->isTask())
        content = prefix.columns[at.end] - taskBoxWidth;
    else if ((isLast && prefix.isBlank) || content - text >= codeWidth)
        content = text;
    if (!hasSpace && !hasTab) ++content;
}

} // namespace CVN::Operation
