#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "corvane/operation/OperationResult.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Tree.h"

namespace CVN::Correction {

/// Looks at an edit that the user is about to make, and may turn it into a better one.
///
/// An object has no state but the parameters of its constructor: it is made for one call.
class CORVANE_EXPORT Correction {
public:
    /// The replacements to make instead of the edit, or an empty list to make it as it stands. `tree` shows
    /// the text without the edit, which replaces `length` code units at `offset`; the selection is the one
    /// proposed for after it. The results come from the end of the text to its start and don't overlap, so
    /// that each range counts in the text before all of them as well as in what the ones before it left.
    virtual std::vector<Operation::Result> run(const Ondo::Tree& tree, std::int64_t offset,
                                               std::int64_t length, std::u16string_view replacement,
                                               std::int64_t selectionOffset,
                                               std::int64_t selectionLength) const = 0;
    virtual ~Correction();
};

} // namespace CVN::Correction
