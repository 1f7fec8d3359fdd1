#include "corvane/operation/FootnotePlace.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "corvane/operation/FootnoteLabels.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/operation/TrialParse.h"

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

/// Whether a block marker stands before its block's text or cells, not behind.
bool isOpening(const Node* marker) {
    if (!isTablePipe(marker)) return marker->type != Ondo::ONDO_ATX_HEADING_CLOSE_MARKER_NODE;
    const Node* before = marker->previousSibling;
    while (before && !isTablePipe(before))
        before = before->previousSibling;
    return !before;
}

/// The end of the outermost atomic inline that the offset lies strictly inside.
Place behindAtomicInline(const Node::Iterator& leaf, std::int64_t offset) {
    Place place;
    for (const Node* node = leaf.node; !node->isBlock(); node = node->parent) {
        const std::int64_t start = offsetIn(leaf.offset, leaf.node, node);
        const std::int64_t end = start + node->charCount;
        if (isOneOf(atomicInlines, node) && start < offset && offset < end) place = end;
    }
    return place;
}

bool isInSurrogatePair(const Tree& tree, std::int64_t offset) {
    return (unitAt(tree, offset - 1) & 0xFC00) == 0xD800 && (unitAt(tree, offset) & 0xFC00) == 0xDC00;
}

/// The offset, or past what it would split; none where no text goes.
Place wantedPlace(const Tree& tree, const Node::Iterator& leaf, std::int64_t offset) {
    if (isOneOf(closedBlocks, leaf->parentBlock())) return {};
    if (const Place behind = behindAtomicInline(leaf, offset)) return behind;
    const bool isInside = leaf.offset < offset && offset < leaf.end();
    const bool isBefore = leaf.offset == offset && offset < leaf.end();
    if (isBlockMarker(leaf.node) && (isInside || (isBefore && isOpening(leaf.node)))) return {};
    if (!isInside) return offset;
    if (leaf->isMarker()) return leaf.end();
    if (isLineEnding(leaf.node)) return leaf.offset;
    return isInSurrogatePair(tree, offset) ? offset + 1 : offset;
}

/// What has a form, and where it starts.
using Forms = std::vector<std::pair<std::uint16_t, std::int64_t>>;

/// The forms of a text but for one subtree: as they would be without it.
Forms formsOf(const Tree& tree, const Node* left) {
    Forms forms;
    std::int64_t leftOut = 0;
    Node::Iterator at = tree.root->begin();
    while (at.node) {
        if (at.node == left) {
            leftOut = left->charCount;
            at.nextInSequenceSkippingSubtree();
            continue;
        }
        if (!isOneOf(formlessNodes, at.node)) forms.emplace_back(at->type, at.offset - leftOut);
        at.nextInSequence();
    }
    return forms;
}

/// A comment can come to fold its heading or item when there is more behind it, as with any word.
bool isKept(const Forms::value_type& before, const Forms::value_type& after) {
    return before == after || (before.second == after.second && before.first == Ondo::ONDO_RAW_HTML_NODE &&
                               after.first == Ondo::ONDO_FOLD_MARKER_NODE);
}

/// Goes on until a block that is blank, or isn't, as far as that isn't many.
template <typename Step>
void stepUntil(bool isBlankWanted, Node::Iterator& block, Step step) {
    constexpr int furthest = 8;
    for (int i = 0; i < furthest && step(block); ++i)
        if (isBlank(block.node) == isBlankWanted) return;
}

bool stepBack(Node::Iterator& block) {
    if (!block->previousSibling) return false;
    block.previousSibling();
    return true;
}

bool stepOn(Node::Iterator& block) {
    if (!block->nextSibling) return false;
    block.nextSibling();
    return true;
}

/// The first-level blocks around a leaf, parsed with and without the reference: from the nearest before it
/// that isn't blank, to the first behind it and a blank line, which decides what can be folded.
class Trial {
public:
    Trial(const Tree& tree, const Node::Iterator& leaf, std::u16string_view reference)
        : tree_(tree), reference_(reference) {
        Node::Iterator block;
        block.node = leaf->firstLevelAncestor();
        block.offset = offsetIn(leaf.offset, leaf.node, block.node);
        block.level = 1;
        Node::Iterator last = block;
        stepUntil(false, block, stepBack);
        stepUntil(true, last, stepOn);
        stepUntil(false, last, stepOn);
        const std::int64_t lead = block.offset > 0 ? 1 : 0; // a blank line: there is no front matter
        start_ = block.offset - lead;
        text_.assign(static_cast<std::size_t>(lead), u'\n');
        text_ += tree.markdownIn({block.offset, last.end() - block.offset});
        forms_ = formsOf(trialParse(tree, text_), nullptr);
    }

    /// Whether the reference becomes one at a place, and all else stays what it is.
    bool succeedsAt(std::int64_t place) const {
        const std::int64_t start = place - start_;
        std::u16string text = text_;
        text.insert(static_cast<std::size_t>(start), reference_);
        const Tree trial = trialParse(tree_, text);
        const Node::Iterator marker = leafAt(trial, start);
        const Node* const made = selfOrAncestor(marker.node, Ondo::ONDO_FOOTNOTE_REFERENCE_NODE);
        if (!made || marker.offset != start || made->firstChild != marker.node ||
            made->charCount != static_cast<std::int64_t>(reference_.size()))
            return false;
        const Forms forms = formsOf(trial, made);
        return std::equal(forms_.begin(), forms_.end(), forms.begin(), forms.end(), isKept);
    }

private:
    const Tree& tree_;
    std::u16string_view reference_;
    std::int64_t start_ = 0; ///< of the text, in the note
    std::u16string text_;
    Forms forms_;
};

/// Which edge of an inline around a place stands for it: the near one from the start of its text, and of a
/// hard line break the one on its line.
std::int64_t edgeOf(const Node* node, std::int64_t start, std::int64_t place) {
    const Node* const first = node->firstChild;
    const bool isAtStart = first && first->isMarker() && place == start + first->charCount;
    const bool isBefore = isAtStart || node->type == Ondo::ONDO_HARD_LINE_BREAK_NODE;
    return isBefore ? start : start + node->charCount;
}

/// At the edge of the innermost inline around a place where the reference succeeds.
Place placeOutside(const Trial& trial, const Node::Iterator& leaf, std::int64_t place) {
    constexpr int furthest = 8;
    int tried = 0;
    for (const Node* node = leaf.node; !node->isBlock() && tried < furthest; node = node->parent) {
        const std::int64_t start = offsetIn(leaf.offset, leaf.node, node);
        if (node->type == Ondo::ONDO_TABLE_CELL_NODE) break;
        if (node->category != Node::Category::Inline || start >= place) continue;
        place = edgeOf(node, start, place);
        if (trial.succeedsAt(place)) return place;
        ++tried;
    }
    return {};
}

} // namespace

std::optional<std::int64_t> footnotePlace(const Tree& tree, std::int64_t offset,
                                          std::u16string_view reference) {
    if (tree.length() == 0) return offset;
    const Node::Iterator leaf = leafAt(tree, offset);
    const Place wanted = wantedPlace(tree, leaf, offset);
    if (!wanted) return {};
    const Trial trial(tree, leaf, reference);
    return trial.succeedsAt(*wanted) ? wanted : placeOutside(trial, leafAt(tree, *wanted), *wanted);
}

} // namespace CVN::Operation
