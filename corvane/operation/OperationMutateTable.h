#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Adds, deletes and moves rows and columns of a table, and aligns columns.
class CORVANE_EXPORT MutateTable : public Operation {
public:
    explicit MutateTable(MutateTableAction action) : action_(action) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    MutateTableAction action_;
};

} // namespace CVN::Operation
