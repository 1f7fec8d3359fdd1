#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Checks and unchecks tasks.
class CORVANE_EXPORT ToggleTask : public Operation {
public:
    explicit ToggleTask(ToggleTaskType type) : type_(type) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    ToggleTaskType type_;
};

} // namespace CVN::Operation
