// Commands that work on the whole note: their time should grow as the note does. The notes are nothing but
// what the command looks for, of 10 KB, 1 MB and 10 MB.

#include <benchmark/benchmark.h>

#include <string>
#include <string_view>

#include "corvane/client/CVNAST.h"
#include "corvane/client/CVNTextOperation.h"
#include "corvane/scan/Util.h"

namespace Ondo::Bench {
namespace {

using Command = CVNTextOperation::Number;

std::u16string number(std::size_t value) {
    return Util::utf16(std::to_string(value));
}

/// A note of pieces that `piece` makes of their numbers from 0, at least that long.
template <class Piece>
std::u16string noteOf(std::size_t units, Piece piece) {
    std::u16string text;
    for (std::size_t i = 0; text.size() < units; ++i)
        text.append(piece(i));
    return text;
}

std::u16string tags(std::size_t units) {
    return noteOf(units, [](std::size_t i) { return u"Words #work/a" + number(i % 7) + u" and #home.\n\n"; });
}

std::u16string links(std::size_t units) {
    return noteOf(units, [](std::size_t i) {
        return u"See [[Plan/" + number(i % 7) + u"|week]] and [map](my%20map.png).\n\n";
    });
}

std::u16string footnotes(std::size_t units) {
    std::u16string text;
    std::u16string definitions;
    for (std::size_t i = 0; text.size() + definitions.size() < units; ++i) {
        const std::u16string label = u"[^" + number(1'000'000 - i) + u"]";
        text.append(u"Words").append(label).append(u" and more.\n\n");
        definitions.append(label).append(u": source\n");
    }
    return text + definitions;
}

std::u16string smallTables(std::size_t units) {
    return noteOf(units, [](std::size_t i) {
        return u"| a | b |\n|---|---|\n| " + number(i * i) + u" | *c* |\n| d | e |\n\n";
    });
}

std::u16string oneTable(std::size_t units) {
    return u"| a | b |\n|---|---|\n" +
           noteOf(units, [](std::size_t i) { return u"| " + number(i * i) + u" | *c* |\n"; });
}

std::u16string numbers(std::size_t units) {
    return noteOf(units,
                  [](std::size_t i) { return i % 10 == 0 ? u"7. one\n" : u"   more of it\n3. two\n"; });
}

std::u16string headings(std::size_t units) {
    return u"Title\n\n" + noteOf(units, [](std::size_t i) {
               return std::u16string(i % 3 + 1, u'#') + u" Heading\n\nWords below it.\n\n";
           });
}

std::u16string folds(std::size_t units) {
    return noteOf(units, [](std::size_t i) {
        return i % 2 ? u"# Heading <!-- {\"fold\":true} -->\n\nWords.\n\n"
                     : u"Words <!-- {\"fold\":true} --> and words.\n\n";
    });
}

struct Row {
    Command command;
    std::u16string (*note)(std::size_t units);
    std::u16string_view first;
    std::u16string_view second;
};

constexpr Row rows[] = {
    {Command::renameTag, tags, u"work", u"two words"},
    {Command::removeTag, tags, u"work", {}},
    {Command::escapeTag, tags, u"work", {}},
    {Command::updateWikiLinks, links, u"Plan", u"Old plan"},
    {Command::updateLinksURL, links, u"my map.png", u"map.png"},
    {Command::removeLinkWithURL, links, u"my map.png", {}},
    {Command::renumberFootnotesIn, footnotes, {}, {}},
    {Command::reorderFootnoteDefinitionsIn, footnotes, {}, {}},
    {Command::renameUnusedFootnoteDefinitionsIn, footnotes, {}, {}},
    {Command::normalizeTables, smallTables, {}, {}},
    {Command::normalizeTables, oneTable, {}, {}},
    {Command::renumberOrderedListInRange, numbers, {}, {}},
    {Command::foldAllHeadingSelectionRange, headings, {}, {}},
    {Command::unfoldAllHeadingSelectionRange, folds, {}, {}},
    {Command::removeStrayMetaCommentInRange, folds, {}, {}},
};

/// All of the note is range; the caret stands in its midst.
void askOnWholeNote(benchmark::State& state, const Row& row) {
    const CVNAST note = CVNAST::fromMarkdown(row.note(static_cast<std::size_t>(state.range(0))));
    const std::int64_t length = note.markdownLength();
    std::size_t count = 0;
    for (auto _ : state) {
        const auto& command = CVNTextOperation::all()[static_cast<std::size_t>(row.command)];
        const auto results = command.run(note, {0, length}, {length / 2, 0},
                                         {CVNTextArgument{0, row.first}, CVNTextArgument{0, row.second}});
        count = results.size();
        benchmark::DoNotOptimize(results);
    }
    state.counters["results"] = static_cast<double>(count);
    state.counters["ns_per_unit"] =
        benchmark::Counter(static_cast<double>(length) * 1e-9,
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

const bool areAdded = [] {
    for (const Row& row : rows) {
        const auto& command = CVNTextOperation::all()[static_cast<std::size_t>(row.command)];
        const std::string kind = row.note == oneTable ? "/one_table" : "";
        benchmark::RegisterBenchmark((std::string("document/") + command.name + kind).c_str(),
                                     [&row](benchmark::State& state) { askOnWholeNote(state, row); })
            ->Arg(10'000)
            ->Arg(1'000'000)
            ->Arg(10'000'000)
            ->MinTime(0.2)
            ->Unit(benchmark::kMillisecond);
    }
    return true;
}();

} // namespace
} // namespace Ondo::Bench
