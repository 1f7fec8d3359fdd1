#include "corvane/operation/OperationResult.h"

#include <utility>

#include "corvane/scan/Assert.h"

namespace CVN::Operation {

Result::Result(std::int64_t replaceOffset_, std::int64_t replaceLength_, std::u16string replacementString_,
               std::int64_t selectionOffset_, std::int64_t selectionLength_)
    : replaceOffset(replaceOffset_), replaceLength(replaceLength_),
      replacementString(std::move(replacementString_)), selectionOffset(selectionOffset_),
      selectionLength(selectionLength_) {
    CORVANE_ASSERT(replaceOffset >= 0, "OperationResult");
    CORVANE_ASSERT(replaceLength >= 0, "OperationResult");
    CORVANE_ASSERT(selectionOffset >= 0, "OperationResult");
    CORVANE_ASSERT(selectionLength >= 0, "OperationResult");
}

void Result::offsetSelection() {
    const std::int64_t replaced = replaceEnd();
    const std::int64_t selectionEnd = selectionOffset + selectionLength;
    const std::int64_t behind = replaceOffset + replacementLength();
    const std::int64_t growth = replacementLength() - replaceLength;
    const bool isCovered = replaceLength > 0 && replaceOffset <= selectionOffset && selectionEnd <= replaced;
    if (replaced <= selectionOffset) {
        selectionOffset += growth;
    } else if (selectionEnd <= replaceOffset) {
        return;
    } else if (isCovered) {
        selectionOffset = behind;
        selectionLength = 0;
    } else if (replaceOffset >= selectionOffset && replaced <= selectionEnd) {
        selectionLength += growth;
    } else if (replaceOffset > selectionOffset) {
        selectionLength = replaceOffset - selectionOffset;
    } else {
        selectionOffset = behind;
        selectionLength = selectionEnd + growth - behind;
    }
}

void Result::addToList(std::vector<Result>& results, std::int64_t replaceOffset, std::int64_t replaceLength,
                       std::u16string replacementString, std::int64_t selectionOffset,
                       std::int64_t selectionLength) {
    Result result(replaceOffset, replaceLength, std::move(replacementString), selectionOffset,
                  selectionLength);
    if (!results.empty()) {
        result.selectionOffset = results.back().selectionOffset;
        result.selectionLength = results.back().selectionLength;
    }
    result.offsetSelection();
    results.push_back(std::move(result));
}

} // namespace CVN::Operation
