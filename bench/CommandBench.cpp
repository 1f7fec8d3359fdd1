// Commands and corrections, asked at the same carets in a note of 10 KB and in one of 1 MB: neither should
// cost more in the longer note.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "bench/BenchNote.h"
#include "bench/Typing.h"
#include "corvane/client/CVNAST.h"
#include "corvane/client/CVNTextOperation.h"
#include "corvane/scan/Util.h"

namespace Ondo::Bench {
namespace {

/// What stands in the middle of the notes, each with a caret.
constexpr std::u16string_view places[] = {
    u"Some words of a para‸graph with *style*,\nand a second line of it.\n",
    u"## A head‸ing\n",
    u"- one\n- two words‸\n  - three\n",
    u"- one\n  - ‸two\n  - three\n",
    u"1. one\n2. two\n   - [ ] thr‸ee\n3. four\n",
    u"> one\n> two‸ three\n> four\n",
    u"> - one\n>   - two‸\n",
    u"> [!note]‸\n> one\n",
    u"| a | b |\n|---|---|\n| cell‸ | d |\n| e | f |\n",
    u"- ```\n  one‸\n  two\n  ```\n",
    u"```‸\none\n```\n",
    u"A paragraph and a blank line.\n‸\n",
};

/// A note of real Markdown with all places in its midst, and edits far from them.
class Desk {
public:
    CVNAST note;
    std::vector<CVNRange> ranges; ///< at each place a caret, then a selection around it

    explicit Desk(std::size_t bytes) {
        std::u16string middle = u"# Places\n\n";
        for (const std::u16string_view place : places)
            middle.append(place).append(u"\nNext.\n\n");
        const Note made = realNoteAround(Util::utf8(middle), bytes);
        source = made.source;
        std::u16string text = Util::utf16(made.text);
        for (auto at = text.find(caret); at != std::u16string::npos; at = text.find(caret)) {
            text.erase(at, 1);
            addRanges(static_cast<std::int64_t>(at));
        }
        note = CVNAST::fromMarkdown(text);
        const Tree& tree = *note.ast;
        far_[0] = paragraphBehind(tree, tree.length() / 50);
        far_[1] = paragraphBehind(tree, tree.length() * 9 / 10);
    }

    /// Near the start and near the end of the note in turn, so that the gap of the text is away from the
    /// places. No text changes its offset.
    void editElsewhere() {
        const bool isEven = edits_ % 2 == 0;
        note.replaceRange({far_[isEven], 1}, edits_ % 4 < 2 ? u"x" : u"y");
        ++edits_;
    }

    const char* source;

private:
    static constexpr char16_t caret = u'‸';

    void addRanges(std::int64_t at) {
        ranges.push_back({at, 0});
        ranges.push_back({at - 4, 12});
    }

    std::int64_t far_[2];
    std::int64_t edits_ = 0;
};

using Act = std::function<void(const CVNAST& note, CVNRange range)>;
using Samples = std::vector<double>;

double nanoseconds(const Act& act, const Desk& desk, CVNRange range) {
    const auto start = std::chrono::steady_clock::now();
    act(desk.note, range);
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count();
}

double median(Samples& samples) {
    const auto middle = samples.begin() + std::ssize(samples) / 2;
    std::nth_element(samples.begin(), middle, samples.end());
    return *middle;
}

/// The time of an act at each range of a desk.
struct Times {
    Desk& desk;
    std::vector<Samples> edited; ///< right behind an edit elsewhere
    std::vector<Samples> again;

    explicit Times(Desk& desk_) : desk(desk_), edited(desk.ranges.size()), again(desk.ranges.size()) {}

    void measure(const Act& act) {
        for (std::size_t i = 0; i < edited.size(); ++i) {
            desk.editElsewhere();
            edited[i].push_back(nanoseconds(act, desk, desk.ranges[i]));
            again[i].push_back(nanoseconds(act, desk, desk.ranges[i]));
        }
    }
};

/// Puts the mean over all ranges, in microseconds, and how much more the long note costs at the range where
/// that is most.
void report(benchmark::State& state, const std::string& what, std::vector<Samples>& shortNote,
            std::vector<Samples>& longNote) {
    double sums[2] = {};
    double most = 0;
    for (std::size_t i = 0; i < shortNote.size(); ++i) {
        const double few = median(shortNote[i]);
        const double many = median(longNote[i]);
        sums[0] += few;
        sums[1] += many;
        most = std::max(most, many - few);
    }
    const double scale = 1e-3 / static_cast<double>(shortNote.size());
    state.counters[what + "_10KB_us"] = sums[0] * scale;
    state.counters[what + "_1MB_us"] = sums[1] * scale;
    state.counters[what + "_ratio"] = sums[1] / sums[0];
    state.counters[what + "_most_us"] = most * 1e-3;
}

void askAtAllPlaces(benchmark::State& state, const Act& act) {
    static Desk shortDesk(10'000);
    static Desk longDesk(1'000'000);
    Times shortNote(shortDesk);
    Times longNote(longDesk);
    for (auto _ : state) {
        shortNote.measure(act);
        longNote.measure(act);
    }
    state.SetLabel(longDesk.source);
    report(state, "edited", shortNote.edited, longNote.edited);
    report(state, "again", shortNote.again, longNote.again);
}

void add(const std::string& name, Act act) {
    benchmark::RegisterBenchmark(name.c_str(), [act](benchmark::State& state) {
        askAtAllPlaces(state, act);
    })->Iterations(100);
}

void addCommand(const CVNTextOperation& row, std::int64_t style) {
    const bool hasStyle = row.parameters[0].kind == CVNTextParameter::Kind::Number;
    add(std::string("command/") + row.name + (hasStyle ? '/' + std::to_string(style) : ""),
        [&row, style](const CVNAST& note, CVNRange range) {
            benchmark::DoNotOptimize(row.run(note, range, range, {CVNTextArgument{style, {}}}));
        });
}

void addCorrection(const CVNTextCorrection& row, std::u16string_view typed) {
    add(std::string("correction/") + row.name + '/' + Util::utf8(Util::escape(typed)),
        [&row, typed](const CVNAST& note, CVNRange range) {
            const auto length = static_cast<std::int64_t>(typed.size());
            const CVNRange behind = row.isOfSelection ? CVNRange{range.location, range.length + 6}
                                                      : CVNRange{range.location + length, 0};
            benchmark::DoNotOptimize(row.run(note, range, typed, behind));
        });
}

/// Those are measured by their own notes.
bool isOfWholeNote(const CVNTextOperation& row) {
    using Number = CVNTextOperation::Number;
    return row.ignoresRange || row.number == Number::renumberFootnotesIn ||
           row.number == Number::reorderFootnoteDefinitionsIn ||
           row.number == Number::renameUnusedFootnoteDefinitionsIn;
}

const bool areAdded = [] {
    for (const CVNTextOperation& row : CVNTextOperation::all()) {
        if (isOfWholeNote(row)) continue;
        const bool isBlock = row.number == CVNTextOperation::Number::toggleBlockStyle;
        const bool isInline = row.number == CVNTextOperation::Number::toggleInlineStyle;
        for (const std::int64_t style : isBlock    ? std::vector<std::int64_t>{0, 7, 9, 10, 13}
                                        : isInline ? std::vector<std::int64_t>{0, 6, 10}
                                                   : std::vector<std::int64_t>{0})
            addCommand(row, style);
    }
    for (const CVNTextCorrection& row : CVNTextCorrection::all())
        for (const std::u16string_view typed : {u"`", u"$", u"\n", u" x", u""})
            if (typed.empty() || !row.isOfSelection) addCorrection(row, typed);
    return true;
}();

} // namespace
} // namespace Ondo::Bench
