#include "corvane/block/Paragraph.h"

#include "corvane/tree/BlockParser.h"

namespace Ondo::Block {

namespace {

void linkLine(BlockParser& parser, ParagraphNode* node, std::int64_t number) {
    const Lines::Line& line = parser.lines[number];
    parser.linkPrefix(node, number);
    ParserBase::linkSpace(node, line.contentEnd, line.end, number);
    ParserBase::linkLineEnding(node, line.end, line.next, number);
}

} // namespace

std::int64_t Paragraph::match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                              ParseAction action) {
    const Lines& lines = parser.lines;
    if (lines[line].isBlank()) return 0;
    if (action == ParseAction::Check) return 1;
    auto node = std::make_unique<ParagraphNode>(lines[line].start, lines[line].next, line, 1);
    linkLine(parser, node.get(), line);
    // Terminating rules ask whether a paragraph is open above them.
    parser.openBlock(node.get());
    std::int64_t next = line + 1;
    for (; next <= lastLine && parser.hasLine(next) && !lines[next].isBlank(); ++next) {
        if (hasMatchingTerminatingRule(parser, next, lastLine, parent)) break;
        if (lines[next].lazy) node->hasLazyLines = true;
        linkLine(parser, node.get(), next);
    }
    node->charCount = lines[next - 1].next - node->offsetWhenParsed;
    node->lineCount = next - line;
    parser.mergeNode(parent, std::move(node));
    return next - line;
}

std::u16string ParagraphNode::toIndentedTree() const {
    return Node::toIndentedTree() + (hasLazyLines ? u"{lazy}" : u"");
}

void ParagraphNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    out += u"<p>";
    childrenToHtml(out, markdown, offset);
    out += u"</p>\n";
}

bool ParagraphNode::hasEqualData(const Node& other) const {
    return hasLazyLines == static_cast<const ParagraphNode&>(other).hasLazyLines;
}

} // namespace Ondo::Block
