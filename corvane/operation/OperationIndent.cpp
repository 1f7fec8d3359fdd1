#include "corvane/operation/OperationIndent.h"

#include "corvane/scan/Lines.h"

namespace CVN::Operation {

namespace {

using Ondo::Node;

bool isContainer(const Node* node) {
    return node && (node->type == Ondo::ONDO_LIST_ITEM_NODE || node->type == Ondo::ONDO_BLOCK_QUOTE_NODE);
}

bool isContainerMarker(const Node* node) {
    return node && (node->type == Ondo::ONDO_LIST_ITEM_MARKER_NODE ||
                    node->type == Ondo::ONDO_BLOCK_QUOTE_MARKER_NODE);
}

/// The lines between two fences.
bool isFencedContent(const Node* node) {
    return node->type == Ondo::ONDO_FENCED_CODE_CONTENT_ATTRIBUTE_NODE ||
           node->type == Ondo::ONDO_MATH_BLOCK_CONTENT_ATTRIBUTE_NODE;
}

bool endsLine(const Node* node) {
    return node->type == Ondo::ONDO_LINE_ENDING_NODE || node->type == Ondo::ONDO_HARD_LINE_BREAK_NODE ||
           isFencedContent(node);
}

bool startsLine(const Node* space) {
    if (space->previousSibling) return endsLine(space->previousSibling);
    return space->parent->isBlock() || isFencedContent(space->parent);
}

bool isIndentation(const Node* space) {
    if (space->type != Ondo::ONDO_SPACE_NODE) return false;
    const Node* block = space->parentBlock();
    if (!isContainer(block->parent)) return false;
    if (isContainerMarker(space->nextSibling)) return true;
    // What follows the last marker of a blank line indents nothing.
    if (space->previousSibling && block->type == Ondo::ONDO_BLANK_LINE_NODE) return false;
    return isContainerMarker(space->previousSibling) || startsLine(space);
}

} // namespace

std::pair<bool, std::int64_t> Indent::spaceAsIndentation(const Node* node,
                                                         std::u16string_view indentationText) {
    if (!isIndentation(node)) return {false, 0};
    const auto length = static_cast<std::int64_t>(indentationText.size());
    return {true, Ondo::Lines::Line::indentationAtOffsetRelativeToStart(length, 0, indentationText)};
}

} // namespace CVN::Operation
