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

constexpr std::uint16_t codeTypes[] = {ONDO_FENCED_CODE_NODE, ONDO_HTML_BLOCK_NODE, ONDO_INDENTED_CODE_NODE,
                                       ONDO_YAML_NODE,        ONDO_CODE_SPAN_NODE,  ONDO_RAW_HTML_NODE,
                                       ONDO_MATH_SPAN_NODE,   ONDO_MATH_BLOCK_NODE};

template <std::size_t N>
bool isOneOf(const std::uint16_t (&types)[N], const Node* node) {
    return std::find(std::begin(types), std::end(types), node->type) != std::end(types);
}

bool isCode(const Node* node) {
    return isOneOf(codeTypes, node);
}

/// Whether a text below `node` counts. Attributes are transparent when a reader sees them.
bool isVisible(const Node* text) {
    const Node* const holder = text->parent;
    if (holder->category == Node::Category::Attribute) return isOneOf(visibleAttributes, holder);
    return holder->type != ONDO_CODE_SPAN_NODE && holder->type != ONDO_RAW_HTML_NODE &&
           holder->type != ONDO_MATH_SPAN_NODE;
}

Direction directionOf(std::u16string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        char32_t c = text[at];
        const bool isPair = c >= 0xD800 && c < 0xDC00 && at + 1 < text.size() && text[at + 1] >= 0xDC00 &&
                            text[at + 1] < 0xE000;
        if (isPair) c = 0x10000 + ((c - 0xD800) << 10) + (text[++at] - 0xDC00U);
        if (Util::isStrongLeftToRight(c)) return Direction::LeftToRight;
        if (Util::isStrongRightToLeft(c)) return Direction::RightToLeft;
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

/// The nodes below the first level that may carry a direction.
bool isExamined(const Node* node) {
    return node->type == ONDO_TABLE_CELL_NODE || node->parent->type == ONDO_DOCUMENT_NODE;
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

void setWritingDirection(std::u16string_view markdown, Node* root, Direction seed) {
    Direction current = seed;
    for (Node* node = root->nextInSequence(); node; node = node->nextInSequence()) {
        if (isCode(node)) {
            node->direction = Direction::LeftToRight;
        } else if (isExamined(node)) {
            const Direction own = writingDirectionOfContent(markdown, node);
            node->direction = own == Direction::None ? current : own;
            current = inherited(node->direction);
        }
    }
}

Direction directionBehind(const Node* block) {
    while (block && isCode(block))
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
        if (isCode(block)) continue;
        if (isOwn(block->direction) || block->direction == current) break;
        setInherited(block, current);
        lastChanged = block;
    }
    return lastChanged;
}

} // namespace Ondo
