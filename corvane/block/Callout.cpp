#include "corvane/block/Callout.h"

#include <iterator>

#include "corvane/scan/Go.h"
#include "corvane/tree/BlockParser.h"

namespace Ondo::Block {

namespace {

/// By the number of the type.
constexpr std::u16string_view words[] = {u"NOTE", u"TIP", u"IMPORTANT", u"WARNING", u"CAUTION"};

/// Moves behind "[!WORD]" and returns the number of the word; fails without one.
std::size_t matchMarker(Go& go) {
    go.nextMatchString(u"[!");
    std::size_t word = 0;
    while (word < std::size(words) && !go.isNextCaseInsensitiveString(words[word]))
        ++word;
    if (word == std::size(words))
        go.setPos(Go::NoPos);
    else
        go.nextMatchCaseInsensitiveString(words[word]);
    go.nextMatchString(u"]");
    return word;
}

bool isBlockMarker(const Node* node) {
    return node->isMarker() && node->maker && node->maker->isBlock();
}

bool isBlankOrBreak(const Node* node) {
    return node->category == Node::Category::Space || node->type == ONDO_LINE_ENDING_NODE ||
           node->type == ONDO_HARD_LINE_BREAK_NODE || node->type == ONDO_HARD_LINE_BREAK_MARKER_NODE;
}

/// From the start of an ancestor to a node.
std::int64_t offsetIn(const Node* ancestor, const Node* node) {
    std::int64_t offset = 0;
    for (; node != ancestor; node = node->parent)
        for (const Node* before = node->previousSibling; before; before = before->previousSibling)
            offset += before->charCount;
    return offset;
}

} // namespace

std::int64_t Callout::match(BlockParser& parser, std::int64_t line, std::int64_t, Node* parent,
                            ParseAction action) {
    Lines::Line& l = parser.lines[line];
    if (parent->type != ONDO_BLOCK_QUOTE_NODE || parent->lineWhenParsed != line) return 0;
    if (l.localIndentation() > 3) return 0;
    Go go(parser.text, l.contentStart, l.end);
    const std::size_t word = matchMarker(go);
    if (go.hasFailed()) return 0;
    const std::int64_t markerEnd = go.pos();
    const std::int64_t titleStart = go.nextWhile(Go::spaceOrTab);
    if (titleStart == markerEnd && markerEnd != l.end) return 0;
    if (action == ParseAction::Check) return 1;

    auto node = std::make_unique<CalloutHeadNode>(l.start, l.next, line, static_cast<CalloutTypes>(word));
    parser.linkPrefix(node.get(), line);
    ParserBase::linkMarker(node.get(), ONDO_CALLOUT_MARKER_NODE, l.contentStart, markerEnd, line);
    ParserBase::linkSpace(node.get(), markerEnd, titleStart, line);
    ParserBase::linkSpace(node.get(), std::max(l.contentEnd, titleStart), l.end, line);
    ParserBase::linkLineEnding(node.get(), l.end, l.next, line);
    parser.mergeNode(parent, std::move(node));
    l.setLeading(titleStart, parser.text);
    return 1;
}

std::u16string_view CalloutHeadNode::calloutTypeString() const {
    const auto number = static_cast<std::size_t>(calloutType);
    return number < std::size(words) ? words[number] : std::u16string_view();
}

Range CalloutHeadNode::titleRangeFrom(std::int64_t headOffset) const {
    const Node* first = firstChild;
    while (first && (first->category == Category::Space || isBlockMarker(first)))
        first = first->nextSibling;
    if (!first) return {};
    const Node* last = lastChild;
    while (last->lastChild)
        last = last->lastChild;
    while (last != this && isBlankOrBreak(last))
        last = last->previousInSequence();
    if (last == this) return {};
    const std::int64_t start = offsetIn(this, first);
    const std::int64_t end = offsetIn(this, last) + last->charCount;
    return end > start ? Range{headOffset + start, end - start} : Range{};
}

std::u16string_view CalloutHeadNode::title(std::u16string_view markdown) const {
    const Range range = titleRange();
    return markdown.substr(static_cast<std::size_t>(range.offset), static_cast<std::size_t>(range.length));
}

std::u16string CalloutHeadNode::toIndentedTree() const {
    std::u16string out = Node::toIndentedTree();
    out += u'{';
    out += calloutTypeString();
    out += u'}';
    return out;
}

void CalloutHeadNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    childrenToHtml(out, markdown, offset);
}

bool CalloutHeadNode::hasEqualData(const Node& other) const {
    return calloutType == static_cast<const CalloutHeadNode&>(other).calloutType;
}

} // namespace Ondo::Block
