#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Inserts a thematic break or an empty table.
class CORVANE_EXPORT InsertBlock : public Operation {
public:
    explicit InsertBlock(InsertBlockType type) : type_(type) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    InsertBlockType type_;
};

} // namespace CVN::Operation
