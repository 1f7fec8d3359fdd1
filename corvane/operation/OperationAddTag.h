#pragma once

#include <string>
#include <string_view>

#include "corvane/operation/OperationTagBase.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Adds a tag at the end of a note, before its footnotes.
class CORVANE_EXPORT AddTag : public TagBase {
public:
    explicit AddTag(std::u16string_view tag) : tag_(tag) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    std::u16string tag_;
};

} // namespace CVN::Operation
