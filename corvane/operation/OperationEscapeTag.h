#pragma once

#include <string_view>

#include "corvane/operation/OperationTagBase.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Turns a tag and those below it into plain text, with a backslash before each marker.
///
/// The view of the name must outlive the command.
class CORVANE_EXPORT EscapeTag : public TagBase {
public:
    explicit EscapeTag(std::u16string_view tag) : tag_(tag) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    std::u16string_view tag_;
};

} // namespace CVN::Operation
