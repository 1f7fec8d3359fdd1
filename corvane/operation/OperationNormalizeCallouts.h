#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Keeps a callout from being the title of a note: one on the first line gets an empty line above it, and the
/// selection moves along. An empty list for every other note.
class CORVANE_EXPORT NormalizeCallouts : public Operation {
public:
    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;
};

} // namespace CVN::Operation
