#include "corvane/operation/ToggleCallout.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "corvane/block/Callout.h"
#include "corvane/operation/ContainerChain.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/operation/OperationToggleBlockStyle.h"
#include "corvane/operation/ToggleFences.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Range;
using Ondo::Block::CalloutTypes;

namespace {

struct Label {
    std::u16string_view text;
    CalloutTypes type;
    std::int64_t size() const { return static_cast<std::int64_t>(text.size()); }
};

/// By style, from Callout on.
constexpr Label labels[] = {
    {u"[!NOTE]", CalloutTypes::Note},       {u"[!NOTE]", CalloutTypes::Note},
    {u"[!TIP]", CalloutTypes::Tip},         {u"[!CAUTION]", CalloutTypes::Caution},
    {u"[!WARNING]", CalloutTypes::Warning}, {u"[!IMPORTANT]", CalloutTypes::Important}};

const Label& labelOf(BlockToggles style) {
    const auto index = static_cast<std::size_t>(style) - static_cast<std::size_t>(BlockToggles::Callout);
    return labels[std::min(index, std::size(labels) - 1)];
}

constexpr std::uint16_t refusedTypes[] = {Ondo::ONDO_TABLE_NODE, Ondo::ONDO_HTML_BLOCK_NODE,
                                          Ondo::ONDO_FENCED_CODE_NODE, Ondo::ONDO_MATH_BLOCK_NODE,
                                          Ondo::ONDO_YAML_NODE};

constexpr std::u16string_view quoteMarker = u"> ";

std::vector<Result> changedQuoteLines(const Ondo::Tree& tree, const Range& range, const Range& selection,
                                      ToggleBlockStyle::Direction direction) {
    return ToggleBlockStyle(BlockToggles::BlockQuote).changedLines(tree, range, selection, direction);
}

/// The outermost quote that a line stands in; the line itself when there is none.
Node::Iterator outermostQuote(const Node::Iterator& line) {
    Node::Iterator at = line;
    toFirstLeaf(at);
    const Node* quote = nullptr;
    for (const Node* node = at->parent; node; node = node->parent)
        if (isBlockQuote(node)) quote = node;
    if (!quote) return line;
    while (at.node != quote)
        at.parent();
    return at;
}

/// Null when the quote is no callout.
const Ondo::Block::CalloutHeadNode* headOf(const Node* quote) {
    const Node* const first = quote->firstChild;
    if (!isOfType(first, Ondo::ONDO_CALLOUT_HEAD_NODE)) return nullptr;
    return static_cast<const Ondo::Block::CalloutHeadNode*>(first);
}

/// The first marker of a node that it made; one of a quote or head is on its first line.
Node::Iterator firstMarker(const Node::Iterator& maker) {
    Node::Iterator at = maker;
    while (at.node && !(at->isMarker() && at->maker == maker.node))
        at.nextInSequence();
    return at;
}

/// Behind a block with its last line ending, or behind the line of a piece of a block.
std::int64_t endOf(const Node::Iterator& line) {
    if (line->isBlock()) return line.end();
    Node::Iterator at = line;
    at.endOfLine();
    return at.end();
}

/// The lines as a range that ends on the last of them.
Range linesBetween(const Node::Iterator& first, const Node::Iterator& last) {
    Node::Iterator end = last;
    if (last->isBlock())
        end.lastNodeOfSubtree();
    else
        end.endOfLine();
    const bool isEnded = isOfType(end.node, Ondo::ONDO_LINE_ENDING_NODE);
    return {first.offset, (isEnded ? end.offset : end.end()) - first.offset};
}

bool isRefusedAt(const Node* node) {
    return std::any_of(std::begin(refusedTypes), std::end(refusedTypes), [&](std::uint16_t type) {
        return ToggleBlockStyle::isNodeInsideBlockOfType(node, type);
    });
}

// The label

/// Whether the text that a label goes in front of can be the callout's title: a paragraph, or nothing.
bool canBeTitle(const Node* node) {
    const Node* const block = node->isBlock() ? node : node->parentBlock();
    return block->type == Ondo::ONDO_PARAGRAPH_NODE || block->type == Ondo::ONDO_BLANK_LINE_NODE;
}

/// What keeps a title apart from the label in front of it.
std::u16string_view blankBefore(char16_t unit) {
    constexpr std::u16string_view apart = u" \r\n";
    return unit == 0 || apart.find(unit) != std::u16string_view::npos ? u"" : u" ";
}

/// The label in front of what stands at an offset.
std::u16string labelBefore(const Ondo::Tree& tree, const Label& label, std::int64_t offset) {
    return std::u16string(label.text).append(blankBefore(unitAt(tree, offset)));
}

/// The label for a quote without one, at the end of its first marker. The caret is behind it.
std::vector<Result> labelled(const Ondo::Tree& tree, const Node::Iterator& quote, const Label& label) {
    const std::int64_t offset = firstMarker(quote).end();
    std::u16string text;
    if (canBeTitle(quote->firstChild)) {
        text = labelBefore(tree, label, offset);
    } else {
        ContainerChain chain(tree, quote);
        chain.keepDownTo(quote.node);
        text = std::u16string(label.text) + u'\n' + chain.furtherPrefix();
    }
    return {Result(offset, 0, text, offset + label.size(), 0)};
}

// Quotes with a label

std::vector<Result> relabelled(const Node::Iterator& head, const Label& label, const Range& selection) {
    const Node::Iterator marker = firstMarker(head);
    std::vector<Result> results;
    Result::addToList(results, marker.offset, marker->charCount, std::u16string(label.text), selection.offset,
                      selection.length);
    return results;
}

/// Lines freed from quote and label.
std::vector<Result> unlabelled(const Ondo::Tree& tree, const Node::Iterator& quote, const Range& selection) {
    Node::Iterator head = quote;
    head.firstChild();
    const Node::Iterator marker = firstMarker(head);
    Node::Iterator space = marker;
    space.nextSibling();

    std::vector<Result> results =
        changedQuoteLines(tree, linesBetween(quote, quote), selection, ToggleBlockStyle::Direction::Remove);
    const bool isShifted = !results.empty() && results.back().replaceOffset < marker.offset;
    const std::int64_t shift =
        isShifted ? results.back().replaceLength - results.back().replacementLength() : 0;
    if (isOfType(space.node, Ondo::ONDO_SPACE_NODE))
        Result::addToList(results, space.offset - shift, space->charCount, u"", selection.offset,
                          selection.length);
    Result::addToList(results, marker.offset - shift, marker->charCount, u"", selection.offset,
                      selection.length);
    return results;
}

std::vector<Result> toggledQuote(const Ondo::Tree& tree, const Node::Iterator& quote, const Label& label,
                                 const Range& selection) {
    const Ondo::Block::CalloutHeadNode* const head = headOf(quote.node);
    if (!head) return labelled(tree, quote, label);
    if (head->calloutType == label.type) return unlabelled(tree, quote, selection);
    Node::Iterator at = quote;
    at.firstChild();
    return relabelled(at, label, selection);
}

// Lines that become a callout

/// The label goes into the marker that the first line gets.
void labelFirstLine(const Ondo::Tree& tree, const Node::Iterator& line, const Label& label, Result& last) {
    last.replacementString += label.text;
    last.selectionOffset = last.replaceOffset + last.replacementLength();
    last.selectionLength = 0;
    if (canBeTitle(line.node))
        last.replacementString += blankBefore(unitAt(tree, last.replaceOffset));
    else
        last.replacementString.append(u"\n").append(quoteMarker);
}

bool isBehindQuote(const Ondo::Tree& tree, std::int64_t offset) {
    if (offset == 0) return false;
    return isBlockQuote(leafAt(tree, offset - 1).node->firstLevelAncestor());
}

/// Whether a line begins with the marker of a quote, blanks aside.
bool beginsQuote(const Ondo::Tree& tree, std::int64_t offset) {
    if (offset == tree.length()) return false;
    Node::Iterator at = leafAt(tree, offset);
    while (at.node && (at->category == Node::Category::Space || at->firstChild))
        at.nextInSequence();
    return isOfType(at.node, Ondo::ONDO_BLOCK_QUOTE_MARKER_NODE);
}

/// The callout is set apart from a quote above it, and one below it.
std::vector<Result> quotedLines(const Ondo::Tree& tree, const Node::Iterator& first,
                                const Node::Iterator& last, const Label& label, const Range& selection) {
    std::vector<Result> results;
    if (!isBlockQuote(last.node) && beginsQuote(tree, endOf(last)))
        results.emplace_back(endOf(last), 0, std::u16string(emptyLineAt(tree, endOf(last))), 0, 0);
    std::vector<Result> lines =
        changedQuoteLines(tree, linesBetween(first, last), selection, ToggleBlockStyle::Direction::Add);
    if (lines.empty()) return {};
    std::move(lines.begin(), lines.end(), std::back_inserter(results));

    if (!isBlockQuote(first.node)) {
        labelFirstLine(tree, first, label, results.back());
        if (isBehindQuote(tree, first.offset))
            Result::addToList(results, first.offset, 0, std::u16string(emptyLineAt(tree, first.offset)),
                              selection.offset, selection.length);
    } else if (!headOf(first.node)) {
        std::vector<Result> more = labelled(tree, first, label);
        std::move(more.begin(), more.end(), std::back_inserter(results));
    }
    return results;
}

/// A callout on the empty last line, or in an empty note.
std::vector<Result> newCallout(const Ondo::Tree& tree, const Label& label, const Range& selection) {
    const std::int64_t end = tree.length();
    const std::u16string text = std::u16string(quoteMarker).append(label.text);
    std::vector<Result> results;
    if (end > 0) {
        if (isInUnclosedBlock(leafAt(tree, end).node)) return {};
        results.emplace_back(end, 0, u"\n", selection.offset, selection.length);
    }
    Result::addToList(results, end, 0, text, selection.offset, selection.length);
    if (isBehindQuote(tree, end))
        Result::addToList(results, end, 0, std::u16string(emptyLineAt(tree, end)), selection.offset,
                          selection.length);
    return results;
}

} // namespace

std::vector<Result> toggledCallout(const Ondo::Tree& tree, BlockToggles style,
                                   const Node::Iterator& firstLine, const Node::Iterator& lastLine,
                                   std::int64_t offset, const Range& selection) {
    const Label& label = labelOf(style);
    if (offset == tree.length() && isLineStart(tree, offset)) return newCallout(tree, label, selection);
    const Node::Iterator first = outermostQuote(firstLine);
    const Node::Iterator last = outermostQuote(lastLine);
    if (isBlockQuote(first.node) && first.node == last.node)
        return toggledQuote(tree, first, label, selection);
    if (isRefusedAt(first.node) || isRefusedAt(last.node)) return {};
    return quotedLines(tree, first, last, label, selection);
}

} // namespace CVN::Operation
