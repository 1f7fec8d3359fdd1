#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Moves lines up or down.
class CORVANE_EXPORT MoveLines : public Operation {
public:
    explicit MoveLines(MoveLinesDirection direction) : direction_(direction) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    MoveLinesDirection direction_;
};

} // namespace CVN::Operation
