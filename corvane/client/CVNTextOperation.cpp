#include "corvane/client/CVNTextOperation.h"

#include <cstddef>
#include <utility>

#include "corvane/client/CVNAST.h"
#include "corvane/correction/CalloutCorrection.h"
#include "corvane/correction/DeleteWhitespaceCorrection.h"
#include "corvane/correction/FencedCodeCorrection.h"
#include "corvane/correction/InvalidCharacterCorrection.h"
#include "corvane/correction/ListItemSpaceCorrection.h"
#include "corvane/correction/MathBlockCorrection.h"
#include "corvane/correction/PasteDeduplicateBlockCorrection.h"
#include "corvane/correction/PasteLineEndingCorrection.h"
#include "corvane/correction/PasteWhitespaceCorrection.h"
#include "corvane/correction/SelectionCorrection.h"
#include "corvane/correction/TableSpaceCorrection.h"
#include "corvane/operation/OperationAddTag.h"
#include "corvane/operation/OperationAddTagAtTop.h"
#include "corvane/operation/OperationAppendText.h"
#include "corvane/operation/OperationDeleteNext.h"
#include "corvane/operation/OperationDeletePrevious.h"
#include "corvane/operation/OperationEscapePipes.h"
#include "corvane/operation/OperationEscapeTag.h"
#include "corvane/operation/OperationExitInlines.h"
#include "corvane/operation/OperationIndent.h"
#include "corvane/operation/OperationInsertBlock.h"
#include "corvane/operation/OperationInsertFootnote.h"
#include "corvane/operation/OperationInsertFootnoteDefinition.h"
#include "corvane/operation/OperationInsertNewline.h"
#include "corvane/operation/OperationJumpTableCell.h"
#include "corvane/operation/OperationMoveLines.h"
#include "corvane/operation/OperationMutateTable.h"
#include "corvane/operation/OperationNormalizeCallouts.h"
#include "corvane/operation/OperationNormalizeIndentation.h"
#include "corvane/operation/OperationNormalizeTables.h"
#include "corvane/operation/OperationPrependText.h"
#include "corvane/operation/OperationRemoveLink.h"
#include "corvane/operation/OperationRemoveStrayMetaComments.h"
#include "corvane/operation/OperationRemoveTag.h"
#include "corvane/operation/OperationRenameTag.h"
#include "corvane/operation/OperationRenameUnusedFootnoteDefinitions.h"
#include "corvane/operation/OperationRenumberFootnotes.h"
#include "corvane/operation/OperationRenumberOrderedList.h"
#include "corvane/operation/OperationReorderFootnoteDefinitions.h"
#include "corvane/operation/OperationSelectAllText.h"
#include "corvane/operation/OperationToggleBlockStyle.h"
#include "corvane/operation/OperationToggleFold.h"
#include "corvane/operation/OperationToggleInlineStyle.h"
#include "corvane/operation/OperationToggleTask.h"
#include "corvane/operation/OperationUnfoldRangeEdges.h"
#include "corvane/operation/OperationUpdateLinks.h"
#include "corvane/operation/OperationUpdateWikiLinks.h"

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

constexpr ToggleTaskType taskToggle(std::int64_t style) {
    if (style == 1) return ToggleTaskType::Check;
    return style == 2 ? ToggleTaskType::Uncheck : ToggleTaskType::Toggle;
}

// What a row runs: a command of the range, or of the whole note, which ignores the range.

template <class Command, auto... parameters>
Results ranged(const CVNAST& note, CVNRange range, CVNRange selection, const Arguments&) {
    return note.resultForTextOperation(Command(parameters...), range, selection);
}

/// The façade's number of a style, as the command's own.
template <class Command, auto toOwn>
Results styled(const CVNAST& note, CVNRange range, CVNRange selection, const Arguments& arguments) {
    return note.resultForTextOperation(Command(toOwn(arguments[0].number)), range, selection);
}

template <class Command>
Results rangedWithText(const CVNAST& note, CVNRange range, CVNRange selection, const Arguments& arguments) {
    return note.resultForTextOperation(Command(arguments[0].text), range, selection);
}

template <class Command, auto... parameters>
Results whole(const CVNAST& note, CVNRange, CVNRange selection, const Arguments&) {
    return note.resultForTextOperation(Command(parameters...), {}, selection);
}

template <class Command>
Results wholeWithText(const CVNAST& note, CVNRange, CVNRange selection, const Arguments& arguments) {
    return note.resultForTextOperation(Command(arguments[0].text), {}, selection);
}

template <class Command>
Results wholeWithTexts(const CVNAST& note, CVNRange, CVNRange selection, const Arguments& arguments) {
    return note.resultForTextOperation(Command(arguments[0].text, arguments[1].text), {}, selection);
}

template <bool exact>
Results append(const CVNAST& note, CVNRange, CVNRange selection, const Arguments& arguments) {
    return note.resultForTextOperation(AppendText(arguments[0].text, exact), {}, selection);
}

Results updateWikiLinks(const CVNAST& note, CVNRange, CVNRange selection, const Arguments& arguments) {
    const UpdateWikiLinks update(arguments[0].text, arguments[1].text, arguments[2].number != 0);
    return note.resultForTextOperation(update, {}, selection);
}

Results insertNewline(const CVNAST& note, CVNRange range, CVNRange selection, const Arguments&) {
    Results results = note.resultForTextOperation(ExitInlines(), range, selection);
    if (!results.empty()) return results;
    const InsertNewline newline(InsertNewlineListItemOption::NewItem, IndentStyle::Spaces);
    return note.resultForTextOperation(newline, range, selection);
}

/// No opinion on a number that is no action.
Results mutateTable(const CVNAST& note, CVNRange range, CVNRange selection, const Arguments& arguments) {
    const std::int64_t action = arguments[0].number;
    if (action < 0 || action > static_cast<std::int64_t>(MutateTableAction::AlignRight)) return {};
    return note.resultForTextOperation(MutateTable(static_cast<MutateTableAction>(action)), range, selection);
}

constexpr JumpTableCellDirection cellDirection(std::int64_t direction) {
    return direction == 1 ? JumpTableCellDirection::Previous : JumpTableCellDirection::Next;
}

// Parameters

constexpr CVNTextParameter inlineStyle{
    "STYLE", CVNTextParameter::Kind::Number,
    "1 italic, 2 strikethrough, 3 underline, 4 highlight, 5 to 9 in red, blue, green, yellow, purple, "
    "10 code, 11 math, any other bold"};
constexpr CVNTextParameter blockStyle{
    "STYLE", CVNTextParameter::Kind::Number,
    "1 to 5 heading 2 to 6, 6 bullets, 7 numbers, 8 tasks, 9 quote, 10 code, 11 math, 12 callout, 13 note, "
    "14 tip, 15 caution, 16 warning, 17 important, any other heading 1"};

constexpr CVNTextParameter taskStyle{"STYLE", CVNTextParameter::Kind::Number,
                                     "1 checks, 2 unchecks, any other does what a task needs"};
constexpr CVNTextParameter tagPath{"TAG", CVNTextParameter::Kind::Text,
                                   "segments with / between them, without #"};
constexpr CVNTextParameter oldTag{"FROM", CVNTextParameter::Kind::Text,
                                  "segments with / between them, without #"};
constexpr CVNTextParameter newTag{"TO", CVNTextParameter::Kind::Text,
                                  "segments with / between them, without #"};
constexpr CVNTextParameter newText{"TEXT", CVNTextParameter::Kind::Text, nullptr};
constexpr CVNTextParameter oldTarget{"FROM", CVNTextParameter::Kind::Text, "segments with / between them"};
constexpr CVNTextParameter newTarget{"TO", CVNTextParameter::Kind::Text, "segments with / between them"};
constexpr CVNTextParameter skipInTitle{"SKIP_IN_TITLE", CVNTextParameter::Kind::Flag,
                                       "whether the title keeps its wikilinks"};
constexpr CVNTextParameter oldUrl{"FROM", CVNTextParameter::Kind::Text, "a URL"};
constexpr CVNTextParameter newUrl{"TO", CVNTextParameter::Kind::Text, "a URL"};
constexpr CVNTextParameter linkUrl{"URL", CVNTextParameter::Kind::Text, "a URL"};
constexpr CVNTextParameter definitionText{"TEXT", CVNTextParameter::Kind::Text, "of the definition"};
constexpr CVNTextParameter tableAction{
    "ACTION", CVNTextParameter::Kind::Number,
    "0 adds a row above, 1 below, 2 deletes the row, 3 moves it up, 4 down, 5 adds a column before, 6 "
    "behind, 7 deletes the column, 8 moves it left, 9 right, 10 aligns it not at all, 11 left, 12 center, 13 "
    "right"};
constexpr CVNTextParameter cellChoice{"DIRECTION", CVNTextParameter::Kind::Number,
                                      "1 the previous cell, any other the next"};

using Op = CVNTextOperation::Number;

constexpr CVNTextOperation operationRows[] = {
    {Op::indent,
     "indent",
     "Tab: nests the items of a range one deeper.",
     {},
     ranged<Indent, IndentAction::Indent, IndentStyle::Spaces>},
    {Op::outdent,
     "outdent",
     "Shift-tab: takes the items of a range one level out.",
     {},
     ranged<Indent, IndentAction::Undent, IndentStyle::Spaces>},
    {Op::toggleInlineStyle,
     "toggleInlineStyle",
     "Bold, italic and their like, on and off.",
     {inlineStyle},
     styled<ToggleInlineStyle, inlineToggle>},
    {Op::toggleBlockStyle,
     "toggleBlockStyle",
     "Headings, lists, quotes, code and callouts, on and off.",
     {blockStyle},
     styled<ToggleBlockStyle, blockToggle>},
    {Op::insertNewlineInRange,
     "insertNewlineInRange",
     "Return: leaves an inline, or goes on with the block.",
     {},
     insertNewline},
    {Op::normalizeIndentationInRange,
     "normalizeIndentationInRange",
     "Makes the indentation of lists and quotes regular.",
     {},
     ranged<NormalizeIndentation, IndentStyle::Spaces>},
    {Op::deletePrevious,
     "deletePrevious",
     "Backspace, with a caret.",
     {},
     ranged<DeletePrevious, IndentStyle::Spaces>},
    {Op::deleteNext, "deleteNext", "Delete, with a caret.", {}, ranged<DeleteNext, IndentStyle::Spaces>},
    {Op::toggleTask,
     "toggleTask",
     "Checks and unchecks the tasks of a range.",
     {taskStyle},
     styled<ToggleTask, taskToggle>},
    {Op::normalizeCalloutInRange,
     "normalizeCalloutInRange",
     "Keeps a callout from being the first line of a note.",
     {},
     ranged<NormalizeCallouts>},
    {Op::renumberOrderedListInRange,
     "renumberOrderedListInRange",
     "Gives the items of the ordered lists of a range their numbers.",
     {},
     ranged<RenumberOrderedList>},
    {Op::removeStrayMetaCommentInRange,
     "removeStrayMetaCommentInRange",
     "Removes comments of folds and previews that lost what they belong to.",
     {},
     ranged<RemoveStrayMetaComments>},
    {Op::addTagToTop,
     "addTagToTop",
     "Adds a tag below the title.",
     {tagPath},
     wholeWithText<AddTagAtTop>,
     true},
    {Op::addTagToBottom,
     "addTagToBottom",
     "Adds a tag at the end, before the footnotes.",
     {tagPath},
     wholeWithText<AddTag>,
     true},
    {Op::removeTag,
     "removeTag",
     "Removes a tag and those below it.",
     {tagPath},
     wholeWithText<RemoveTag>,
     true},
    {Op::renameTag,
     "renameTag",
     "Renames a tag and with it those below it.",
     {oldTag, newTag},
     wholeWithTexts<RenameTag>,
     true},
    {Op::escapeTag,
     "escapeTag",
     "Turns a tag and those below it into plain text.",
     {tagPath},
     wholeWithText<EscapeTag>,
     true},
    {Op::appendText,
     "appendText",
     "Adds text at the end, before the last line of tags and the footnotes.",
     {newText},
     append<false>,
     true},
    {Op::appendTextExact,
     "appendTextExact",
     "Adds text at the very end, as it stands.",
     {newText},
     append<true>,
     true},
    {Op::prependText,
     "prependText",
     "Adds text below the title and the line of tags.",
     {newText},
     wholeWithText<PrependText>,
     true},
    {Op::updateWikiLinks,
     "updateWikiLinks",
     "Points wikilinks to a note, and to its parts, elsewhere.",
     {oldTarget, newTarget, skipInTitle},
     updateWikiLinks,
     true},
    {Op::updateLinksURL,
     "updateLinksURL",
     "Points links and images elsewhere.",
     {oldUrl, newUrl},
     wholeWithTexts<UpdateLinks>,
     true},
    {Op::removeLinkWithURL,
     "removeLinkWithURL",
     "Removes the links and images that lead to a URL.",
     {linkUrl},
     wholeWithText<RemoveLink>,
     true},
    {Op::insertThematicBreak,
     "insertThematicBreak",
     "Puts a thematic break in the place of a range.",
     {},
     ranged<InsertBlock, InsertBlockType::ThematicBreak>},
    {Op::insertTable,
     "insertTable",
     "Puts an empty table in the place of a range.",
     {},
     ranged<InsertBlock, InsertBlockType::Table>},
    {Op::toggleFoldInRange,
     "toggleFoldInRange",
     "Folds the section or item of the caret, or unfolds it.",
     {},
     ranged<ToggleFold, ToggleFoldType::ToggleAtSelection>},
    {Op::foldAllHeadingSelectionRange,
     "foldAllHeadingSelectionRange",
     "Folds all headings but one that covers the whole note.",
     {},
     whole<ToggleFold, ToggleFoldType::FoldAll>,
     true},
    {Op::unfoldAllHeadingSelectionRange,
     "unfoldAllHeadingSelectionRange",
     "Opens all folds.",
     {},
     whole<ToggleFold, ToggleFoldType::UnfoldAll>,
     true},
    {Op::unfoldAtRangeEdges,
     "unfoldAtRangeEdges",
     "Opens the folds that hide the edges of a range.",
     {},
     ranged<OperationUnfoldRangeEdges>},
    {Op::escapePipesInRange,
     "escapePipesInRange",
     "Puts a backslash in front of the pipes of a range.",
     {},
     ranged<EscapePipes>},
    {Op::insertFootnoteWithDefinitionText,
     "insertFootnoteWithDefinitionText",
     "Inserts a footnote reference behind a range, and its definition.",
     {definitionText},
     rangedWithText<InsertFootnote>},
    {Op::insertFootnoteDefinitionWithText,
     "insertFootnoteDefinitionWithText",
     "Adds the definition that the footnote reference at a range lacks.",
     {definitionText},
     rangedWithText<InsertFootnoteDefinition>},
    {Op::renameUnusedFootnoteDefinitionsIn,
     "renameUnusedFootnoteDefinitionsIn",
     "Marks numbered footnotes that nothing refers to.",
     {},
     ranged<RenameUnusedFootnoteDefinitions>},
    {Op::renumberFootnotesIn,
     "renumberFootnotesIn",
     "Numbers footnotes in the order of their references.",
     {},
     ranged<RenumberFootnotes>},
    {Op::reorderFootnoteDefinitionsIn,
     "reorderFootnoteDefinitionsIn",
     "Sorts footnotes that follow each other by their labels.",
     {},
     ranged<ReorderFootnoteDefinitions>},
    {Op::moveLinesUpIn,
     "moveLinesUpIn",
     "Moves the lines of a range up.",
     {},
     ranged<MoveLines, MoveLinesDirection::Up>},
    {Op::moveLinesDownIn,
     "moveLinesDownIn",
     "Moves the lines of a range down.",
     {},
     ranged<MoveLines, MoveLinesDirection::Down>},
    {Op::selectAllTextIn,
     "selectAllTextIn",
     "Selects the code around the caret, then the whole text.",
     {},
     ranged<SelectAllText>},
    {Op::mutateTable,
     "mutateTable",
     "Adds, deletes and moves rows and columns of a table, and aligns columns.",
     {tableAction},
     mutateTable},
    {Op::jumpTableCell,
     "jumpTableCell",
     "Selects the next or previous cell of a table.",
     {cellChoice},
     styled<JumpTableCell, cellDirection>},
    {Op::normalizeTables,
     "normalizeTables",
     "Pads the cells of the tables of a range so that their pipes line up.",
     {},
     ranged<NormalizeTables>},
};

template <class Rule, auto... parameters>
Results ran(const CVNAST& note, CVNRange range, std::u16string_view text, CVNRange selection) {
    return note.resultForTextCorrection(Rule(parameters...), range, text, selection);
}

/// The corrections of a paste one behind the other, each of what the one before made of it.
Results paste(const CVNAST& note, CVNRange range, std::u16string_view text, CVNRange selection) {
    using Run = Results (*)(const CVNAST&, CVNRange, std::u16string_view, CVNRange);
    constexpr Run chain[] = {ran<PasteWhitespaceCorrection>, ran<PasteDeduplicateBlockCorrection>,
                             ran<PasteLineEndingCorrection, IndentStyle::Spaces>};
    Results results;
    for (const Run run : chain) {
        Results next = results.empty()
                           ? run(note, range, text, selection)
                           : run(note, results.back().replacementRange, results.back().replacementString,
                                 results.back().proposedSelection);
        if (!next.empty()) results = std::move(next);
    }
    return results;
}

/// No opinion on an edit that brings text: that is none of the selection alone.
Results selected(const CVNAST& note, CVNRange range, std::u16string_view text, CVNRange selection) {
    return text.empty() ? ran<SelectionCorrection>(note, range, text, selection) : Results();
}

using Fix = CVNTextCorrection::Number;

constexpr CVNTextCorrection correctionRows[] = {
    {Fix::fencedCodeCorrectionIn, "fencedCodeCorrectionIn", "Fences of code come in pairs.",
     ran<FencedCodeCorrection, IndentStyle::Spaces>},
    {Fix::listItemSpaceCorrectionIn, "listItemSpaceCorrectionIn",
     "No more blanks behind the marker of an item.", ran<ListItemSpaceCorrection>},
    {Fix::calloutCorrectionIn, "calloutCorrectionIn", "Text stays a space away from the marker of a callout.",
     ran<CalloutCorrection>},
    {Fix::mathBlockCorrectionIn, "mathBlockCorrectionIn", "\"$$\" does not swallow the text behind it.",
     ran<MathBlockCorrection, IndentStyle::Spaces>},
    {Fix::tableSpaceCorrectionIn, "tableSpaceCorrectionIn",
     "Text stays a space away from the pipes of a table.", ran<TableSpaceCorrection>},
    {Fix::pasteCorrectionIn, "pasteCorrectionIn",
     "A paste fits where it lands: spaces, list markers and the prefixes of lines.", paste},
    {Fix::selectionCorrectionIn, "selectionCorrectionIn",
     "A selection keeps inlines whole: range is the old selection, the text is empty.", selected, true},
    {Fix::invalidCharacterCorrectionIn, "invalidCharacterCorrectionIn",
     "Carriage returns become line feeds, and NUL goes.", ran<InvalidCharacterCorrection>},
    {Fix::deleteWhitespaceCorrectionIn, "deleteWhitespaceCorrectionIn",
     "A deleted word takes a surplus space along.", ran<DeleteWhitespaceCorrection>},
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
