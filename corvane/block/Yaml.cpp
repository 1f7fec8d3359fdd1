#include "corvane/block/Yaml.h"

#include <algorithm>

#include "corvane/scan/Go.h"
#include "corvane/tree/BlockParser.h"

namespace Ondo::Block {

namespace {

constexpr std::u16string_view opening = u"---";
constexpr std::u16string_view closings[] = {u"---", u"..."};
constexpr std::int64_t fenceLength = 3;

std::u16string_view lineText(std::u16string_view text, const Lines::Line& line) {
    return Go(text).substring(line.start, line.end);
}

bool isClosing(std::u16string_view line) {
    return line == closings[0] || line == closings[1];
}

/// The line that closes the block; 0 when none does.
std::int64_t findClosing(const BlockParser& parser, std::int64_t lastLine) {
    for (std::int64_t k = 1; k <= lastLine; ++k)
        if (isClosing(lineText(parser.text, parser.lines[k]))) return k;
    return 0;
}

void linkFence(const BlockParser& parser, Node* node, NodeType type, std::int64_t number) {
    const Lines::Line& line = parser.lines[number];
    ParserBase::linkMarker(node, type, line.start, line.end, number);
    ParserBase::linkLineEnding(node, line.end, line.next, number);
}

void linkContent(const BlockParser& parser, Node* node, std::int64_t closing) {
    if (closing == 1) return;
    const Lines& lines = parser.lines;
    Node* const content = node->link(std::make_unique<Inline::AttributeNode>(
        ONDO_YAML_CONTENT_ATTRIBUTE_NODE, lines[1].start, lines[closing].start, 1, closing - 1, node));
    for (std::int64_t k = 1; k < closing; ++k)
        ParserBase::linkLineEnding(content, lines[k].end, lines[k].next, k);
}

/// The first units of a text, to be compared with a fence.
bool startsWith(const TextBuffer& text, std::int64_t at, std::u16string_view wanted) {
    if (at + static_cast<std::int64_t>(wanted.size()) > text.size()) return false;
    for (std::size_t i = 0; i < wanted.size(); ++i)
        if (text[at + static_cast<std::int64_t>(i)] != wanted[i]) return false;
    return true;
}

bool isLineStart(const TextBuffer& text, std::int64_t at) {
    if (at == 0) return true;
    const bool isInCrLf = at < text.size() && text[at] == u'\n' && text[at - 1] == u'\r';
    return !isInCrLf && Go::lineEndingCharacter(text[at - 1]);
}

bool isClosingAt(const TextBuffer& text, std::int64_t at) {
    const std::int64_t end = at + fenceLength;
    return isLineStart(text, at) &&
           (startsWith(text, at, closings[0]) || startsWith(text, at, closings[1])) &&
           (end == text.size() || Go::lineEndingCharacter(text[end]));
}

bool isFenceUnit(const TextBuffer& text, std::int64_t at) {
    return at >= 0 && at < text.size() && (text[at] == u'-' || text[at] == u'.');
}

/// Whether an edit may have made a line that closes a block. One that a line break makes counts, too.
bool mayMakeClosing(const TextBuffer& text, std::int64_t offset, std::int64_t length) {
    if (length < 1) return isFenceUnit(text, offset - 1) || isFenceUnit(text, offset);
    for (std::int64_t at = std::max<std::int64_t>(offset - fenceLength, 0); at <= offset + length; ++at)
        if (isClosingAt(text, at)) return true;
    return false;
}

bool isYaml(const Node* node) {
    return node && node->type == ONDO_YAML_NODE;
}

} // namespace

std::int64_t Yaml::match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                         ParseAction action) {
    if (line != 0 || !parser.isDocumentHead() || lineText(parser.text, parser.lines[0]) != opening) return 0;
    const std::int64_t closing = findClosing(parser, lastLine);
    if (closing == 0) return 0;
    if (action == ParseAction::Check) return 1;

    auto node = std::make_unique<YamlNode>(parser.lines[closing].next, closing + 1);
    linkFence(parser, node.get(), ONDO_YAML_OPEN_MARKER_NODE, 0);
    linkContent(parser, node.get(), closing);
    linkFence(parser, node.get(), ONDO_YAML_CLOSE_MARKER_NODE, closing);
    parser.mergeNode(parent, std::move(node));
    return closing + 1;
}

bool Yaml::needFullReparse(const TextBuffer& markdown, std::int64_t offset, std::int64_t length,
                           Node* startNode, Node*, Node* newRoot) {
    const Node* const oldFirst = startNode->parent->firstChild;
    const bool wasYaml = isYaml(oldFirst);
    const bool isNowYaml = isYaml(newRoot->firstChild);
    if (wasYaml && !isNowYaml && oldFirst->charCount > offset) return true;
    const bool opens = startsWith(markdown, 0, opening);
    if (!wasYaml && !isNowYaml && offset < 5 && opens) return true;
    if (opens && mayMakeClosing(markdown, offset, length)) return true;
    return isNowYaml && startNode->previousSibling;
}

void YamlNode::toHtml(std::u16string&, std::u16string_view, std::int64_t) const {}

} // namespace Ondo::Block
