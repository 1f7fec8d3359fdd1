#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Coloring.h"
#include "Commands.h"
#include "FoldedText.h"
#include "Highlight.h"
#include "Input.h"
#include "Results.h"
#include "ValueJson.h"
#include "corvane/analysis/FuzzySearch.h"

namespace Cli {

namespace {

/// A line that has the characters of the pattern.
struct Hit {
    std::int64_t line; ///< from 1 on
    std::u16string_view text;
    CVN::FuzzyMatch match; ///< with indexes into the line as it stands
};

CVN::FuzzyMatch plainSearch(std::u16string_view pattern, std::u16string_view text) {
    return CVN::fuzzySearch(pattern, text);
}

/// Takes a line off the start of a text that is not empty; its ending, which is gone then, is LF, CRLF or CR.
std::u16string_view takeLine(std::u16string_view& text) {
    const std::size_t length = std::min(text.find_first_of(u"\r\n"), text.size());
    const std::u16string_view line = text.substr(0, length);
    text.remove_prefix(length);
    text.remove_prefix(text.starts_with(u"\r\n") ? 2 : std::min<std::size_t>(text.size(), 1));
    return line;
}

/// The lines that match, best first.
std::vector<Hit> hitsIn(std::u16string_view text, const std::u16string& pattern, bool isFolded) {
    const std::u16string soughtFor = isFolded ? folded(pattern).text : pattern;
    const auto search = isFolded ? foldedSearch : plainSearch;
    std::vector<Hit> hits;
    for (std::int64_t number = 1; !text.empty(); ++number) {
        const std::u16string_view line = takeLine(text);
        if (CVN::FuzzyMatch match = search(soughtFor, line); match.matched)
            hits.push_back({number, line, std::move(match)});
    }
    std::stable_sort(hits.begin(), hits.end(),
                     [](const Hit& a, const Hit& b) { return a.match.score > b.match.score; });
    return hits;
}

std::string jsonLine(const Hit& hit) {
    return R"({"line":)" + std::to_string(hit.line) + R"(,"score":)" + std::to_string(hit.match.score) +
           R"(,"indexes":[)" + listOf(hit.match.indexes) + R"(],"text":)" + jsonText(hit.text) + "}\n";
}

std::string plainLine(const Hit& hit) {
    return std::to_string(hit.match.score) + "\t" + listOf(hit.match.indexes) + "\t" +
           highlighted(hit.text, {}, false) + "\n";
}

/// The colours show what matches; scores stand below each other.
std::string coloredLine(const Hit& hit, std::size_t scoreWidth) {
    const std::string score = std::to_string(hit.match.score);
    return std::string(scoreWidth - score.size(), ' ') + "\033[0;2m" + score + "\033[0m  " +
           highlighted(hit.text, hit.match.indexes, true) + "\n";
}

} // namespace

Outcome fuzzy(const Options& options) {
    const std::u16string pattern = textOfArgument("PATTERN", required("PATTERN", options.name));
    const std::u16string text = readPlainText(options.file.value_or("-"));
    const std::vector<Hit> hits = hitsIn(text, pattern, options.fold);
    const std::size_t scoreWidth = hits.empty() ? 0 : std::to_string(hits.front().match.score).size();
    const bool colored = isColored(options.colors);
    Outcome outcome;
    for (const Hit& hit : hits) {
        if (options.json)
            outcome.output += jsonLine(hit);
        else
            outcome.output += colored ? coloredLine(hit, scoreWidth) : plainLine(hit);
    }
    return outcome;
}

} // namespace Cli
