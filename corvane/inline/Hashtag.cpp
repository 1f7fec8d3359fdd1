#include "corvane/inline/Hashtag.h"

#include "corvane/inline/Context.h"
#include "corvane/inline/Segments.h"
#include "corvane/tree/InlineParser.h"

namespace Ondo::Inline {

namespace {

constexpr std::int64_t longest = 500; ///< distance of a tag's last character from its first

/// What closes may not stand behind any of these, which would rather open something.
bool isBehindOpening(const GoLines& go) {
    return go.isPrevious(Go::unicodeWhitespace) || go.isPrevious(Go::unicodeOpenPunctuation) ||
           go.isPrevious(Go::characterAnyOf(u"*_=")) || isBehindColorEmoji(go);
}

/// From the "#" to behind the one that closes.
bool matchDoubleMarkerTag(GoLines& go) {
    if (go.isPrevious(Go::characterAnyOf(u"#*_="))) return false;
    go.step();
    if (go.isNext(Go::unicodeWhitespace)) return false;
    const std::int64_t start = go.pos();
    while (!go.isAtEnd() && !go.isNext(Go::character(u'#'))) {
        if (go.isNext(Go::characterAnyOf(u"[]")) || go.isNextCaseInsensitiveString(u"<br>") ||
            go.pos() - start > longest)
            return false;
        if (go.isNext(Go::character(u'\\')))
            stepOverEscape(go);
        else
            go.step();
    }
    if (go.isAtEnd() || go.pos() == start || isBehindOpening(go)) return false;
    go.step();
    return !go.isNext(Go::character(u'#'));
}

bool isNumber(const GoLines& go, std::int64_t start, std::int64_t end) {
    for (const char16_t c : go.substring(start, end))
        if (!Go::unicodeDecimalNumber(c)) return false;
    return true;
}

bool endsTag(const GoLines& go) {
    return go.isNext(Go::unicodeWhitespace) || go.isNext(Go::unicodeOpenClosePunctuation) ||
           go.isNext(Go::characterAnyOf(u"<>"));
}

/// From the "#" to behind the last character that is no punctuation. What a backslash escapes counts as some.
bool matchSingleMarkerTag(GoLines& go) {
    if (!hasOpenLeft(go) || go.isPrevious(Go::character(u'#'))) return false;
    go.step();
    const std::int64_t start = go.pos();
    std::int64_t end = start;
    while (!go.isAtEnd()) {
        const char16_t c = go.unsafePeekNextCharacter();
        if (c == u'#' || go.pos() - start > longest) return false;
        if (endsTag(go)) break;
        if (c == u'\\') {
            stepOverEscape(go);
            continue;
        }
        go.step();
        if (c == u'/' || !Go::unicodePunctuation(c)) end = go.pos();
    }
    go.setPos(end);
    return end != start && !isNumber(go, start, end) && hasOpenRight(go);
}

void addSegment(InlineParserNode& parser, HashtagNode* node, std::int64_t start, std::int64_t end) {
    if (start == end) return;
    Node* const attribute = node->link(std::make_unique<AttributeNode>(
        ONDO_HASHTAG_SEGMENT_ATTRIBUTE_NODE, start, end, node->lineWhenParsed, 0, node));
    parser.parseAttribute(attribute);
    node->segments.push_back(
        Segments::normalizeSegment(InlineParserNode::attributeString(parser.text, attribute)));
}

void addSegments(InlineParserNode& parser, HashtagNode* node, std::int64_t tagEnd) {
    const std::int64_t line = node->lineWhenParsed;
    std::int64_t start = node->offsetWhenParsed + 1;
    for (std::int64_t at = start; at < tagEnd; ++at) {
        const char16_t c = parser.text[static_cast<std::size_t>(at)];
        if (c == u'\\') ++at;
        if (c != u'/') continue;
        addSegment(parser, node, start, at);
        ParserBase::linkMarker(node, ONDO_HASHTAG_SEPARATOR_MARKER_NODE, at, at + 1, line);
        start = at + 1;
    }
    addSegment(parser, node, start, tagEnd);
}

} // namespace

std::int64_t Hashtag::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    const std::int64_t start = cursor.pos();
    GoLines go = cursor;
    const bool isDouble = matchDoubleMarkerTag(go);
    if (!isDouble) {
        go = cursor;
        if (!matchSingleMarkerTag(go)) return Go::NoPos;
    }
    const std::int64_t line = cursor.currentLine();
    const std::int64_t tagEnd = go.pos() - (isDouble ? 1 : 0);
    auto tag = std::make_unique<HashtagNode>(start, go.pos(), line);
    ParserBase::linkMarker(tag.get(), ONDO_HASHTAG_OPEN_MARKER_NODE, start, start + 1, line);
    addSegments(parser, tag.get(), tagEnd);
    ParserBase::linkMarker(tag.get(), ONDO_HASHTAG_CLOSE_MARKER_NODE, tagEnd, go.pos(), line);
    return parser.merge(node, std::move(tag)) ? go.pos() : Go::NoPos;
}

std::u16string HashtagNode::encodedSegments() const {
    return Segments::encode(segments);
}

std::u16string HashtagNode::toIndentedTree() const {
    return Node::toIndentedTree() + u'{' + encodedSegments() + u'}';
}

void HashtagNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    out += u'#';
    for (const Node* child = firstChild; child; offset += child->charCount, child = child->nextSibling) {
        if (child->type == ONDO_HASHTAG_SEPARATOR_MARKER_NODE) out += u'/';
        if (child->type == ONDO_HASHTAG_SEGMENT_ATTRIBUTE_NODE) child->childrenToHtml(out, markdown, offset);
    }
}

bool HashtagNode::hasEqualData(const Node& other) const {
    return segments == static_cast<const HashtagNode&>(other).segments;
}

} // namespace Ondo::Inline
