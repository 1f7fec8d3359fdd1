#include "corvane/inline/Wikilink.h"

#include "corvane/inline/Segments.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/InlineParser.h"

namespace Ondo::Inline {

namespace {

/// Where the pieces of a wikilink stand.
struct Pieces {
    std::int64_t start;             ///< of the target
    std::int64_t slash = Go::NoPos; ///< the first that separates
    std::int64_t targetEnd = 0;
    std::int64_t aliasStart = Go::NoPos; ///< behind the pipe
    std::int64_t end = 0;                ///< of target or alias, before the "]]"
};

enum class Part { Title, Header, Alias };

/// Stops before what ends the part, which at worst is the line. False at a second "[".
bool scan(GoLines& go, Part part, bool escapedPipeIsSeparator) {
    for (; go.pos() != go.maxPos(); go.step()) {
        const char16_t c = go.unsafePeekNextCharacter();
        if (c == u'[' && go.isPrevious(Go::character(u'['))) return false;
        if (c == u']' && go.isWithOffset(1, Go::character(u']'))) return true;
        if (c == u'/' && part == Part::Title) return true;
        if (part != Part::Alias && (c == u'|' || (escapedPipeIsSeparator && go.isNextString(u"\\|"))))
            return true;
        if (c == u'\\' && go.pos() + 1 < go.maxPos()) go.step();
    }
    return true;
}

/// From behind the "[[" to behind the "]]".
bool matchPieces(GoLines& go, bool escapedPipeIsSeparator, Pieces& pieces) {
    pieces.start = go.pos();
    if (!scan(go, Part::Title, escapedPipeIsSeparator)) return false;
    if (go.isNext(Go::character(u'/'))) {
        pieces.slash = go.pos();
        go.step();
        if (!scan(go, Part::Header, escapedPipeIsSeparator)) return false;
    }
    pieces.targetEnd = go.pos();
    if (go.isNext(Go::character(u'\\'))) go.step();
    if (go.isNext(Go::character(u'|'))) {
        go.step();
        pieces.aliasStart = go.pos();
        if (!scan(go, Part::Alias, false)) return false;
    }
    pieces.end = go.pos();
    go.nextMatchString(u"]]");
    return !go.hasFailed();
}

/// The value of a new attribute; nothing for an empty one.
std::u16string addAttribute(InlineParserNode& parser, Node* parent, NodeType type, std::int64_t start,
                            std::int64_t end, Node* maker) {
    Node* const attribute =
        parent->link(std::make_unique<AttributeNode>(type, start, end, maker->lineWhenParsed, 0, maker));
    parser.parseAttribute(attribute);
    return InlineParserNode::attributeString(parser.text, attribute);
}

void addTarget(InlineParserNode& parser, WikilinkNode* node, const Pieces& pieces) {
    if (pieces.start == pieces.targetEnd) return;
    const std::int64_t line = node->lineWhenParsed;
    Node* const target = node->link(std::make_unique<AttributeNode>(
        ONDO_WIKILINK_TARGET_ATTRIBUTE_NODE, pieces.start, pieces.targetEnd, line, 0, node));
    const auto addSegment = [&](std::int64_t start, std::int64_t end) {
        node->segments.push_back(Segments::normalizeSegment(
            addAttribute(parser, target, ONDO_WIKILINK_SEGMENT_ATTRIBUTE_NODE, start, end, node)));
    };
    const bool isDivided = pieces.slash != Go::NoPos;
    const std::int64_t titleEnd = isDivided ? pieces.slash : pieces.targetEnd;
    const bool hasHeader = isDivided && pieces.slash + 1 < pieces.targetEnd;
    if (titleEnd > pieces.start)
        addSegment(pieces.start, titleEnd);
    else if (hasHeader)
        node->segments.emplace_back(); // so that the header stays second
    if (!isDivided) return;
    ParserBase::linkMarker(target, ONDO_WIKILINK_SEPARATOR_MARKER_NODE, pieces.slash, pieces.slash + 1, line,
                           node);
    if (hasHeader) addSegment(pieces.slash + 1, pieces.targetEnd);
}

void addAlias(InlineParserNode& parser, WikilinkNode* node, const Pieces& pieces) {
    if (pieces.aliasStart == Go::NoPos) return;
    ParserBase::linkMarker(node, ONDO_WIKILINK_ALIAS_SEPARATOR_MARKER_NODE, pieces.targetEnd,
                           pieces.aliasStart, node->lineWhenParsed);
    if (pieces.aliasStart == pieces.end) return;
    const std::u16string alias =
        addAttribute(parser, node, ONDO_WIKILINK_ALIAS_ATTRIBUTE_NODE, pieces.aliasStart, pieces.end, node);
    node->alias = Util::trim(std::u16string_view(alias), Go::whitespace);
}

void addHtml(const Node* parent, std::u16string_view markdown, std::int64_t offset, std::u16string& out) {
    for (const Node* child = parent->firstChild; child;
         offset += child->charCount, child = child->nextSibling) {
        if (child->type == ONDO_WIKILINK_TARGET_ATTRIBUTE_NODE) addHtml(child, markdown, offset, out);
        if (child->type == ONDO_WIKILINK_SEPARATOR_MARKER_NODE) out += u'/';
        if (child->type == ONDO_WIKILINK_ALIAS_ATTRIBUTE_NODE) out += u'|';
        if (child->type == ONDO_WIKILINK_ALIAS_ATTRIBUTE_NODE ||
            child->type == ONDO_WIKILINK_SEGMENT_ATTRIBUTE_NODE)
            child->childrenToHtml(out, markdown, offset);
    }
}

} // namespace

std::int64_t Wikilink::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    if (!cursor.isNextString(u"[[")) return Go::NoPos;
    const std::int64_t start = cursor.pos();
    const std::int64_t line = cursor.currentLine();
    cursor.setPos(start + 2);
    Pieces pieces{};
    if (!matchPieces(cursor, escapedPipeIsSeparator && node->type == ONDO_TABLE_CELL_NODE, pieces))
        return Go::NoPos;
    auto link = std::make_unique<WikilinkNode>(start, cursor.pos(), line);
    ParserBase::linkMarker(link.get(), ONDO_WIKILINK_OPEN_MARKER_NODE, start, pieces.start, line);
    addTarget(parser, link.get(), pieces);
    addAlias(parser, link.get(), pieces);
    ParserBase::linkMarker(link.get(), ONDO_WIKILINK_CLOSE_MARKER_NODE, pieces.end, cursor.pos(), line);
    return parser.merge(node, std::move(link)) ? cursor.pos() : Go::NoPos;
}

std::u16string WikilinkNode::encodedSegments() const {
    return Segments::encode(segments);
}

std::u16string WikilinkNode::toIndentedTree() const {
    std::u16string values = encodedSegments();
    if (!alias.empty()) values += u", " + alias;
    return Node::toIndentedTree() + u'{' + values + u'}';
}

void WikilinkNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    out += u"[[";
    addHtml(this, markdown, offset, out);
    out += u"]]";
}

bool WikilinkNode::hasEqualData(const Node& other) const {
    const auto& node = static_cast<const WikilinkNode&>(other);
    return segments == node.segments && alias == node.alias;
}

} // namespace Ondo::Inline
