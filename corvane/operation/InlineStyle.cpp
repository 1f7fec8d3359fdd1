#include "corvane/operation/InlineStyle.h"

#include "corvane/inline/Highlight.h"
#include "corvane/inline/LinkBase.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

using Ondo::Node;

namespace {

struct Markers {
    std::u16string_view start;
    std::u16string_view end;
};

/// By the numbers of the styles.
constexpr Markers markers[] = {
    {u"**", u"**"},
    {u"*", u"*"},
    {u"~~", u"~~"},
    {u"~", u"~"},
    {u"==", u"=="},
    {u"==\U0001F534", u"=="},
    {u"==\U0001F535", u"=="},
    {u"==\U0001F7E2", u"=="},
    {u"==\U0001F7E1", u"=="},
    {u"==\U0001F7E3", u"=="},
    {u"", u""},
    {u"`", u"`"},
    {u"$", u"$"},
};

constexpr auto lastColor = static_cast<std::int64_t>(InlineToggles::HighlightPurple) -
                           static_cast<std::int64_t>(InlineToggles::Highlight);

const Markers& markersOf(InlineToggles style) {
    return markers[static_cast<std::size_t>(style)];
}

bool isHighlightStyle(InlineToggles style) {
    return style >= InlineToggles::Highlight && style <= InlineToggles::NoInlineToggle;
}

template <class P>
const Node* nearest(const Node* node, P predicate) {
    while (node && !predicate(node))
        node = node->parent;
    return node;
}

} // namespace

std::u16string_view startMarkerOf(InlineToggles style) {
    return markersOf(style).start;
}

std::u16string_view endMarkerOf(InlineToggles style) {
    return markersOf(style).end;
}

std::optional<InlineToggles> toggleTypeOfNode(const Node* node) {
    switch (node->type) {
    case Ondo::ONDO_STRONG_NODE:
        return InlineToggles::Strong;
    case Ondo::ONDO_EMPHASE_NODE:
        return InlineToggles::Emphase;
    case Ondo::ONDO_STRIKETHROUGH_NODE:
        return InlineToggles::Strikethrough;
    case Ondo::ONDO_UNDERLINE_NODE:
        return InlineToggles::Underline;
    case Ondo::ONDO_CODE_SPAN_NODE:
        return InlineToggles::CodeSpan;
    case Ondo::ONDO_MATH_SPAN_NODE:
        return InlineToggles::MathSpan;
    case Ondo::ONDO_HIGHLIGHT_NODE:
        break;
    default:
        return std::nullopt;
    }
    const std::int64_t color = static_cast<const Ondo::Inline::HighlightNode*>(node)->color;
    if (color > lastColor) return std::nullopt;
    return static_cast<InlineToggles>(static_cast<std::int64_t>(InlineToggles::Highlight) + color);
}

bool isNodeOfToggleType(const Node* node, InlineToggles style) {
    return toggleTypeOfNode(node) == style;
}

bool isNodeOfToggleCategory(const Node* node, InlineToggles style) {
    if (isHighlightStyle(style)) return node->type == Ondo::ONDO_HIGHLIGHT_NODE;
    return isNodeOfToggleType(node, style);
}

const Node* toggleTypeNode(const Node* node, InlineToggles style) {
    return nearest(node, [&](const Node* each) { return isNodeOfToggleType(each, style); });
}

const Node* toggleCategoryNode(const Node* node, InlineToggles style) {
    return nearest(node, [&](const Node* each) { return isNodeOfToggleCategory(each, style); });
}

const Node* ignoredTypeNode(const Node* node) {
    return nearest(node, [](const Node* each) {
        switch (each->type) {
        case Ondo::ONDO_FENCED_CODE_NODE:
        case Ondo::ONDO_HTML_BLOCK_NODE:
        case Ondo::ONDO_INDENTED_CODE_NODE:
        case Ondo::ONDO_YAML_NODE:
        case Ondo::ONDO_CODE_SPAN_NODE:
        case Ondo::ONDO_MATH_SPAN_NODE:
        case Ondo::ONDO_MATH_BLOCK_NODE:
            return true;
        default:
            return false;
        }
    });
}

bool isIgnoredInline(const Node* node) {
    return node->type == Ondo::ONDO_CODE_SPAN_NODE || node->type == Ondo::ONDO_MATH_SPAN_NODE;
}

bool isIndivisible(const Node* node) {
    switch (node->type) {
    case Ondo::ONDO_AUTOLINK_NODE:
    case Ondo::ONDO_COLOR_NODE:
    case Ondo::ONDO_EMAIL_NODE:
    case Ondo::ONDO_ENTITY_NODE:
    case Ondo::ONDO_ESCAPE_NODE:
    case Ondo::ONDO_FOOTNOTE_REFERENCE_NODE:
    case Ondo::ONDO_HASHTAG_NODE:
    case Ondo::ONDO_IMAGE_NODE:
    case Ondo::ONDO_RAW_HTML_NODE:
    case Ondo::ONDO_REPLACE_NODE:
    case Ondo::ONDO_URL_NODE:
    case Ondo::ONDO_WIKILINK_NODE:
        return true;
    default:
        return false;
    }
}

bool isInBlockSyntax(const Node* leaf) {
    return nearest(leaf, [](const Node* each) {
        if (each->category == Node::Category::Attribute) return each->maker && each->maker->isBlock();
        return each->type == Ondo::ONDO_TABLE_DELIMITER_ROW_NODE ||
               each->type == Ondo::ONDO_LINK_REFERENCE_DEFINITION_NODE;
    });
}

bool hasFreeText(const Node* link) {
    const bool hasOtherPart = link->hasChildWhere([](const Node* child) {
        return child->type == Ondo::ONDO_LINK_PAREN_OPEN_MARKER_NODE ||
               child->type == Ondo::ONDO_LINK_LABEL_ATTRIBUTE_NODE;
    });
    return hasOtherPart || static_cast<const Ondo::Inline::LinkBaseNode*>(link)->destination().empty();
}

} // namespace CVN::Operation
