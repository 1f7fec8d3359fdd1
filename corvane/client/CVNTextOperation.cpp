#include "corvane/client/CVNTextOperation.h"

#include <cstddef>

#include "corvane/client/CVNAST.h"
#include "corvane/correction/CalloutCorrection.h"
#include "corvane/correction/FencedCodeCorrection.h"
#include "corvane/correction/ListItemSpaceCorrection.h"
#include "corvane/correction/MathBlockCorrection.h"
#include "corvane/correction/TableSpaceCorrection.h"
#include "corvane/operation/OperationDeleteNext.h"
#include "corvane/operation/OperationDeletePrevious.h"
#include "corvane/operation/OperationExitInlines.h"
#include "corvane/operation/OperationIndent.h"
#include "corvane/operation/OperationInsertNewline.h"
#include "corvane/operation/OperationNormalizeIndentation.h"
#include "corvane/operation/OperationToggleBlockStyle.h"
#include "corvane/operation/OperationToggleInlineStyle.h"

namespace {

using namespace CVN::Operation;
using namespace CVN::Correction;

using Results = CVNTextOperation::Results;
using Arguments = CVNTextArguments;

// The façade's numbers start from 1, and what it does not know is the first style.

constexpr InlineToggles inlineToggle(std::int64_t style) {
    if (style == 10) return InlineToggles::CodeSpan;
    if (style == 11) return InlineToggles::MathSpan;
    return style >= 1 && style <= 9 ? static_cast<InlineToggles>(style) : InlineToggles::Strong;
}

constexpr BlockToggles blockToggle(std::int64_t style) {
    return style >= 1 && style <= 17 ? static_cast<BlockToggles>(style) : BlockToggles::Heading1;
}

Results insertNewline(const CVNAST& note, CVNRange range, CVNRange selection, const Arguments&) {
    Results results = note.resultForTextOperation(ExitInlines(), range, selection);
    if (!results.empty()) return results;
    const InsertNewline newline(InsertNewlineListItemOption::NewItem, IndentStyle::Spaces);
    return note.resultForTextOperation(newline, range, selection);
}

constexpr CVNTextParameter inlineStyle{
    "STYLE", CVNTextParameter::Kind::Number,
    "1 italic, 2 strikethrough, 3 underline, 4 highlight, 5 to 9 in red, blue, green, yellow, purple, "
    "10 code, 11 math, any other bold"};
constexpr CVNTextParameter blockStyle{
    "STYLE", CVNTextParameter::Kind::Number,
    "1 to 5 heading 2 to 6, 6 bullets, 7 numbers, 8 tasks, 9 quote, 10 code, 11 math, 12 callout, 13 note, "
    "14 tip, 15 caution, 16 warning, 17 important, any other heading 1"};

using Op = CVNTextOperation::Number;

constexpr CVNTextOperation operationRows[] = {
    {Op::indent,
     "indent",
     {},
     [](const CVNAST& note, CVNRange range, CVNRange selection, const Arguments&) {
         return note.resultForTextOperation(Indent(IndentAction::Indent, IndentStyle::Spaces), range,
                                            selection);
     }},
    {Op::outdent,
     "outdent",
     {},
     [](const CVNAST& note, CVNRange range, CVNRange selection, const Arguments&) {
         return note.resultForTextOperation(Indent(IndentAction::Undent, IndentStyle::Spaces), range,
                                            selection);
     }},
    {Op::toggleInlineStyle,
     "toggleInlineStyle",
     {inlineStyle},
     [](const CVNAST& note, CVNRange range, CVNRange selection, const Arguments& arguments) {
         return note.resultForTextOperation(ToggleInlineStyle(inlineToggle(arguments[0].number)), range,
                                            selection);
     }},
    {Op::toggleBlockStyle,
     "toggleBlockStyle",
     {blockStyle},
     [](const CVNAST& note, CVNRange range, CVNRange selection, const Arguments& arguments) {
         return note.resultForTextOperation(ToggleBlockStyle(blockToggle(arguments[0].number)), range,
                                            selection);
     }},
    {Op::insertNewlineInRange, "insertNewlineInRange", {}, insertNewline},
    {Op::normalizeIndentationInRange,
     "normalizeIndentationInRange",
     {},
     [](const CVNAST& note, CVNRange range, CVNRange selection, const Arguments&) {
         return note.resultForTextOperation(NormalizeIndentation(IndentStyle::Spaces), range, selection);
     }},
    {Op::deletePrevious,
     "deletePrevious",
     {},
     [](const CVNAST& note, CVNRange range, CVNRange selection, const Arguments&) {
         return note.resultForTextOperation(DeletePrevious(IndentStyle::Spaces), range, selection);
     }},
    {Op::deleteNext,
     "deleteNext",
     {},
     [](const CVNAST& note, CVNRange range, CVNRange selection, const Arguments&) {
         return note.resultForTextOperation(DeleteNext(IndentStyle::Spaces), range, selection);
     }},
};

using Fix = CVNTextCorrection::Number;

constexpr CVNTextCorrection correctionRows[] = {
    {Fix::fencedCodeCorrectionIn, "fencedCodeCorrectionIn",
     [](const CVNAST& note, CVNRange range, std::u16string_view text, CVNRange selection) {
         return note.resultForTextCorrection(FencedCodeCorrection(IndentStyle::Spaces), range, text,
                                             selection);
     }},
    {Fix::listItemSpaceCorrectionIn, "listItemSpaceCorrectionIn",
     [](const CVNAST& note, CVNRange range, std::u16string_view text, CVNRange selection) {
         return note.resultForTextCorrection(ListItemSpaceCorrection(), range, text, selection);
     }},
    {Fix::calloutCorrectionIn, "calloutCorrectionIn",
     [](const CVNAST& note, CVNRange range, std::u16string_view text, CVNRange selection) {
         return note.resultForTextCorrection(CalloutCorrection(), range, text, selection);
     }},
    {Fix::mathBlockCorrectionIn, "mathBlockCorrectionIn",
     [](const CVNAST& note, CVNRange range, std::u16string_view text, CVNRange selection) {
         return note.resultForTextCorrection(MathBlockCorrection(IndentStyle::Spaces), range, text,
                                             selection);
     }},
    {Fix::tableSpaceCorrectionIn, "tableSpaceCorrectionIn",
     [](const CVNAST& note, CVNRange range, std::u16string_view text, CVNRange selection) {
         return note.resultForTextCorrection(TableSpaceCorrection(), range, text, selection);
     }},
};

template <class Row, std::size_t N>
constexpr bool isInOrder(const Row (&rows)[N]) {
    for (std::size_t i = 0; i < N; ++i)
        if (static_cast<std::size_t>(rows[i].number) != i) return false;
    return true;
}

static_assert(isInOrder(operationRows) && isInOrder(correctionRows), "a row stands at its number");

template <class Row, std::size_t N>
const Row* findNamed(const Row (&rows)[N], std::string_view name) {
    for (const Row& row : rows)
        if (row.name == name) return &row;
    return nullptr;
}

} // namespace

std::span<const CVNTextOperation> CVNTextOperation::all() {
    return operationRows;
}

const CVNTextOperation* CVNTextOperation::named(std::string_view name) {
    return findNamed(operationRows, name);
}

std::span<const CVNTextCorrection> CVNTextCorrection::all() {
    return correctionRows;
}

const CVNTextCorrection* CVNTextCorrection::named(std::string_view name) {
    return findNamed(correctionRows, name);
}
