#include <algorithm>
#include <tuple>
#include <vector>

#include "Commands.h"
#include "Note.h"
#include "Ranges.h"
#include "ValueJson.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

/// A run that is printed.
struct Line {
    CVNRange range; ///< in the whole text
    CVNAttributeName key;
    const CVNValue* value;
};

bool isBefore(const Line& a, const Line& b) {
    return std::make_tuple(a.range.location, a.key.string()) <
           std::make_tuple(b.range.location, b.key.string());
}

std::string printed(const Line& line) {
    return R"({"range":)" + jsonText(line.range) + R"(,"key":")" + Ondo::Util::utf8(line.key.string()) +
           R"(","value":)" + jsonText(*line.value) + "}\n";
}

/// The runs of a share of the text, which begins at `start`, that lie in `range`, clipped to it.
std::vector<Line> linesIn(const CVNAttributedString& share, std::int64_t start, CVNRange range) {
    std::vector<Line> lines;
    for (std::int64_t id = 0; id < CVNAttributeName::count; ++id) {
        const CVNAttributeName key = CVNAttributeName::withId(id);
        const AttributeRuns& runs = share.runs(key);
        for (std::int64_t i = runs.firstEndingBehind(range.location - start); i < runs.size(); ++i) {
            const CVNRange run = CVNRange::between(start + runs[i].location, start + runs[i].end);
            if (run.location >= range.end()) break;
            lines.push_back({CVNRange::intersect(run, range), key, &runs[i].value});
        }
    }
    std::sort(lines.begin(), lines.end(), isBefore);
    return lines;
}

CVNRange firstLevelBlockAt(const Ondo::Tree& tree, std::int64_t offset) {
    const Ondo::Node* block = tree.nodeAtOffset(offset, Ondo::LevelSetting::Leaf)->firstLevelAncestor();
    return {block->startOffset(), block->charCount};
}

/// What to annotate so that nothing in a range, which is not empty, is missing: its first-level blocks, and
/// what folds them.
CVNRange roundedOut(const CVNAST& note, CVNRange range) {
    return note.extendReparsedRange(CVNRange::unite(firstLevelBlockAt(*note.ast, range.location),
                                                    firstLevelBlockAt(*note.ast, range.end() - 1)));
}

CVNRange wantedRange(const Options& options, std::int64_t length) {
    if (!options.range) return {0, length};
    requireInText("--range", *options.range, length);
    return *options.range;
}

} // namespace

Outcome annotate(const Options& options) {
    const CVNAST note = readNote(options);
    const CVNRange range = wantedRange(options, note.markdownLength());
    if (range.length == 0) return {};
    const CVNRange annotated = roundedOut(note, range);
    const CVNAttributedString share = note.annotatedStringForRange(annotated);
    Outcome outcome;
    for (const Line& line : linesIn(share, annotated.location, range))
        outcome.output += printed(line);
    return outcome;
}

} // namespace Cli
