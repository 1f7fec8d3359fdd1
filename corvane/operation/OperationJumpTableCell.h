#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Selects the next or previous cell of a table.
class CORVANE_EXPORT JumpTableCell : public Operation {
public:
    explicit JumpTableCell(JumpTableCellDirection direction) : direction_(direction) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    JumpTableCellDirection direction_;
};

} // namespace CVN::Operation
