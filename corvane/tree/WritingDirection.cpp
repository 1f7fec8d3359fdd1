#include "corvane/tree/WritingDirection.h"

#include <algorithm>
#include <iterator>

#include "corvane/scan/Util.h"

namespace Ondo {

namespace {

/// Attributes whose text a reader sees.
constexpr std::uint16_t visibleAttributes[] = {
    ONDO_HASHTAG_SEGMENT_ATTRIBUTE_NODE, ONDO_IMAGE_TEXT_ATTRIBUTE_NODE, ONDO_LINK_TEXT_ATTRIBUTE_NODE,
    ONDO_WIKILINK_SEGMENT_ATTRIBUTE_NODE, ONDO_WIKILINK_ALIAS_ATTRIBUTE_NODE};

template <std::size_t N>
bool isOneOf(const std::uint16_t (&types)[N], const Node* node) {
    return std::find(std::begin(types), std::end(types), node->type) != std::end(types);
}

/// Whether a reader sees the text: the attribute that it lies in, if any, decides.
bool isVisible(const Node* text) {
    const Node* holder = text->parent;
    if (holder->type == ONDO_CODE_SPAN_NODE || holder->type == ONDO_RAW_HTML_NODE ||
        holder->type == ONDO_MATH_SPAN_NODE)
        return false;
    while (holder && !holder->isBlock() && holder->category != Node::Category::Attribute)
        holder = holder->parent;
    return !holder || holder->category != Node::Category::Attribute || isOneOf(visibleAttributes, holder);
}

Direction directionOf(std::u16string_view text) {
    const auto size = static_cast<std::int64_t>(text.size());
    for (std::int64_t at = 0; at < size;) {
        const char32_t c = Util::codePointAt(text, at);
        if (Util::isStrongLeftToRight(c)) return Direction::LeftToRight;
        if (Util::isStrongRightToLeft(c)) return Direction::RightToLeft;
        at += Util::codeUnitCount(c);
    }
    return Direction::None;
}

/// What a block of that direction hands on.
Direction inherited(Direction direction) {
    if (direction == Direction::LeftToRight) return Direction::InheritedLeftToRight;
    if (direction == Direction::RightToLeft) return Direction::InheritedRightToLeft;
    return direction;
}

bool isOwn(Direction direction) {
    return direction == Direction::LeftToRight || direction == Direction::RightToLeft;
}

/// A table that only inherits has no cell with a direction of its own either.
void setInherited(Node* block, Direction current) {
    block->direction = current;
    if (block->type != ONDO_TABLE_NODE) return;
    const Node* const end = block->nextInSequenceSkippingSubtree();
    for (Node* node = block; node != end; node = node->nextInSequence())
        if (node->type == ONDO_TABLE_CELL_NODE) node->direction = current;
}

/// Gives a node its own direction or the inherited one; returns what it hands on.
Direction examine(std::u16string_view markdown, Node* node, Direction current) {
    const Direction own = writingDirectionOfContent(markdown, node);
    node->direction = own == Direction::None ? current : own;
    return inherited(node->direction);
}

} // namespace

Direction writingDirectionOfContent(std::u16string_view markdown, const Node* node) {
    const Node* const end = node->nextInSequenceSkippingSubtree();
    for (const Node* at = node; at != end; at = at->nextInSequence()) {
        if (at->type != ONDO_TEXT_NODE || !isVisible(at)) continue;
        const Direction direction = directionOf(markdown.substr(
            static_cast<std::size_t>(at->offsetWhenParsed), static_cast<std::size_t>(at->charCount)));
        if (direction != Direction::None) return direction;
    }
    return Direction::None;
}

Direction setBlockDirection(std::u16string_view markdown, Node* block, Direction current) {
    // Code has its direction from its constructor; elsewhere only the cells of a table are below the first
    // level.
    if (block->isCode()) return current;
    current = examine(markdown, block, current);
    if (block->type != ONDO_TABLE_NODE) return current;
    const Node* const end = block->nextInSequenceSkippingSubtree();
    for (Node* node = block; node != end; node = node->nextInSequence())
        if (node->type == ONDO_TABLE_CELL_NODE) current = examine(markdown, node, current);
    return current;
}

void setWritingDirection(std::u16string_view markdown, Node* root, Direction seed) {
    Direction current = seed;
    for (Node* block = root->firstChild; block; block = block->nextSibling)
        current = setBlockDirection(markdown, block, current);
}

Direction directionBehind(const Node* block) {
    while (block && block->isCode())
        block = block->previousSibling;
    if (!block) return Direction::None;
    if (block->type != ONDO_TABLE_NODE) return inherited(block->direction);
    // A table is left by its last cell.
    const Node* last = block;
    const Node* const end = block->nextInSequenceSkippingSubtree();
    for (const Node* node = block; node != end; node = node->nextInSequence())
        if (node->type == ONDO_TABLE_CELL_NODE) last = node;
    return inherited(last->direction);
}

Node* inheritDirection(Node* block, Direction current) {
    Node* lastChanged = nullptr;
    for (; block; block = block->nextSibling) {
        if (block->isCode()) continue;
        if (isOwn(block->direction) || block->direction == current) break;
        setInherited(block, current);
        lastChanged = block;
    }
    return lastChanged;
}

} // namespace Ondo
