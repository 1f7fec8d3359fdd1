#include <algorithm>
#include <optional>

#include "Canvas.h"
#include "Coloring.h"
#include "FoldedText.h"
#include "Highlight.h"
#include "Output.h"
#include "Results.h"
#include "ValueJson.h"
#include "Vault.h"
#include "corvane/analysis/FuzzySearch.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

struct Found {
    std::string file;
    std::u16string title;
    bool isInName; ///< the pattern fits the file's name better than the title
    std::int32_t score;
    std::vector<std::int64_t> indexes; ///< in the title, or in the name without folders and extension
};

std::optional<Found> find(std::u16string_view pattern, const VaultFile& file, const std::u16string& title) {
    const std::u16string name = titleOfFile(file);
    CVN::FuzzyMatch inTitle = foldedSearch(pattern, title);
    CVN::FuzzyMatch inName = foldedSearch(pattern, name);
    const bool isInName = inName.matched && (!inTitle.matched || inName.score > inTitle.score);
    CVN::FuzzyMatch& best = isInName ? inName : inTitle;
    if (!best.matched) return std::nullopt;
    return Found{file.name, title.empty() ? name : title, isInName, best.score, std::move(best.indexes)};
}

/// Best first. The letters of what has score 0 stand just anywhere.
void rank(std::vector<Found>& all) {
    std::stable_sort(all.begin(), all.end(),
                     [](const Found& a, const Found& b) { return a.score > b.score; });
    if (!all.empty() && all.front().score > 0)
        std::erase_if(all, [](const Found& found) { return found.score == 0; });
}

std::string jsonLine(const Found& found) {
    return R"({"file":)" + jsonText(Ondo::Util::utf16(found.file)) + R"(,"title":)" + jsonText(found.title) +
           R"(,"in":")" + (found.isInName ? "name" : "title") + R"(","score":)" +
           std::to_string(found.score) + R"(,"indexes":[)" + listOf(found.indexes) + "]}\n";
}

/// The file with its name, from the last folder on, in colours.
std::string shownFile(const Found& found, bool isColored) {
    const std::size_t start = found.file.rfind('/') + 1;
    Canvas folder(isColored);
    const std::u16string folders = Ondo::Util::utf16(found.file.substr(0, start));
    const std::u16string leaf = Ondo::Util::utf16(found.file.substr(start));
    if (!found.isInName) {
        folder.put({Dim}, folders + leaf);
        folder.endLine({});
        return folder.text();
    }
    folder.put({Dim}, folders);
    folder.endLine({});
    return folder.text() + highlighted(leaf, found.indexes, isColored);
}

std::string textLine(const Found& found, bool isColored) {
    const std::vector<std::int64_t> none;
    return highlighted(found.title, found.isInName ? none : found.indexes, isColored) + "\t" +
           shownFile(found, isColored) + "\n";
}

} // namespace

Outcome vaultFind(VaultRun& run) {
    const std::u16string pattern = folded(textOfArgument("PATTERN", run.options.words[0])).text;
    std::vector<Found> all;
    forEachNote<std::optional<Found>>(
        run,
        [&](const VaultFile& file, const VaultNote& note) {
            return find(pattern, file, summaryOf(run, note).title);
        },
        [&](const VaultFile&, std::optional<Found> found) {
            if (found) all.push_back(std::move(*found));
        });
    rank(all);
    const bool isColored = Cli::isColored(run.options.colors);
    for (const Found& found : all)
        writePart(run.options.json ? jsonLine(found) : textLine(found, isColored));
    return finished(run, {});
}

} // namespace Cli
