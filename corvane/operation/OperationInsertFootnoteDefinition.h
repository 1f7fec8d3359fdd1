#pragma once

#include <string_view>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Adds the definition that a footnote reference lacks.
class CORVANE_EXPORT InsertFootnoteDefinition : public Operation {
public:
    explicit InsertFootnoteDefinition(std::u16string_view definitionText) : definitionText_(definitionText) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    std::u16string_view definitionText_;
};

} // namespace CVN::Operation
