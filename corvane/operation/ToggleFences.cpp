#include "corvane/operation/ToggleFences.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "corvane/block/HtmlBlock.h"
#include "corvane/operation/ContainerChain.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Range;

namespace {

struct FenceKind {
    std::uint16_t block;
    std::uint16_t content;
    std::uint16_t openMarker;
    std::uint16_t closeMarker;
    std::uint16_t otherContent; ///< of the other kind
    char16_t unit;
    std::size_t leastLength;
};

constexpr FenceKind code{Ondo::ONDO_FENCED_CODE_NODE,
                         Ondo::ONDO_FENCED_CODE_CONTENT_ATTRIBUTE_NODE,
                         Ondo::ONDO_FENCED_CODE_OPEN_MARKER_NODE,
                         Ondo::ONDO_FENCED_CODE_CLOSE_MARKER_NODE,
                         Ondo::ONDO_MATH_BLOCK_CONTENT_ATTRIBUTE_NODE,
                         u'`',
                         3};
constexpr FenceKind math{Ondo::ONDO_MATH_BLOCK_NODE,
                         Ondo::ONDO_MATH_BLOCK_CONTENT_ATTRIBUTE_NODE,
                         Ondo::ONDO_MATH_BLOCK_OPEN_MARKER_NODE,
                         Ondo::ONDO_MATH_BLOCK_CLOSE_MARKER_NODE,
                         Ondo::ONDO_FENCED_CODE_CONTENT_ATTRIBUTE_NODE,
                         u'$',
                         2};

/// The child of a block that is of the type; without a node when there is none. A closing fence comes last.
Node::Iterator lastChildOfType(Node::Iterator at, std::uint16_t type) {
    at.lastChild();
    while (at.node && at->type != type && at->category != Node::Category::Attribute)
        at.previousSibling();
    if (at.node && at->type != type) at.node = nullptr;
    return at;
}

bool isClosed(const Node* block, const FenceKind& kind) {
    Node::Iterator at;
    at.node = const_cast<Node*>(block);
    return lastChildOfType(at, kind.closeMarker).node != nullptr;
}

void toAncestor(Node::Iterator& at, const Node* ancestor) {
    while (at.node != ancestor)
        at.parent();
}

Node::Iterator lineOf(Node::Iterator at) {
    at.beginningOfLine();
    return at;
}

/// In front of the line ending, or at the end of the text.
std::int64_t endOfText(Node::Iterator at) {
    at.endOfLine();
    toFirstLeaf(at);
    return isLineEnding(at.node) ? at.offset : at.end();
}

std::int64_t endWithLineEnding(Node::Iterator at) {
    at.endOfLine();
    return at.end();
}

// Taking away

/// The opening fence and its line ending, and the prefix of the next line, whose place is taken by that of
/// the fence.
Range openingRange(const Node::Iterator& block, const FenceKind& kind, std::int64_t limit) {
    Node::Iterator marker = block;
    marker.firstChild();
    while (marker->type != kind.openMarker)
        marker.nextSibling();
    Node::Iterator at = marker;
    at.endOfLine();
    std::int64_t end = at.end();
    for (at.nextInSequence(); at.node && at.offset < limit; at.nextInSequence()) {
        if (at->type == Ondo::ONDO_BLOCK_QUOTE_MARKER_NODE || at->category == Node::Category::Space)
            end = at.end();
        else if (at->type != kind.content)
            break;
    }
    return {marker.offset, end - marker.offset};
}

/// The line of the closing fence. In an empty block its line ending stays, so that a line is left.
Range closingRange(const Node::Iterator& marker, const Node::Iterator& block) {
    const Node::Iterator line = lineOf(marker);
    const bool isEmpty = line.offset == endWithLineEnding(block);
    const std::int64_t end = isEmpty ? endOfText(marker) : endWithLineEnding(marker);
    return {line.offset, end - line.offset};
}

std::vector<Result> withoutFences(const Node::Iterator& block, const FenceKind& kind,
                                  const Range& selection) {
    std::vector<Result> results;
    std::int64_t limit = block.end();
    const Node::Iterator closing = lastChildOfType(block, kind.closeMarker);
    if (closing.node) {
        const Range range = closingRange(closing, block);
        limit = range.offset;
        Result::addToList(results, range.offset, range.length, u"", selection.offset, selection.length);
    }
    const Range range = openingRange(block, kind, limit);
    Result::addToList(results, range.offset, range.length, u"", selection.offset, selection.length);
    return results;
}

// Adding

/// Lines to be fenced. On the empty last line there is no node of it, and no prefix.
struct Lines {
    Node::Iterator first;
    Node::Iterator last;
    std::int64_t start;  ///< of the first line
    std::int64_t end;    ///< of the last line's text
    std::int64_t behind; ///< its line ending
};

Lines linesFrom(const Node::Iterator& first, const Node::Iterator& last) {
    const Node::Iterator line = lineOf(first);
    return {line, lineOf(last), line.offset, endOfText(last), endWithLineEnding(last)};
}

/// Calls with a node that starts the line and the line's text, for each line. The text is good until the next
/// piece of text is read.
template <class F>
void forEachLine(const Ondo::Tree& tree, const Lines& lines, F call) {
    Node::Iterator at = lines.first;
    while (at.node && at.offset < lines.behind) {
        const Node::Iterator line = at;
        at.endOfLine();
        call(line, tree.markdownIn({line.offset, at.end() - line.offset}));
        at.nextInSequenceSkippingSubtree();
    }
}

std::size_t longestRun(std::u16string_view text, char16_t unit) {
    std::size_t longest = 0;
    std::size_t run = 0;
    for (const char16_t each : text) {
        run = each == unit ? run + 1 : 0;
        longest = std::max(longest, run);
    }
    return longest;
}

/// A fence that no run in the lines closes.
std::u16string fenceFor(const Ondo::Tree& tree, const Lines& lines, const FenceKind& kind) {
    std::size_t length = kind.leastLength;
    if (&kind == &code)
        forEachLine(tree, lines, [&](const Node::Iterator&, std::u16string_view text) {
            length = std::max(length, longestRun(text, kind.unit) + 1);
        });
    return std::u16string(length, kind.unit);
}

bool isMathFence(std::u16string_view text) {
    constexpr std::u16string_view blanks = u" \t\r\n";
    const auto start = text.find_first_not_of(blanks);
    if (start == std::u16string_view::npos) return false;
    return text.substr(start, text.find_last_not_of(blanks) + 1 - start) == u"$$";
}

/// Math fences can't grow.
bool holdsMathFence(const Ondo::Tree& tree, const Lines& lines, const ContainerChain& chain) {
    bool holds = false;
    forEachLine(tree, lines, [&](const Node::Iterator& line, std::u16string_view) {
        const std::int64_t start = line.offset + chain.reachOn(tree, line);
        holds = holds || isMathFence(tree.markdownIn({start, endWithLineEnding(line) - start}));
    });
    return holds;
}

/// Where a place of the text goes when fences go in around it. What stands in front of the text of its line
/// goes to the text, and the end of the last line's line ending in front of the closing fence.
struct Carrier {
    std::int64_t lineStart;
    std::int64_t opening;
    std::int64_t closing;
    std::int64_t behind;

    std::int64_t place(std::int64_t offset, std::int64_t inserted) const {
        if (offset < lineStart) return offset;
        if (offset <= closing) return std::max(offset, opening);
        return offset <= behind ? closing + 1 : offset + inserted;
    }
    Range range(const Range& range, std::u16string_view inserted) const {
        const auto size = static_cast<std::int64_t>(inserted.size());
        const std::int64_t start = place(range.offset, size);
        return {start, place(range.end(), size) - start};
    }
};

std::vector<Result> fenced(const Lines& lines, std::int64_t opening, const std::u16string& openingFence,
                           const std::u16string& fence, const std::u16string& lineBreak,
                           const Range& selection) {
    const Carrier carrier{lines.start, opening, lines.end, lines.behind};
    const Range carried = carrier.range(selection, lineBreak + fence);
    std::vector<Result> results;
    results.emplace_back(lines.end, 0, fence, selection.offset, selection.length);
    results.emplace_back(lines.end, 0, lineBreak, selection.offset, selection.length);
    Result& first = results.emplace_back(opening, 0, lineBreak, carried.offset, carried.length);
    first.offsetSelection();
    Result::addToList(results, opening, 0, openingFence, 0, 0);
    return results;
}

std::vector<Result> withFences(const Ondo::Tree& tree, const Lines& lines, const FenceKind& kind,
                               const Range& selection) {
    ContainerChain chain(tree, lines.first);
    forEachLine(tree, lines,
                [&](const Node::Iterator& line, std::u16string_view) { chain.keepThoseOf(tree, line); });
    if (&kind == &math && holdsMathFence(tree, lines, chain)) return {};
    const std::u16string fence = fenceFor(tree, lines, kind);
    const std::u16string blanks(static_cast<std::size_t>(chain.missingBlanks()), u' ');
    return fenced(lines, chain.offset(), blanks + fence, fence, u'\n' + chain.furtherPrefix(), selection);
}

bool isRefusedAt(const Node* node, const FenceKind& kind) {
    const std::uint16_t types[] = {Ondo::ONDO_HTML_BLOCK_NODE, Ondo::ONDO_TABLE_NODE, Ondo::ONDO_YAML_NODE,
                                   kind.otherContent};
    return std::any_of(std::begin(types), std::end(types),
                       [&](std::uint16_t type) { return selfOrAncestor(node, type) != nullptr; });
}

/// Whether code or math of any kind around a leaf goes on outside of the lines.
bool cutsFences(const Node::Iterator& leaf, const Lines& lines) {
    for (const FenceKind* const kind : {&code, &math}) {
        const Node* const block = selfOrAncestor(leaf.node, kind->block);
        if (!block) continue;
        Node::Iterator at = leaf;
        toAncestor(at, block);
        return at.offset < lines.start || at.end() > lines.behind;
    }
    return false;
}

/// The empty line behind the last line ending, or an empty note.
std::vector<Result> fencedEmptyLine(const Ondo::Tree& tree, const FenceKind& kind, const Range& selection) {
    const std::int64_t end = tree.length();
    const std::u16string fence(kind.leastLength, kind.unit);
    return fenced({{}, {}, end, end, end}, end, fence, fence, u"\n", selection);
}

} // namespace

bool isInUnclosedBlock(const Node* leaf) {
    for (const FenceKind* const kind : {&code, &math})
        if (const Node* const block = selfOrAncestor(leaf, kind->block)) return !isClosed(block, *kind);
    const Node* const html = selfOrAncestor(leaf, Ondo::ONDO_HTML_BLOCK_NODE);
    if (!html) return false;
    const std::u16string_view text = static_cast<const Ondo::Block::HtmlBlockNode*>(html)->html;
    const bool isComment = text.substr(std::min(text.find(u'<'), text.size())).starts_with(u"<!--");
    return !isComment || text.find(u"-->") == std::u16string_view::npos;
}

std::vector<Result> toggledFences(const Ondo::Tree& tree, BlockToggles style, const Range& range,
                                  const Range& selection) {
    const FenceKind& kind = style == BlockToggles::MathBlock ? math : code;
    if (tree.length() == 0) return fencedEmptyLine(tree, kind, selection);
    Node::Iterator first = leafAt(tree, range.offset);
    const Node::Iterator last = range.length == 0 ? first : leafAt(tree, range.end() - 1);
    const Node* const block = selfOrAncestor(first.node, kind.block);
    if (block && block == selfOrAncestor(last.node, kind.block)) {
        toAncestor(first, block);
        return withoutFences(first, kind, selection);
    }
    const bool isOnEmptyLine = range.offset == tree.length() && isLineStart(tree, range.offset);
    if (isOnEmptyLine && !isInUnclosedBlock(first.node)) return fencedEmptyLine(tree, kind, selection);
    if (isOnEmptyLine || isRefusedAt(first.node, kind) || isRefusedAt(last.node, kind)) return {};
    const Lines lines = linesFrom(first, last);
    if (cutsFences(first, lines) || cutsFences(last, lines)) return {};
    return withFences(tree, lines, kind, selection);
}

} // namespace CVN::Operation
