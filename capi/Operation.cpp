#include <algorithm>
#include <span>
#include <utility>

#include "capi/Arguments.h"
#include "capi/Handles.h"
#include "corvane/client/CVNTextOperation.h"
#include "corvane/operation/Operation.h"

using namespace CApi;

// The layout that corvane.h promises where 64-bit numbers are aligned to their size.
static_assert(alignof(std::int64_t) != 8 || sizeof(corvane_replacement) == 48);
static_assert(alignof(std::int64_t) != 8 || sizeof(corvane_argument) == 24);

namespace {

// The numbers of corvane.h are those of the tables.

using Commands = CVNTextOperation::Number;
using Corrections = CVNTextCorrection::Number;

template <class Number>
constexpr bool isSame(std::int32_t c, Number number) {
    return c == static_cast<std::int32_t>(number);
}
static_assert(isSame(CORVANE_COMMAND_INDENT, Commands::indent));
static_assert(isSame(CORVANE_COMMAND_OUTDENT, Commands::outdent));
static_assert(isSame(CORVANE_COMMAND_TOGGLE_INLINE_STYLE, Commands::toggleInlineStyle));
static_assert(isSame(CORVANE_COMMAND_TOGGLE_BLOCK_STYLE, Commands::toggleBlockStyle));
static_assert(isSame(CORVANE_COMMAND_INSERT_NEWLINE, Commands::insertNewlineInRange));
static_assert(isSame(CORVANE_COMMAND_NORMALIZE_INDENTATION, Commands::normalizeIndentationInRange));
static_assert(isSame(CORVANE_COMMAND_DELETE_PREVIOUS, Commands::deletePrevious));
static_assert(isSame(CORVANE_COMMAND_DELETE_NEXT, Commands::deleteNext));
static_assert(isSame(CORVANE_COMMAND_TOGGLE_TASK, Commands::toggleTask));
static_assert(isSame(CORVANE_COMMAND_NORMALIZE_CALLOUT, Commands::normalizeCalloutInRange));
static_assert(isSame(CORVANE_COMMAND_RENUMBER_ORDERED_LIST, Commands::renumberOrderedListInRange));
static_assert(isSame(CORVANE_COMMAND_REMOVE_STRAY_META_COMMENT, Commands::removeStrayMetaCommentInRange));
static_assert(isSame(CORVANE_COMMAND_ADD_TAG_TO_TOP, Commands::addTagToTop));
static_assert(isSame(CORVANE_COMMAND_ADD_TAG_TO_BOTTOM, Commands::addTagToBottom));
static_assert(isSame(CORVANE_COMMAND_REMOVE_TAG, Commands::removeTag));
static_assert(isSame(CORVANE_COMMAND_RENAME_TAG, Commands::renameTag));
static_assert(isSame(CORVANE_COMMAND_ESCAPE_TAG, Commands::escapeTag));
static_assert(isSame(CORVANE_COMMAND_APPEND_TEXT, Commands::appendText));
static_assert(isSame(CORVANE_COMMAND_APPEND_TEXT_EXACT, Commands::appendTextExact));
static_assert(isSame(CORVANE_COMMAND_PREPEND_TEXT, Commands::prependText));
static_assert(isSame(CORVANE_COMMAND_UPDATE_WIKI_LINKS, Commands::updateWikiLinks));
static_assert(isSame(CORVANE_COMMAND_UPDATE_LINKS_URL, Commands::updateLinksURL));
static_assert(isSame(CORVANE_COMMAND_REMOVE_LINK_WITH_URL, Commands::removeLinkWithURL));
static_assert(isSame(CORVANE_COMMAND_INSERT_THEMATIC_BREAK, Commands::insertThematicBreak));
static_assert(isSame(CORVANE_COMMAND_INSERT_TABLE, Commands::insertTable));
static_assert(isSame(CORVANE_COMMAND_TOGGLE_FOLD, Commands::toggleFoldInRange));
static_assert(isSame(CORVANE_COMMAND_FOLD_ALL_HEADING, Commands::foldAllHeadingSelectionRange));
static_assert(isSame(CORVANE_COMMAND_UNFOLD_ALL_HEADING, Commands::unfoldAllHeadingSelectionRange));
static_assert(isSame(CORVANE_COMMAND_UNFOLD_AT_RANGE_EDGES, Commands::unfoldAtRangeEdges));
static_assert(isSame(CORVANE_COMMAND_ESCAPE_PIPES, Commands::escapePipesInRange));
static_assert(isSame(CORVANE_COMMAND_INSERT_FOOTNOTE, Commands::insertFootnoteWithDefinitionText));
static_assert(isSame(CORVANE_COMMAND_INSERT_FOOTNOTE_DEFINITION, Commands::insertFootnoteDefinitionWithText));
static_assert(isSame(CORVANE_COMMAND_RENAME_UNUSED_FOOTNOTE_DEFINITIONS,
                     Commands::renameUnusedFootnoteDefinitionsIn));
static_assert(isSame(CORVANE_COMMAND_RENUMBER_FOOTNOTES, Commands::renumberFootnotesIn));
static_assert(isSame(CORVANE_COMMAND_REORDER_FOOTNOTE_DEFINITIONS, Commands::reorderFootnoteDefinitionsIn));
static_assert(isSame(CORVANE_COMMAND_MOVE_LINES_UP, Commands::moveLinesUpIn));
static_assert(isSame(CORVANE_COMMAND_MOVE_LINES_DOWN, Commands::moveLinesDownIn));
static_assert(isSame(CORVANE_COMMAND_SELECT_ALL_TEXT, Commands::selectAllTextIn));
static_assert(isSame(CORVANE_COMMAND_MUTATE_TABLE, Commands::mutateTable));
static_assert(isSame(CORVANE_COMMAND_JUMP_TABLE_CELL, Commands::jumpTableCell));
static_assert(isSame(CORVANE_COMMAND_NORMALIZE_TABLES, Commands::normalizeTables));
static_assert(isSame(CORVANE_INLINE_HIGHLIGHT_PURPLE, CVN::Operation::InlineToggles::HighlightPurple));
static_assert(isSame(CORVANE_BLOCK_TASK_LIST, CVN::Operation::BlockToggles::TaskList));
static_assert(isSame(CORVANE_BLOCK_CALLOUT_IMPORTANT, CVN::Operation::BlockToggles::CalloutImportant));
static_assert(isSame(CORVANE_TABLE_ALIGN_RIGHT, CVN::Operation::MutateTableAction::AlignRight));
static_assert(isSame(CORVANE_CORRECTION_FENCED_CODE, Corrections::fencedCodeCorrectionIn));
static_assert(isSame(CORVANE_CORRECTION_LIST_ITEM_SPACE, Corrections::listItemSpaceCorrectionIn));
static_assert(isSame(CORVANE_CORRECTION_CALLOUT, Corrections::calloutCorrectionIn));
static_assert(isSame(CORVANE_CORRECTION_MATH_BLOCK, Corrections::mathBlockCorrectionIn));
static_assert(isSame(CORVANE_CORRECTION_TABLE_SPACE, Corrections::tableSpaceCorrectionIn));
static_assert(isSame(CORVANE_CORRECTION_PASTE, Corrections::pasteCorrectionIn));
static_assert(isSame(CORVANE_CORRECTION_SELECTION, Corrections::selectionCorrectionIn));
static_assert(isSame(CORVANE_CORRECTION_INVALID_CHARACTER, Corrections::invalidCharacterCorrectionIn));
static_assert(isSame(CORVANE_CORRECTION_DELETE_WHITESPACE, Corrections::deleteWhitespaceCorrectionIn));

// Rows of the tables of commands and of corrections

template <class Row>
const Row* rowOf(std::int32_t number) {
    const std::span<const Row> all = Row::all();
    return number >= 0 && number < std::ssize(all) ? &all[static_cast<std::size_t>(number)] : nullptr;
}

template <class Row>
const char* nameOf(std::int32_t number) {
    const Row* const row = rowOf<Row>(number);
    return row ? row->name : nullptr;
}

template <class Row>
std::int32_t numberOf(const char* name) {
    const Row* const row = name ? Row::named(name) : nullptr;
    return row ? static_cast<std::int32_t>(row->number) : -1;
}

// Arguments

using Kind = CVNTextParameter::Kind;
using Arguments = std::span<const corvane_argument>;

constexpr std::size_t maximumArguments = std::tuple_size_v<CVNTextArguments>;

bool areTexts(Arguments arguments) {
    return std::all_of(arguments.begin(), arguments.end(), [](const corvane_argument& argument) {
        return isText(argument.text, argument.text_length);
    });
}

bool isOfKind(const corvane_argument& argument, Kind kind) {
    if (kind == Kind::Text) return argument.number == 0;
    const bool hasText = argument.text || argument.text_length > 0;
    const bool isTruth = argument.number == 0 || argument.number == 1;
    return !hasText && (kind == Kind::Number || (kind == Kind::Flag && isTruth));
}

/// Whether these are the arguments that a command takes.
bool fit(Arguments arguments, const CVNTextOperation& command) {
    std::size_t count = 0;
    for (const CVNTextParameter& parameter : command.parameters) {
        if (parameter.kind == Kind::None) break;
        if (count == arguments.size() || !isOfKind(arguments[count], parameter.kind)) return false;
        ++count;
    }
    return count == arguments.size();
}

CVNTextArguments toTable(Arguments arguments) {
    CVNTextArguments table;
    std::transform(arguments.begin(), arguments.end(), table.begin(), [](const corvane_argument& argument) {
        return CVNTextArgument{argument.number, view(argument.text, argument.text_length)};
    });
    return table;
}

corvane_status giveResults(CVNASTTextOperations::Results answer, corvane_results** results) {
    *results = new corvane_results(std::move(answer));
    return CORVANE_OK;
}

} // namespace

// Results

corvane_results::corvane_results(CVNASTTextOperations::Results results_) : results(std::move(results_)) {
    for (const CVNASTOperationResult& each : results)
        replacements.push_back({toC(each.replacementRange), each.replacementString.data(),
                                std::ssize(each.replacementString), toC(each.proposedSelection)});
}

corvane_status corvane_results_replacements(const corvane_results* results,
                                            const corvane_replacement** replacements, int64_t* count) {
    if (!results || !replacements || !count) return CORVANE_ERROR_NULL;
    *replacements = results->replacements.data();
    *count = std::ssize(results->replacements);
    return CORVANE_OK;
}

void corvane_results_destroy(corvane_results* results) {
    delete results;
}

namespace {

/// Whether results can be applied to a text of that length.
bool fit(const std::vector<corvane_replacement>& replacements, std::int64_t total) {
    for (const corvane_replacement& each : replacements) {
        if (!isWithin(each.range.location, each.range.length, total)) return false;
        total += each.text_length - each.range.length;
    }
    if (replacements.empty()) return true;
    const corvane_range& selection = replacements.back().selection;
    return isWithin(selection.location, selection.length, total);
}

} // namespace

corvane_status corvane_note_apply_results(corvane_note* note, const corvane_results* results,
                                          corvane_range* restyle, corvane_range* selection) {
    if (!note || !results) return CORVANE_ERROR_NULL;
    if (!fit(results->replacements, note->ast.markdownLength())) return CORVANE_ERROR_RANGE;
    if (note->isPending()) return CORVANE_ERROR_PENDING;
    const CVNRange changed = note->ast.applyTextOperationResults(results->results);
    const bool isEmpty = results->replacements.empty();
    if (restyle) *restyle = toC(changed);
    if (selection) *selection = isEmpty ? toC(CVNRange::notFound()) : results->replacements.back().selection;
    return CORVANE_OK;
}

// Commands

int32_t corvane_command_count() {
    return static_cast<int32_t>(CVNTextOperation::all().size());
}

const char* corvane_command_name(corvane_command command) {
    return nameOf<CVNTextOperation>(command);
}

corvane_command corvane_command_with_name(const char* name) {
    return numberOf<CVNTextOperation>(name);
}

corvane_value_kind corvane_command_argument_kind(corvane_command command, int32_t index) {
    /// By CVNTextParameter::Kind.
    constexpr corvane_value_kind kinds[] = {CORVANE_VALUE_NONE, CORVANE_VALUE_INTEGER, CORVANE_VALUE_STRING,
                                            CORVANE_VALUE_BOOLEAN};
    const auto* const row = rowOf<CVNTextOperation>(command);
    const bool isThere = row && index >= 0 && index < std::ssize(row->parameters);
    return isThere ? kinds[static_cast<std::size_t>(row->parameters[static_cast<std::size_t>(index)].kind)]
                   : CORVANE_VALUE_NONE;
}

corvane_status corvane_note_run_command(const corvane_note* note, corvane_command command, int64_t location,
                                        int64_t length, int64_t selection_location, int64_t selection_length,
                                        const corvane_argument* arguments, int64_t argument_count,
                                        corvane_results** results) {
    if (!note || !results || (!arguments && argument_count > 0)) return CORVANE_ERROR_NULL;
    // No command takes more than these, and the others are not looked at.
    const auto count = std::clamp<std::int64_t>(argument_count, 0, maximumArguments);
    const Arguments given(arguments, static_cast<std::size_t>(count));
    if (!areTexts(given)) return CORVANE_ERROR_TEXT;
    const auto* const row = rowOf<CVNTextOperation>(command);
    if (!row) return CORVANE_ERROR_NUMBER;
    const std::int64_t total = note->ast.markdownLength();
    if (!isWithin(location, length, total) || !isWithin(selection_location, selection_length, total))
        return CORVANE_ERROR_RANGE;
    if (count != argument_count || !fit(given, *row)) return CORVANE_ERROR_ARGUMENTS;
    return giveResults(
        row->run(note->ast, {location, length}, {selection_location, selection_length}, toTable(given)),
        results);
}

// Corrections

int32_t corvane_correction_count() {
    return static_cast<int32_t>(CVNTextCorrection::all().size());
}

const char* corvane_correction_name(corvane_correction correction) {
    return nameOf<CVNTextCorrection>(correction);
}

corvane_correction corvane_correction_with_name(const char* name) {
    return numberOf<CVNTextCorrection>(name);
}

corvane_status corvane_note_run_correction(const corvane_note* note, corvane_correction correction,
                                           int64_t location, int64_t length, const corvane_unit* text,
                                           int64_t text_length, int64_t selection_location,
                                           int64_t selection_length, corvane_results** results) {
    if (!note || !results) return CORVANE_ERROR_NULL;
    if (!isText(text, text_length)) return CORVANE_ERROR_TEXT;
    const auto* const row = rowOf<CVNTextCorrection>(correction);
    if (!row) return CORVANE_ERROR_NUMBER;
    const std::int64_t total = note->ast.markdownLength();
    const std::int64_t totalBehind = row->isOfSelection ? total : total - length + text_length;
    if (!isWithin(location, length, total) || !isWithin(selection_location, selection_length, totalBehind))
        return CORVANE_ERROR_RANGE;
    return giveResults(row->run(note->ast, {location, length}, view(text, text_length),
                                {selection_location, selection_length}),
                       results);
}
