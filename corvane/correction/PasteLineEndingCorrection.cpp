#include "corvane/correction/PasteLineEndingCorrection.h"

#include <utility>

#include "corvane/correction/EditEdges.h"
#include "corvane/operation/InlineRuns.h"
#include "corvane/operation/OperationInsertNewline.h"
#include "corvane/scan/Util.h"

namespace CVN::Correction {

using namespace Operation;

std::vector<Result> PasteLineEndingCorrection::run(const Ondo::Tree& tree, std::int64_t offset,
                                                   std::int64_t length, std::u16string_view replacement,
                                                   std::int64_t selectionOffset,
                                                   std::int64_t selectionLength) const {
    const bool hasFurtherLine = replacement.find(u'\n') != std::u16string_view::npos;
    if (tree.length() == 0 || !hasFurtherLine || offset + sizeOf(replacement) > selectionOffset) return {};
    const InsertNewline newline(InsertNewlineListItemOption::SecondaryRow, style_);
    const std::vector<Result> newlines = newline.run(tree, offset, 0, offset, 0);
    if (newlines.empty()) return {};
    std::u16string text = Ondo::Util::replaceAll(replacement, u"\n", newlines.front().replacementString);
    if (text == replacement) return {};
    const std::int64_t added = sizeOf(text) - sizeOf(replacement);
    const Ondo::Range selection =
        clampedTo(tree.length() - length + sizeOf(text), selectionOffset + added, selectionLength);
    return {Result(offset, length, std::move(text), selection.offset, selection.length)};
}

} // namespace CVN::Correction
