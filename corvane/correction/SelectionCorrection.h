#pragma once

#include "corvane/correction/Correction.h"

namespace CVN::Correction {

/// Keeps a selection from splitting an inline construct: it holds all of its markers or none.
///
/// Asked when a selection changes. `offset` and `length` are the selection as it was, `selectionOffset` and
/// `selectionLength` the one proposed; asserts that the replacement is empty. The answer is one result that
/// replaces nothing, at 0, with the corrected selection, which may be the one proposed; an empty list when
/// that is a caret. Ranges that reach beyond the text are cut to it, and a selection whose edge parts a
/// surrogate pair takes the pair in.
///
/// A construct is anything inline with an opening and a closing marker: emphasis, highlights, code and math,
/// links and images, footnote references, wikilinks, closed tags, entities, URLs in angle brackets. Of a link
/// or image all markers count, those around destination, label and title too, so a selection lies in one of
/// these parts or holds the whole. Separators in tags and wikilinks don't count; neither do constructs with a
/// single marker, as a backslash escape, and markers of blocks, rows and cells: a selection across
/// blocks or cells is corrected at its two edges alone.
///
/// **A selection that grows**, which is any with an edge outside of the old one, takes constructs in:
///
/// - An edge in a construct whose end lies beyond the other edge goes out to the construct's own edge:
///   "te⟦xt **bo⟧ld**" becomes "te⟦xt **bold**⟧". That goes for the edge that stayed as well, when the other
///   one leaves the construct: "**bo⟦ld** te⟧xt" becomes "⟦**bold** te⟧xt".
/// - An edge that moves from inside of a construct over a marker, and no further, stays inside, as in
///   "**b⟦ol⟧d**" to "**b⟦old**⟧", which becomes "**b⟦old⟧**". Where the selection would be no larger than it
///   was by that, it takes the construct in: a key that extends the selection never stands still.
/// - A selection from one part of a link into another takes the link in, as does one over a bracket of its
///   own.
/// - A selection of all that stands between the markers of a construct takes the markers in, and so on
///   outward: "**_⟦bold⟧_**" becomes "⟦**_bold_**⟧".
///
/// All text that was proposed is in the answer: only markers are ever left out.
///
/// **A selection that shrinks**, both edges in the old one, gives constructs up, so that its edges never go
/// out again: "⟦a **bo⟧ld**" becomes "⟦a ⟧**bold**". One that begins or ends with the construct keeps its
/// text and drops the markers: "⟦**bo⟧ld**" becomes "**⟦bo⟧ld**". Of a link it keeps what stands in front of
/// the first marker left inside. Where nothing is left the answer is a caret at the edge that did not move.
///
/// An answer corrected again, from the old selection, the proposed one or itself, stays as it is. The cost is
/// that of the constructs around the two edges, not of what is selected.
class CORVANE_EXPORT SelectionCorrection : public Correction {
public:
    std::vector<Operation::Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::u16string_view replacement, std::int64_t selectionOffset,
                                       std::int64_t selectionLength) const override;
};

} // namespace CVN::Correction
