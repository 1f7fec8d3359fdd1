#include "corvane/inline/Highlight.h"

#include "corvane/inline/Context.h"
#include "corvane/scan/Go.h"

namespace Ondo::Inline {

namespace {

constexpr std::int64_t width = 2;
constexpr std::int64_t colorCount = 5;

std::unique_ptr<Node> createHighlight(std::int64_t start, std::int64_t end, std::int64_t line,
                                      std::int64_t lines) {
    return std::make_unique<HighlightNode>(start, end, line, lines);
}

/// The number of the colour at an offset; 0 for none.
std::int64_t colorAt(std::u16string_view text, std::int64_t offset) {
    const std::u16string_view rest = text.substr(static_cast<std::size_t>(offset));
    for (std::int64_t color = 1; color <= colorCount; ++color)
        if (rest.starts_with(colorEmoji[color - 1])) return color;
    return 0;
}

std::u16string_view markerOf(std::int64_t color) {
    return color == 0 ? std::u16string_view() : colorEmoji[color - 1];
}

std::int64_t behindColor(std::u16string_view text, std::int64_t offset) {
    return offset + static_cast<std::int64_t>(markerOf(colorAt(text, offset)).size());
}

} // namespace

Highlight::Highlight()
    : EmphaseStrongBase(
          u"=", {}, {createHighlight, ONDO_HIGHLIGHT_OPEN_MARKER_NODE, ONDO_HIGHLIGHT_CLOSE_MARKER_NODE}) {}

/// Text must follow the colour at once.
bool Highlight::mayOpen(std::u16string_view text, const Delimiter& opener) const {
    const std::int64_t content = behindColor(text, opener.end());
    return opener.length >= width &&
           !Go(text, content, static_cast<std::int64_t>(text.size())).isNext(Go::unicodeWhitespace);
}

/// A colour behind a run shows that it opens: «==a==🔴b==».
bool Highlight::mayClose(std::u16string_view text, const Delimiter& closer) const {
    return closer.length >= width && colorAt(text, closer.offset + width) == 0;
}

bool Highlight::isEmptyPair(std::u16string_view text, const Delimiter& opener,
                            const Delimiter& closer) const {
    return behindColor(text, opener.end()) == closer.offset;
}

void Highlight::finishNode(std::u16string_view text, Node* node) const {
    auto* const highlight = static_cast<HighlightNode*>(node);
    Node* const open = node->firstChild;
    highlight->color = colorAt(text, open->endWhenParsed());
    highlight->colorMarker = markerOf(highlight->color);
    open->charCount += static_cast<std::int64_t>(highlight->colorMarker.size());
}

std::u16string HighlightNode::toIndentedTree() const {
    return Node::toIndentedTree() + (color == 0 ? std::u16string() : u"{" + colorMarker + u"}");
}

bool HighlightNode::hasEqualData(const Node& other) const {
    return color == static_cast<const HighlightNode&>(other).color;
}

} // namespace Ondo::Inline
