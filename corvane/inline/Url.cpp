#include "corvane/inline/Url.h"

#include <algorithm>
#include <iterator>

#include "corvane/scan/HtmlSyntax.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/InlineParser.h"

namespace Ondo::Inline {

namespace {

using AddressSyntax::DomainChain;
using AddressSyntax::isSchemeCharacter;

constexpr std::int64_t longestProtocol = 50;
constexpr std::size_t longestTld = 16; ///< longer than any in the tables

/// Domains of countries that are better known as endings of file names.
constexpr std::u16string_view fileEndings[] = {u"pl", u"py", u"tk", u"ml", u"md", u"sh", u"cc"};

/// Backwards to the first letter of a protocol.
void matchPreviousProtocol(Go& go) {
    const std::int64_t end = go.pos();
    go.previousMatch(isSchemeCharacter, 1, longestProtocol);
    go.nextWhile([](char32_t c) { return !HtmlSyntax::isLetter(c); }, end - go.pos());
    if (go.pos() >= end) go.setPos(Go::NoPos);
}

std::u16string_view domainIn(const Go& go, const DomainChain& chain) {
    return go.substring(chain.start, chain.dot);
}

/// Whether a domain with this last label is one that people write without a protocol.
bool isKnownDomain(std::u16string_view tld, const Go& go, const DomainChain& chain) {
    const bool manyLabels = chain.count > 1;
    if (manyLabels && domainIn(go, chain).starts_with(u"www.")) return true;
    if (tld.size() > longestTld) return false;
    if (Util::isShortlistTLD(tld) || Util::isNonAsciiCountryTLD(tld)) return true;
    if (!Util::isCountryTLD(tld)) return false;
    const bool isFileName =
        std::find(std::begin(fileEndings), std::end(fileEndings), tld) != std::end(fileEndings);
    return manyLabels || (chain.dot - chain.start >= 3 && !isFileName);
}

bool hasRightCase(std::u16string_view tld) {
    if (tld.size() > longestTld) return Util::downcaseUnicode(tld) == tld;
    const std::u16string small = Util::downcaseUnicode(tld);
    return small == tld || small == u"com" || small == u"net" || small == u"org";
}

/// The label goes on, so that a later dot will see more of the address.
bool goesOn(const Go& go) {
    if (go.isNext(Go::character(u'_'))) return true;
    if (!go.isNext(Go::character(u'.'))) return false;
    return go.pos() + 1 < go.maxPos() && !go.isWithOffset(1, Go::unicodePunctuation) &&
           !go.isWithOffset(1, Go::unicodeWhitespace);
}

/// Whether a node lies across the start, which the address would cross. To be asked before text is scanned
/// for it.
bool isInsideNode(const InlineParserNode& parser, const Node* parent, std::int64_t start) {
    const Node* const child = parser.childAt(parent, start);
    return child && child->offsetWhenParsed < start;
}

/// The labels that are there; there may be none.
void matchDomain(Go& go) {
    Go label = go;
    AddressSyntax::matchNextUnicodeDomain(label);
    while (!label.hasFailed()) {
        go.setPos(label.pos());
        label.nextMatch(Go::character(u'.'), 1, 1);
        AddressSyntax::matchNextUnicodeDomain(label);
    }
}

/// Where the address starts; NoPos when it can't start there.
std::int64_t startOfAddress(const GoLines& cursor, const DomainChain& chain) {
    Go go = cursor.onLine();
    go.setPos(chain.start);
    const std::int64_t user = AddressSyntax::startOfPreviousUser(go);
    if (user == Go::NoPos && go.isPrevious(Go::character(u'@'))) return Go::NoPos;
    if (user != Go::NoPos) go.setPos(user);
    if (go.isPrevious(Go::characterAnyOf(u"/_")) || !AddressSyntax::isValidLeftContext(go)) return Go::NoPos;
    return go.pos();
}

/// The parts that an earlier dot of the same address has left are given up.
std::int64_t addInline(InlineParserNode& parser, Node* parent, const GoLines& cursor, std::int64_t start,
                       std::int64_t end) {
    UrlNode* const node = parser.merge(parent, std::make_unique<UrlNode>(start, end, cursor.currentLine()));
    if (!node) return Go::NoPos;
    while (node->firstChild)
        node->firstChild->unlinkSubtree();
    parser.claimRange(start, end);
    parser.parseAttribute(node);
    node->url = InlineParserNode::attributeString(parser.text, node);
    return end;
}

} // namespace

void Url::beforeParseNode(InlineParserNode&) {
    chain_ = {};
    path_ = {};
}

std::int64_t Url::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    if (cursor.isNext(Go::character(u':'))) return matchWithProtocol(parser, node, cursor);
    return matchWithoutProtocol(parser, node, cursor);
}

std::int64_t Url::matchWithProtocol(InlineParserNode& parser, Node* node, const GoLines& colon) {
    if (!colon.isNextString(u"://")) return Go::NoPos;
    Go protocol = colon.onLine();
    matchPreviousProtocol(protocol);
    if (protocol.hasFailed() || !AddressSyntax::isValidLeftContext(protocol)) return Go::NoPos;
    if (isInsideNode(parser, node, protocol.pos())) return Go::NoPos;
    const std::int64_t slash = colon.pos() + 2; // the second one
    Go go = colon.onLine();
    go.setPos(slash + 1);
    AddressSyntax::matchNextUser(go);
    matchDomain(go);
    AddressSyntax::matchNextPort(go);
    // Without a path the domain is one, so that «scheme://host?x=1» keeps its query.
    if (!go.isNext(Go::character(u'/'))) go.setPos(slash);
    AddressSyntax::matchNextPath(go, path_);
    if (go.pos() == slash + 1 || !AddressSyntax::isValidRightContext(go)) return Go::NoPos;
    return addInline(parser, node, colon, protocol.pos(), go.pos());
}

std::int64_t Url::matchWithoutProtocol(InlineParserNode& parser, Node* node, const GoLines& dot) {
    Go go = dot.onLine();
    go.setPos(dot.pos() + 1);
    if (go.pos() == go.maxPos() || go.isNext(Go::character(u' '))) return Go::NoPos;
    AddressSyntax::matchNextUnicodeDomain(go);
    if (go.hasFailed()) return Go::NoPos;
    chain_ = DomainChain::before(dot, chain_);
    const std::u16string_view tld = go.substring(dot.pos() + 1, go.pos());
    if (chain_.count == 0 || goesOn(go) || !hasRightCase(tld) || !isKnownDomain(tld, go, chain_))
        return Go::NoPos;
    const std::int64_t start = startOfAddress(dot, chain_);
    if (start == Go::NoPos || isInsideNode(parser, node, start)) return Go::NoPos;
    AddressSyntax::matchNextPort(go);
    AddressSyntax::matchNextPath(go, path_);
    if (!AddressSyntax::isValidRightContext(go)) return Go::NoPos;
    return addInline(parser, node, dot, start, go.pos());
}

std::u16string UrlNode::toIndentedTree() const {
    return Node::toIndentedTree() + u'{' + url + u'}';
}

void UrlNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    out += u"<a href=\"";
    Util::addHtmlEscaped(Util::percentEscape(url), out);
    out += u"\">";
    Util::addHtmlEscaped(Go(markdown).substring(offset, offset + charCount), out);
    out += u"</a>";
}

bool UrlNode::hasEqualData(const Node& other) const {
    return url == static_cast<const UrlNode&>(other).url;
}

} // namespace Ondo::Inline
