#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Puts a backslash in front of each pipe of a range that has none: behind an odd run of backslashes, which
/// may begin before the range, a pipe is escaped already.
///
/// One result a pipe, from the last to the first. An empty list for a range without such pipes, and for a
/// negative length.
class CORVANE_EXPORT EscapePipes : public Operation {
public:
    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;
};

} // namespace CVN::Operation
