#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Folds and unfolds headings and list items.
class CORVANE_EXPORT ToggleFold : public Operation {
public:
    explicit ToggleFold(ToggleFoldType type) : type_(type) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    ToggleFoldType type_;
};

} // namespace CVN::Operation
