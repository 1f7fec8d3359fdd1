#include "corvane/operation/FootnotePlace.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "corvane/operation/FootnoteLabels.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Tree;

namespace {

using Place = std::optional<std::int64_t>;

constexpr std::uint16_t closedBlocks[] = {
    Ondo::ONDO_FENCED_CODE_NODE,
    Ondo::ONDO_FOOTNOTE_DEFINITION_NODE,
    Ondo::ONDO_HTML_BLOCK_NODE,
    Ondo::ONDO_INDENTED_CODE_NODE,
    Ondo::ONDO_LINK_REFERENCE_DEFINITION_NODE,
    Ondo::ONDO_THEMATIC_BREAK_NODE,
    Ondo::ONDO_YAML_NODE,
    Ondo::ONDO_MATH_BLOCK_NODE,
    Ondo::ONDO_TABLE_DELIMITER_ROW_NODE,
};

constexpr std::uint16_t atomicInlines[] = {
    Ondo::ONDO_AUTOLINK_NODE, Ondo::ONDO_ESCAPE_NODE,   Ondo::ONDO_CODE_SPAN_NODE,
    Ondo::ONDO_COLOR_NODE,    Ondo::ONDO_EMAIL_NODE,    Ondo::ONDO_ENTITY_NODE,
    Ondo::ONDO_HASHTAG_NODE,  Ondo::ONDO_IMAGE_NODE,    Ondo::ONDO_FOOTNOTE_REFERENCE_NODE,
    Ondo::ONDO_LINK_NODE,     Ondo::ONDO_RAW_HTML_NODE, Ondo::ONDO_REPLACE_NODE,
    Ondo::ONDO_URL_NODE,      Ondo::ONDO_WIKILINK_NODE, Ondo::ONDO_MATH_SPAN_NODE,
};

/// What a reference may join, split or begin, as any word would.
constexpr std::uint16_t formlessNodes[] = {
    Ondo::ONDO_TEXT_NODE,       Ondo::ONDO_SPACE_NODE,     Ondo::ONDO_LINE_ENDING_NODE,
    Ondo::ONDO_BLANK_LINE_NODE, Ondo::ONDO_PARAGRAPH_NODE, Ondo::ONDO_LIST_NODE,
    Ondo::ONDO_TABLE_CELL_NODE, // a blank one has none
};

template <std::size_t N>
bool isOneOf(const std::uint16_t (&types)[N], const Node* node) {
    return std::find(std::begin(types), std::end(types), node->type) != std::end(types);
}

bool isFirstPipe(const Node* pipe) {
    const Node* before = pipe->previousSibling;
    while (before && !isTablePipe(before))
        before = before->previousSibling;
    return !before;
}

/// The end of the outermost atomic inline that the offset lies strictly inside; otherwise the offset.
std::int64_t behindAtomicInline(const Node::Iterator& leaf, std::int64_t offset) {
    std::int64_t place = offset;
    for (const Node* node = leaf.node; !node->isBlock(); node = node->parent) {
        const std::int64_t start = offsetIn(leaf.offset, leaf.node, node);
        const std::int64_t end = start + node->charCount;
        if (isOneOf(atomicInlines, node) && start < offset && offset < end) place = end;
    }
    return place;
}

Place placeAtMarker(const Node::Iterator& marker, std::int64_t offset) {
    const bool isAtStart = offset == marker.offset;
    if (offset == marker.end()) return offset; // the end of the note
    if (isTablePipe(marker.node)) return isAtStart && !isFirstPipe(marker.node) ? Place(offset) : Place();
    if (isBlockMarker(marker.node)) return {};
    return isAtStart ? offset : marker.end();
}

bool isInSurrogatePair(const Tree& tree, std::int64_t offset) {
    return (unitAt(tree, offset - 1) & 0xFC00) == 0xD800 && (unitAt(tree, offset) & 0xFC00) == 0xDC00;
}

/// Where the reference is wanted, whatever it does there.
Place wantedPlace(const Tree& tree, const Node::Iterator& leaf, std::int64_t offset) {
    if (isOneOf(closedBlocks, leaf->parentBlock())) return {};
    if (isLineEnding(leaf.node)) return offset < leaf.end() ? leaf.offset : offset;
    const std::int64_t behind = behindAtomicInline(leaf, offset);
    if (behind != offset) return behind;
    if (leaf->isMarker()) return placeAtMarker(leaf, offset);
    return isInSurrogatePair(tree, offset) ? offset + 1 : offset;
}

/// Behind the outermost inline that is there, or before a hard line break.
Place placeOutside(const Node::Iterator& leaf) {
    const Node* outermost = nullptr;
    for (const Node* node = leaf.node; !node->isBlock() && node->type != Ondo::ONDO_TABLE_CELL_NODE;
         node = node->parent)
        if (node->category == Node::Category::Inline) outermost = node;
    if (!outermost) return {};
    const std::int64_t start = offsetIn(leaf.offset, leaf.node, outermost);
    return outermost->type == Ondo::ONDO_HARD_LINE_BREAK_NODE ? start : start + outermost->charCount;
}

/// What has a form, and where it starts.
using Forms = std::vector<std::pair<std::uint16_t, std::int64_t>>;

/// Those from a node up to the node `end`, but for one subtree. Offsets count from the first node's.
Forms formsFrom(Node::Iterator at, const Node* end, const Node* skipped) {
    Forms forms;
    const std::int64_t start = at.offset;
    while (at.node != end) {
        if (at.node == skipped) {
            at.nextInSequenceSkippingSubtree();
            continue;
        }
        if (!isOneOf(formlessNodes, at.node)) forms.emplace_back(at->type, at.offset - start);
        at.nextInSequence();
    }
    return forms;
}

/// First-level blocks around that of an offset: from the nearest before it that isn't blank to the next
/// blank line behind it, as far as that isn't many.
struct Surroundings {
    Node::Iterator first;
    Node::Iterator last;
};

Surroundings surroundingsOf(const Node::Iterator& leaf) {
    constexpr int furthest = 8;
    Node::Iterator block;
    block.node = leaf->firstLevelAncestor();
    block.offset = offsetIn(leaf.offset, leaf.node, block.node);
    block.level = 1;
    Surroundings around{block, block};
    for (int i = 0; i < furthest && around.first->previousSibling; ++i) {
        around.first.previousSibling();
        if (!isBlank(around.first.node)) break;
    }
    for (int i = 0; i < furthest && around.last->nextSibling; ++i) {
        around.last.nextSibling();
        if (isBlank(around.last.node)) break;
    }
    return around;
}

bool isGoodAt(const Tree& tree, std::int64_t place, std::u16string_view reference) {
    const auto [first, last] = surroundingsOf(leafAt(tree, place));
    const auto length = static_cast<std::int64_t>(reference.size());
    const std::int64_t lead = first.offset > 0 ? 1 : 0; // a blank line: there is no front matter
    const std::int64_t start = lead + place - first.offset;
    std::u16string text(static_cast<std::size_t>(lead), u'\n');
    text += tree.markdownIn({first.offset, place - first.offset});
    text += reference;
    text += tree.markdownIn({place, last.end() - place});

    const Tree trial = trialParse(tree, text);
    const Node::Iterator marker = leafAt(trial, start);
    const Node* const made = selfOrAncestor(marker.node, Ondo::ONDO_FOOTNOTE_REFERENCE_NODE);
    if (!made || marker.offset != start || made->firstChild != marker.node || made->charCount != length)
        return false;
    Node::Iterator content = trial.root->begin();
    content.firstChild();
    if (lead > 0) content.nextSibling();
    Forms forms = formsFrom(content, nullptr, made);
    for (auto& [type, offset] : forms)
        if (lead + offset >= start + length) offset -= length;
    return forms == formsFrom(first, last->nextInSequenceSkippingSubtree(), nullptr);
}

} // namespace

std::optional<std::int64_t> footnotePlace(const Tree& tree, std::int64_t offset,
                                          std::u16string_view reference) {
    if (tree.length() == 0) return offset;
    const Node::Iterator leaf = leafAt(tree, offset);
    const Place wanted = wantedPlace(tree, leaf, offset);
    if (!wanted || isGoodAt(tree, *wanted, reference)) return wanted;
    const Place outside = placeOutside(leafAt(tree, *wanted));
    return outside && isGoodAt(tree, *outside, reference) ? outside : Place();
}

} // namespace CVN::Operation
