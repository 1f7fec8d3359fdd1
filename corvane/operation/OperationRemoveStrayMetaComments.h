#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Removes comments that begin in a range, or at its end, and lost what they belong to: a fold's that marks
/// no head, and a preview's that does not directly follow a link. Quoted in code or math both stay.
///
/// An edit can strand a comment that stands behind it on its line. The range that a host passes after one is
/// therefore that of all lines that the edit touched, from the start of the first to the end of the last.
///
/// One result a comment, from the last to the first. Previews are looked at only where no fold's comment
/// stands before them in the range. An empty list for an empty range.
class CORVANE_EXPORT RemoveStrayMetaComments : public Operation {
public:
    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;
};

} // namespace CVN::Operation
