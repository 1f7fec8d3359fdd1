#pragma once

#include "corvane/correction/Correction.h"

namespace CVN::Correction {

/// Drops the list markers that text begins with when it is pasted right behind the marker of an item: the one
/// on the line is kept. "- - [ ] milk" behind "- " becomes "milk".
///
/// Markers of all kinds go, with the box of a task behind a dash, as many as follow each other. The selection
/// moves back by what was dropped, but not before the text. No opinion about a text that is nothing but
/// markers, and anywhere but where an item's marker ends.
class CORVANE_EXPORT PasteDeduplicateBlockCorrection : public Correction {
public:
    std::vector<Operation::Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::u16string_view replacement, std::int64_t selectionOffset,
                                       std::int64_t selectionLength) const override;
};

} // namespace CVN::Correction
