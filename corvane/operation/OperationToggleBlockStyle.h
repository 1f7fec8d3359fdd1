#pragma once

#include "corvane/operation/Operation.h"

namespace CVN::Operation {

class CORVANE_EXPORT ToggleBlockStyle : public Operation {
public:
    explicit ToggleBlockStyle(BlockToggles style) : style_(style) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    BlockToggles style_;
};

} // namespace CVN::Operation
