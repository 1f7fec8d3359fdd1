#pragma once

#include <string>
#include <string_view>

#include "corvane/operation/OperationTagBase.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Adds a tag at the end of a note, before the footnotes that end it.
///
/// Behind a tag it goes on in that line; behind other text it stands in a paragraph of its own, apart from a
/// definition below by an empty line. Above a block of code, math or HTML that is left open, in which it
/// would be no tag. Nothing happens for a name that no text spells.
class CORVANE_EXPORT AddTag : public TagBase {
public:
    explicit AddTag(std::u16string_view tag) : tag_(tag) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    std::u16string tag_;
};

} // namespace CVN::Operation
