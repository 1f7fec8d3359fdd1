#include "corvane/operation/OperationToggleFold.h"

#include <algorithm>
#include <string>
#include <utility>

#include "corvane/inline/FoldMarker.h"
#include "corvane/inline/Folding.h"
#include "corvane/operation/FoldSections.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

namespace {

using Ondo::Node;
using Ondo::Tree;
using Ondo::Inline::FoldMarkerNode;

std::u16string comment() {
    return std::u16string(Ondo::Inline::Folding::comment);
}

/// The node that folds are looked for from. The empty line at the end of a text belongs to the last section,
/// but to no list item.
Node* startOfSearch(const Tree& tree, std::int64_t offset) {
    const Node::Iterator leaf = leafAt(tree, offset);
    if (!leaf.node || !leaf->parent) return nullptr;
    const bool isOnEmptyLastLine = offset == tree.length() && isLineEnding(leaf.node);
    return isOnEmptyLastLine ? leaf->firstLevelAncestor() : leaf.node;
}

/// Only a text can take the comment: a rule or a fence would no longer be one.
bool isFoldableItemHead(const Node* block) {
    return isListItem(block->parent) && block->type == Ondo::ONDO_PARAGRAPH_NODE &&
           FoldMarkerNode::isContentHeadOfFoldable(block);
}

/// The heading that a first-level block stands below, itself included. A heading that can't be folded closes
/// the sections before it all the same.
Node* foldableHeading(Node* block) {
    constexpr std::int64_t belowAllHeadings = 7;
    std::int64_t rank = belowAllHeadings;
    for (; block; block = block->previousSibling) {
        const std::int64_t level = FoldMarkerNode::headingLevel(block);
        if (level == 0 || level >= rank) continue;
        if (FoldMarkerNode::isContentHeadOfFoldable(block)) return block;
        rank = level;
    }
    return nullptr;
}

/// Whether a section begins a note, behind front matter and blank lines, and holds all that follows.
bool isWholeNote(const FoldSection& section, const Tree& tree) {
    const Node* first = tree.root->firstChild;
    while (isBlank(first) || isOfType(first, Ondo::ONDO_YAML_NODE))
        first = first->nextSibling;
    return section.head == first && section.end == tree.length();
}

} // namespace

std::vector<Result> ToggleFold::run(const Tree& tree, std::int64_t offset, std::int64_t,
                                    std::int64_t selectionOffset, std::int64_t selectionLength) const {
    const Ondo::Range selection{selectionOffset, selectionLength};
    switch (type_) {
    case ToggleFoldType::FoldAll:
        return foldAll(tree, selection);
    case ToggleFoldType::UnfoldAll:
        return unfoldAll(tree, selection);
    case ToggleFoldType::ToggleAtSelection:
        break;
    }
    return toggle(tree, offset, selection);
}

std::vector<Result> ToggleFold::toggle(const Tree& tree, std::int64_t offset, Ondo::Range selection) {
    std::vector<Result> results;
    Node* const node = startOfSearch(tree, offset);
    if (!node) return results;
    if (const Node* const folded = FoldMarkerNode::topmostFoldedContentHead(node))
        removeFold(results, foldMarkerOf(folded), tree, selection);
    else if (Node* const head = firstFoldableHeadBlock(node))
        foldHeadBlock(head, results, tree, selection.offset, selection.length);
    return results;
}

Node* ToggleFold::firstFoldableHeadBlock(Node* node) {
    for (; node->parent->parent; node = node->parent)
        if (isListItem(node->parent) && isFoldableItemHead(node->parent->firstChild))
            return node->parent->firstChild;
    return foldableHeading(node);
}

void ToggleFold::foldHeadBlock(Node* head, std::vector<Result>& results, const Tree& tree,
                               std::int64_t& selectionOffset, std::int64_t& selectionLength) {
    const std::vector<FoldSection> sections = thoseThatTakeComment({foldSectionOf(head, tree)}, tree);
    if (sections.empty()) return;
    const Ondo::Range selection = selectionBehindFolds(sections, {selectionOffset, selectionLength}, tree);
    selectionOffset = selection.offset;
    selectionLength = selection.length;
    if (needsLineEnding(sections, tree)) {
        selectionLength = 0;
        results.emplace_back(tree.length(), 0, u"\n", std::min(selectionOffset, tree.length() + 1), 0);
    }
    results.emplace_back(sections.front().comment, 0, comment(), selectionOffset, selectionLength);
}

std::vector<Result> ToggleFold::foldAll(const Tree& tree, const Ondo::Range& selection) {
    std::vector<FoldSection> sections = headingSections(tree);
    if (!sections.empty() && !sections.front().isFolded && isWholeNote(sections.front(), tree))
        sections.erase(sections.begin());
    sections = thoseThatTakeComment(sections, tree);

    std::vector<Result> results;
    const auto insert = [&](std::int64_t offset, std::u16string text) {
        Result::addToList(results, offset, 0, std::move(text), selection.offset, selection.length);
    };
    if (needsLineEnding(sections, tree)) insert(tree.length(), u"\n");
    for (auto each = sections.rbegin(); each != sections.rend(); ++each)
        if (!each->isFolded) insert(each->comment, comment());
    if (results.empty()) return results;
    const Ondo::Range behind = selectionBehindFolds(sections, selection, tree);
    Result& last = results.back();
    last = Result(last.replaceOffset, 0, comment(), behind.offset, behind.length);
    return results;
}

std::vector<Result> ToggleFold::unfoldAll(const Tree& tree, const Ondo::Range& selection) {
    std::vector<Result> results;
    Node::Iterator at = tree.root->begin();
    for (at.lastNodeOfSubtree(); at.node; at.previousInSequence())
        if (at->type == Ondo::ONDO_FOLD_MARKER_NODE) removeFold(results, at, tree, selection);
    return results;
}

} // namespace CVN::Operation
