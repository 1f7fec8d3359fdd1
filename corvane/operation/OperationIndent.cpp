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

bool isBesideMarkerOrStartsLine(const Node* space) {
    return isContainerMarker(space->nextSibling) || isContainerMarker(space->previousSibling) ||
           startsLine(space);
}

/// What follows the last marker of a blank line indents nothing.
bool isRestOfBlankLine(const Node* space) {
    return space->parent->type == Ondo::ONDO_BLANK_LINE_NODE && space->previousSibling &&
           !isContainerMarker(space->nextSibling);
}

bool isIndentation(const Node* space, const Node* block) {
    return space->type == Ondo::ONDO_SPACE_NODE && isBesideMarkerOrStartsLine(space) &&
           !isRestOfBlankLine(space) && isContainer(block->parent);
}

} // namespace

std::pair<bool, std::int64_t> Indent::spaceAsIndentation(const Node* node,
                                                         std::u16string_view indentationText) {
    return spaceAsIndentation(node, indentationText, node->parentBlock());
}

std::pair<bool, std::int64_t>
Indent::spaceAsIndentation(const Node* node, std::u16string_view indentationText, const Node* block) {
    if (!isIndentation(node, block)) return {false, 0};
    const auto length = static_cast<std::int64_t>(indentationText.size());
    return {true, Ondo::Lines::Line::indentationAtOffsetRelativeToStart(length, 0, indentationText)};
}

std::vector<Result> Indent::run(const Ondo::Tree&, std::int64_t, std::int64_t, std::int64_t,
                                std::int64_t) const {
    return {};
}

} // namespace CVN::Operation
