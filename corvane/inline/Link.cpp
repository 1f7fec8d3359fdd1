#include "corvane/inline/Link.h"

namespace Ondo::Inline {

std::int64_t Link::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    if (cursor.isNext(Go::character(u'['))) return open(cursor, 1);
    return close(parser, node, cursor);
}

std::unique_ptr<LinkBaseNode> Link::makeNodeForSubclass(std::int64_t start, std::int64_t end,
                                                        std::int64_t line, std::int64_t lines) {
    return std::make_unique<LinkNode>(start, end, line, lines, labeledConnections());
}

void LinkNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    out += u"<a href=\"";
    addDestination(out);
    out += u'"';
    addTitle(out);
    out += u'>';
    const auto [text, start] = childOfType(ONDO_LINK_TEXT_ATTRIBUTE_NODE, offset);
    if (text) text->childrenToHtml(out, markdown, start);
    out += u"</a>";
}

} // namespace Ondo::Inline
