#include "corvane/block/MathBlock.h"

#include "corvane/block/Fence.h"
#include "corvane/scan/Go.h"
#include "corvane/scan/Util.h"

namespace Ondo::Block {

namespace {

constexpr std::int64_t fenceLength = 2;

bool isOpening(std::u16string_view text, const Lines::Line& line) {
    if (line.isBlank() || line.localIndentation() > 3) return false;
    Go go(text, line.contentStart, line.end);
    const std::int64_t end = go.nextMatch(Go::character(U'$'), fenceLength, Go::NoLimit);
    return end == line.contentStart + fenceLength && end == line.contentEnd;
}

} // namespace

std::int64_t MathBlock::match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                              ParseAction action) {
    const Lines::Line& l = parser.lines[line];
    if (!isOpening(parser.text, l)) return 0;
    if (action == ParseAction::Check) return 1;

    auto node = std::make_unique<MathBlockNode>(l.start, l.next, line);
    parser.linkPrefix(node.get(), line);
    ParserBase::linkMarker(node.get(), ONDO_MATH_BLOCK_OPEN_MARKER_NODE, l.contentStart, l.contentEnd, line);
    ParserBase::linkSpace(node.get(), l.contentEnd, l.end, line);
    ParserBase::linkLineEnding(node.get(), l.end, l.next, line);

    const Fence fence{ONDO_MATH_BLOCK_CONTENT_ATTRIBUTE_NODE, ONDO_MATH_BLOCK_CLOSE_MARKER_NODE, u'$',
                      fenceLength, fenceLength};
    const std::int64_t count =
        parseFencedLines(parser, node.get(), fence, node->code, line, lastLine, parent);
    parser.mergeNode(parent, std::move(node));
    return count;
}

bool MathBlock::needFullReparse(const TextBuffer&, std::int64_t, std::int64_t, Node*, Node* endNode,
                                Node* newRoot) {
    return opensFence(newRoot, endNode, ONDO_MATH_BLOCK_NODE, ONDO_MATH_BLOCK_CLOSE_MARKER_NODE);
}

void MathBlockNode::toHtml(std::u16string& out, std::u16string_view, std::int64_t) const {
    out += u"<math>";
    Util::addHtmlEscaped(code, out);
    out += u"</math>\n";
}

bool MathBlockNode::hasEqualData(const Node& other) const {
    return code == static_cast<const MathBlockNode&>(other).code;
}

} // namespace Ondo::Block
