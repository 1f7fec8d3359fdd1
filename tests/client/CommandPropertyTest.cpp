// What must hold of every command and correction, of any note, range and selection. CORVANE_SEED and
// CORVANE_ROUNDS set seed and length.

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>

#include "corvane/client/CVNAST.h"
#include "corvane/operation/OperationDeleteNext.h"
#include "corvane/operation/OperationDeletePrevious.h"
#include "corvane/operation/OperationIndent.h"
#include "corvane/operation/OperationInsertNewline.h"
#include "corvane/operation/OperationNormalizeIndentation.h"
#include "tests/support/Print.h"
#include "tests/support/RandomNote.h"
#include "tests/support/RealNotes.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

using namespace CVN::Operation;

using Results = std::vector<CVNASTOperationResult>;

std::uint64_t environmentNumber(const char* name, std::uint64_t otherwise) {
    const char* const value = std::getenv(name);
    return value ? std::strtoull(value, nullptr, 10) : otherwise;
}

/// A command or correction with all that it takes but the place.
struct Act {
    std::string name;
    std::function<Results(const CVNAST&, CVNRange, CVNRange, std::u16string_view)> run;
    bool isCorrection = false;
};

template <class T, class... Parameters>
Act ofHost(std::string name, Parameters... parameters) {
    return {std::move(name),
            [operation = T(parameters...)](const CVNAST& note, CVNRange range, CVNRange selection, auto) {
                return note.resultForTextOperation(operation, range, selection);
            }};
}

/// Every row of the tables, with each number that its parameter can be, and what only hosts make.
std::vector<Act> allActs() {
    constexpr IndentStyle tabs = IndentStyle::Tabs;
    std::vector<Act> acts{
        ofHost<Indent>("indent with tabs", IndentAction::Indent, tabs),
        ofHost<Indent>("outdent with tabs", IndentAction::Undent, tabs),
        ofHost<InsertNewline>("newline with tabs", InsertNewlineListItemOption::NewItem, tabs),
        ofHost<InsertNewline>("secondary row", InsertNewlineListItemOption::SecondaryRow,
                              IndentStyle::Spaces),
        ofHost<InsertNewline>("secondary row with tabs", InsertNewlineListItemOption::SecondaryRow, tabs),
        ofHost<NormalizeIndentation>("normalize with tabs", tabs),
        ofHost<DeletePrevious>("backspace with tabs", tabs),
        ofHost<DeleteNext>("delete with tabs", tabs),
    };
    for (const CVNTextOperation& row : CVNTextOperation::all()) {
        const bool hasStyles = row.parameters[0].kind == CVNTextParameter::Kind::Number;
        for (std::int64_t number = 0; number <= (hasStyles ? 17 : 0); ++number)
            acts.push_back({row.name + (" " + std::to_string(number)),
                            [&row, number](const CVNAST& note, CVNRange range, CVNRange selection, auto) {
                                return row.run(note, range, selection, {CVNTextArgument{number, {}}});
                            }});
    }
    for (const CVNTextCorrection& row : CVNTextCorrection::all())
        acts.push_back({row.name,
                        [&row](const CVNAST& note, CVNRange range, CVNRange selection,
                               std::u16string_view text) { return row.run(note, range, text, selection); },
                        true});
    return acts;
}

bool isIn(CVNRange range, std::u16string_view text) {
    const auto length = static_cast<std::int64_t>(text.size());
    return range.location >= 0 && range.length >= 0 && range.location <= length &&
           range.length <= length - range.location;
}

bool splitsPair(std::int64_t offset, std::u16string_view text) {
    const auto at = static_cast<std::size_t>(offset);
    return at > 0 && at < text.size() && (text[at - 1] & 0xFC00) == 0xD800 && (text[at] & 0xFC00) == 0xDC00;
}
bool splitsPair(CVNRange range, std::u16string_view text) {
    return splitsPair(range.location, text) || splitsPair(range.end(), text);
}

std::string show(CVNRange at) {
    return Test::show(at.coreRange());
}

std::string show(const Results& results) {
    std::string out;
    for (const CVNASTOperationResult& each : results)
        out += "\n  " + show(each.replacementRange) + visible(each.replacementString) + " select " +
               show(each.proposedSelection);
    return out;
}

/// Where an act is asked to work, and what is typed there.
struct Place {
    CVNRange range;
    CVNRange selection;
    std::u16string text;
};

Place placeOf(const Act& act, RandomNote& random, std::int64_t length) {
    Place place{CVNRange::of(random.range(length)), {}, {}};
    if (random.below(4) == 0) place.range = CVNRange::of(random.range(length));
    if (random.below(6) == 0) place.range.length = length - place.range.location;
    place.selection = place.range;
    if (act.isCorrection) {
        constexpr std::u16string_view typed[] = {u"`",  u"``", u"```", u"$", u"$$",
                                                 u"\n", u"",   u"x",   u" ", u"|"};
        place.text = random.below(4) == 0 ? random.piece() : std::u16string(typed[random.below(10)]);
        place.selection = {place.range.location + static_cast<std::int64_t>(place.text.size()), 0};
    } else if (random.below(5) == 0) {
        place.selection = CVNRange::of(random.range(length));
    }
    return place;
}

/// Applies results to a plain text; the first fault in words.
std::string applyTo(std::u16string& text, const Results& results) {
    for (const CVNASTOperationResult& each : results) {
        if (!isIn(each.replacementRange, text)) return "a range lies outside the text it addresses";
        text.replace(static_cast<std::size_t>(each.replacementRange.location),
                     static_cast<std::size_t>(each.replacementRange.length), each.replacementString);
    }
    return isIn(results.back().proposedSelection, text) ? "" : "the selection lies outside the text";
}

bool comeFromTheEnd(const Results& results) {
    for (std::size_t i = 1; i < results.size(); ++i)
        if (results[i].replacementRange.end() > results[i - 1].replacementRange.location) return false;
    return true;
}

/// Runs an act and carries it out; the first fault in words.
std::string carryOut(const Act& act, CVNAST& note, const Place& place, Results& results) {
    const std::u16string before(note.markdown());
    const std::u16string tree = note.ast->toIndentedTree();
    results = act.run(note, place.range, place.selection, place.text);
    if (note.markdown() != before || note.ast->toIndentedTree() != tree) return "the note changed";
    if (results.empty()) return {};
    std::u16string expected = before;
    if (std::string fault = applyTo(expected, results); !fault.empty()) return fault;
    const bool wasSplit =
        splitsPair(place.range, before) || (!act.isCorrection && splitsPair(place.selection, before));
    if (!wasSplit && splitsPair(results.back().proposedSelection, expected))
        return "the selection splits a pair";
    if (act.isCorrection && !comeFromTheEnd(results)) return "the results are in the wrong order";
    note.applyTextOperationResults(results);
    if (note.markdown() != expected) return "the façade gives another text";
    return differenceFromFreshParse(*note.ast);
}

TEST(CommandProperty, OfRandomNotes) {
    const std::vector<Act> acts = allActs();
    const std::uint64_t seed = environmentNumber("CORVANE_SEED", 1);
    RandomNote random(seed);
    for (std::uint64_t round = 0; round < environmentNumber("CORVANE_ROUNDS", 1500); ++round) {
        const std::u16string text = random.note(8);
        CVNAST note;
        note.ast = std::make_unique<Tree>(text, allRuleSets[random.below(3)]);
        for (int step = 0; step < 30; ++step) {
            const Act& act = acts[random.below(acts.size())];
            const std::u16string before(note.markdown());
            const Place place = placeOf(act, random, note.markdownLength());
            Results results;
            const std::string fault = carryOut(act, note, place, results);
            ASSERT_EQ(fault, "") << act.name << " at " << show(place.range) << ", selection "
                                 << show(place.selection) << " typing " << visible(place.text) << " in "
                                 << visible(before) << " under " << nameOf(note.ast->ruleSet) << show(results)
                                 << "\nseed " << seed << " round " << round;
        }
    }
}

} // namespace
} // namespace Ondo::Test
