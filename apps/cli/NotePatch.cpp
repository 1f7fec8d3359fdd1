#include "NotePatch.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "Input.h"

namespace Cli {

namespace {

/// Each with its ending.
using Lines = std::vector<std::string_view>;

constexpr std::size_t contextLines = 3;

/// Lines that are replaced by others.
struct Change {
    std::size_t start, end;
    std::size_t newStart, newEnd;
};

Lines linesOf(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t ending = text.find('\n');
        lines.push_back(text.substr(0, ending == std::string_view::npos ? ending : ending + 1));
        text.remove_prefix(lines.back().size());
    }
    return lines;
}

/// Line by line: what is replaced in a note mostly lies within lines.
std::vector<Change> changesOfLines(const Lines& before, const Lines& after) {
    std::vector<Change> changes;
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i] == after[i]) continue;
        if (changes.empty() || changes.back().end != i) changes.push_back({i, i, i, i});
        changes.back().end = changes.back().newEnd = i + 1;
    }
    return changes;
}

Change onlyChange(const Lines& before, const Lines& after) {
    const std::size_t shorter = std::min(before.size(), after.size());
    std::size_t head = 0;
    while (head < shorter && before[head] == after[head])
        ++head;
    std::size_t tail = 0;
    while (tail < shorter - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
        ++tail;
    return {head, before.size() - tail, head, after.size() - tail};
}

std::vector<Change> changesOf(const Lines& before, const Lines& after) {
    if (before.size() == after.size()) return changesOfLines(before, after);
    return {onlyChange(before, after)};
}

void addLines(std::string& patch, char sign, const Lines& lines, std::size_t start, std::size_t end) {
    for (std::size_t i = start; i < end; ++i) {
        patch += sign;
        patch += lines[i];
        if (lines[i].back() != '\n') patch += "\n\\ No newline at end of file\n";
    }
}

/// Where a stretch of lines lies. An empty one is called by the line before it.
std::string placeOf(std::size_t start, std::size_t end) {
    const std::size_t first = start == end ? start : start + 1;
    return std::to_string(first) + (end - start == 1 ? "" : "," + std::to_string(end - start));
}

/// The changes, which stand near each other, with what stands around them.
std::string hunk(const Lines& before, const Lines& after, const Change* first, const Change* last) {
    const std::size_t above = std::min(first->start, contextLines);
    const std::size_t below = std::min(before.size() - last->end, contextLines);
    std::string patch = "@@ -" + placeOf(first->start - above, last->end + below) + " +" +
                        placeOf(first->newStart - above, last->newEnd + below) + " @@\n";
    std::size_t at = first->start - above;
    for (const Change* change = first; change <= last; ++change) {
        addLines(patch, ' ', before, at, change->start);
        addLines(patch, '-', before, change->start, change->end);
        addLines(patch, '+', after, change->newStart, change->newEnd);
        at = change->end;
    }
    addLines(patch, ' ', before, at, last->end + below);
    return patch;
}

bool isPlain(unsigned char c) {
    return c > 0x20 && c != '"' && c != '\\' && c != 0x7F;
}

/// The control characters U+0080 to U+009F begin with this byte, as some letters do.
constexpr char leadOfControls = '\xC2';

/// As it stands, or in quotation marks with the escapes of C.
std::string quoted(const std::string& name) {
    const bool isText = invalidUtf8(name) < 0 && name.find(leadOfControls) == std::string::npos;
    const auto isKept = [&](char c) {
        return isPlain(static_cast<unsigned char>(c)) && (isText || static_cast<unsigned char>(c) < 0x80);
    };
    if (std::all_of(name.begin(), name.end(), isKept)) return name;
    std::string result = "\"";
    for (const char c : name) {
        char escape[5] = {c, '\0'};
        if (!isKept(c) && c != ' ')
            std::snprintf(escape, sizeof escape, "\\%03o",
                          static_cast<unsigned>(static_cast<unsigned char>(c)));
        result += escape;
    }
    return result + "\"";
}

} // namespace

std::string notePatch(const std::string& name, std::string_view before, std::string_view after) {
    if (before == after) return {};
    const Lines oldLines = linesOf(before);
    const Lines newLines = linesOf(after);
    const std::vector<Change> changes = changesOf(oldLines, newLines);
    std::string patch = "--- " + quoted("a/" + name) + "\n+++ " + quoted("b/" + name) + "\n";
    const Change* const end = changes.data() + changes.size();
    for (const Change* first = changes.data(); first < end;) {
        const Change* last = first;
        while (last + 1 < end && last[1].start - last->end <= 2 * contextLines)
            ++last;
        patch += hunk(oldLines, newLines, first, last);
        first = last + 1;
    }
    return patch;
}

} // namespace Cli
