#include "corvane/inline/BackslashEscape.h"

#include "corvane/scan/Escape.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/InlineParser.h"

namespace Ondo::Inline {

std::int64_t BackslashEscape::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    const std::int64_t start = cursor.pos();
    const std::int64_t markerEnd = cursor.nextMatch(Go::character(u'\\'), 1, 1);
    const std::int64_t end = cursor.nextMatch(Go::asciiPunctuation, 1, 1);
    if (cursor.hasFailed()) return Go::NoPos;

    auto escape = std::make_unique<BackslashEscapeNode>(start, end, cursor.currentLine());
    ParserBase::linkMarker(escape.get(), ONDO_ESCAPE_MARKER_NODE, start, markerEnd, cursor.currentLine());
    return parser.merge(node, std::move(escape)) ? end : Go::NoPos;
}

bool BackslashEscape::isNextCharacterEscaped(Go go) {
    return Ondo::isNextCharacterEscaped(go);
}

void BackslashEscapeNode::toHtml(std::u16string& out, std::u16string_view markdown,
                                 std::int64_t offset) const {
    Util::addHtmlEscaped(markdown.substr(static_cast<std::size_t>(offset + 1), 1), out);
}

void BackslashEscapeNode::appendValue(std::u16string& out, std::u16string_view markdown) const {
    out += markdown[static_cast<std::size_t>(offsetWhenParsed + 1)];
}

} // namespace Ondo::Inline
