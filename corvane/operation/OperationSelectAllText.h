#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Selects the code around the caret, then the whole text.
class CORVANE_EXPORT SelectAllText : public Operation {
public:
    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;
};

} // namespace CVN::Operation
