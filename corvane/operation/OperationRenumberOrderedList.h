#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Gives the items of ordered lists their numbers, counted from what the first item of each list has, and
/// moves the lines of an item whose marker gets longer or shorter along, so that they stay in it. Lines that
/// stood left of its text may come into it when its marker gets shorter: "- c" behind "1. a" and "10. b",
/// three columns in. Lazy text stays text.
///
/// Takes all lists that the range touches, whole up to the outermost one. Nothing but digits and indentation
/// changes, and a second run finds nothing to do, unless a block between two lists came into an item so and
/// made them one. A number that is right but for zeros in front stays, and so does one whose successor would
/// be too long for a marker. Results come from the last change to the first; an empty list when all is in
/// order. Takes time linear in the lists.
class CORVANE_EXPORT RenumberOrderedList : public Operation {
public:
    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;
};

} // namespace CVN::Operation
