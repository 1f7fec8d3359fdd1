#include "corvane/inline/HardLineBreak.h"

#include "corvane/tree/InlineParser.h"

namespace Ondo::Inline {

namespace {

constexpr std::int64_t spacesWidth = 2;

/// Whether another line of the block's text follows; the underline of a heading is none.
bool hasFurtherText(const Node* node, const GoLines& cursor) {
    const std::int64_t underlines = node->type == ONDO_SETEXT_HEADING_NODE ? 1 : 0;
    return cursor.currentLine() < cursor.lastLine() - underlines;
}

/// The length of the backslash or the spaces before the line's ending; 0 when they make no break.
std::int64_t markerWidth(std::u16string_view text, const Lines::Line& line) {
    Go go(text, line.start, line.end);
    go.setPos(line.end);
    if (!go.isPrevious(Go::character(u'\\')))
        return go.previousMatch(Go::character(u' '), spacesWidth, spacesWidth) == Go::NoPos ? 0 : spacesWidth;
    if (line.end <= line.contentStart) return 0;
    const std::int64_t run = line.end - go.previousWhile(Go::character(u'\\'), line.end - line.contentStart);
    return run % 2;
}

/// Takes the last two off the spaces that the block has at the end of the line.
void shortenSpace(const InlineParserNode& parser, const Node* node, const Lines::Line& line) {
    Node* const n = parser.childAt(node, line.end - 1);
    CORVANE_ASSERT(n, "HardLineBreak");
    CORVANE_ASSERT(n->type == ONDO_SPACE_NODE, "HardLineBreak");
    if (n->charCount == spacesWidth)
        n->unlinkSubtree();
    else
        n->charCount -= spacesWidth;
}

} // namespace

std::int64_t HardLineBreak::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    if (!hasFurtherText(node, cursor)) return Go::NoPos;
    const std::int64_t number = cursor.currentLine();
    const Lines::Line& line = parser.lines[number];
    if (line.end - line.start < 2) return Go::NoPos;
    const std::int64_t width = markerWidth(parser.text, line);
    if (width == 0) return Go::NoPos;

    if (width == spacesWidth) shortenSpace(parser, node, line);
    auto lineBreak = std::make_unique<HardLineBreakNode>(line.end - width, line.next, number);
    ParserBase::linkMarker(lineBreak.get(), ONDO_HARD_LINE_BREAK_MARKER_NODE, line.end - width, line.end,
                           number);
    return parser.merge(node, std::move(lineBreak)) ? line.next : Go::NoPos;
}

void HardLineBreakNode::toHtml(std::u16string& out, std::u16string_view, std::int64_t) const {
    out += u"<br />\n";
}

} // namespace Ondo::Inline
