#include "corvane/inline/Image.h"

#include "corvane/inline/Entity.h"
#include "corvane/scan/Util.h"

namespace Ondo::Inline {

namespace {

/// What shows instead of the image: the text inside, also of links and images there.
void addAltText(const Node* top, std::u16string_view markdown, std::int64_t offset, std::u16string& out) {
    const Node* const end = top->nextInSequenceSkippingSubtree();
    for (const Node* node = top; node != end;) {
        const bool isText =
            node->type == ONDO_LINK_TEXT_ATTRIBUTE_NODE || node->type == ONDO_IMAGE_TEXT_ATTRIBUTE_NODE;
        const bool isSkipped = node->category == Node::Category::Attribute && !isText;
        const bool isEntity = node->type == ONDO_ENTITY_NODE;
        if (node->type == ONDO_TEXT_NODE)
            Util::addHtmlEscaped(Go(markdown).substring(offset, offset + node->charCount), out);
        if (isEntity) Util::addHtmlEscaped(static_cast<const EntityNode*>(node)->toString(), out);
        if (node->firstChild && !isSkipped && !isEntity) {
            node = node->firstChild;
        } else {
            offset += node->charCount;
            node = node->nextInSequenceSkippingSubtree();
        }
    }
}

} // namespace

std::int64_t Image::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    if (cursor.isNext(Go::character(u']'))) return close(parser, node, cursor);
    if (!cursor.isNextString(u"![") || isBeforeFootnote(cursor)) return Go::NoPos;
    return open(cursor, 2);
}

/// «wow![^1]» is an exclamation mark and a footnote.
bool Image::isBeforeFootnote(GoLines go) const {
    if (!leavesFootnotes || !go.isNextString(u"![^")) return false;
    go.setPos(go.pos() + 1);
    LinkSyntax::matchLabel(go);
    return !go.hasFailed() && !go.isNext(Go::character(u'('));
}

std::unique_ptr<LinkBaseNode> Image::makeNodeForSubclass(std::int64_t start, std::int64_t end,
                                                         std::int64_t line, std::int64_t lines) {
    return std::make_unique<ImageNode>(start, end, line, lines, labeledConnections());
}

void ImageNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    out += u"<img src=\"";
    addDestination(out);
    out += u"\" alt=\"";
    const auto [text, start] = childOfType(ONDO_IMAGE_TEXT_ATTRIBUTE_NODE, offset);
    if (text) addAltText(text, markdown, start, out);
    out += u'"';
    addTitle(out);
    out += u" />";
}

} // namespace Ondo::Inline
