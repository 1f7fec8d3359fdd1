#include "corvane/block/ThematicBreak.h"

#include <algorithm>
#include <iterator>

#include "corvane/scan/Go.h"
#include "corvane/tree/BlockParser.h"

namespace Ondo::Block {

namespace {

constexpr std::u16string_view emphasisLookalikes[] = {u"____", u"****",   u"******",
                                                      u"* **", u"* ****", u"* ******"};

/// Behind the last marker character, or NoPos when the line is no break.
std::int64_t endOfRun(std::u16string_view text, const Lines::Line& line) {
    Go go(text, line.contentStart, line.end);
    const char16_t c = go.unsafePeekNextCharacter();
    if (c != u'*' && c != u'-' && c != u'_') return Go::NoPos;
    std::int64_t count = 0;
    std::int64_t end = Go::NoPos;
    for (; go.nextMatch(Go::character(c), 1, 1) != Go::NoPos; go.nextWhile(Go::spaceOrTab)) {
        end = go.pos();
        ++count;
    }
    return count >= 3 && end == line.contentEnd ? end : Go::NoPos;
}

bool looksLikeEmphasis(std::u16string_view run) {
    return std::find(std::begin(emphasisLookalikes), std::end(emphasisLookalikes), run) !=
           std::end(emphasisLookalikes);
}

} // namespace

std::int64_t ThematicBreak::match(BlockParser& parser, std::int64_t line, std::int64_t, Node* parent,
                                  ParseAction action) {
    const Lines::Line& l = parser.lines[line];
    if (l.isBlank() || l.localIndentation() > 3) return 0;
    const std::int64_t end = endOfRun(parser.text, l);
    if (end == Go::NoPos) return 0;
    if (rejectsEmphasisLookalikes && looksLikeEmphasis(Go(parser.text).substring(l.contentStart, end)))
        return 0;
    if (action == ParseAction::Check) return 1;

    auto node = std::make_unique<ThematicBreakNode>(l.start, l.next, line);
    parser.linkPrefix(node.get(), line);
    ParserBase::linkMarker(node.get(), ONDO_THEMATIC_BREAK_MARKER_NODE, l.contentStart, end, line);
    ParserBase::linkSpace(node.get(), end, l.end, line);
    ParserBase::linkLineEnding(node.get(), l.end, l.next, line);
    parser.mergeNode(parent, std::move(node));
    return 1;
}

void ThematicBreakNode::toHtml(std::u16string& out, std::u16string_view, std::int64_t) const {
    out += u"<hr />\n";
}

} // namespace Ondo::Block
