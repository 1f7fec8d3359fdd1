#pragma once

#include <string_view>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Adds lines of text below the title and the line of tags of a note, above footnotes that are all there is,
/// see bodyPlace(). An empty line keeps apart what would become another block. Nothing happens for an empty
/// text.
///
/// The view of the text must outlive the command.
class CORVANE_EXPORT PrependText : public Operation {
public:
    explicit PrependText(std::u16string_view text) : text_(text) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    std::u16string_view text_;
};

} // namespace CVN::Operation
