#include "tests/support/Commands.h"

#include "corvane/operation/OperationDeleteNext.h"
#include "corvane/operation/OperationDeletePrevious.h"
#include "corvane/operation/OperationIndent.h"
#include "corvane/operation/OperationInsertNewline.h"
#include "corvane/operation/OperationNormalizeIndentation.h"
#include "tests/support/Print.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {

namespace {

using namespace CVN::Operation;

using Results = Act::Results;

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

bool isSplit(const Act& act, const Place& place, std::u16string_view before) {
    return splitsPair(place.range, before) || (!act.isOfEdit() && splitsPair(place.selection, before));
}

} // namespace

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

Deed carryOut(const Act& act, CVNAST& note, const Place& place) {
    const std::u16string before(note.markdown());
    const std::u16string tree = note.ast->toIndentedTree();
    const Results results = act.run(note, place);
    const auto deed = [&](std::string fault) { return Deed{results, std::move(fault)}; };
    if (note.markdown() != before || note.ast->toIndentedTree() != tree) return deed("the note changed");
    if (results.empty()) return {};
    std::u16string expected = before;
    if (std::string fault = applyTo(expected, results); !fault.empty()) return deed(fault);
    if (!isSplit(act, place, before) && splitsPair(results.back().proposedSelection, expected))
        return deed("the selection splits a pair");
    if (act.correction && !comeFromTheEnd(results)) return deed("the results are in the wrong order");
    note.applyTextOperationResults(results);
    if (note.markdown() != expected) return deed("the façade gives another text");
    return deed(differenceFromFreshParse(*note.ast));
}

std::string show(CVNRange at) {
    return show(at.coreRange());
}

std::string show(const Place& place) {
    std::string out = show(place.range) + ", selection " + show(place.selection) + ", typing " +
                      visible(place.text) + ", arguments";
    for (const std::u16string& text : place.texts)
        out += ' ' + visible(text);
    return out + (place.flag ? " yes" : " no");
}

std::string show(const Results& results) {
    std::string out;
    for (const CVNASTOperationResult& each : results)
        out += "\n  " + show(each.replacementRange) + visible(each.replacementString) + " select " +
               show(each.proposedSelection);
    return out;
}

} // namespace Ondo::Test
