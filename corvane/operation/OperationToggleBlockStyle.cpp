#include "corvane/operation/OperationToggleBlockStyle.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "corvane/block/AtxHeading.h"
#include "corvane/block/List.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/operation/ToggleCallout.h"
#include "corvane/operation/ToggleFences.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Range;
using Line = ToggleBlockStyle::Line;

namespace {

/// By style; those behind are "> ".
constexpr std::u16string_view lineMarkers[] = {u"# ", u"## ", u"### ",   u"#### ", u"##### ", u"###### ",
                                               u"* ", u"1. ", u"- [ ] ", u"> ",    u"",       u""};

/// Blocks whose lines are not text.
constexpr std::uint16_t closedTypes[] = {Ondo::ONDO_TABLE_NODE,          Ondo::ONDO_FENCED_CODE_NODE,
                                         Ondo::ONDO_MATH_BLOCK_NODE,     Ondo::ONDO_HTML_BLOCK_NODE,
                                         Ondo::ONDO_THEMATIC_BREAK_NODE, Ondo::ONDO_YAML_NODE};

struct LineRange {
    Line first;
    Line last;
};

/// A range that ends where a line starts leaves that line alone.
LineRange linesOf(const Ondo::Tree& tree, const Range& range) {
    LineRange lines{lineAt(tree, range.offset), {}};
    const bool leavesLast =
        range.length != 0 && range.end() != tree.length() && isLineStart(tree, range.end());
    lines.last = range.length == 0 ? lines.first : lineAt(tree, range.end() - (leavesLast ? 1 : 0));
    return lines;
}

/// A list stands for its first item.
Line withoutList(Line line) {
    if (isOfType(line.node, Ondo::ONDO_LIST_NODE)) line.firstChild();
    return line;
}

Line firstLeaf(Line line) {
    toFirstLeaf(line);
    return line;
}

/// On the empty line behind the last line ending, or in an empty note.
bool isOnEmptyLastLine(const Ondo::Tree& tree, const Range& caret) {
    return caret.length == 0 && caret.offset == tree.length() && isLineStart(tree, caret.offset);
}

/// What a line begins with: its deepest first block or, on a further line of a block, the line's own node.
struct FirstBlock {
    const Node* node;
    const Node* parent = nullptr; ///< when the line is the first of the parent, too
    bool isInNewItem = false;     ///< some item starts on the line

    explicit FirstBlock(const Line& line) : node(line.node) {
        while (node->firstChild && node->firstChild->isBlock())
            enter(node->firstChild);
    }
    bool isBlank() const { return node->type == Ondo::ONDO_BLANK_LINE_NODE && !isInNewItem; }

private:
    void enter(const Node* child) {
        if (isListItem(node)) isInNewItem = true;
        parent = node;
        node = child;
    }
};

const Node* nearestAncestor(const Node* node, std::uint16_t type) {
    return selfOrAncestor(node->parent, type);
}

const Node* outermostQuote(const Node* node) {
    const Node* quote = nullptr;
    for (; node; node = node->parent)
        if (isBlockQuote(node)) quote = node;
    return quote;
}

/// How many items a line begins in.
std::int64_t listDepth(const Line& line) {
    std::int64_t items = 0;
    for (const Node* node = FirstBlock(line).node; node; node = node->parent)
        if (isListItem(node)) ++items;
    return items;
}

bool isOfListType(const Node* node, BlockToggles style) {
    if (!isListItem(node)) return false;
    const auto* const item = static_cast<const Ondo::Block::ListItemNode*>(node);
    if (style == BlockToggles::TaskList) return item->isTask();
    if (style == BlockToggles::BulletList) return !item->isOrdered() && !item->isTask();
    return item->markerType == Ondo::Block::List::MarkerType::ordered_dot;
}

bool isHeadingOfLevel(const Node* node, std::int64_t level) {
    return isOfType(node, Ondo::ONDO_ATX_HEADING_NODE) &&
           static_cast<const Ondo::Block::AtxHeadingNode*>(node)->level == level;
}

/// Behind the blanks and container markers from a leaf on, or at the first of them that is made by
/// `container`.
Line behindLeading(Line at, const Node* container = nullptr) {
    while (ToggleBlockStyle::isListOrBlockQuoteMarkerOrSpace(at.node) &&
           !(container && at->maker == container)) {
        at.nextInSequence();
        toFirstLeaf(at);
    }
    return at;
}

std::int64_t endWithSpace(const Line& marker) {
    Line next = marker;
    next.nextInSequence();
    toFirstLeaf(next);
    return isOfType(next.node, Ondo::ONDO_SPACE_NODE) ? next.end() : marker.end();
}

Range itemRange(const Line& line) {
    const Line leaf = firstLeaf(line);
    const Node* const item = ToggleBlockStyle::wrappingListItem(leaf.node);
    const Line at = behindLeading(leaf, item);
    const bool isMarker = item && at.node && at->maker == item;
    return {at.offset, isMarker ? endWithSpace(at) - at.offset : 0};
}

Range quoteRange(const Line& line) {
    const Line leaf = firstLeaf(line);
    const Node* const quote = outermostQuote(leaf.node);
    const Line at = behindLeading(leaf, quote);
    if (quote && at.node && at->maker == quote) return {at.offset, at->charCount};
    return {line.offset, 0};
}

/// The leading blanks of a line of the document go, too.
Range headingRange(const Line& line) {
    const Line leaf = firstLeaf(line);
    const Line at = behindLeading(leaf);
    Line last = leaf;
    while (last.end() < at.offset) {
        last.nextInSequence();
        toFirstLeaf(last);
    }
    const bool dropsBlanks = isOfType(last.node, Ondo::ONDO_SPACE_NODE) &&
                             isOfType(last->parentBlock()->parent, Ondo::ONDO_DOCUMENT_NODE);
    const std::int64_t start = dropsBlanks ? last.offset : at.offset;
    const bool isMarked = isOfType(at.node, Ondo::ONDO_ATX_HEADING_OPEN_MARKER_NODE);
    return {start, (isMarked ? endWithSpace(at) : at.offset) - start};
}

/// Whether an item's marker ends at the offset without a blank, as one at the end of a line can.
bool isBehindBareMarker(const Ondo::Tree& tree, const Line& line, std::int64_t offset) {
    constexpr std::u16string_view markerEnds = u"-+*.)";
    if (offset <= line.offset) return false;
    return markerEnds.find(unitAt(tree, offset - 1)) != std::u16string_view::npos;
}

/// Results that follow each other towards the start of the text, with the selection of the editor.
class Changes {
public:
    Changes(const Range& range, const Range& selection)
        : range_(range), selection_(selection), caret_(selection.offset) {}

    void replace(const Range& replaced, std::u16string text) {
        const auto size = static_cast<std::int64_t>(text.size());
        if (replaced.offset == range_.offset && replaced.length == 0) markerLength_ = size;
        if (selection_.length != 0 || caret_ != replaced.offset)
            return Result::addToList(results_, replaced.offset, replaced.length, std::move(text),
                                     selection_.offset, selection_.length);
        caret_ += size;
        results_.emplace_back(replaced.offset, replaced.length, std::move(text), caret_, 0);
    }

    /// What goes in at the start of the range is selected along with the text. A selection from elsewhere
    /// stays what it is.
    void selectMarker() {
        if (range_.length == 0 || results_.empty()) return;
        Result& last = results_.back();
        if (last.selectionOffset != range_.offset + markerLength_) return;
        last.selectionOffset -= markerLength_;
        last.selectionLength += markerLength_;
    }

    std::vector<Result> take() { return std::move(results_); }

private:
    Range range_;
    Range selection_;
    std::int64_t caret_;
    std::int64_t markerLength_ = 0; ///< of what went in where the range starts
    std::vector<Result> results_;
};

} // namespace

std::vector<Result> ToggleBlockStyle::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                          std::int64_t selectionOffset, std::int64_t selectionLength) const {
    if (isFence())
        return processFencedCodeAndMathBlockToggle(tree, offset, length, selectionOffset, selectionLength);
    const LineRange lines = linesOf(tree, {offset, length});
    const Line first = withoutList(lines.first);
    if (isCallout())
        return processCalloutToggle(tree, first, withoutList(lines.last), offset, selectionOffset,
                                    selectionLength);
    if (isOnEmptyLastLine(tree, {offset, length})) {
        std::vector<Result> results;
        const bool isQuote = style_ == BlockToggles::BlockQuote;
        if (!isQuote && isInUnclosedBlock(leafAt(tree, offset).node)) return results;
        Result::addToList(results, offset, 0, lineMarkerString({}, {}), selectionOffset, selectionLength);
        return results;
    }
    const Direction direction = directionOf(lines.first, lines.last, length != 0);
    return changedLines(tree, {offset, length}, {selectionOffset, selectionLength}, direction);
}

/// Remove when each line that counts is of the style.
ToggleBlockStyle::Direction ToggleBlockStyle::directionOf(const Line& firstLine, const Line& lastLine,
                                                          bool isSelection) const {
    for (Line at = lastLine; at.node && at->type != Ondo::ONDO_DOCUMENT_NODE && at.offset >= firstLine.offset;
         toPreviousLine(at)) {
        const Line line = withoutList(at);
        if (!isPassedOver(line, isSelection) && !isSameTypeAsOperation(line)) return Direction::Add;
    }
    return Direction::Remove;
}

std::vector<Result> ToggleBlockStyle::changedLines(const Ondo::Tree& tree, const Range& range,
                                                   const Range& selection, Direction direction) const {
    const LineRange lines = linesOf(tree, range);
    const Line first = withoutList(lines.first);
    Changes changes(range, selection);
    for (Line at = lines.last; at.node && at->type != Ondo::ONDO_DOCUMENT_NODE && at.offset >= first.offset;
         toPreviousLine(at)) {
        const Line line = withoutList(at);
        if (isPassedOver(line, range.length != 0)) continue;
        if (direction == Direction::Add && isSameTypeAsOperation(line)) continue;
        changes.replace(replaceRange(line), replacement(tree, line, first, direction));
    }
    changes.selectMarker();
    return changes.take();
}

/// Lines of closed blocks, and in a selection blank lines; a quote takes them all.
bool ToggleBlockStyle::isPassedOver(const Line& line, bool isSelection) const {
    if (style_ == BlockToggles::BlockQuote) return false;
    const FirstBlock block(line);
    if (isSelection && block.isBlank()) return true;
    // The item around such a block can change.
    if (isList() && block.isInNewItem) return false;
    return std::any_of(std::begin(closedTypes), std::end(closedTypes),
                       [&](std::uint16_t type) { return isNodeInsideBlockOfType(block.node, type); });
}

/// The first line to leave a quote that goes on above it is set apart from that.
std::u16string ToggleBlockStyle::replacement(const Ondo::Tree& tree, const Line& line, const Line& firstLine,
                                             Direction direction) const {
    if (direction == Direction::Add) {
        const std::u16string marker = lineMarkerString(line, firstLine);
        return isHeading() && isBehindBareMarker(tree, line, replaceRange(line).offset) ? u' ' + marker
                                                                                        : marker;
    }
    if (style_ != BlockToggles::BlockQuote || line.offset != firstLine.offset) return {};
    const Node* node = firstLeaf(line).node;
    const Node* const quote = outermostQuote(node);
    while (node != line.node && node != quote)
        node = node->parent;
    return std::u16string(node == quote ? u"" : emptyLineAt(tree, replaceRange(line).offset));
}

std::u16string ToggleBlockStyle::lineMarkerString(const Line& line, const Line& firstLine) const {
    const std::size_t style = std::min(static_cast<std::size_t>(style_), std::size(lineMarkers));
    std::u16string marker(style < std::size(lineMarkers) ? lineMarkers[style] : u"> ");
    if (style_ != BlockToggles::OrderedList || !line.node || !firstLine.node) return marker;
    const std::int64_t levels = listDepth(line) - listDepth(firstLine);
    return marker.insert(0, static_cast<std::size_t>(std::max<std::int64_t>(levels, 0)), u' ');
}

Range ToggleBlockStyle::replaceRange(const Line& line) const {
    if (isHeading()) return headingRange(line);
    return isList() ? itemRange(line) : quoteRange(line);
}

bool ToggleBlockStyle::isSameTypeAsOperation(const Line& line) const {
    const FirstBlock block(line);
    if (isHeading()) return isHeadingOfLevel(block.node, static_cast<std::int64_t>(style_) + 1);
    if (isList()) return isOfListType(block.parent, style_);
    if (style_ == BlockToggles::FencedCode) return isOfType(block.node, Ondo::ONDO_FENCED_CODE_NODE);
    if (style_ == BlockToggles::MathBlock) return isOfType(block.node, Ondo::ONDO_MATH_BLOCK_NODE);
    return wrappingBlockQuote(block.node) != nullptr;
}

bool ToggleBlockStyle::isNodeInsideBlockOfType(const Node* node, std::uint16_t type) {
    return selfOrAncestor(node, type) != nullptr;
}

const Node* ToggleBlockStyle::wrappingListItem(const Node* node) {
    return nearestAncestor(node, Ondo::ONDO_LIST_ITEM_NODE);
}

const Node* ToggleBlockStyle::wrappingBlockQuote(const Node* node) {
    return nearestAncestor(node, Ondo::ONDO_BLOCK_QUOTE_NODE);
}

bool ToggleBlockStyle::isListOrBlockQuoteMarkerOrSpace(const Node* node) {
    return isContainerMarker(node) || (node && node->category == Node::Category::Space);
}

std::vector<Result>
ToggleBlockStyle::processFencedCodeAndMathBlockToggle(const Ondo::Tree& tree, std::int64_t offset,
                                                      std::int64_t length, std::int64_t selectionOffset,
                                                      std::int64_t selectionLength) const {
    return toggledFences(tree, style_, {offset, length}, {selectionOffset, selectionLength});
}

std::vector<Result> ToggleBlockStyle::processCalloutToggle(const Ondo::Tree& tree, const Line& firstLine,
                                                           const Line& lastLine, std::int64_t offset,
                                                           std::int64_t selectionOffset,
                                                           std::int64_t selectionLength) const {
    return toggledCallout(tree, style_, firstLine, lastLine, offset, {selectionOffset, selectionLength});
}

} // namespace CVN::Operation
