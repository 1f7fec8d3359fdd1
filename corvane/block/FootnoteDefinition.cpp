#include "corvane/block/FootnoteDefinition.h"

#include <algorithm>

#include "corvane/block/DefinitionLines.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/LinkSyntax.h"

namespace Ondo::Block {

namespace {

using LinkSyntax::Span;

/// Where the label and the text stand.
struct Pieces {
    Span label; ///< without the "^"
    std::int64_t text;
};

bool matchPieces(GoLines go, Pieces& pieces) {
    if (!go.isWithOffset(1, Go::character(u'^'))) return false;
    pieces.label = LinkSyntax::matchLabel(go);
    ++pieces.label.start;
    go.nextMatch(Go::character(u':'), 1, 1);
    pieces.text = go.nextWhile(Go::spaceOrTab);
    return !go.hasFailed();
}

void linkLabel(BlockParser& parser, FootnoteDefinitionNode* node, const Span& label) {
    ParserBase::linkMarker(node, ONDO_FOOTNOTE_DEFINITION_LABEL_OPEN_MARKER_NODE, label.start - 2,
                           label.start, label.line);
    if (!label.isEmpty()) {
        Node* const attribute = node->link(std::make_unique<Inline::AttributeNode>(
            ONDO_FOOTNOTE_DEFINITION_LABEL_ATTRIBUTE_NODE, label.start, label.end, label.line,
            label.lastLine - label.line, node));
        parser.linkCrossedLines(attribute, label.line, label.lastLine);
        parser.inlineParser().parseAttribute(attribute);
        node->label = LabeledNode::normalizeLabel(InlineParserNode::attributeString(parser.text, attribute));
    }
    ParserBase::linkMarker(node, ONDO_FOOTNOTE_DEFINITION_LABEL_CLOSE_MARKER_NODE, label.end, label.end + 1,
                           label.lastLine);
    ParserBase::linkMarker(node, ONDO_FOOTNOTE_DEFINITION_COLON_MARKER_NODE, label.end + 1, label.end + 2,
                           label.lastLine);
}

void linkContent(BlockParser& parser, FootnoteDefinitionNode* node, const Pieces& pieces) {
    const std::int64_t number = pieces.label.lastLine;
    const Lines::Line& line = parser.lines[number];
    ParserBase::linkSpace(node, pieces.label.end + 2, pieces.text, number);
    if (pieces.text < line.contentEnd) {
        Node* const content =
            node->link(std::make_unique<FootnoteDefinitionContentNode>(pieces.text, line.contentEnd, number));
        parser.inlineParser().parseNode(content);
    }
    ParserBase::linkSpace(node, std::max(pieces.text, line.contentEnd), line.end, number);
    ParserBase::linkLineEnding(node, line.end, line.next, number);
}

} // namespace

std::int64_t FootnoteDefinition::match(BlockParser& parser, std::int64_t line, std::int64_t lastLine,
                                       Node* parent, ParseAction action) {
    if (parser.lines[line].isBlank() || parser.lines[line].localIndentation() > 3) return 0;
    DefinitionLines source(parser, *this, lastLine, parent);
    Pieces pieces{};
    if (!matchPieces(GoLines(parser.text, parser.lines, line, lastLine, source), pieces)) return 0;
    if (action == ParseAction::Check) return 1;

    const std::int64_t last = pieces.label.lastLine;
    auto node = std::make_unique<FootnoteDefinitionNode>(parser.lines[line].start, parser.lines[last].next,
                                                         line, last - line + 1);
    parser.linkPrefix(node.get(), line);
    linkLabel(parser, node.get(), pieces.label);
    linkContent(parser, node.get(), pieces);
    node->labeledConnections = &labeledConnections;
    labeledConnections.addDefinition(node.get());
    parser.mergeNode(parent, std::move(node));
    return last - line + 1;
}

FootnoteDefinitionNode::~FootnoteDefinitionNode() {
    if (labeledConnections) labeledConnections->removeDefinition(this);
}

std::u16string FootnoteDefinitionNode::toIndentedTree() const {
    return Node::toIndentedTree() + u"{" + Util::escape(label) + u", " + Util::toString(connections()) + u"}";
}

void FootnoteDefinitionNode::toHtml(std::u16string&, std::u16string_view, std::int64_t) const {}

bool FootnoteDefinitionNode::hasEqualData(const Node& other) const {
    return label == static_cast<const FootnoteDefinitionNode&>(other).label;
}

void FootnoteDefinitionContentNode::toHtml(std::u16string&, std::u16string_view, std::int64_t) const {}

} // namespace Ondo::Block
