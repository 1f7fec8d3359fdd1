#include "corvane/operation/OperationInsertNewline.h"

#include <algorithm>

#include "corvane/correction/MathBlockCorrection.h"
#include "corvane/inline/FoldMarker.h"
#include "corvane/operation/BlockStructure.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/operation/OperationIndent.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Inline::FoldMarkerNode;

/// A caret or selection in structure: the leaf at its start, and what stands around it.
struct InsertNewline::Place {
    const Ondo::Tree& tree;
    std::int64_t offset;
    std::int64_t length;
    Node::Iterator node;
    Node::Iterator block = {};
    Node::Iterator container = {}; ///< the item or quote that the block stands in
    Node::Iterator marker = {};    ///< what the container's line begins with
    bool isFolded = false;         ///< the block is a head whose fold hides the caret

    std::int64_t lineStart() const {
        Node::Iterator line = node;
        line.beginningOfLine();
        return line.offset;
    }
    bool isInCode() const {
        return isOfType(block.node, Ondo::ONDO_FENCED_CODE_NODE) ||
               isOfType(block.node, Ondo::ONDO_MATH_BLOCK_NODE);
    }
};

namespace {

std::int64_t sizeOf(const std::u16string& text) {
    return static_cast<std::int64_t>(text.size());
}

/// One result with the caret behind its text.
std::vector<Result> replaced(std::int64_t offset, std::int64_t length, const std::u16string& text) {
    return {Result(offset, length, text, offset + sizeOf(text), 0)};
}

bool changesText(const Ondo::Tree& tree, const std::vector<Result>& results) {
    return std::any_of(results.begin(), results.end(), [&tree](const Result& result) {
        return result.replacementString != tree.markdownIn({result.replaceOffset, result.replaceLength});
    });
}

bool isSpace(const Node* node) {
    return node && node->category == Node::Category::Space;
}

void toBlock(Node::Iterator& at) {
    while (at.node && !at->isBlock())
        at.parent();
}

const Node* selfOrAncestorContainer(const Node* node) {
    while (node && !isContainer(node))
        node = node->parent;
    return node;
}

/// What gives a further line its prefix: the item or quote around the block of the line, or the last block of
/// the list that an indented paragraph stands below.
Node::Iterator secondaryFrame(const Node::Iterator& lineStart) {
    Node::Iterator frame = lineStart;
    toBlock(frame);
    const bool isStray = isOfType(frame->previousSibling, Ondo::ONDO_LIST_NODE) && isSpace(frame->firstChild);
    if (isContainer(frame->parent)) {
        frame.parent();
    } else if (isStray) {
        frame.previousSibling();
        frame.lastNodeOfSubtree();
        toBlock(frame);
    } else {
        frame = {};
    }
    return frame;
}

/// How long the blanks and container markers are that the first line of a node begins with.
std::int64_t prefixLength(Node::Iterator at) {
    at.beginningOfLine();
    toFirstLeaf(at);
    const std::int64_t start = at.offset;
    while (at.node && (isSpace(at.node) || isContainerMarker(at.node)))
        at.nextInSequence();
    return at.offset - start;
}

/// The columns that an item's marker takes up for what stands on further lines: without a task's box, unless
/// another item begins behind that.
std::int64_t widthOfMarker(const Node::Iterator& marker) {
    Node::Iterator behind = marker;
    do
        behind.nextInSequence();
    while (behind.node && (behind->isBlock() || isSpace(behind.node)) && behind.line == marker.line);
    const bool isItemBehind =
        isOfType(behind.node, Ondo::ONDO_LIST_ITEM_MARKER_NODE) && behind.line == marker.line;
    return isItemBehind ? marker->charCount : markerIndentWidth(marker->maker);
}

/// What a leaf of a prefix becomes on a further line; nothing for a leaf that is no prefix. Item markers
/// become blanks.
std::u16string furtherPiece(const Ondo::Tree& tree, const Node::Iterator& at, std::int64_t end) {
    if (at->type == Ondo::ONDO_BLOCK_QUOTE_MARKER_NODE) return std::u16string(textOf(tree, at));
    if (isSpace(at.node))
        return std::u16string(tree.markdownIn({at.offset, std::min(at->charCount, end - at.offset)}));
    const bool isItem = at->type == Ondo::ONDO_LIST_ITEM_MARKER_NODE && isListItem(at->maker);
    return std::u16string(static_cast<std::size_t>(isItem ? widthOfMarker(at) : 0), u' ');
}

std::u16string spacedPrefix(const Ondo::Tree& tree, Node::Iterator at, std::int64_t frameEnd,
                            std::int64_t offset) {
    const auto limit = static_cast<std::size_t>(offset - at.offset);
    const std::int64_t end = std::min(frameEnd, offset);
    std::u16string prefix;
    for (; at.node && at.offset < end; at.nextInSequence()) {
        const std::u16string piece = furtherPiece(tree, at, offset);
        if (piece.empty() || prefix.size() + piece.size() > limit) break;
        prefix += piece;
    }
    return prefix;
}

/// Whether text below the line is part of its paragraph whatever it begins with.
bool continuesLazily(const Ondo::Tree& tree, const Node::Iterator& lineStart) {
    Node::Iterator block = lineStart;
    toBlock(block);
    return isOfType(block.node, Ondo::ONDO_PARAGRAPH_NODE) && !isSimplified(tree);
}

/// A tab for each item and a marker for each quote around a line. The innermost item has none where what
/// follows continues it anyway.
std::u16string tabbedPrefix(const Node* frame, bool isLazy) {
    const Node* const innermost = selfOrAncestorContainer(frame);
    std::u16string prefix;
    for (const Node* node = innermost; node; node = node->parent) {
        if (isBlockQuote(node)) prefix.insert(0, u"> ");
        if (isListItem(node) && (node != innermost || !isLazy)) prefix.insert(0, u"\t");
    }
    return prefix;
}

bool endsInLineEnding(Node::Iterator at) {
    at.lastNodeOfSubtree();
    return isLineEnding(at.node);
}

/// A line of its own behind a block, with the caret behind `text`.
std::vector<Result> lineBehind(const Node::Iterator& block, const std::u16string& text) {
    const std::int64_t end = block.end();
    if (endsInLineEnding(block)) return {Result(end, 0, text + u'\n', end + sizeOf(text), 0)};
    return replaced(end, 0, u'\n' + text);
}

// Headings

/// The marker in front of a position at the start of a heading's text, of a heading directly in the document.
Node::Iterator headingMarkerBefore(const Node::Iterator& node, std::int64_t offset) {
    constexpr std::int64_t levelInDocument = 2;
    if (node.offset != offset || isSpace(node.node) || isLineEnding(node.node)) return {};
    Node::Iterator before = node;
    toPreviousLeaf(before);
    const bool isMarker = isOfType(before.node, Ondo::ONDO_ATX_HEADING_OPEN_MARKER_NODE);
    return isMarker && before.level == levelInDocument ? before : Node::Iterator();
}

/// The caret stays with the text of the heading.
std::vector<Result> headingPushedDown(const Ondo::Tree& tree, const Node::Iterator& marker,
                                      std::int64_t length) {
    const std::u16string text = u'\n' + std::u16string(textOf(tree, marker));
    return {Result(marker.offset, marker->charCount + length, text, marker.end() + 1, 0)};
}

/// Another heading of the level of a folded one, behind what it hides.
std::vector<Result> headingBehindFold(const Ondo::Tree& tree, const Node::Iterator& head) {
    const Node* const tail = FoldMarkerNode::foldableTailFromContentHead(head.node);
    const Node* const marker = head->firstMarker();
    Node::Iterator at = head;
    while (at.node != marker)
        at.nextInSequence();
    const std::u16string text(textOf(tree, at));
    at = head;
    while (at.node != tail)
        at.nextSibling();
    return lineBehind(at, text);
}

/// The outermost folded head that hides the offset or ends in front of it; a caret in front of its marker is
/// in its text.
Node::Iterator foldedHeadAround(Node* block, std::int64_t offset) {
    Node* const head = FoldMarkerNode::topmostFoldedContentHead(block);
    if (!head || !head->parent) return {};
    Node::Iterator foldMarker(head);
    foldMarker.lastChild();
    foldMarker.previousSibling();
    return foldMarker.node && foldMarker.offset < offset ? Node::Iterator(head) : Node::Iterator();
}

// Prefixes

Node::Iterator markerOfItem(const Node::Iterator& item) {
    const Node* const marker = item->firstMarker();
    Node::Iterator at = item;
    while (marker && at.node != marker)
        at.nextInSequence();
    return marker ? at : Node::Iterator();
}

/// The marker of a container: that of an item, or of a quote the nearest one at or in front of a node in it.
Node::Iterator nearestMarker(const Node::Iterator& node, const Node::Iterator& container) {
    if (isListItem(container.node)) return markerOfItem(container);
    Node::Iterator at = node;
    while (at.node != container.node && !(at->isMarker() && at->maker == container.node))
        at.previousInSequence();
    return at.node == container.node ? Node::Iterator() : at;
}

/// A marker can have the blank that it needs as its last unit, or a tab behind it, or be all that the line
/// has.
bool hasBlank(std::u16string_view marker) {
    return marker.back() == u' ' || marker.back() == u'\t';
}

std::u16string blanksForMarker(const Node::Iterator& marker, IndentStyle style) {
    if (style == IndentStyle::Tabs) return u"\t";
    return std::u16string(static_cast<std::size_t>(widthOfMarker(marker)), u' ');
}

/// A marker as it begins another item or line. One at the end of a line may lack the blank that it needs in
/// front of text.
std::u16string repeatedMarker(const Ondo::Tree& tree, const Node::Iterator& marker) {
    std::u16string text(textOf(tree, marker));
    const bool isItem = isOfType(marker.node, Ondo::ONDO_LIST_ITEM_MARKER_NODE);
    if (isItem && !hasBlank(text)) text += u' ';
    return text;
}

/// The blanks to the content behind a marker, for a line that goes on with it.
std::u16string blanksToContent(const Ondo::Tree& tree, const Node::Iterator& marker, IndentStyle style) {
    Node::Iterator behind = marker;
    behind.nextInSequence();
    const bool needsBlank = style == IndentStyle::Spaces && !hasBlank(textOf(tree, marker));
    std::u16string blanks = blanksForMarker(marker, style);
    if (needsBlank && isSpace(behind.node)) blanks += textOf(tree, behind);
    return blanks;
}

/// The line of a marker up to the marker, for another line: the markers of the items around it become blanks,
/// the last one is repeated.
std::u16string prefixOf(const Ondo::Tree& tree, const Node::Iterator& marker, IndentStyle style,
                        bool repeatsItem) {
    Node::Iterator at = marker;
    at.beginningOfLine();
    std::u16string prefix;
    for (;; at.nextInSequence()) {
        const bool isLast = at.node == marker.node;
        const bool isItem = at->type == Ondo::ONDO_LIST_ITEM_MARKER_NODE;
        if (isLast) {
            const bool isRepeated = repeatsItem || !isItem;
            prefix += isRepeated ? repeatedMarker(tree, at) : blanksToContent(tree, at, style);
            return withUncheckedTasks(std::move(prefix));
        }
        if (isItem)
            prefix += blanksForMarker(at, style);
        else if (!at->firstChild)
            prefix += textOf(tree, at);
    }
}

// Lines without content

/// What an item's list or a quote stands in.
Node::Iterator frameOf(Node::Iterator container) {
    if (isListItem(container.node)) container.parent();
    container.parent();
    return container;
}

/// The marker that an empty line ends in, blanks aside.
const Node* markerOfEmptyLine(const Node* node, bool isAtEnd) {
    if (isAtEnd && isBlockMarker(node)) return node;
    const Node* before = node->previousSibling;
    if (isSpace(before) && !isBlockMarker(before)) before = before->previousSibling;
    return isBlockMarker(before) ? before : nullptr;
}

} // namespace

std::vector<Result> InsertNewline::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::int64_t selectionOffset, std::int64_t selectionLength) const {
    if (option_ == InsertNewlineListItemOption::SecondaryRow)
        return newSecondaryRow(tree, offset, length, selectionOffset, selectionLength);
    Place at{tree, offset, length, leafAt(tree, offset)};
    if (tree.length() == 0 || (offset == tree.length() && isLineEnding(at.node.node))) return {};
    const Node::Iterator headingMarker = headingMarkerBefore(at.node, offset);
    if (headingMarker.node) return headingPushedDown(tree, headingMarker, length);

    at.block = at.node;
    toBlock(at.block);
    if (isOnUnmarkedBlankLine(at)) {
        auto undented =
            Indent(IndentAction::Undent, style_).run(tree, offset, length, selectionOffset, selectionLength);
        if (changesText(tree, undented)) return undented;
    }
    const Node::Iterator head = foldedHeadAround(at.block.node, offset);
    if (isOfType(head.node, Ondo::ONDO_ATX_HEADING_NODE)) return headingBehindFold(tree, head);
    at.isFolded = head.node != nullptr;
    if (at.isFolded) at.block = head;
    return inContainer(at);
}

/// On an empty line that only blanks, if anything, place in an item.
bool InsertNewline::isOnUnmarkedBlankLine(const Place& at) {
    return at.length == 0 && isBlank(at.block.node) && !isBlockMarker(at.node.node) &&
           !isBlockMarker(at.node->previousSibling);
}

std::vector<Result> InsertNewline::inContainer(Place& at) const {
    if (!isContainer(at.block->parent)) return {};
    at.container = at.block;
    at.container.parent();
    at.marker = nearestMarker(at.node, at.container);
    if (!at.marker.node || at.marker.end() > at.offset) return {};
    if (at.isFolded) return lineBehind(at.container, prefixOf(at.tree, at.marker, style_, true));

    const bool startsRow = at.length == 0 && isAtStartOfSecondaryLineOfListItem(at);
    if (at.length == 0 && (isBlank(at.block.node) || (at.isInCode() && startsRow))) return emptyLine(at);
    auto mathBlock =
        Correction::MathBlockCorrection(style_).run(at.tree, at.offset, at.length, u"\n", at.offset + 1, 0);
    if (mathBlock.size() > 1) return mathBlock;
    const std::u16string prefix = prefixOf(at.tree, at.marker, style_, !at.isInCode());
    const std::int64_t start = at.lineStart();
    if (startsRow) return replaced(start, at.offset - start, prefix);
    return replaced(at.offset, at.length, u'\n' + prefix);
}

/// The item has lines above, and before the caret there are but blanks and quote markers.
bool InsertNewline::isAtStartOfSecondaryLineOfListItem(const Place& at) {
    if (!isListItem(at.container.node) || at.node.line == at.container.line || at.node.offset != at.offset)
        return false;
    Node::Iterator before = at.node;
    do
        toPreviousLeaf(before);
    while (isOfType(before.node, Ondo::ONDO_BLOCK_QUOTE_MARKER_NODE) || isSpace(before.node));
    return isLineEnding(before.node);
}

/// Ends the item or quote of a line that holds nothing but markers; a line of code gets another one like it
/// in front.
std::vector<Result> InsertNewline::emptyLine(const Place& at) const {
    const std::int64_t start = at.lineStart();
    if (start == at.offset) return {};
    const std::u16string prefix(at.tree.markdownIn({start, at.offset - start}));
    if (at.isInCode()) return replaced(at.offset, 0, u'\n' + prefix);
    return replaced(start, at.offset - start, endOfContainer(at, prefix));
}

/// What the line becomes: a line of what stands around the container, or a line outside of everything, with
/// an empty one before it where text would continue what stands above.
std::u16string InsertNewline::endOfContainer(const Place& at, std::u16string_view line) const {
    for (Node::Iterator frame = frameOf(at.container); isContainer(frame.node); frame = frameOf(frame)) {
        if (leavesQuote(at, frame)) break;
        // A line that already is one of the frame goes out of that as well.
        if (std::u16string prefix = prefixOfFrame(at, frame); prefix != line) return prefix;
    }
    const bool isFirst = isListItem(at.container.node)
                             ? !at.container->previousSibling && at.node.line == at.marker.line
                             : at.block.line == at.container.line;
    return isSimplified(at.tree) || isFirst ? u"" : u"\n";
}

/// A further line of a quote in the document that has the quote's marker alone ends the quote, whatever of
/// its content the line belongs to.
bool InsertNewline::leavesQuote(const Place& at, const Node::Iterator& frame) {
    const Node* const quote = selfOrAncestor(at.node.node, Ondo::ONDO_BLOCK_QUOTE_NODE);
    const Node* const marker = markerOfEmptyLine(at.node.node, at.offset == at.tree.length());
    return isBlank(at.block.node) && at.node.line != frame.line && quote &&
           isOfType(quote->parent, Ondo::ONDO_DOCUMENT_NODE) &&
           !isOfType(marker, Ondo::ONDO_LIST_ITEM_MARKER_NODE);
}

/// The beginning of a line of the frame. On the line of its marker that stays as it is; elsewhere it is
/// another item, or line of the quote.
std::u16string InsertNewline::prefixOfFrame(const Place& at, const Node::Iterator& frame) const {
    const Node::Iterator marker = nearestMarker(at.node, frame);
    if (!marker.node) return {};
    Node::Iterator behind = marker;
    behind.nextInSequence();
    const std::int64_t end = isSpace(behind.node) ? behind.end() : marker.end();
    if (marker.line == at.node.line) {
        const std::int64_t start = at.lineStart();
        return withUncheckedTasks(std::u16string(at.tree.markdownIn({start, end - start})));
    }
    std::u16string prefix = prefixOf(at.tree, marker, style_, true);
    return prefix += at.tree.markdownIn({marker.end(), end - marker.end()});
}

std::u16string InsertNewline::secondaryPrefix(const Ondo::Tree& tree, std::int64_t offset) const {
    if (isLineStart(tree, offset)) return {};
    Node::Iterator lineStart = lineAt(tree, offset);
    toFirstLeaf(lineStart);
    const Node::Iterator frame = secondaryFrame(lineStart);
    if (!frame.node) return {};
    if (style_ == IndentStyle::Tabs && selfOrAncestor(frame.node, Ondo::ONDO_LIST_ITEM_NODE))
        return tabbedPrefix(frame.node, continuesLazily(tree, lineStart));
    return spacedPrefix(tree, lineStart, lineStart.offset + prefixLength(frame), offset);
}

std::vector<Result> InsertNewline::newSecondaryRow(const Ondo::Tree& tree, std::int64_t offset,
                                                   std::int64_t length, std::int64_t selectionOffset,
                                                   std::int64_t selectionLength) const {
    Result row(offset, length, u'\n' + secondaryPrefix(tree, offset), selectionOffset, selectionLength);
    row.offsetSelection();
    return {row};
}

} // namespace CVN::Operation
