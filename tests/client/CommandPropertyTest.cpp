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

/// Where an act is asked to work, and what it is given there.
struct Place {
    CVNRange range;
    CVNRange selection;
    std::u16string text;     ///< that is typed
    std::u16string texts[3]; ///< arguments
    bool flag = false;
};

/// A command or correction with all that it takes but the place.
struct Act {
    std::string name;
    std::function<Results(const CVNAST& note, const Place& place)> run;
    const CVNTextCorrection* correction = nullptr;
};

template <class T, class... Parameters>
Act ofHost(std::string name, Parameters... parameters) {
    return {std::move(name), [operation = T(parameters...)](const CVNAST& note, const Place& place) {
                return note.resultForTextOperation(operation, place.range, place.selection);
            }};
}

CVNTextArguments argumentsOf(const CVNTextOperation& row, std::int64_t number, const Place& place) {
    CVNTextArguments arguments;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const CVNTextParameter::Kind kind = row.parameters[i].kind;
        if (kind == CVNTextParameter::Kind::Text) arguments[i].text = place.texts[i];
        if (kind == CVNTextParameter::Kind::Flag) arguments[i].number = place.flag;
        if (kind == CVNTextParameter::Kind::Number) arguments[i].number = number;
    }
    return arguments;
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
        const bool hasNumber = row.parameters[0].kind == CVNTextParameter::Kind::Number;
        for (std::int64_t number = 0; number <= (hasNumber ? 17 : 0); ++number)
            acts.push_back({row.name + (" " + std::to_string(number)),
                            [&row, number](const CVNAST& note, const Place& place) {
                                return row.run(note, place.range, place.selection,
                                               argumentsOf(row, number, place));
                            }});
    }
    for (const CVNTextCorrection& row : CVNTextCorrection::all())
        acts.push_back({row.name,
                        [&row](const CVNAST& note, const Place& place) {
                            return row.run(note, place.range, place.text, place.selection);
                        },
                        &row});
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

/// A tag, target, URL or text: mostly one that the notes have.
std::u16string argument(RandomNote& random) {
    constexpr std::u16string_view known[] = {
        u"t",   u"a", u"a b", u"k",   u"g",   u"l",      u"b/c", u"j k", u"u v",  u"x\ny\n", u"#",  u"",
        u"/a/", u"f", u"1",   u"\\/", u"- a", u"[b]: x", u"]",   u"|",   u"&amp", u"ÄB",     u"/u", u"a.png"};
    return random.below(3) == 0 ? random.piece() : std::u16string(known[random.below(std::size(known))]);
}

Place placeOf(const Act& act, RandomNote& random, std::int64_t length) {
    Place place{CVNRange::of(random.range(length)), {}, {}, {}};
    if (random.below(4) == 0) place.range = CVNRange::of(random.range(length));
    if (random.below(6) == 0) place.range.length = length - place.range.location;
    for (std::u16string& text : place.texts)
        text = argument(random);
    place.flag = random.below(2) == 0;
    place.selection = place.range;
    if (act.correction && !act.correction->isOfSelection) {
        constexpr std::u16string_view typed[] = {u"`",  u"``", u"```", u"$", u"$$",
                                                 u"\n", u"",   u"x",   u" ", u"|"};
        place.text = random.below(4) == 0 ? random.piece() : std::u16string(typed[random.below(10)]);
        place.selection = {place.range.location + static_cast<std::int64_t>(place.text.size()), 0};
    } else if (random.below(5) == 0 || act.correction) {
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
    results = act.run(note, place);
    if (note.markdown() != before || note.ast->toIndentedTree() != tree) return "the note changed";
    if (results.empty()) return {};
    std::u16string expected = before;
    if (std::string fault = applyTo(expected, results); !fault.empty()) return fault;
    const bool wasSplit =
        splitsPair(place.range, before) ||
        ((!act.correction || act.correction->isOfSelection) && splitsPair(place.selection, before));
    if (!wasSplit && splitsPair(results.back().proposedSelection, expected))
        return "the selection splits a pair";
    if (act.correction && !comeFromTheEnd(results)) return "the results are in the wrong order";
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
                                 << show(place.selection) << " typing " << visible(place.text)
                                 << " arguments " << visible(place.texts[0]) << " " << visible(place.texts[1])
                                 << " in " << visible(before) << " under " << nameOf(note.ast->ruleSet)
                                 << show(results) << "\nseed " << seed << " round " << round;
        }
    }
}

} // namespace
} // namespace Ondo::Test
