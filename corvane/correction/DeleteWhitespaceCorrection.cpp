#include "corvane/correction/DeleteWhitespaceCorrection.h"

#include <algorithm>

#include "corvane/correction/EditEdges.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Go.h"

namespace CVN::Correction {

using namespace Operation;
using Ondo::Go;

namespace {

constexpr std::int64_t pieceLength = 256;

/// Reads no further than to the first other character.
bool isWhitespace(const Ondo::Tree& tree, std::int64_t offset, std::int64_t end) {
    while (offset < end) {
        const std::int64_t count = std::min(end - offset, pieceLength);
        Go go(tree.markdownIn({offset, count}));
        if (go.nextWhile(Go::eitherOf(Go::whitespace, Go::unicodeWhitespace)) != count) return false;
        offset += count;
    }
    return true;
}

} // namespace

std::vector<Result> DeleteWhitespaceCorrection::run(const Ondo::Tree& tree, std::int64_t offset,
                                                    std::int64_t length, std::u16string_view replacement,
                                                    std::int64_t selectionOffset,
                                                    std::int64_t selectionLength) const {
    if (length == 0 || !replacement.empty()) return {};
    const std::int64_t end = offset + length;
    if (unitAt(tree, offset - 1) != u' ' || unitAt(tree, end) != u' ') return {};
    if (isWhitespace(tree, offset, end)) return {};
    if (isInVerbatim(leafEndingAt(tree, offset)) || isInVerbatim(leafStartingAt(tree, end))) return {};
    const Ondo::Range selection = clampedTo(tree.length() - length, selectionOffset, selectionLength);
    const std::int64_t start = selection.offset - (selection.offset > offset ? 1 : 0);
    const std::int64_t selectionEnd = selection.end() - (selection.end() > offset ? 1 : 0);
    return {Result(offset, length + 1, std::u16string(), start, selectionEnd - start)};
}

} // namespace CVN::Correction
