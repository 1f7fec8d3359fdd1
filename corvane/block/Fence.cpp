#include "corvane/block/Fence.h"

#include <algorithm>

#include "corvane/scan/Go.h"

namespace Ondo::Block {

namespace {

/// Behind a closing fence, or NoPos when the line is content.
std::int64_t closingFenceEnd(std::u16string_view text, const Lines::Line& line, const Fence& fence) {
    if (line.localIndentation() >= 4) return Go::NoPos;
    Go go(text, line.contentStart, line.end);
    const std::int64_t end = go.nextMatch(Go::character(fence.character), fence.leastLength, Go::NoLimit);
    const bool closes = end == line.contentEnd && end - line.contentStart <= fence.longestLength;
    return closes ? end : Go::NoPos;
}

void linkClosingFence(BlockParser& parser, Node* node, const Fence& fence, std::int64_t end,
                      std::int64_t number) {
    const Lines::Line& line = parser.lines[number];
    parser.linkPrefix(node, number);
    ParserBase::linkMarker(node, fence.closeType, line.contentStart, end, number);
    ParserBase::linkSpace(node, end, line.end, number);
    ParserBase::linkLineEnding(node, line.end, line.next, number);
}

/// How far the blanks of a content line reach that the fence's own indentation takes off.
std::int64_t strippedEnd(std::u16string_view text, const Lines::Line& line, std::int64_t indentation) {
    std::int64_t offset = line.leading;
    while (offset < line.contentStart && line.indentationAtOffset(offset, text) < indentation)
        ++offset;
    return offset;
}

void linkContentLine(BlockParser& parser, Node* content, std::int64_t number, std::int64_t indentation) {
    const Lines::Line& line = parser.lines[number];
    parser.linkPrefix(content, number, strippedEnd(parser.text, line, indentation));
    ParserBase::linkLineEnding(content, line.end, line.next, number);
    content->charCount = line.next - content->offsetWhenParsed;
    if (line.next > line.end) ++content->lineCount;
}

void appendCode(std::u16string& code, std::u16string_view text, const Lines::Line& line,
                std::int64_t indentation) {
    code.append(static_cast<std::size_t>(std::max<std::int64_t>(line.contentColumn - indentation, 0)), u' ');
    code += Go(text).substring(line.contentStart, line.end);
}

} // namespace

std::int64_t parseFencedLines(BlockParser& parser, Node* node, const Fence& fence, std::u16string& code,
                              std::int64_t line, std::int64_t lastLine, const Node* parent) {
    const Lines& lines = parser.lines;
    // Columns of the document, not of the container: a fence behind ">" takes a column off lines behind "> ".
    const std::int64_t indentation = lines[line].contentColumn;
    Node* content = nullptr;
    std::int64_t last = line;
    for (std::int64_t k = line + 1;
         k <= lastLine && parser.hasLine(k) && !lines[k].lazy && !lines[k].isEmptyEntry(); ++k) {
        last = k;
        const std::int64_t end = closingFenceEnd(parser.text, lines[k], fence);
        if (end != Go::NoPos) {
            linkClosingFence(parser, node, fence, end, k);
            break;
        }
        if (!content)
            content = node->link(std::make_unique<Inline::AttributeNode>(fence.contentType, lines[k].start,
                                                                         lines[k].start, k, 0, node));
        linkContentLine(parser, content, k, indentation);
        appendCode(code, parser.text, lines[k], indentation);
        if (k < lastLine || parent->category != Node::Category::Document) code += u'\n';
    }
    node->charCount = lines[last].next - node->offsetWhenParsed;
    node->lineCount = last - line + 1;
    return node->lineCount;
}

bool isOpenFence(const Node* node, NodeType type, NodeType closeType) {
    if (!node || node->type != type) return false;
    const Node* child = node->lastChild;
    while (child && child->type != closeType && child->category != Node::Category::Attribute)
        child = child->previousSibling;
    return !child || child->type != closeType;
}

bool opensFence(const Node* newRoot, const Node* endNode, NodeType type, NodeType closeType) {
    return isOpenFence(newRoot->lastChild, type, closeType) && !isOpenFence(endNode, type, closeType);
}

} // namespace Ondo::Block
