#pragma once

#include "corvane/correction/Correction.h"

namespace CVN::Correction {

/// Keeps a selection from splitting an inline construct: it holds all of its markers or none.
///
/// Asked when a selection changes. `offset` and `length` are the selection as it was, `selectionOffset` and
/// `selectionLength` the one proposed; asserts that `replaceString` is empty. The answer is one result that
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
/// - One that it holds a part of the markers of, on whichever side: "⟦text **bo⟧ld**" becomes
///   "⟦text **bold**⟧", and "**bo⟦ld** te⟧xt" becomes "⟦**bold** te⟧xt".
/// - An edge that moves from inside of a construct over a marker, and no further, stays inside, as in
///   "**b⟦ol⟧d**" to "**b⟦old**⟧", which becomes "**b⟦old⟧**". Where the selection would be no larger than it
///   was by that, it takes the construct in: a key that extends the selection never stands still.
/// - A link, for a selection from one of its parts into another, or over a bracket of its own.
/// - One that it holds all of the content of, and so on outward: "**_⟦bold⟧_**" becomes "⟦**_bold_**⟧".
///
/// All text that was proposed is in the answer: only markers are ever left out.
///
/// **A selection that shrinks**, both edges in the old one, keeps what it held or gives it up:
///
/// - A construct that the old one held stays whole while any unit of its markers is proposed:
///   "⟦a **bold** c⟧" to "⟦a **bo⟧ld** c" becomes "⟦a **bold**⟧ c". It goes when none is, as the selection
///   ends in front of it, starts behind it or lies in its content: "**b⟦ol⟧d** c" stays as proposed. What
///   that makes all of the content of another construct takes in that one's markers too.
/// - A key is known by one edge moving back by one unit. It gives the construct up that the edge stood at:
///   "⟦a **bold**⟧" to "⟦a **bold*⟧*" becomes "⟦a ⟧**bold**". A selection of nothing else keeps the text, so
///   that keys can select inside: "⟦**bold**⟧" becomes "**⟦bold⟧**" from either side. Of a link that is its
///   first part with any text.
/// - Where nothing is left the answer is a caret at the edge that did not move.
///
/// **Drags and keys** hand in the last answer as the old selection. A drag proposes what lies between where
/// the mouse went down and the pointer. Going outward it takes a construct in with its first unit and never
/// loses it again, but for the places where it looks like a key (a unit short of a construct's end), or
/// proposes exactly the content of a construct that it had already taken in: the next step mends these. A key
/// moves its edge by one unit, and each press moves the answer's edge on. A larger step back, as by a word,
/// that ends within a construct leaves it whole: a host moves such an edge out of the construct by itself.
///
/// An answer corrected again, from the old selection, the proposed one or itself, stays as it is. The cost is
/// that of the constructs around the two edges, not of what is selected.
class CORVANE_EXPORT SelectionCorrection : public Correction {
public:
    std::vector<Operation::Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::u16string_view replaceString, std::int64_t selectionOffset,
                                       std::int64_t selectionLength) const override;
};

} // namespace CVN::Correction
