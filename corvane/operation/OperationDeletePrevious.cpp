#include "corvane/operation/OperationDeletePrevious.h"

#include "corvane/operation/Deletion.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

namespace {

using Ondo::Node;

/// The leaf that ends at the caret, or what ends there when that is a text.
Node::Iterator constructBefore(const Ondo::Tree& tree, std::int64_t caret) {
    Node::Iterator at = leafAt(tree, caret);
    while (at.node && at.offset == caret && caret > 0)
        at.previousInSequence();
    toConstruct(at);
    return at;
}

/// Takes a node out, with the blanks in front of it if wanted.
std::vector<Result> deletionWithSpace(const Node::Iterator& at, bool withSpace) {
    Node::Iterator space = at;
    space.previousInSequence();
    if (!withSpace || !isOfType(space.node, Ondo::ONDO_SPACE_NODE)) return deletion(at);
    return deletion(space.offset, at.end() - space.offset);
}

std::vector<Result> deletionFrom(const Node::Iterator& start, std::int64_t caret) {
    return deletion(start.offset, caret - start.offset);
}

/// From a leaf to the line ending of the line before; to no node on the first line.
void toPreviousLineEnding(Node::Iterator& at) {
    while (at.node && at->category != Node::Category::LineEnding)
        at.previousInSequence();
}

/// Whether nothing but blanks and the markers of containers stands before a space on its line.
bool isLeading(Node::Iterator at) {
    for (at.previousInSequence(); at.node && at->category != Node::Category::LineEnding;
         at.previousInSequence())
        if (!at->firstChild && at->type != Ondo::ONDO_SPACE_NODE && !isContainerMarker(at.node)) return false;
    return true;
}

/// Blanks are structure at the start of a line and behind the markers of containers.
bool mayBeIndentation(const Node::Iterator& space) {
    const Node* const before = space->previousSibling;
    if (before && !isContainerMarker(before) && before->category != Node::Category::LineEnding) return false;
    return isLeading(space);
}

/// The line that a block starts on.
std::int64_t firstLineOf(const Node::Iterator& inside, const Node* block) {
    Node::Iterator at = inside;
    while (at.node && at.node != block)
        at.parent();
    return at.line;
}

bool startsOnLine(const Node::Iterator& inside, const Node* block) {
    return firstLineOf(inside, block) == inside.line;
}

bool isLastOfTable(const Node* pipe) {
    const Node* const row = pipe->parent;
    if (row->nextSibling) return false;
    const Node* last = row->lastChild;
    while (last != pipe &&
           (last->type == Ondo::ONDO_SPACE_NODE || last->category == Node::Category::LineEnding))
        last = last->previousSibling;
    return last == pipe;
}

bool isFenced(const Node* block) {
    return block->type == Ondo::ONDO_FENCED_CODE_NODE || block->type == Ondo::ONDO_MATH_BLOCK_NODE;
}

/// There the editor deletes a single blank: joined to the line above the fence would be code, and the block
/// open.
bool isBeforeClosingFence(const Node* space) {
    return isOfType(space->nextSibling, Ondo::ONDO_FENCED_CODE_CLOSE_MARKER_NODE) ||
           isOfType(space->nextSibling, Ondo::ONDO_MATH_BLOCK_CLOSE_MARKER_NODE);
}

/// From a space back over the markers in front of it to what ends the line above; to another node when the
/// line begins with no more than its block does.
Node::Iterator lineEndingAbove(Node::Iterator space) {
    Node::Iterator at = space;
    while (at.node && !at->previousSibling && at->parent)
        at.parent();
    at.previousInSequence();
    while (isBlockMarker(at.node))
        at.previousInSequence();
    if (isOfType(at.node, Ondo::ONDO_BLANK_LINE_NODE)) at.previousInSequence();
    return at;
}

/// A space at the start of a line that continues a container.
std::vector<Result> deletionOfIndentation(const Node::Iterator& space, const Node* block) {
    const Node::Iterator above = lineEndingAbove(space);
    if (!isOfType(above.node, Ondo::ONDO_LINE_ENDING_NODE)) return {};
    const Node* judged = block;
    std::int64_t line = firstLineOf(space, block);
    if (isOfType(block->previousSibling, Ondo::ONDO_LIST_NODE)) {
        Node::Iterator list = space;
        while (list.node != block)
            list.parent();
        list.previousSibling();
        line = list.line;
        judged = list->firstChild->firstChild;
    }
    const bool joins = isListItem(judged->parent) && line != above.line;
    return deletionFrom(joins || judged->type == Ondo::ONDO_BLANK_LINE_NODE ? above : space, space.end());
}

} // namespace

DeletePrevious::Handler DeletePrevious::handlerFor(std::uint16_t type) {
    static constexpr DeletionRow<Handler> rows[] = {
        {Ondo::ONDO_LINE_ENDING_NODE, &DeletePrevious::deleteLineEnding},
        {Ondo::ONDO_ATX_HEADING_OPEN_MARKER_NODE, &DeletePrevious::deleteHeadingMarker},
        {Ondo::ONDO_BLOCK_QUOTE_MARKER_NODE, &DeletePrevious::deleteQuoteMarker},
        {Ondo::ONDO_LIST_ITEM_MARKER_NODE, &DeletePrevious::deleteItemMarker},
        {Ondo::ONDO_TABLE_PIPE_MARKER_NODE, &DeletePrevious::deleteTable},
        {Ondo::ONDO_THEMATIC_BREAK_MARKER_NODE, &DeletePrevious::deleteNode},
        {Ondo::ONDO_REPLACE_NODE, &DeletePrevious::deleteNode},
        {Ondo::ONDO_SPACE_NODE, &DeletePrevious::deleteSpace},
    };
    return handlerOf(rows, type);
}

std::vector<Result> DeletePrevious::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                        std::int64_t, std::int64_t) const {
    if (length > 0) return {};
    const Node::Iterator at = constructBefore(tree, offset);
    if (!at.node || at.end() != offset) return {};
    const Handler handler = handlerFor(at->type);
    return handler ? (this->*handler)(tree, at) : Answer();
}

DeletePrevious::Answer DeletePrevious::deleteLineEnding(const Ondo::Tree&,
                                                        const Node::Iterator& lineEnding) const {
    Node::Iterator next = lineEnding;
    next.nextInSequence();
    const bool isInBlank = isInType(lineEnding.node, Ondo::ONDO_BLANK_LINE_NODE);
    const bool isInTable = isInType(lineEnding.node, Ondo::ONDO_TABLE_NODE);
    const bool leavesTable = isInTable && next.node && !isInType(next.node, Ondo::ONDO_BLANK_LINE_NODE);
    // Rows stay apart, and a line that ran into a table would break it.
    if (leavesTable || (!isInBlank && isOfType(next.node, Ondo::ONDO_TABLE_NODE)))
        return caretOnly(lineEnding.offset);
    return deletion(lineEnding);
}

DeletePrevious::Answer DeletePrevious::deleteHeadingMarker(const Ondo::Tree&,
                                                           const Node::Iterator& marker) const {
    return deletionWithSpace(marker, true);
}

/// On further lines of a quote the line joins the one above. In the simplified dialect a line without its
/// marker leaves the quote.
DeletePrevious::Answer DeletePrevious::deleteQuoteMarker(const Ondo::Tree& tree,
                                                         const Node::Iterator& marker) const {
    if (isSimplified(tree) || startsOnLine(marker, marker->maker)) return deletionWithSpace(marker, true);
    Node::Iterator above = marker;
    toPreviousLineEnding(above);
    return deletionFrom(above, marker.end());
}

/// What indents a nested item stays, and keeps the text in the item around it.
DeletePrevious::Answer DeletePrevious::deleteItemMarker(const Ondo::Tree&,
                                                        const Node::Iterator& marker) const {
    const Node* const outer = marker->maker->parent->parent;
    return deletionWithSpace(marker, !isListItem(outer) || startsOnLine(marker, outer));
}

DeletePrevious::Answer DeletePrevious::deleteTable(const Ondo::Tree&, const Node::Iterator& pipe) const {
    return isLastOfTable(pipe.node) ? tableRemoval(pipe) : Answer();
}

DeletePrevious::Answer DeletePrevious::deleteNode(const Ondo::Tree&, const Node::Iterator& at) const {
    return deletion(at);
}

DeletePrevious::Answer DeletePrevious::deleteSpace(const Ondo::Tree& tree,
                                                   const Node::Iterator& space) const {
    if (!mayBeIndentation(space) || isBeforeClosingFence(space.node)) return {};
    const Node* const block = space->parentBlock();
    if (isFenced(block) && !startsOnLine(space, block)) {
        Node::Iterator above = space;
        toPreviousLineEnding(above);
        return deletionFrom(above, space.end());
    }
    if (block->type == Ondo::ONDO_INDENTED_CODE_NODE) return deletion(space);
    const bool isBelowList =
        block->type == Ondo::ONDO_BLANK_LINE_NODE && isOfType(block->previousSibling, Ondo::ONDO_LIST_NODE);
    const bool isInContainer = isContainer(block->parent);
    if (!isInContainer && !isBelowList) return {};
    if (isSimplified(tree)) return outdented(tree, space.end(), style_);
    if (isInContainer) return deletionOfIndentation(space, block);
    Node::Iterator above = space;
    toPreviousLineEnding(above);
    return deletionFrom(above, space.end());
}

} // namespace CVN::Operation
