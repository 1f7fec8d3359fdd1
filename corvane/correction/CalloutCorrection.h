#pragma once

#include "corvane/correction/Correction.h"

namespace CVN::Correction {

/// Keeps a space between the marker of a callout and what follows it: glued to text, "[!NOTE]x" is no marker.
///
/// It looks at edits that begin where a marker ends. Text gets a space in front unless it begins with one
/// or with a line ending, which leaves the marker alone on its line. A deletion that would bring text up to
/// the marker leaves a space, and one of a line ending takes along what the next line begins with; no opinion
/// where it brings up a space, the end of the line or the end of the text. The selection moves along.
class CORVANE_EXPORT CalloutCorrection : public Correction {
public:
    std::vector<Operation::Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::u16string_view replacement, std::int64_t selectionOffset,
                                       std::int64_t selectionLength) const override;
};

} // namespace CVN::Correction
