#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Range.h"

namespace CVN::Operation {

/// Folds and unfolds headings and list items, by the comment that stands at the end of a folded head. A
/// heading hides what follows it up to the next heading of the same or a higher rank; a list item hides what
/// follows its first block.
///
/// - ToggleAtSelection looks at the start of the range. It opens the outermost fold that hides it or whose
///   head it is in; without one it folds the innermost list item or heading around it that can be folded.
/// - FoldAll folds all headings, but for one that begins the note and holds the rest of it: the note would
///   vanish.
/// - UnfoldAll removes all comments of folds, those of list items too.
///
/// A selection that a fold hides becomes a caret at the end of the head's text. A last line without a line
/// ending gets one when it is hidden, and a caret at its end moves behind it; folding a single head then
/// leaves a caret of any selection. An empty list when there is nothing to fold or to unfold, for a head
/// whose text would make something else of the comment, and in a dialect without folds.
class CORVANE_EXPORT ToggleFold : public Operation {
public:
    explicit ToggleFold(ToggleFoldType type) : type_(type) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

    /// The head of the innermost section around a node below the document that can be folded, the one that
    /// the node stands in included; null when there is none.
    static Ondo::Node* firstFoldableHeadBlock(Ondo::Node* node);

private:
    static std::vector<Result> toggle(const Ondo::Tree& tree, std::int64_t offset, Ondo::Range selection);
    static std::vector<Result> foldAll(const Ondo::Tree& tree, const Ondo::Range& selection);
    static std::vector<Result> unfoldAll(const Ondo::Tree& tree, const Ondo::Range& selection);
    /// Adds what folds a head, and carries the selection over it.
    static void foldHeadBlock(Ondo::Node* head, std::vector<Result>& results, const Ondo::Tree& tree,
                              std::int64_t& selectionOffset, std::int64_t& selectionLength);

    ToggleFoldType type_;
};

} // namespace CVN::Operation
