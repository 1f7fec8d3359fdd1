#include "corvane/operation/OperationDeleteNext.h"

#include "corvane/operation/Deletion.h"
#include "corvane/operation/IndentInfo.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/operation/OperationIndent.h"

namespace CVN::Operation {

namespace {

using Ondo::Node;

const Node* containerAround(const Node* node) {
    return node->ancestorWhere([](const Node* each) { return isContainer(each); }, Ondo::LevelSetting::Leaf);
}

bool isAround(const Node* container, const Node* node) {
    return node->hasAncestorWhere([&](const Node* each) { return each == container; });
}

/// Both in one list or quote that stands directly below the document.
bool areInOneFirstLevelContainer(Node* one, Node* other) {
    const Node* const block = one->firstLevelAncestor();
    return block == other->firstLevelAncestor() &&
           (block->type == Ondo::ONDO_LIST_NODE || isBlockQuote(block));
}

/// The units from a node on that are blanks and markers of items and quotes.
std::int64_t prefixLength(Node::Iterator at) {
    const std::int64_t start = at.offset;
    for (toFirstLeaf(at); at.node; at.nextInSequence(), toFirstLeaf(at))
        if (at->type != Ondo::ONDO_SPACE_NODE && !isContainerMarker(at.node)) break;
    return at.offset - start;
}

/// The units from a node on that are markers of quotes around `other` and the blanks before them: the line of
/// `other` has these markers itself.
std::int64_t sharedQuotePrefix(Node::Iterator at, const Node* other) {
    const std::int64_t start = at.offset;
    std::int64_t end = start;
    for (toFirstLeaf(at); at.node; at.nextInSequence(), toFirstLeaf(at)) {
        if (at->type == Ondo::ONDO_SPACE_NODE) continue;
        if (!isContainerMarker(at.node) || !isBlockQuote(at->maker) || !isAround(at->maker, other)) break;
        end = at.end();
    }
    return end - start;
}

/// What the line behind a blank line gives up when both stand directly in the item: markers but those of the
/// item's own lists, and the blanks behind them.
std::int64_t lengthToContentOf(const Node* item, Node::Iterator at) {
    const std::int64_t start = at.offset;
    for (toFirstLeaf(at); isContainerMarker(at.node); at.nextInSequence(), toFirstLeaf(at)) {
        const Node* const maker = at->maker;
        if (maker == item || (maker->parent && maker->parent->parent == item)) break;
    }
    return at.offset - start + (isOfType(at.node, Ondo::ONDO_SPACE_NODE) ? at->charCount : 0);
}

} // namespace

DeleteNext::Handler DeleteNext::handlerFor(std::uint16_t type) {
    static constexpr DeletionRow<Handler> rows[] = {
        {Ondo::ONDO_SPACE_NODE, &DeleteNext::deleteIndentation},
        {Ondo::ONDO_LINE_ENDING_NODE, &DeleteNext::deleteLineEnding},
        {Ondo::ONDO_ATX_HEADING_OPEN_MARKER_NODE, &DeleteNext::lowerHeading},
        {Ondo::ONDO_BLOCK_QUOTE_MARKER_NODE, &DeleteNext::deleteNode},
        {Ondo::ONDO_LIST_ITEM_MARKER_NODE, &DeleteNext::deleteNode},
        {Ondo::ONDO_TABLE_PIPE_MARKER_NODE, &DeleteNext::deleteTable},
        {Ondo::ONDO_THEMATIC_BREAK_MARKER_NODE, &DeleteNext::deleteNode},
        {Ondo::ONDO_REPLACE_NODE, &DeleteNext::deleteNode},
    };
    return handlerOf(rows, type);
}

std::vector<Result> DeleteNext::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                    std::int64_t, std::int64_t) const {
    if (length > 0) return {};
    Node::Iterator at = leafAt(tree, offset);
    toConstruct(at);
    if (!at.node || at.offset != offset) return {};
    const Handler handler = handlerFor(at->type);
    return handler ? (this->*handler)(tree, at) : Answer();
}

DeleteNext::Answer DeleteNext::deleteIndentation(const Ondo::Tree& tree, const Node::Iterator& space) const {
    if (!selfOrAncestor(space.node, Ondo::ONDO_LIST_ITEM_NODE)) return {};
    const bool isIndentation = Indent::spaceAsIndentation(space.node, textOf(tree, space)).second >= 1;
    return isIndentation ? outdented(tree, space.offset, style_) : Answer();
}

DeleteNext::Answer DeleteNext::deleteLineEnding(const Ondo::Tree&, const Node::Iterator& lineEnding) const {
    Node::Iterator next = lineEnding;
    next.nextInSequence();
    if (!next.node) return deletion(lineEnding);

    const std::int64_t caret = lineEnding.offset;
    const bool isInBlank = isInType(lineEnding.node, Ondo::ONDO_BLANK_LINE_NODE);
    // Rows stay apart, and a line that ran into a table would break it.
    if (isInType(lineEnding.node, Ondo::ONDO_TABLE_NODE)) return caretOnly(caret);
    if (next->type == Ondo::ONDO_TABLE_NODE && !isInBlank) return caretOnly(caret);

    // The line of an empty item is no blank one: what comes up would nest in it by its marker.
    Node::Iterator line = lineEnding;
    line.beginningOfLine();
    if (!isBlankLine(line) && areInOneFirstLevelContainer(lineEnding.node, next.node))
        return deletion(caret, lineEnding->charCount + prefixLength(next));
    const Node* const container = containerAround(lineEnding.node);
    if (isListItem(container) && container == containerAround(next.node))
        return deletion(caret, lineEnding->charCount + lengthToContentOf(container, next));
    const std::int64_t shared = sharedQuotePrefix(next, lineEnding.node);
    if (shared > 0) return deletion(caret, lineEnding->charCount + shared);
    if (isInBlank && next->type == Ondo::ONDO_ATX_HEADING_NODE &&
        isOfType(next->firstChild, Ondo::ONDO_ATX_HEADING_OPEN_MARKER_NODE))
        return {Result(caret, lineEnding->charCount, u"", caret + next->firstChild->charCount, 0)};
    return deletion(lineEnding);
}

/// By a level; from the first level to a paragraph.
DeleteNext::Answer DeleteNext::lowerHeading(const Ondo::Tree& tree, const Node::Iterator& marker) const {
    const bool isFirstLevel = unitAt(tree, marker.offset + 1) != u'#';
    return deletion(marker.offset, isFirstLevel ? marker->charCount : 1);
}

DeleteNext::Answer DeleteNext::deleteTable(const Ondo::Tree&, const Node::Iterator& pipe) const {
    return tableRemoval(pipe);
}

DeleteNext::Answer DeleteNext::deleteNode(const Ondo::Tree&, const Node::Iterator& at) const {
    return deletion(at);
}

} // namespace CVN::Operation
