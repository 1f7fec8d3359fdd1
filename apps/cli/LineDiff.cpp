#include "LineDiff.h"

#include <algorithm>
#include <sstream>
#include <vector>

#include <dtl/dtl.hpp>

#include "corvane/scan/Util.h"

namespace Cli {

namespace {

using Lines = std::vector<std::u16string_view>;

constexpr std::size_t contextLines = 3;
/// How many differing lines are compared: the cost grows with the square of their number.
constexpr std::size_t maxLines = 4000;

Lines linesOf(std::u16string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find(u'\n'), text.size());
        lines.push_back(text.substr(0, length));
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return lines;
}

std::size_t commonHead(const Lines& a, const Lines& b) {
    const std::size_t limit = std::min(a.size(), b.size());
    std::size_t count = 0;
    while (count < limit && a[count] == b[count])
        ++count;
    return count;
}

/// Without what `head` has counted.
std::size_t commonTail(const Lines& a, const Lines& b, std::size_t head) {
    const std::size_t limit = std::min(a.size(), b.size()) - head;
    std::size_t count = 0;
    while (count < limit && a[a.size() - 1 - count] == b[b.size() - 1 - count])
        ++count;
    return count;
}

/// The lines from `start` to `end`, as UTF-8.
std::vector<std::string> linesIn(const Lines& lines, std::size_t start, std::size_t end) {
    std::vector<std::string> result;
    result.reserve(end - start);
    for (std::size_t i = start; i < end; ++i)
        result.push_back(Ondo::Util::utf8(lines[i]));
    return result;
}

std::string hunks(const std::vector<std::string>& before, const std::vector<std::string>& after,
                  std::size_t linesAbove) {
    dtl::Diff<std::string> diff(before, after);
    diff.compose();
    diff.composeUnifiedHunks();
    auto unified = diff.getUniHunks();
    for (auto& hunk : unified) {
        hunk.a += static_cast<long long>(linesAbove);
        hunk.c += static_cast<long long>(linesAbove);
    }
    std::ostringstream out;
    dtl::Diff<std::string>::printUnifiedFormat(unified, out);
    return out.str();
}

} // namespace

std::string unifiedDiff(std::u16string_view before, std::u16string_view after, const std::string& beforeName,
                        const std::string& afterName) {
    if (before == after) return {};
    const Lines a = linesOf(before);
    const Lines b = linesOf(after);
    const std::size_t head = commonHead(a, b);
    const std::size_t tail = commonTail(a, b, head);
    const std::size_t differing = std::max(a.size(), b.size()) - tail - head;
    const std::size_t start = head - std::min(head, contextLines);
    const std::size_t behind = differing > maxLines ? 0 : std::min(tail, contextLines);
    const auto endIn = [&](const Lines& lines) {
        return std::min(lines.size() - tail, head + maxLines) + behind;
    };
    std::string diff = "--- " + beforeName + "\n+++ " + afterName + "\n" +
                       hunks(linesIn(a, start, endIn(a)), linesIn(b, start, endIn(b)), start);
    if (differing > maxLines)
        diff += "(only the first " + std::to_string(maxLines) + " of " + std::to_string(differing) +
                " differing lines were compared)\n";
    return diff;
}

} // namespace Cli
