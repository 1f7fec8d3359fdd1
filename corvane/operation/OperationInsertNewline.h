#pragma once

#include "corvane/operation/Operation.h"

namespace CVN::Operation {

class CORVANE_EXPORT InsertNewline : public Operation {
public:
    InsertNewline(InsertNewlineListItemOption option, IndentStyle style) : option_(option), style_(style) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    InsertNewlineListItemOption option_;
    IndentStyle style_;
};

} // namespace CVN::Operation
