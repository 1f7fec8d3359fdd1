#include "corvane/operation/OperationRemoveStrayMetaComments.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "corvane/inline/Folding.h"
#include "corvane/operation/InlineRuns.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

namespace {

using Ondo::Node;
using Ondo::Tree;

constexpr std::u16string_view foldComment = Ondo::Inline::Folding::comment;
constexpr std::u16string_view previewComment = u"<!-- {\"preview\":\"true\"} -->";

/// Text of these types is quoted.
constexpr std::uint16_t quotingTypes[] = {
    Ondo::ONDO_FENCED_CODE_CONTENT_ATTRIBUTE_NODE, Ondo::ONDO_INDENTED_CODE_NODE, Ondo::ONDO_CODE_SPAN_NODE,
    Ondo::ONDO_MATH_SPAN_NODE, Ondo::ONDO_MATH_BLOCK_CONTENT_ATTRIBUTE_NODE};

bool quotes(const Node* node) {
    return std::find(std::begin(quotingTypes), std::end(quotingTypes), node->type) != std::end(quotingTypes);
}

struct Hit {
    std::int64_t offset;
    std::u16string_view comment;

    std::int64_t end() const { return offset + sizeOf(comment); }
    /// Whether it has a meaning where it stands: `node` holds it.
    bool isAtHome(const Node* node) const {
        if (quotes(node)) return true;
        if (comment == foldComment) return node->type == Ondo::ONDO_FOLD_MARKER_NODE;
        return isOfType(node->previousSibling, Ondo::ONDO_LINK_NODE);
    }
};

/// Adds the places of a comment in a text that stands at `offset`, in their order.
void addHits(std::vector<Hit>& hits, std::u16string_view text, std::u16string_view comment,
             std::int64_t offset) {
    for (std::size_t at = text.find(comment); at != std::u16string_view::npos;
         at = text.find(comment, at + comment.size()))
        hits.push_back({offset + static_cast<std::int64_t>(at), comment});
}

/// The comments that begin from `start` to `end`. A preview's behind a fold's is meant to stay unseen.
std::vector<Hit> hitsIn(const Tree& tree, std::int64_t start, std::int64_t end) {
    const auto textUpTo = [&](std::int64_t last, std::u16string_view comment) {
        return tree.markdownIn({start, std::min(last + sizeOf(comment), tree.length()) - start});
    };
    std::vector<Hit> folds;
    addHits(folds, textUpTo(end, foldComment), foldComment, start);
    if (!folds.empty()) end = folds.front().offset;
    std::vector<Hit> hits;
    addHits(hits, textUpTo(end, previewComment), previewComment, start);
    hits.insert(hits.end(), folds.begin(), folds.end());
    return hits;
}

} // namespace

std::vector<Result> RemoveStrayMetaComments::run(const Tree& tree, std::int64_t offset, std::int64_t length,
                                                 std::int64_t selectionOffset,
                                                 std::int64_t selectionLength) const {
    if (length < 1) return {};
    const std::vector<Hit> hits = hitsIn(tree, offset, offset + length);
    if (hits.empty()) return {};

    std::vector<Result> results;
    Node::Iterator leaf = leafAt(tree, hits.back().offset);
    for (auto hit = hits.rbegin(); hit != hits.rend(); ++hit) {
        while (leaf.offset > hit->offset)
            toPreviousLeaf(leaf);
        const Node* const node = leaf->type == Ondo::ONDO_TEXT_NODE ? leaf->parent : leaf.node;
        if (hit->isAtHome(node)) continue;
        Result::addToList(results, hit->offset, sizeOf(hit->comment), {}, selectionOffset, selectionLength);
    }
    return results;
}

} // namespace CVN::Operation
