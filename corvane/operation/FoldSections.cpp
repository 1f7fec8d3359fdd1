#include "corvane/operation/FoldSections.h"

#include <algorithm>
#include <string>

#include "corvane/inline/FoldMarker.h"
#include "corvane/inline/Folding.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/operation/TrialParse.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Tree;
using Ondo::Inline::FoldMarkerNode;

namespace {

constexpr std::u16string_view comment = Ondo::Inline::Folding::comment;
constexpr auto commentLength = static_cast<std::int64_t>(comment.size());

bool isComment(const Tree& tree, const Node::Iterator& at) {
    return at->type == Ondo::ONDO_RAW_HTML_NODE && textOf(tree, at) == comment;
}

/// Whether a part of a block shows nothing: blanks, or the step to the next line.
bool isEmpty(const Tree& tree, const Node::Iterator& at) {
    if (isLineEnding(at.node) || isContainerMarker(at.node)) return true;
    const bool isText = at->type == Ondo::ONDO_TEXT_NODE || at->type == Ondo::ONDO_SPACE_NODE;
    return isText && textOf(tree, at).find_first_not_of(u" \t") == std::u16string_view::npos;
}

/// Where the same comments begin that stand before a marker with nothing that shows between them.
std::int64_t startOfComments(Node::Iterator marker, const Tree& tree) {
    std::int64_t start = marker.offset;
    marker.previousSibling();
    while (marker.node && (isEmpty(tree, marker) || isComment(tree, marker))) {
        if (isComment(tree, marker)) start = marker.offset;
        marker.previousSibling();
    }
    return start;
}

/// What means the same on its own as in the note: a first-level block, or a single item of a first-level
/// list.
Node* unitOf(Node* head) {
    Node* unit = head;
    while (unit->parent->parent && !(isListItem(unit) && !unit->parent->parent->parent))
        unit = unit->parent;
    return unit;
}

/// The section of a head, but for its end.
FoldSection openSection(const Node::Iterator& head, std::int64_t unitStart, const Tree& tree) {
    Node::Iterator last = head;
    last.lastChild();
    FoldSection section;
    section.head = head.node;
    section.unitStart = unitStart;
    section.comment = section.lineEnding = last.offset;
    section.isFolded = FoldMarkerNode::isContentHeadFolded(head.node);
    if (!section.isFolded) return section;
    last.previousSibling();
    section.comment = startOfComments(last, tree);
    return section;
}

/// Heads with comments, parsed apart to see what becomes of them: what ends in front of a comment can make
/// something else of it.
class Trial {
public:
    explicit Trial(const Tree& tree) : tree_(tree) {}

    void add(const FoldSection& section) {
        append(section.unitStart, section.comment);
        places_.push_back({static_cast<std::int64_t>(text_.size()), section.head->type});
        text_ += comment;
        const Node* const unit = unitOf(section.head);
        append(section.comment, section.unitStart + unit->charCount);
        if (unit == section.head) text_ += u"x\n"; // something to hide
    }

    /// For each head that was added whether its comment folds it.
    std::vector<bool> run() const {
        const Tree trial = trialParse(tree_, text_);
        Node::Iterator at = trial.root->begin();
        std::vector<bool> results;
        for (const Place& each : places_) {
            while (at.node && (at.offset < each.comment || at->firstChild))
                at.nextInSequence();
            results.push_back(at.offset == each.comment && isFoldOf(at.node, each.headType));
        }
        return results;
    }

private:
    void append(std::int64_t start, std::int64_t end) { text_ += tree_.markdownIn({start, end - start}); }

    static bool isFoldOf(const Node* node, std::uint16_t headType) {
        return isOfType(node, Ondo::ONDO_FOLD_MARKER_NODE) && node->parent->type == headType &&
               FoldMarkerNode::isContentHeadFolded(node->parent);
    }

    struct Place {
        std::int64_t comment;
        std::uint16_t headType;
    };
    const Tree& tree_;
    std::u16string text_;
    std::vector<Place> places_;
};

struct Edge {
    std::int64_t offset;
    bool isHidden;
};

/// The sections come in the order of their heads, so that the first one to hide an edge is the outermost.
Edge edgeBehindFolds(const std::vector<FoldSection>& sections, std::int64_t offset) {
    std::int64_t added = 0;
    for (const FoldSection& each : sections) {
        if (each.lineEnding < offset && offset < each.end) return {each.comment + added, true};
        if (each.comment < offset && !each.isFolded) added += commentLength;
    }
    return {offset + added, false};
}

bool endsInLineEnding(const Tree& tree) {
    const char16_t last = unitAt(tree, tree.length() - 1);
    return last == u'\n' || last == u'\r';
}

} // namespace

FoldSection foldSectionOf(Node* head, const Tree& tree) {
    FoldSection section = openSection(Node::Iterator(head), unitOf(head)->startOffset(), tree);
    section.end = FoldMarkerNode::foldableTailFromContentHead(head)->endOffset();
    return section;
}

std::vector<FoldSection> headingSections(const Tree& tree) {
    std::vector<FoldSection> sections;
    std::vector<std::size_t> open;
    const auto close = [&](std::int64_t level, std::int64_t end) {
        for (; !open.empty() && FoldMarkerNode::headingLevel(sections[open.back()].head) >= level;
             open.pop_back())
            sections[open.back()].end = end;
    };
    Node::Iterator block = tree.root->begin();
    for (block.firstChild(); block.node; block.nextSibling()) {
        const std::int64_t level = FoldMarkerNode::headingLevel(block.node);
        if (level != 0) close(level, block.offset);
        if (level == 0 || !FoldMarkerNode::isContentHeadOfFoldable(block.node)) continue;
        open.push_back(sections.size());
        sections.push_back(openSection(block, block.offset, tree));
    }
    close(0, tree.length());
    return sections;
}

std::vector<FoldSection> thoseThatTakeComment(const std::vector<FoldSection>& sections, const Tree& tree) {
    Trial trial(tree);
    for (const FoldSection& each : sections)
        if (!each.isFolded) trial.add(each);
    const std::vector<bool> takes = trial.run();
    std::vector<FoldSection> kept;
    auto isTaken = takes.begin();
    for (const FoldSection& each : sections)
        if (each.isFolded || *isTaken++) kept.push_back(each);
    return kept;
}

bool needsLineEnding(const std::vector<FoldSection>& sections, const Tree& tree) {
    const auto reachesEnd = [&](const FoldSection& each) {
        return !each.isFolded && each.end == tree.length();
    };
    return std::any_of(sections.begin(), sections.end(), reachesEnd) && !endsInLineEnding(tree);
}

Ondo::Range selectionBehindFolds(const std::vector<FoldSection>& sections, const Ondo::Range& selection,
                                 const Tree& tree) {
    Edge start = edgeBehindFolds(sections, selection.offset);
    Edge end = edgeBehindFolds(sections, selection.end());
    // Behind the text of a folded head, up to the end of its line, stands only its comment.
    if (end.isHidden) start.offset = std::min(start.offset, end.offset);
    if (needsLineEnding(sections, tree)) {
        if (selection.offset == tree.length()) ++start.offset;
        if (selection.end() == tree.length()) ++end.offset;
    }
    return {start.offset, start.isHidden ? 0 : end.offset - start.offset};
}

Node::Iterator foldMarkerOf(const Node* head) {
    return Node::Iterator(head->lastChild->previousSibling);
}

void removeFold(std::vector<Result>& results, const Node::Iterator& marker, const Tree& tree,
                const Ondo::Range& selection) {
    const std::int64_t start = startOfComments(marker, tree);
    Result::addToList(results, start, marker.end() - start, {}, selection.offset, selection.length);
}

} // namespace CVN::Operation
