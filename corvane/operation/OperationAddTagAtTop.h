#pragma once

#include <string>
#include <string_view>

#include "corvane/operation/OperationTagBase.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Adds a tag below the title of a note, which is its first line behind front matter.
///
/// A line of tags there, or behind one blank line, goes on with it; otherwise it gets a line of its own,
/// behind the whole first block where a line would break that up, and apart from what it would change below.
/// A note without text gets an empty first line as well, with the caret. Nothing happens for a name that no
/// text spells there.
class CORVANE_EXPORT AddTagAtTop : public TagBase {
public:
    explicit AddTagAtTop(std::u16string_view tag) : tag_(tag) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    std::u16string tag_;
};

} // namespace CVN::Operation
