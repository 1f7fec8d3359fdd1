#include "corvane/block/AtxHeading.h"

#include "corvane/scan/Go.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/BlockParser.h"

namespace Ondo::Block {

namespace {

constexpr std::int64_t maximumLevel = 6;
constexpr Predicate::Character hash = Go::character(U'#');

/// Where the closing marker starts: at the blank before the closing run, or at `contentEnd` without one.
std::int64_t closingMarker(std::u16string_view text, std::int64_t openEnd, std::int64_t contentEnd) {
    Go go(text, openEnd, contentEnd);
    go.setPos(contentEnd);
    go.previousMatch(hash, 1, Go::NoLimit);
    if (go.pos() != openEnd) go.previousMatch(Go::spaceOrTab, 1, 1);
    return go.hasFailed() ? contentEnd : go.pos();
}

} // namespace

std::int64_t AtxHeading::match(BlockParser& parser, std::int64_t line, std::int64_t, Node* parent,
                               ParseAction action) {
    Lines::Line& l = parser.lines[line];
    if (l.localIndentation() > 3) return 0;
    Go go(parser.text, l.contentStart, l.end);
    const std::int64_t runEnd = go.nextMatch(hash, 1, Go::NoLimit);
    if (requiresSpaceAtLineEnd || runEnd < l.end) go.nextMatch(Go::spaceOrTab, 1, 1);
    if (go.hasFailed()) return 0;
    const std::int64_t openEnd = go.pos();
    const std::int64_t level = runEnd - l.contentStart;
    if (level > maximumLevel) return 0;
    if (action == ParseAction::Check) return 1;

    const std::int64_t lineContentEnd = std::max(l.contentEnd, openEnd);
    const std::int64_t closeStart = closingMarker(parser.text, openEnd, lineContentEnd);
    const std::int64_t contentStart = Go(parser.text, openEnd, closeStart).nextWhile(Go::spaceOrTab);
    Go back(parser.text, contentStart, closeStart);
    back.setPos(closeStart);
    const std::int64_t contentEnd = back.previousWhile(Go::spaceOrTab);

    auto node = std::make_unique<AtxHeadingNode>(l.start, l.next, line, level);
    parser.linkPrefix(node.get(), line);
    ParserBase::linkMarker(node.get(), ONDO_ATX_HEADING_OPEN_MARKER_NODE, l.contentStart, openEnd, line);
    ParserBase::linkSpace(node.get(), openEnd, contentStart, line);
    ParserBase::linkSpace(node.get(), contentEnd, closeStart, line);
    ParserBase::linkMarker(node.get(), ONDO_ATX_HEADING_CLOSE_MARKER_NODE, closeStart, l.contentEnd, line);
    ParserBase::linkSpace(node.get(), lineContentEnd, l.end, line);
    ParserBase::linkLineEnding(node.get(), l.end, l.next, line);
    parser.mergeNode(parent, std::move(node));
    l.setLeading(openEnd, parser.text);
    return 1;
}

std::u16string AtxHeadingNode::toIndentedTree() const {
    return Node::toIndentedTree() + u"{level: " + Util::toString(level) + u"}";
}

void AtxHeadingNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    out += u"<h" + Util::toString(level) + u">";
    childrenToHtml(out, markdown, offset);
    out += u"</h" + Util::toString(level) + u">\n";
}

bool AtxHeadingNode::hasEqualData(const Node& other) const {
    return level == static_cast<const AtxHeadingNode&>(other).level;
}

} // namespace Ondo::Block
