#pragma once

#include <string_view>

#include "corvane/operation/OperationTagBase.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Removes a tag and those below it: with the blanks behind, or, for a tag with a parent, down to the parent.
///
/// The view of the name must outlive the command.
class CORVANE_EXPORT RemoveTag : public TagBase {
public:
    explicit RemoveTag(std::u16string_view tag) : tag_(tag) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    std::u16string_view tag_;
};

} // namespace CVN::Operation
