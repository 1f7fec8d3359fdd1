#include "corvane/inline/FootnoteReference.h"

#include "corvane/scan/Util.h"
#include "corvane/tree/InlineParser.h"
#include "corvane/tree/LinkSyntax.h"

namespace Ondo::Inline {

std::int64_t FootnoteReference::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    if (!cursor.isWithOffset(1, Go::character(u'^'))) return Go::NoPos;
    LinkSyntax::Span label = LinkSyntax::matchLabel(cursor);
    if (cursor.hasFailed()) return Go::NoPos;
    const std::int64_t start = label.start - 1;
    ++label.start;
    const std::int64_t lines = label.lastLine - label.line;
    auto made = std::make_unique<FootnoteReferenceNode>(start, cursor.pos(), label.line, lines);
    Node* attribute = nullptr;
    ParserBase::linkMarker(made.get(), ONDO_FOOTNOTE_REFERENCE_LABEL_OPEN_MARKER_NODE, start, label.start,
                           label.line);
    if (!label.isEmpty())
        attribute = made->link(std::make_unique<AttributeNode>(ONDO_FOOTNOTE_REFERENCE_LABEL_ATTRIBUTE_NODE,
                                                               label.start, label.end, label.line, lines,
                                                               made.get()));
    ParserBase::linkMarker(made.get(), ONDO_FOOTNOTE_REFERENCE_LABEL_CLOSE_MARKER_NODE, label.end,
                           label.end + 1, label.lastLine);
    FootnoteReferenceNode* const reference = parser.merge(node, std::move(made));
    if (!reference) return Go::NoPos;
    if (attribute) {
        parser.parseAttribute(attribute);
        reference->label =
            LabeledNode::normalizeLabel(InlineParserNode::attributeString(parser.text, attribute));
    }
    reference->labeledConnections = &definitions_->labeledConnections;
    reference->labeledConnections->addReference(reference);
    return cursor.pos();
}

FootnoteReferenceNode::~FootnoteReferenceNode() {
    if (labeledConnections) labeledConnections->removeReference(this);
}

/// The "^" alone: readers of this output know a footnote by it.
void FootnoteReferenceNode::toHtml(std::u16string& out, std::u16string_view markdown,
                                   std::int64_t offset) const {
    Util::addHtmlEscaped(Go(markdown).substring(offset + 1, offset + 2), out);
}

bool FootnoteReferenceNode::hasEqualData(const Node& other) const {
    return label == static_cast<const FootnoteReferenceNode&>(other).label;
}

} // namespace Ondo::Inline
