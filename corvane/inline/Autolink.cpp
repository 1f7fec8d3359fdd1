#include "corvane/inline/Autolink.h"

#include "corvane/inline/AddressSyntax.h"
#include "corvane/scan/HtmlSyntax.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/InlineParser.h"

namespace Ondo::Inline {

namespace {

using AddressSyntax::isSchemeCharacter;

constexpr std::int64_t longestLabel = 63;

bool isUriCharacter(char32_t c) {
    return c > U' ' && c != 0x7F && c != U'<' && c != U'>';
}

bool isLocalCharacter(char32_t c) {
    return HtmlSyntax::isLetterOrDigit(c) ||
           (c < 0x80 && std::u16string_view(u".!#$%&'*+/=?^_`{|}~-").find(static_cast<char16_t>(c)) !=
                            std::u16string_view::npos);
}

bool letterNumberHyphen(char32_t c) {
    return HtmlSyntax::isLetterOrDigit(c) || c == U'-';
}

void matchUri(Go& go) {
    go.nextMatch(Predicate::Function<HtmlSyntax::isLetter>{}, 1, 1);
    go.nextMatch(isSchemeCharacter, 1, 31);
    go.nextMatch(Go::character(u':'), 1, 1);
    go.nextWhile(isUriCharacter);
}

void matchLabel(Go& go) {
    if (go.isNext(Go::character(u'-'))) return go.setPos(Go::NoPos);
    go.nextMatch(letterNumberHyphen, 1, longestLabel);
    if (go.isPrevious(Go::character(u'-'))) go.setPos(Go::NoPos);
}

void matchEmail(Go& go) {
    go.nextMatch(isLocalCharacter, 1, Go::NoLimit);
    go.nextMatch(Go::character(u'@'), 1, 1);
    matchLabel(go);
    while (go.isNext(Go::character(u'.'))) {
        go.setPos(go.pos() + 1);
        matchLabel(go);
    }
}

void matchBracket(Go& go) {
    go.nextMatch(Go::character(u'>'), 1, 1);
}

} // namespace

std::int64_t Autolink::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    const std::int64_t start = cursor.pos();
    cursor.setPos(start + 1);
    Go go = cursor.onLine();
    matchUri(go);
    matchBracket(go);
    const bool isAddress = go.hasFailed();
    if (isAddress) {
        go = cursor.onLine();
        matchEmail(go);
        matchBracket(go);
        if (go.hasFailed()) return Go::NoPos;
    }
    const std::int64_t end = go.pos();
    const std::int64_t line = cursor.currentLine();
    auto link = std::make_unique<AutolinkNode>(start, end, line);
    link->destination = isAddress ? u"mailto:" : u"";
    link->destination += go.substring(start + 1, end - 1);
    ParserBase::linkMarker(link.get(), ONDO_AUTOLINK_OPEN_MARKER_NODE, start, start + 1, line);
    link->link(std::make_unique<AttributeNode>(ONDO_AUTOLINK_DESTINATION_ATTRIBUTE_NODE, start + 1, end - 1,
                                               line, 0, link.get()));
    ParserBase::linkMarker(link.get(), ONDO_AUTOLINK_CLOSE_MARKER_NODE, end - 1, end, line);
    return parser.merge(node, std::move(link)) ? end : Go::NoPos;
}

std::u16string AutolinkNode::toIndentedTree() const {
    return Node::toIndentedTree() + u'{' + destination + u'}';
}

void AutolinkNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    out += u"<a href=\"";
    Util::addHtmlEscaped(Util::percentEscape(destination), out);
    out += u"\">";
    Util::addHtmlEscaped(Go(markdown).substring(offset + 1, offset + charCount - 1), out);
    out += u"</a>";
}

bool AutolinkNode::hasEqualData(const Node& other) const {
    return destination == static_cast<const AutolinkNode&>(other).destination;
}

} // namespace Ondo::Inline
