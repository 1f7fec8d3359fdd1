#include "corvane/inline/Color.h"

#include "corvane/inline/Context.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/InlineParser.h"

namespace Ondo::Inline {

namespace {

constexpr std::int64_t hexadecimalDigits = 6;
constexpr std::int64_t longestNumber = 10;

// These move behind what they match; otherwise the cursor fails.

void matchHexadecimal(Go& go) {
    go.nextMatch(Go::character(u'#'), 1, 1);
    go.nextMatch(Go::hexadecimalNumber, hexadecimalDigits, hexadecimalDigits);
    // What goes on like this is a hashtag.
    if (go.isNext(Go::characterAnyOf(u"#/"))) go.setPos(Go::NoPos);
}

/// Any mix of digits and dots passes.
void matchNumber(Go& go) {
    go.nextWhile(Go::character(u'-'), 1);
    go.nextMatch(Go::characterAnyOf(u"0123456789."), 1, longestNumber);
    go.nextWhile(Go::character(u'%'), 1);
}

void matchFurtherNumber(Go& go) {
    go.nextMatch(Go::character(u','), 1, 1);
    go.nextWhile(Go::whitespace, 1);
    matchNumber(go);
}

void matchRgbHsl(Go& go) {
    go.nextMatchCaseInsensitiveString(go.isNextCaseInsensitiveString(u"rgb") ? u"rgb" : u"hsl");
    go.nextWhile(Go::characterAnyOf(u"aA"));
    go.nextMatch(Go::character(u'('), 1, 1);
    matchNumber(go);
    matchFurtherNumber(go);
    matchFurtherNumber(go);
    Go withAlpha = go;
    matchFurtherNumber(withAlpha);
    if (!withAlpha.hasFailed()) go = withAlpha;
    go.nextMatch(Go::character(u')'), 1, 1);
}

} // namespace

std::int64_t Color::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    if (!hasOpenLeft(cursor)) return Go::NoPos;
    const std::int64_t start = cursor.pos();
    const bool isHexadecimal = cursor.isNext(Go::character(u'#'));
    if (isHexadecimal)
        matchHexadecimal(cursor);
    else
        matchRgbHsl(cursor);
    if (cursor.hasFailed() || !hasOpenRight(cursor)) return Go::NoPos;

    const std::int64_t end = cursor.pos();
    auto color = std::make_unique<ColorNode>(start, end, cursor.currentLine());
    if (isHexadecimal)
        ParserBase::linkMarker(color.get(), ONDO_COLOR_MARKER_NODE, start, start + 1, cursor.currentLine());
    return parser.merge(node, std::move(color)) ? end : Go::NoPos;
}

void ColorNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    Util::addHtmlEscaped(markdown.substr(static_cast<std::size_t>(offset + 1), 1), out);
}

} // namespace Ondo::Inline
