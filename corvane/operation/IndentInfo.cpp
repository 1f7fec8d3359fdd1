#include "corvane/operation/IndentInfo.h"

#include <algorithm>

#include "corvane/block/Fence.h"
#include "corvane/block/HtmlBlock.h"
#include "corvane/block/List.h"
#include "corvane/operation/BlockStructure.h"
#include "corvane/scan/HtmlSyntax.h"
#include "corvane/scan/Lines.h"
#include "corvane/scan/Util.h"

namespace CVN::Operation {

using Ondo::Node;

namespace {

constexpr std::int64_t tabStop = 4;
bool isSpaceOrTab(char16_t unit) {
    return unit == u' ' || unit == u'\t';
}

/// The real column of an offset on the line that starts at `lineStart`.
std::int64_t columnAt(const Ondo::Tree& tree, std::int64_t lineStart, std::int64_t offset) {
    const std::int64_t length = offset - lineStart;
    return Ondo::Lines::Line::indentationAtOffsetRelativeToStart(length, 0,
                                                                 tree.markdownIn({lineStart, length}));
}

std::int64_t behindBlanks(const Ondo::Tree& tree, std::int64_t offset) {
    while (isSpaceOrTab(unitAt(tree, offset)))
        ++offset;
    return offset;
}

bool isPrefix(const Node* leaf) {
    return isContainerMarker(leaf) || leaf->type == Ondo::ONDO_SPACE_NODE;
}

/// Where a line begins for the items of a quote.
struct LineStart {
    Node::Iterator leaf; ///< the first one there; none at the end of the text
    std::int64_t offset;
    std::int64_t column; ///< real
};

/// A marker without a blank of its own takes its blank out of a tab behind it.
LineStart behindQuoteMarker(const Ondo::Tree& tree, std::int64_t lineStart, Node::Iterator marker) {
    const std::int64_t end = marker.end();
    std::int64_t column = columnAt(tree, lineStart, end);
    if (unitAt(tree, end - 1) == u'>' && unitAt(tree, end) == u'\t') ++column;
    marker.nextInSequence();
    toFirstLeaf(marker);
    return {marker, end, column};
}

/// Nothing when the line lacks the marker of the quote; a null quote has none to lack.
std::optional<LineStart> startIn(const Ondo::Tree& tree, Node::Iterator line, const Node* quote) {
    const std::int64_t lineStart = line.offset;
    toFirstLeaf(line);
    if (!quote) return LineStart{line, lineStart, 0};
    for (; line.node && isPrefix(line.node); line.nextInSequence(), toFirstLeaf(line))
        if (line->maker == quote) return behindQuoteMarker(tree, lineStart, line);
    return std::nullopt;
}

/// The end of the blanks that indent a line. Code keeps what it has beyond the item's own indentation in its
/// text, while lines of HTML have all their blanks there.
std::int64_t indentationEnd(const Ondo::Tree& tree, const LineStart& start) {
    const Node* const leaf = start.leaf.node;
    if (!leaf || start.leaf.offset != start.offset) return start.offset;
    if (leaf->type == Ondo::ONDO_SPACE_NODE) return start.leaf.end();
    return leaf->type == Ondo::ONDO_TEXT_NODE ? behindBlanks(tree, start.offset) : start.offset;
}

const Node* quoteAround(const Node* item) {
    return selfOrAncestor(item, Ondo::ONDO_BLOCK_QUOTE_NODE);
}

std::int64_t contentColumn(const Ondo::Tree& tree, std::int64_t lineStart, const Node::Iterator& marker,
                           Node* item) {
    const std::int64_t width = markerIndentWidth(item);
    const bool isTask = static_cast<const Ondo::Block::ListItemNode*>(item)->isTask();
    const std::int64_t markerColumn = columnAt(tree, lineStart, marker.offset);
    if (isTask) return markerColumn + width;
    const bool hasBlank = unitAt(tree, marker.end() - 1) == u' ';
    const std::int64_t nearest = markerColumn + width + (hasBlank ? 0 : 1);
    const std::int64_t content = behindBlanks(tree, marker.end());
    if (isLineEnd(tree, content)) return nearest;
    const std::int64_t column = columnAt(tree, lineStart, content);
    return column - nearest >= codeIndentation ? nearest : column;
}

/// A start and the end that such a block of HTML goes on to over blank lines, in lower case. All others end
/// at a blank line.
struct HtmlEnd {
    std::u16string_view start;
    std::u16string_view end;
};
constexpr HtmlEnd htmlEnds[] = {{u"<pre", u"</pre>"},     {u"<script", u"</script>"},
                                {u"<style", u"</style>"}, {u"<textarea", u"</textarea>"},
                                {u"<!--", u"-->"},        {u"<?", u"?>"},
                                {u"<![cdata[", u"]]>"},   {u"<!", u">"}};

bool startsWith(std::u16string_view html, std::u16string_view start) {
    if (!html.starts_with(start)) return false;
    const bool isName = Ondo::HtmlSyntax::isLetter(start.back());
    return !isName || html.size() == start.size() || !Ondo::HtmlSyntax::isLetterOrDigit(html[start.size()]);
}

/// Whether a block of HTML without a blank line behind it lacks its end, which would be on its last line.
bool isOpenHtml(std::u16string_view html) {
    html.remove_prefix(std::min(html.find(u'<'), html.size()));
    constexpr std::size_t longestStart = 10;
    const std::u16string start = Ondo::Util::downcaseAscii(html.substr(0, longestStart));
    while (!html.empty() && (html.back() == u'\n' || html.back() == u'\r'))
        html.remove_suffix(1);
    const std::u16string last = Ondo::Util::downcaseAscii(html.substr(html.find_last_of(u"\n\r") + 1));
    for (const HtmlEnd& row : htmlEnds)
        if (startsWith(start, row.start)) return last.find(row.end) == std::u16string::npos;
    return true;
}

/// Blocks that hold together: their lines move as one.
bool isUndivided(const Node* block) {
    return block->category > Node::Category::ContainerBlock && block->type != Ondo::ONDO_PARAGRAPH_NODE;
}

bool isEmptyWithGap(const Node* item) {
    return isEmptyItem(item) && item->lineCount > 1;
}

/// The last item of the list that ends right above another one; none for an empty one beyond a blank line.
Node::Iterator lastItemAbove(Node::Iterator list) {
    const Node* const below = list.node;
    for (list.previousSibling(); isBlank(list.node); list.previousSibling())
        continue;
    if (!isOfType(list.node, Ondo::ONDO_LIST_NODE)) return {};
    const bool hasGap = list->nextSibling != below;
    list.lastChild();
    return hasGap && isEmptyItem(list.node) ? Node::Iterator() : list;
}

} // namespace

Node::Iterator markerOf(const Node::Iterator& item) {
    Node::Iterator at = item;
    toFirstLeaf(at);
    while (at.node && at->maker != item.node && isPrefix(at.node)) {
        at.nextInSequence();
        toFirstLeaf(at);
    }
    return at;
}

ItemColumns columnsOf(const Ondo::Tree& tree, const Node::Iterator& item) {
    const auto start = startIn(tree, item, quoteAround(item.node));
    const std::int64_t zero = start ? start->column : 0;
    const Node::Iterator marker = markerOf(item);
    return {columnAt(tree, item.offset, marker.offset) - zero,
            contentColumn(tree, item.offset, marker, item.node) - zero};
}

std::optional<IndentInfo> indentInfoOf(const Ondo::Tree& tree, const Node::Iterator& line, const Node* item,
                                       std::int64_t content) {
    const auto start = startIn(tree, line, quoteAround(item));
    if (!start) return std::nullopt;
    const std::int64_t end = indentationEnd(tree, *start);
    const std::int64_t blanks = end - start->offset;
    const std::int64_t width = blanks ? columnAt(tree, line.offset, end) - start->column : 0;
    return IndentInfo{start->offset, blanks, width, content, start->column};
}

Node::Iterator itemStartingOn(Node::Iterator line) {
    while (line.node && !isListItem(line.node))
        line.firstChild();
    return line;
}

bool takesWhatFollows(const Node* item) {
    const Node* const last = item->lastChild;
    if (isOfType(last, Ondo::ONDO_HTML_BLOCK_NODE))
        return isOpenHtml(static_cast<const Ondo::Block::HtmlBlockNode*>(last)->html);
    return Ondo::Block::isOpenFence(last, Ondo::ONDO_FENCED_CODE_NODE,
                                    Ondo::ONDO_FENCED_CODE_CLOSE_MARKER_NODE) ||
           Ondo::Block::isOpenFence(last, Ondo::ONDO_MATH_BLOCK_NODE,
                                    Ondo::ONDO_MATH_BLOCK_CLOSE_MARKER_NODE);
}

const Node* chainParent(const Node* item) {
    const Node* const around = item->parent ? item->parent->parent : nullptr;
    return isListItem(around) ? around : nullptr;
}

Node::Iterator chainParent(Node::Iterator item) {
    if (!chainParent(item.node)) return {};
    item.parent();
    item.parent();
    return item;
}

std::int64_t chainDepth(const Node* item) {
    std::int64_t depth = 0;
    for (; item; item = chainParent(item))
        ++depth;
    return depth;
}

std::int64_t widthFrom(std::int64_t startColumn, std::u16string_view blanks) {
    std::int64_t column = startColumn;
    for (const char16_t unit : blanks)
        column += unit == u'\t' ? tabStop - column % tabStop : 1;
    return column - startColumn;
}

bool isLineEnd(const Ondo::Tree& tree, std::int64_t offset) {
    const char16_t unit = unitAt(tree, offset);
    return offset >= tree.length() || unit == u'\n' || unit == u'\r';
}

bool isBlankLine(const Node::Iterator& line) {
    Node::Iterator leaf = line;
    toFirstLeaf(leaf);
    return isBlank(leaf->parent) && !itemStartingOn(line).node;
}

bool isEmptyItem(const Node* item) {
    return !item->hasChildWhere([](const Node* child) { return !isBlank(child); });
}

Node::Iterator itemBefore(Node::Iterator item) {
    if (!item->previousSibling) {
        item.parent();
        return lastItemAbove(item);
    }
    item.previousSibling();
    return isEmptyWithGap(item.node) ? Node::Iterator() : item;
}

Node::Iterator listAtEnd(Node::Iterator item) {
    for (item.lastChild(); isBlank(item.node); item.previousSibling())
        continue;
    return isOfType(item.node, Ondo::ONDO_LIST_NODE) ? item : Node::Iterator();
}

bool hasTab(std::u16string_view blanks) {
    return blanks.find(u'\t') != std::u16string_view::npos;
}

std::u16string blanksIn(const Ondo::Tree& tree, const IndentInfo& info) {
    return std::u16string(tree.markdownIn({info.indentationOffset, info.indentationLength}));
}

std::u16string blanksOfLine(const Ondo::Tree& tree, const Node::Iterator& line, const Node* item) {
    const auto info = indentInfoOf(tree, line, item, 0);
    return info ? blanksIn(tree, *info) : std::u16string();
}

std::u16string blanksBelow(const Ondo::Tree& tree, const Node::Iterator& item) {
    Node::Iterator line = item;
    do
        toNextLine(line);
    while (line.node && line.offset < item.end() && isBlankLine(line));
    return line.node && line.offset < item.end() ? blanksOfLine(tree, line, item.node) : std::u16string();
}

std::u16string blanksOf(std::int64_t width, std::int64_t startColumn, IndentStyle style) {
    std::u16string blanks;
    while (style == IndentStyle::Tabs && widthFrom(startColumn, blanks + u'\t') <= width)
        blanks += u'\t';
    const std::int64_t rest = width - widthFrom(startColumn, blanks);
    return blanks.append(static_cast<std::size_t>(rest), u' ');
}

std::u16string withTabs(std::u16string blanks, std::int64_t tabs) {
    for (; tabs < 0; ++tabs)
        blanks.erase(0, blanks.find(u'\t') + 1);
    return blanks.insert(0, static_cast<std::size_t>(tabs), u'\t');
}

std::u16string widened(std::u16string blanks, std::int64_t columns) {
    for (; columns < 0 && !blanks.empty() && blanks.back() == u' '; ++columns)
        blanks.pop_back();
    return blanks.append(static_cast<std::size_t>(std::max<std::int64_t>(columns, 0)), u' ');
}

const Node* blockHolding(const Node* line) {
    if (line->isBlock()) return nullptr;
    const Node* const block = line->parentBlock();
    return isUndivided(block) ? block : nullptr;
}

bool isAncestor(const Node* node, const Node* of) {
    do
        of = of->parent;
    while (of && of != node);
    return of;
}

bool isFirstIn(const Node* ancestor, const Node* node) {
    while (node != ancestor && !node->previousSibling)
        node = node->parent;
    return node == ancestor;
}

void climbTo(const Node* ancestor, Node::Iterator& at) {
    while (at.node != ancestor)
        at.parent();
}

bool isCodeOf(const Node* item, Node::Iterator line) {
    toFirstLeaf(line);
    const Node* const block = line->parentBlock();
    return block->type == Ondo::ONDO_INDENTED_CODE_NODE && block->parent == item;
}

} // namespace CVN::Operation
