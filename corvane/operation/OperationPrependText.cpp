#include "corvane/operation/OperationPrependText.h"

#include "corvane/operation/DocumentParts.h"

namespace CVN::Operation {

std::vector<Result> PrependText::run(const Ondo::Tree& tree, std::int64_t, std::int64_t,
                                     std::int64_t selectionOffset, std::int64_t selectionLength) const {
    if (text_.empty()) return {};
    std::u16string lines(text_);
    if (lines.back() != u'\n') lines += u'\n';
    const InsertionPlace place = bodyPlace(tree);
    std::vector<Result> results;
    Result::addToList(results, place.offset, 0,
                      std::u16string(place.above) + withLineBelow(tree, lines, place.offset), selectionOffset,
                      selectionLength);
    return results;
}

} // namespace CVN::Operation
