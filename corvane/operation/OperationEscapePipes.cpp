#include "corvane/operation/OperationEscapePipes.h"

#include <algorithm>
#include <string_view>

#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

namespace {

bool endsInOpenBackslash(std::u16string_view text) {
    const std::size_t last = text.find_last_not_of(u'\\');
    const std::size_t backslashes = text.size() - (last == std::u16string_view::npos ? 0 : last + 1);
    return backslashes % 2 != 0;
}

std::int64_t startOfBackslashes(const Ondo::Tree& tree, std::int64_t end) {
    while (unitAt(tree, end - 1) == u'\\')
        --end;
    return end;
}

} // namespace

std::vector<Result> EscapePipes::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                     std::int64_t selectionOffset, std::int64_t selectionLength) const {
    length = std::min(length, tree.length() - offset);
    if (length <= 0) return {};
    const std::int64_t start = startOfBackslashes(tree, offset);
    const std::u16string_view text = tree.markdownIn({start, offset + length - start});

    std::vector<Result> results;
    for (std::size_t end = text.size(); end > 0;) {
        const std::size_t pipe = text.rfind(u'|', end - 1);
        if (pipe == std::u16string_view::npos) break;
        end = pipe;
        if (endsInOpenBackslash(text.substr(0, pipe))) continue;
        Result::addToList(results, start + static_cast<std::int64_t>(pipe), 0, u"\\", selectionOffset,
                          selectionLength);
    }
    return results;
}

} // namespace CVN::Operation
