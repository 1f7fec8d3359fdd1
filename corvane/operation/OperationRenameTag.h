#pragma once

#include <string_view>

#include "corvane/operation/OperationTagBase.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Renames a tag and with it those below it.
///
/// Nothing happens for a name that no text spells. A tag stays as it is where the text around it leaves no
/// spelling, such as for «b c» in «*#a*». The views of the names must outlive the command.
class CORVANE_EXPORT RenameTag : public TagBase {
public:
    RenameTag(std::u16string_view from, std::u16string_view to) : from_(from), to_(to) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    std::u16string_view from_;
    std::u16string_view to_;
};

} // namespace CVN::Operation
