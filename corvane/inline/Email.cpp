#include "corvane/inline/Email.h"

#include "corvane/scan/Util.h"
#include "corvane/tree/InlineParser.h"

namespace Ondo::Inline {

namespace {

constexpr Predicate::Character at{U'@'};

bool isJoiner(char32_t c) {
    return c == U'-' || c == U'+' || c == U'_' || c == U'.';
}

bool isInLocalPart(char32_t c) {
    return isJoiner(c) || (!Go::unicodeWhitespace(c) && !Go::unicodePunctuation(c) && !Go::logogram(c));
}

/// Whether the dot behind a label makes the address longer: then that dot makes the node, so that an address
/// of many labels is not made at each of them.
bool goesOn(Go go) {
    if (go.nextMatch(Go::character(u'.'), 1, 1) == Go::NoPos) return false;
    AddressSyntax::matchNextUnicodeDomain(go);
    return !go.hasFailed() && !go.isNext(at);
}

} // namespace

void Email::beforeParseNode(InlineParserNode&) {
    chain_ = {};
    local_ = {};
}

std::int64_t Email::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    Go go = cursor.onLine();
    go.setPos(cursor.pos() + 1);
    if (go.pos() == go.maxPos() || go.isNext(Go::character(u' '))) return Go::NoPos;
    AddressSyntax::matchNextUnicodeDomain(go);
    if (go.hasFailed() || go.isNext(at)) return Go::NoPos;
    chain_ = AddressSyntax::DomainChain::before(cursor, chain_);
    if (chain_.count == 0) return Go::NoPos;
    Go domain = cursor.onLine();
    domain.setPos(chain_.start);
    const std::int64_t start = startOfLocalPart(domain);
    if (start == Go::NoPos) return Go::NoPos;
    const std::int64_t end = go.pos();
    if (goesOn(go)) return end;

    EmailNode* const email =
        parser.merge(node, std::make_unique<EmailNode>(start, end, cursor.currentLine()));
    if (!email) return Go::NoPos;
    while (email->firstChild)
        email->firstChild->unlinkSubtree();
    parser.claimRange(start, end);
    email->address = go.substring(start, end);
    return end;
}

/// Where the part in front of the "@" before the cursor starts; it begins with no joiner.
std::int64_t Email::startOfLocalPart(const Go& go) {
    Go local = go;
    if (local.previousMatch(at, 1, 1) == Go::NoPos) return Go::NoPos;
    if (local.pos() == local_.at) return local_.start;
    local_ = {local.pos(), Go::NoPos};
    local.previousWhile(isInLocalPart);
    local.nextWhile(isJoiner);
    if (local.pos() < local_.at && !local.isPrevious(at)) local_.start = local.pos();
    return local_.start;
}

std::u16string EmailNode::toIndentedTree() const {
    return Node::toIndentedTree() + u'{' + address + u'}';
}

void EmailNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    out += u"<a href=\"mailto:";
    Util::addHtmlEscaped(Util::percentEscape(address), out);
    out += u"\">";
    Util::addHtmlEscaped(Go(markdown).substring(offset, offset + charCount), out);
    out += u"</a>";
}

bool EmailNode::hasEqualData(const Node& other) const {
    return address == static_cast<const EmailNode&>(other).address;
}

} // namespace Ondo::Inline
