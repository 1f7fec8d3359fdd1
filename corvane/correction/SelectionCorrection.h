#pragma once

#include "corvane/correction/Correction.h"
#include "corvane/scan/Export.h"

namespace CVN::Correction {

/// Keeps a growing selection from splitting an inline.
class CORVANE_EXPORT SelectionCorrection : public Correction {
public:
    std::vector<Operation::Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::u16string_view replacement, std::int64_t selectionOffset,
                                       std::int64_t selectionLength) const override;
};

} // namespace CVN::Correction
