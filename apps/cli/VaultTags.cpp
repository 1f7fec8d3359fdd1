#include <algorithm>

#include "Canvas.h"
#include "Coloring.h"
#include "Output.h"
#include "TagTree.h"
#include "ValueJson.h"
#include "Vault.h"
#include "corvane/inline/Segments.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

using Tags = std::vector<std::u16string>;

/// The tags of a note in an order that is the same each time.
Tags tagsOf(const VaultRun& run, const VaultNote& note) {
    if (note.text.find(u'#') == std::u16string::npos) return {};
    const CVN::TreeSummary summary = summaryOf(run, note);
    Tags tags(summary.tags.begin(), summary.tags.end());
    std::sort(tags.begin(), tags.end());
    return tags;
}

std::string jsonLine(const Tags& path, std::int64_t noteCount) {
    return R"({"tag":)" + jsonText(Ondo::Segments::encode(path)) + R"(,"count":)" +
           std::to_string(noteCount) + "}\n";
}

std::string textLine(const Tags& path, std::int64_t noteCount, bool isColored) {
    constexpr std::size_t unitsOfALevel = 2;
    Canvas canvas(isColored);
    canvas.put({}, std::u16string(unitsOfALevel * (path.size() - 1), u' ') + path.back());
    canvas.put({Dim}, u" (" + Ondo::Util::toString(noteCount) + u")");
    canvas.endLine(u"\n");
    return canvas.text();
}

} // namespace

Outcome vaultTags(VaultRun& run) {
    TagTree tree;
    forEachNote<Tags>(
        run, [&](const VaultFile&, const VaultNote& note) { return tagsOf(run, note); },
        [&](const VaultFile&, const Tags& tags) { tree.addNote(tags); });
    const bool isColored = Cli::isColored(run.options.colors);
    tree.forEach([&](const Tags& path, std::int64_t noteCount) {
        writePart(run.options.json ? jsonLine(path, noteCount) : textLine(path, noteCount, isColored));
    });
    return finished(run, {});
}

} // namespace Cli
