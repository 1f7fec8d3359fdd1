#pragma once

#include "corvane/operation/Operation.h"

namespace CVN::Operation {

class CORVANE_EXPORT ExitInlines : public Operation {
public:
    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;
};

} // namespace CVN::Operation
