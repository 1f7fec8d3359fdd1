#pragma once

#include <cstdint>
#include <vector>

#include "corvane/operation/Operation.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Range.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

// Folds, as commands write and remove them. A fold is a comment at the end of a content head, which is a
// heading directly below the document or the first block of a list item.

/// A content head with what its fold hides or would hide. Offsets count UTF-16 code units of the note.
struct FoldSection {
    Ondo::Node* head = nullptr;
    std::int64_t unitStart = 0;  ///< of the heading, or of the first-level item or block around the head
    std::int64_t comment = 0;    ///< where the head's comment stands or would stand
    std::int64_t lineEnding = 0; ///< of the head; what the fold hides begins behind it
    std::int64_t end = 0;        ///< of what the fold hides
    bool isFolded = false;       ///< whether the comment stands there
};

/// The section of a head for which FoldMarkerNode::isContentHeadOfFoldable() holds.
FoldSection foldSectionOf(Ondo::Node* head, const Ondo::Tree& tree);

/// The sections of all headings that can be folded, in the order of their headings.
std::vector<FoldSection> headingSections(const Ondo::Tree& tree);

/// Those of the sections whose head is folded or would be by a comment. It would not fold "#" without a
/// space, a text that ends in a backslash or in the middle of another comment, or anything in a dialect
/// without folds.
std::vector<FoldSection> thoseThatTakeComment(const std::vector<FoldSection>& sections,
                                              const Ondo::Tree& tree);

/// Whether folding the sections takes a line ending at the end of the text: what a fold hides is whole lines.
bool needsLineEnding(const std::vector<FoldSection>& sections, const Ondo::Tree& tree);

/// Where a selection is when all sections are folded. One that starts in a section becomes a caret at the end
/// of the outermost head that hides it, and one that ends in a section ends there, as a caret where it
/// started in the head's comment. At the end of the text both move behind the line ending that the text may
/// need.
Ondo::Range selectionBehindFolds(const std::vector<FoldSection>& sections, const Ondo::Range& selection,
                                 const Ondo::Tree& tree);

/// The marker of a folded head.
Ondo::Node::Iterator foldMarkerOf(const Ondo::Node* head);

/// Adds the removal of a marker, and of the same comments before it with the blanks and line endings between
/// them: each of them would be the marker next.
void removeFold(std::vector<Result>& results, const Ondo::Node::Iterator& marker, const Ondo::Tree& tree,
                const Ondo::Range& selection);

} // namespace CVN::Operation
