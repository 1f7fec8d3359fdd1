#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Pads the cells of tables so that their pipes line up.
class CORVANE_EXPORT NormalizeTables : public Operation {
public:
    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;
};

} // namespace CVN::Operation
