#include "corvane/block/SetextHeading.h"

#include "corvane/block/Paragraph.h"
#include "corvane/scan/Go.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/BlockParser.h"

namespace Ondo::Block {

namespace {

/// The paragraph above that an underline can turn into a heading, or null. Deliberately, one with any lazy
/// line never becomes one; CommonMark only rules out that the underline is lazy.
const ParagraphNode* headingText(const BlockParser& parser, const Node* parent) {
    const Node* const last = parser.lastBlock(parent);
    if (!last || last->type != ONDO_PARAGRAPH_NODE) return nullptr;
    const auto* const paragraph = static_cast<const ParagraphNode*>(last);
    return paragraph->hasLazyLines ? nullptr : paragraph;
}

bool isUnderline(std::u16string_view text, const Lines::Line& line, bool rejectsSingleDash) {
    Go go(text, line.contentStart, line.end);
    const char16_t c = go.unsafePeekNextCharacter();
    if (c != u'-' && c != u'=') return false;
    const std::int64_t end = go.nextWhile(Go::character(c));
    if (c == u'-' && rejectsSingleDash && end - line.contentStart == 1) return false;
    return end == line.contentEnd;
}

} // namespace

std::int64_t SetextHeading::match(BlockParser& parser, std::int64_t line, std::int64_t, Node* parent,
                                  ParseAction action) {
    Lines::Line& l = parser.lines[line];
    const ParagraphNode* const paragraph = headingText(parser, parent);
    if (!paragraph || l.lazy || l.isBlank() || l.localIndentation() >= 4) return 0;
    if (!isUnderline(parser.text, l, rejectsSingleDash)) return 0;
    if (action == ParseAction::Check) return 1;

    const std::int64_t level = parser.text[static_cast<std::size_t>(l.contentStart)] == u'=' ? 1 : 2;
    auto node = std::make_unique<SetextHeadingNode>(
        paragraph->offsetWhenParsed, l.next, paragraph->lineWhenParsed, paragraph->lineCount + 1, level);
    parser.takeLastBlock(parent)->moveAllChildrenTo(node.get());
    parser.linkPrefix(node.get(), line);
    ParserBase::linkMarker(node.get(), ONDO_SETEXT_HEADING_MARKER_NODE, l.contentStart, l.contentEnd, line);
    ParserBase::linkSpace(node.get(), l.contentEnd, l.end, line);
    ParserBase::linkLineEnding(node.get(), l.end, l.next, line);
    parser.mergeNode(parent, std::move(node));
    l.setLeading(l.contentEnd, parser.text);
    return 1;
}

std::u16string SetextHeadingNode::toIndentedTree() const {
    return Node::toIndentedTree() + u"{level: " + Util::toString(level) + u"}";
}

void SetextHeadingNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    out += u"<h" + Util::toString(level) + u">";
    childrenToHtml(out, markdown, offset);
    // The ending of the last text line stands inside the heading, but belongs to the paragraph that it was.
    if (out.back() == u'\n') out.pop_back();
    if (out.back() == u'\r') out.pop_back();
    out += u"</h" + Util::toString(level) + u">\n";
}

bool SetextHeadingNode::hasEqualData(const Node& other) const {
    return level == static_cast<const SetextHeadingNode&>(other).level;
}

} // namespace Ondo::Block
