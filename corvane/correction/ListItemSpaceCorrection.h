#pragma once

#include "corvane/correction/Correction.h"

namespace CVN::Correction {

/// Cuts spaces and tabs that an edit would put right behind the marker of a list item, which has its space
/// already: more of them would indent the item's text, or make code of it.
///
/// The selection moves back by what was cut. Text of nothing but blanks goes away as a whole: the edit is
/// consumed. No opinion behind a marker without a space, as "-" at the end of a line.
class CORVANE_EXPORT ListItemSpaceCorrection : public Correction {
public:
    std::vector<Operation::Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::u16string_view replacement, std::int64_t selectionOffset,
                                       std::int64_t selectionLength) const override;
};

} // namespace CVN::Correction
