#include "corvane/block/LinkReferenceDefinition.h"

#include "corvane/block/DefinitionLines.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/LinkSyntax.h"

namespace Ondo::Block {

namespace {

using LinkSyntax::Span;

/// Where the pieces of a definition stand.
struct Pieces {
    Span label;
    LinkSyntax::Destination destination;
    LinkSyntax::Title title; ///< not present when it was dropped
    std::int64_t end = Go::NoPos;
    std::int64_t lastLine = 0;

    std::int64_t colon() const { return label.end + 1; }
    std::int64_t destinationStart() const { return destination.span.start - bracket(); }
    std::int64_t destinationEnd() const { return destination.span.end + bracket(); }

private:
    std::int64_t bracket() const { return destination.isBracketed ? 1 : 0; }
};

bool isAtLineEnd(GoLines go) {
    go.nextWhile(Go::spaceOrTab);
    return go.pos() == go.maxPos();
}

/// A title that never closes is none.
LinkSyntax::Title matchTitle(GoLines& go) {
    GoLines tried = go;
    const LinkSyntax::Title title = LinkSyntax::matchTitle(tried);
    if (!title.isPresent || tried.hasFailed()) return {};
    go = tried;
    return title;
}

bool matchPieces(GoLines go, Pieces& pieces) {
    pieces.label = LinkSyntax::matchLabel(go);
    go.nextMatch(Go::character(u':'), 1, 1);
    if (go.hasFailed()) return false;
    LinkSyntax::matchInterspacing(go);
    const std::int64_t start = go.pos();
    pieces.destination = LinkSyntax::matchDestination(go);
    if (go.hasFailed() || go.pos() == start) return false;

    const GoLines behindDestination = go;
    LinkSyntax::matchInterspacing(go);
    const bool isApart = go.pos() != behindDestination.pos();
    pieces.title = matchTitle(go);
    if (pieces.title.isPresent && !isApart) return false;
    if (!pieces.title.isPresent) go = behindDestination;
    if (!isAtLineEnd(go)) {
        // What follows a title on a line of its own is the next block's, and the title with it.
        if (!pieces.title.isPresent || pieces.title.span.line == pieces.destination.span.line) return false;
        pieces.title = {};
        go = behindDestination;
    }
    pieces.end = go.pos();
    pieces.lastLine = go.currentLine();
    return true;
}

/// Links an attribute with the ends and prefixes of the lines in it, and parses it.
Node* linkAttribute(BlockParser& parser, Node* node, NodeType type, const Span& span) {
    if (span.isEmpty()) return nullptr;
    Node* const attribute = node->link(std::make_unique<Inline::AttributeNode>(
        type, span.start, span.end, span.line, span.lastLine - span.line, node));
    parser.linkCrossedLines(attribute, span.line, span.lastLine);
    parser.inlineParser().parseAttribute(attribute);
    return attribute;
}

std::u16string valueOf(const BlockParser& parser, const Node* attribute) {
    return attribute ? InlineParserNode::attributeString(parser.text, attribute) : std::u16string();
}

void linkLabel(BlockParser& parser, LinkReferenceDefinitionNode* node, const Span& label) {
    ParserBase::linkMarker(node, ONDO_LINK_REFERENCE_DEFINITION_LABEL_OPEN_MARKER_NODE, label.start - 1,
                           label.start, label.line);
    linkAttribute(parser, node, ONDO_LINK_REFERENCE_DEFINITION_LABEL_ATTRIBUTE_NODE, label);
    ParserBase::linkMarker(node, ONDO_LINK_REFERENCE_DEFINITION_LABEL_CLOSE_MARKER_NODE, label.end,
                           label.end + 1, label.lastLine);
    ParserBase::linkMarker(node, ONDO_LINK_REFERENCE_DEFINITION_COLON_MARKER_NODE, label.end + 1,
                           label.end + 2, label.lastLine);
    node->label = LinkSyntax::labelString(parser.text, parser.lines, label);
}

void linkDestination(BlockParser& parser, LinkReferenceDefinitionNode* node, const Pieces& pieces) {
    const Span& span = pieces.destination.span;
    parser.linkSpacing(node, pieces.colon() + 1, pieces.label.lastLine, pieces.destinationStart(), span.line);
    ParserBase::linkMarker(node, ONDO_LINK_REFERENCE_DEFINITION_DESTINATION_OPEN_MARKER_NODE,
                           pieces.destinationStart(), span.start, span.line);
    node->url = valueOf(
        parser, linkAttribute(parser, node, ONDO_LINK_REFERENCE_DEFINITION_DESTINATION_ATTRIBUTE_NODE, span));
    ParserBase::linkMarker(node, ONDO_LINK_REFERENCE_DEFINITION_DESTINATION_CLOSE_MARKER_NODE, span.end,
                           pieces.destinationEnd(), span.line);
}

void linkTitle(BlockParser& parser, LinkReferenceDefinitionNode* node, const Pieces& pieces) {
    if (!pieces.title.isPresent) return;
    const Span& span = pieces.title.span;
    parser.linkSpacing(node, pieces.destinationEnd(), pieces.destination.span.line, span.start - 1,
                       span.line);
    ParserBase::linkMarker(node, ONDO_LINK_REFERENCE_DEFINITION_TITLE_OPEN_MARKER_NODE, span.start - 1,
                           span.start, span.line);
    node->title = valueOf(
        parser, linkAttribute(parser, node, ONDO_LINK_REFERENCE_DEFINITION_TITLE_ATTRIBUTE_NODE, span));
    ParserBase::linkMarker(node, ONDO_LINK_REFERENCE_DEFINITION_TITLE_CLOSE_MARKER_NODE, span.end,
                           span.end + 1, span.lastLine);
}

} // namespace

std::int64_t LinkReferenceDefinition::match(BlockParser& parser, std::int64_t line, std::int64_t lastLine,
                                            Node* parent, ParseAction action) {
    if (parser.lines[line].isBlank() || parser.lines[line].localIndentation() > 3) return 0;
    DefinitionLines source(parser, *this, lastLine, parent);
    Pieces pieces;
    if (!matchPieces(GoLines(parser.text, parser.lines, line, lastLine, source), pieces)) return 0;
    if (action == ParseAction::Check) return 1;

    const Lines::Line& first = parser.lines[line];
    const Lines::Line& last = parser.lines[pieces.lastLine];
    const std::int64_t count = pieces.lastLine - line + 1;
    auto node = std::make_unique<LinkReferenceDefinitionNode>(first.start, last.next, line, count);
    parser.linkPrefix(node.get(), line);
    linkLabel(parser, node.get(), pieces.label);
    linkDestination(parser, node.get(), pieces);
    linkTitle(parser, node.get(), pieces);
    ParserBase::linkSpace(node.get(), pieces.end, last.end, pieces.lastLine);
    ParserBase::linkLineEnding(node.get(), last.end, last.next, pieces.lastLine);
    node->labeledConnections = &labeledConnections;
    labeledConnections.addDefinition(node.get());
    parser.mergeNode(parent, std::move(node));
    return count;
}

LinkReferenceDefinitionNode::~LinkReferenceDefinitionNode() {
    if (labeledConnections) labeledConnections->removeDefinition(this);
}

std::u16string LinkReferenceDefinitionNode::toIndentedTree() const {
    std::u16string values = Util::escape(label);
    values += u", " + Util::toString(connections()) + u", " + Util::escape(url);
    if (!title.empty()) values += u", " + Util::escape(title);
    return Node::toIndentedTree() + u'{' + values + u'}';
}

void LinkReferenceDefinitionNode::toHtml(std::u16string&, std::u16string_view, std::int64_t) const {}

bool LinkReferenceDefinitionNode::hasEqualData(const Node& other) const {
    const auto& node = static_cast<const LinkReferenceDefinitionNode&>(other);
    return label == node.label && url == node.url && title == node.title;
}

} // namespace Ondo::Block
