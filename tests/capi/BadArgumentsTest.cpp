#include <limits>

#include "corvane/scan/Util.h"
#include "tests/capi/Handles.h"

/// Every function of the C API with what does not fit, in turn.

namespace Ondo::Test {
namespace {

using Util::utf8;

constexpr char16_t units[] = u"abc";
constexpr std::int64_t tooLong = std::numeric_limits<std::int64_t>::max();

/// Objects to ask and places for results.
struct Border {
    Note owner = noteOf(u"# a\n\n- [ ] **b**\n");
    Annotation annotated = annotate(owner, 0, 5);
    Results made = runCommand(owner, CORVANE_COMMAND_INDENT, {0, 0});
    corvane_note* note = owner.get();
    const corvane_results* results = made.get();
    const corvane_annotation* ask = annotated.get();

    corvane_range range{-7, -7};
    corvane_string* string = nullptr;
    corvane_note* newNote = nullptr;
    corvane_annotation* newAnnotation = nullptr;
    corvane_results* newResults = nullptr;
    const corvane_replacement* replacements = nullptr;
    const corvane_unit* text = nullptr;
    const corvane_run* runs = nullptr;
    corvane_run run{-7, -7, -7, -7, -7, nullptr, -7, nullptr};
    std::int64_t number = -7;
    std::int32_t truth = -7;
    corvane_list_info info{-7, -7, -7, -7, -7, -7, -7};
    corvane_unit buffer[4] = {};

    void expectUntouched() const {
        EXPECT_TRUE(!string && !newNote && !newAnnotation && !newResults && !text && !runs && !replacements);
        EXPECT_TRUE(range.location == -7 && range.length == -7 && number == -7 && truth == -7 &&
                    run.kind == -7);
        EXPECT_EQ(utf8(textOf(owner)), "# a\n\n- [ ] **b**\n");
        EXPECT_TRUE(info.list_type == -7 && buffer[0] == 0);
    }
};

/// Counts the constructs in the std::int64_t that `user` points to.
std::int32_t count(void* user, const corvane_construct*) {
    ++*static_cast<std::int64_t*>(user);
    return 0;
}

struct BadCall {
    corvane_status expected;
    corvane_status (*call)(Border& b);
};
constexpr corvane_status nullFault = CORVANE_ERROR_NULL;
constexpr corvane_status textFault = CORVANE_ERROR_TEXT;
constexpr corvane_status numberFault = CORVANE_ERROR_NUMBER;
constexpr corvane_status nameFault = CORVANE_ERROR_NAME;
constexpr corvane_status rangeFault = CORVANE_ERROR_RANGE;
constexpr corvane_status argumentsFault = CORVANE_ERROR_ARGUMENTS;

/// A style, and what is none.
constexpr corvane_argument bold{CORVANE_INLINE_BOLD, nullptr, 0};
constexpr corvane_argument twoStyles[] = {bold, bold};
constexpr corvane_argument named{0, units, 3};
constexpr corvane_argument noText{0, nullptr, 1};

/// Asks the command for a style, with range and selection at the start.
corvane_status toggle(Border& b, const corvane_argument* arguments, std::int64_t count) {
    return corvane_note_run_command(b.note, CORVANE_COMMAND_TOGGLE_INLINE_STYLE, 0, 0, 0, 0, arguments, count,
                                    &b.newResults);
}
/// Asks a command that takes no arguments.
corvane_status command(Border& b, corvane_command number, corvane_range at, corvane_range selection) {
    return corvane_note_run_command(b.note, number, at.location, at.length, selection.location,
                                    selection.length, nullptr, 0, &b.newResults);
}
/// Asks a correction about "abc".
corvane_status correct(Border& b, corvane_correction number, corvane_range at, corvane_range selection) {
    return corvane_note_run_correction(b.note, number, at.location, at.length, units, 3, selection.location,
                                       selection.length, &b.newResults);
}

// A name of each kind of query.
constexpr auto hasLink = "rangeContainsLink";
constexpr auto yaml = "hasYamlAtIndex";
constexpr auto levelAt = "headerLevelAtIndex";
constexpr auto linkAt = "linkRangeAtIndex";
constexpr auto level = "rangeOfListLevel";
constexpr auto extend = "extendRangeToFullyContainLists";
constexpr auto itemInfo = "listItemInfoAtIndex";
constexpr auto links = "enumerateLinkInRange";

const BadCall badCalls[] = {
    // notes
    {numberFault, [](Border&) { return corvane_set_rule_set(CORVANE_RULES_COMMONMARK); }},
    {numberFault, [](Border&) { return corvane_set_rule_set(3); }},
    {nullFault, [](Border&) { return corvane_note_create(nullptr); }},
    {nullFault, [](Border&) { return corvane_note_create_with_rules(9, nullptr); }},
    {numberFault, [](Border& b) { return corvane_note_create_with_rules(3, &b.newNote); }},
    {numberFault, [](Border& b) { return corvane_note_create_with_rules(-1, &b.newNote); }},
    {nullFault, [](Border&) { return corvane_note_parse_inlines_only(nullptr, 0); }},
    {CORVANE_ERROR_NOT_EMPTY, [](Border& b) { return corvane_note_parse_inlines_only(b.note, 1); }},
    {nullFault, [](Border&) { return corvane_note_disable_math(nullptr); }},
    {CORVANE_ERROR_NOT_EMPTY, [](Border& b) { return corvane_note_disable_math(b.note); }},
    // text
    {nullFault, [](Border& b) { return corvane_note_length(nullptr, &b.number); }},
    {nullFault, [](Border& b) { return corvane_note_length(b.note, nullptr); }},
    {nullFault, [](Border& b) { return corvane_note_text(nullptr, &b.text, &b.number); }},
    {nullFault, [](Border& b) { return corvane_note_text(b.note, nullptr, &b.number); }},
    {nullFault, [](Border& b) { return corvane_note_text(b.note, &b.text, nullptr); }},
    {nullFault, [](Border& b) { return corvane_note_copy_text(nullptr, 0, 1, b.buffer); }},
    {nullFault, [](Border& b) { return corvane_note_copy_text(b.note, 0, 1, nullptr); }},
    {rangeFault, [](Border& b) { return corvane_note_copy_text(b.note, 0, -1, nullptr); }},
    {rangeFault, [](Border& b) { return corvane_note_copy_text(b.note, 15, 3, b.buffer); }},
    {rangeFault, [](Border& b) { return corvane_note_copy_text(b.note, tooLong, 1, b.buffer); }},
    {nullFault, [](Border& b) { return corvane_note_html(nullptr, &b.string); }},
    {nullFault, [](Border& b) { return corvane_note_html(b.note, nullptr); }},
    {nullFault, [](Border& b) { return corvane_note_tree(nullptr, &b.string); }},
    {nullFault, [](Border& b) { return corvane_note_tree(b.note, nullptr); }},
    // edits
    {nullFault, [](Border& b) { return corvane_note_replace(nullptr, -1, 0, nullptr, 1, &b.range); }},
    {textFault, [](Border& b) { return corvane_note_replace(b.note, -1, 0, nullptr, 1, &b.range); }},
    {textFault, [](Border& b) { return corvane_note_replace(b.note, 0, 0, units, -1, &b.range); }},
    {textFault, [](Border& b) { return corvane_note_replace(b.note, 0, 0, units, tooLong, &b.range); }},
    {rangeFault, [](Border& b) { return corvane_note_replace(b.note, -1, 1, units, 1, &b.range); }},
    {rangeFault, [](Border& b) { return corvane_note_replace(b.note, 0, -1, units, 1, &b.range); }},
    {rangeFault, [](Border& b) { return corvane_note_replace(b.note, 17, 1, units, 1, &b.range); }},
    {rangeFault, [](Border& b) { return corvane_note_replace(b.note, 18, 0, units, 1, &b.range); }},
    {rangeFault, [](Border& b) { return corvane_note_replace(b.note, 1, tooLong, units, 1, &b.range); }},
    {rangeFault,
     [](Border& b) { return corvane_note_replace(b.note, tooLong, tooLong, units, 1, &b.range); }},
    {nullFault, [](Border& b) { return corvane_note_replace_all(nullptr, units, 1, &b.range); }},
    {textFault, [](Border& b) { return corvane_note_replace_all(b.note, units, -1, &b.range); }},
    {nullFault, [](Border&) { return corvane_note_batch_add(nullptr, 0, 0, units, 1); }},
    {textFault, [](Border& b) { return corvane_note_batch_add(b.note, 0, 0, nullptr, 1); }},
    {rangeFault, [](Border& b) { return corvane_note_batch_add(b.note, 0, 18, units, 1); }},
    {rangeFault, [](Border& b) { return corvane_note_batch_add(b.note, 18, 0, units, 1); }},
    {nullFault, [](Border& b) { return corvane_note_batch_commit(nullptr, &b.range); }},
    {nullFault, [](Border&) { return corvane_note_batch_discard(nullptr); }},
    // annotation
    {nullFault, [](Border& b) { return corvane_note_annotate(nullptr, 0, 0, &b.newAnnotation); }},
    {nullFault, [](Border& b) { return corvane_note_annotate(b.note, 99, 0, nullptr); }},
    {rangeFault, [](Border& b) { return corvane_note_annotate(b.note, 0, 18, &b.newAnnotation); }},
    {rangeFault, [](Border& b) { return corvane_note_annotate(b.note, 18, 0, &b.newAnnotation); }},
    {rangeFault, [](Border& b) { return corvane_note_annotate(b.note, 5, -1, &b.newAnnotation); }},
    {nullFault, [](Border& b) { return corvane_annotation_text(nullptr, &b.text, &b.number); }},
    {nullFault, [](Border& b) { return corvane_annotation_text(b.ask, nullptr, &b.number); }},
    {nullFault, [](Border& b) { return corvane_annotation_text(b.ask, &b.text, nullptr); }},
    {nullFault, [](Border& b) { return corvane_annotation_runs(nullptr, &b.runs, &b.number); }},
    {nullFault, [](Border& b) { return corvane_annotation_runs(b.ask, nullptr, &b.number); }},
    {nullFault, [](Border& b) { return corvane_annotation_runs(b.ask, &b.runs, nullptr); }},
    {nullFault, [](Border& b) { return corvane_annotation_runs_of_key(nullptr, 0, &b.runs, &b.number); }},
    {nullFault, [](Border& b) { return corvane_annotation_runs_of_key(b.ask, 0, nullptr, &b.number); }},
    {nullFault, [](Border& b) { return corvane_annotation_runs_of_key(b.ask, -1, &b.runs, nullptr); }},
    {numberFault, [](Border& b) { return corvane_annotation_runs_of_key(b.ask, -1, &b.runs, &b.number); }},
    {numberFault, [](Border& b) { return corvane_annotation_runs_of_key(b.ask, 92, &b.runs, &b.number); }},
    {nullFault, [](Border& b) { return corvane_annotation_run_at(nullptr, 0, 0, &b.run); }},
    {nullFault, [](Border& b) { return corvane_annotation_run_at(b.ask, 0, 0, nullptr); }},
    {numberFault, [](Border& b) { return corvane_annotation_run_at(b.ask, 92, -1, &b.run); }},
    {rangeFault, [](Border& b) { return corvane_annotation_run_at(b.ask, 0, -1, &b.run); }},
    {rangeFault, [](Border& b) { return corvane_annotation_run_at(b.ask, 0, 6, &b.run); }},
    // questions to the runs
    {nullFault, [](Border& b) { return corvane_query_range_test(nullptr, hasLink, 0, 1, &b.truth); }},
    {nullFault, [](Border& b) { return corvane_query_range_test(b.ask, nullptr, 0, 1, &b.truth); }},
    {nullFault, [](Border& b) { return corvane_query_range_test(b.ask, "?", 0, 1, nullptr); }},
    {nameFault, [](Border& b) { return corvane_query_range_test(b.ask, "?", 0, 9, &b.truth); }},
    {rangeFault, [](Border& b) { return corvane_query_range_test(b.ask, hasLink, 2, 4, &b.truth); }},
    {nullFault, [](Border& b) { return corvane_query_contains(nullptr, 0, 0, 1, &b.truth); }},
    {nullFault, [](Border& b) { return corvane_query_contains(b.ask, 0, 0, 1, nullptr); }},
    {numberFault, [](Border& b) { return corvane_query_contains(b.ask, 92, 0, 9, &b.truth); }},
    {rangeFault, [](Border& b) { return corvane_query_contains(b.ask, 0, -1, 1, &b.truth); }},
    {nullFault, [](Border& b) { return corvane_query_index_test(nullptr, yaml, 0, &b.truth); }},
    {nullFault, [](Border& b) { return corvane_query_index_test(b.ask, nullptr, 0, &b.truth); }},
    {nullFault, [](Border& b) { return corvane_query_index_test(b.ask, yaml, 0, nullptr); }},
    {nameFault, [](Border& b) { return corvane_query_index_test(b.ask, "", 0, &b.truth); }},
    {rangeFault, [](Border& b) { return corvane_query_index_test(b.ask, yaml, 6, &b.truth); }},
    {nullFault, [](Border& b) { return corvane_query_number(nullptr, levelAt, 0, &b.number); }},
    {nullFault, [](Border& b) { return corvane_query_number(b.ask, nullptr, 0, &b.number); }},
    {nullFault, [](Border& b) { return corvane_query_number(b.ask, levelAt, 0, nullptr); }},
    {nameFault, [](Border& b) { return corvane_query_number(b.ask, yaml, 0, &b.number); }},
    {rangeFault, [](Border& b) { return corvane_query_number(b.ask, levelAt, -1, &b.number); }},
    {nullFault, [](Border& b) { return corvane_query_range_at(nullptr, linkAt, 0, &b.range, nullptr); }},
    {nullFault, [](Border& b) { return corvane_query_range_at(b.ask, nullptr, 0, &b.range, nullptr); }},
    {nullFault, [](Border& b) { return corvane_query_range_at(b.ask, linkAt, 0, nullptr, &b.range); }},
    {nameFault, [](Border& b) { return corvane_query_range_at(b.ask, "?", 0, &b.range, &b.range); }},
    {rangeFault, [](Border& b) { return corvane_query_range_at(b.ask, linkAt, 6, &b.range, &b.range); }},
    {nullFault, [](Border& b) { return corvane_query_numbered_range(nullptr, level, 0, 0, &b.range); }},
    {nullFault, [](Border& b) { return corvane_query_numbered_range(b.ask, nullptr, 0, 0, &b.range); }},
    {nullFault, [](Border& b) { return corvane_query_numbered_range(b.ask, level, 0, 0, nullptr); }},
    {nameFault, [](Border& b) { return corvane_query_numbered_range(b.ask, "?", 0, 0, &b.range); }},
    {rangeFault, [](Border& b) { return corvane_query_numbered_range(b.ask, level, 0, 6, &b.range); }},
    {nullFault, [](Border& b) { return corvane_query_range(nullptr, extend, 0, 0, &b.range); }},
    {nullFault, [](Border& b) { return corvane_query_range(b.ask, nullptr, 0, 0, &b.range); }},
    {nullFault, [](Border& b) { return corvane_query_range(b.ask, extend, 0, 0, nullptr); }},
    {nameFault, [](Border& b) { return corvane_query_range(b.ask, "?", 0, 0, &b.range); }},
    {rangeFault, [](Border& b) { return corvane_query_range(b.ask, extend, 0, 6, &b.range); }},
    {nullFault,
     [](Border& b) { return corvane_query_item_info(nullptr, itemInfo, 0, &b.info, nullptr, nullptr); }},
    {nullFault,
     [](Border& b) { return corvane_query_item_info(b.ask, nullptr, 0, &b.info, nullptr, nullptr); }},
    {nullFault,
     [](Border& b) { return corvane_query_item_info(b.ask, itemInfo, 0, nullptr, nullptr, nullptr); }},
    {nameFault,
     [](Border& b) { return corvane_query_item_info(b.ask, "?", 0, &b.info, &b.range, &b.range); }},
    {rangeFault,
     [](Border& b) { return corvane_query_item_info(b.ask, itemInfo, 6, &b.info, &b.range, &b.range); }},
    {nullFault, [](Border& b) { return corvane_query_code(nullptr, 0, &b.string); }},
    {nullFault, [](Border& b) { return corvane_query_code(b.ask, 0, nullptr); }},
    {rangeFault, [](Border& b) { return corvane_query_code(b.ask, 6, &b.string); }},
    {nullFault, [](Border& b) { return corvane_query_enumerate(nullptr, links, 0, 1, 0, count, &b.number); }},
    {nullFault, [](Border& b) { return corvane_query_enumerate(b.ask, nullptr, 0, 1, 0, count, &b.number); }},
    {nullFault, [](Border& b) { return corvane_query_enumerate(b.ask, links, 0, 1, 0, nullptr, nullptr); }},
    {nameFault, [](Border& b) { return corvane_query_enumerate(b.ask, "?", 0, 9, 0, count, &b.number); }},
    {rangeFault, [](Border& b) { return corvane_query_enumerate(b.ask, links, 0, 6, 0, count, &b.number); }},
    // the tree
    {nullFault, [](Border& b) { return corvane_note_heading_range(nullptr, units, 1, &b.range); }},
    {nullFault, [](Border& b) { return corvane_note_heading_range(b.note, units, 1, nullptr); }},
    {textFault, [](Border& b) { return corvane_note_heading_range(b.note, nullptr, 1, &b.range); }},
    {nullFault,
     [](Border& b) { return corvane_note_footnote_definition_range(nullptr, units, 1, &b.range); }},
    {textFault,
     [](Border& b) { return corvane_note_footnote_definition_range(b.note, units, -1, &b.range); }},
    {nullFault, [](Border& b) { return corvane_note_footnote_reference_range(b.note, units, 1, nullptr); }},
    {textFault,
     [](Border& b) { return corvane_note_footnote_reference_range(b.note, nullptr, 2, &b.range); }},
    {nullFault, [](Border& b) { return corvane_note_is_foldable(nullptr, 0, &b.truth); }},
    {nullFault, [](Border& b) { return corvane_note_is_foldable(b.note, 0, nullptr); }},
    {rangeFault, [](Border& b) { return corvane_note_is_foldable(b.note, -1, &b.truth); }},
    {rangeFault, [](Border& b) { return corvane_note_is_foldable(b.note, 18, &b.truth); }},
    // commands and corrections
    {nullFault,
     [](Border& b) { return corvane_note_run_command(nullptr, 0, 0, 0, 0, 0, nullptr, 0, &b.newResults); }},
    {nullFault,
     [](Border& b) { return corvane_note_run_command(b.note, 99, 0, 0, 0, 0, nullptr, 0, nullptr); }},
    {nullFault, [](Border& b) { return toggle(b, nullptr, 1); }},
    {textFault, [](Border& b) { return toggle(b, &noText, 1); }},
    {textFault,
     [](Border& b) { return corvane_note_run_command(b.note, 99, 0, 0, 0, 0, &noText, 1, &b.newResults); }},
    {numberFault, [](Border& b) { return command(b, -1, {0, 0}, {0, 0}); }},
    {numberFault, [](Border& b) { return command(b, corvane_command_count(), {0, 99}, {0, 0}); }},
    {rangeFault, [](Border& b) { return command(b, 0, {-1, 1}, {0, 0}); }},
    {rangeFault, [](Border& b) { return command(b, 0, {1, tooLong}, {0, 0}); }},
    {rangeFault, [](Border& b) { return command(b, 0, {0, 0}, {18, 0}); }},
    {rangeFault, [](Border& b) { return command(b, CORVANE_COMMAND_TOGGLE_INLINE_STYLE, {0, 0}, {0, -1}); }},
    {argumentsFault, [](Border& b) { return toggle(b, nullptr, 0); }},
    {argumentsFault, [](Border& b) { return toggle(b, &bold, -1); }},
    {argumentsFault, [](Border& b) { return toggle(b, twoStyles, 2); }},
    {argumentsFault, [](Border& b) { return toggle(b, &named, 1); }},
    {argumentsFault,
     [](Border& b) { return corvane_note_run_command(b.note, 0, 0, 0, 0, 0, &bold, 1, &b.newResults); }},
    {nullFault,
     [](Border& b) { return corvane_note_run_correction(nullptr, 0, 0, 0, units, 1, 0, 0, &b.newResults); }},
    {nullFault,
     [](Border& b) { return corvane_note_run_correction(b.note, 0, 0, 0, nullptr, 1, 0, 0, nullptr); }},
    {textFault,
     [](Border&
            b) { return corvane_note_run_correction(b.note, 99, 0, 0, nullptr, 1, 0, 0, &b.newResults); }},
    {numberFault, [](Border& b) { return correct(b, -1, {0, 0}, {3, 0}); }},
    {numberFault, [](Border& b) { return correct(b, corvane_correction_count(), {0, 0}, {99, 0}); }},
    {rangeFault, [](Border& b) { return correct(b, 0, {17, 1}, {0, 0}); }},
    {rangeFault, [](Border& b) { return correct(b, 0, {10, 7}, {13, 1}); }},
    {nullFault, [](Border& b) { return corvane_results_replacements(nullptr, &b.replacements, &b.number); }},
    {nullFault, [](Border& b) { return corvane_results_replacements(b.results, nullptr, &b.number); }},
    {nullFault, [](Border& b) { return corvane_results_replacements(b.results, &b.replacements, nullptr); }},
    {nullFault, [](Border& b) { return corvane_note_apply_results(nullptr, b.results, &b.range, &b.range); }},
    {nullFault, [](Border& b) { return corvane_note_apply_results(b.note, nullptr, &b.range, &b.range); }},
    // snippets
    {nullFault, [](Border&) { return corvane_snippet_safe_label(units, 1, nullptr); }},
    {textFault, [](Border& b) { return corvane_snippet_safe_label(nullptr, 1, &b.string); }},
    {textFault, [](Border& b) { return corvane_snippet_escaped_url(nullptr, 1, &b.string); }},
    {textFault, [](Border& b) { return corvane_snippet_decoded_url(units, -1, &b.string); }},
    {nullFault, [](Border&) { return corvane_snippet_link(units, 1, units, 1, units, 1, 0, nullptr); }},
    {textFault, [](Border& b) { return corvane_snippet_link(nullptr, 1, units, 1, units, 1, 0, &b.string); }},
    {textFault, [](Border& b) { return corvane_snippet_link(units, 1, nullptr, 1, units, 1, 0, &b.string); }},
    {textFault, [](Border& b) { return corvane_snippet_link(units, 1, units, 1, nullptr, 1, 0, &b.string); }},
    {nullFault, [](Border&) { return corvane_snippet_image(units, 1, units, 1, units, 1, nullptr); }},
    {textFault, [](Border& b) { return corvane_snippet_image(units, 1, units, 1, units, -1, &b.string); }},
    {nullFault, [](Border&) { return corvane_snippet_file(units, 1, units, 1, 0, nullptr); }},
    {textFault, [](Border& b) { return corvane_snippet_file(units, 1, nullptr, 1, 0, &b.string); }},
    {textFault, [](Border& b) { return corvane_snippet_footnote_reference(nullptr, 1, &b.string); }},
    {nullFault, [](Border&) { return corvane_snippet_reference_definition(units, 1, units, 1, nullptr); }},
    {textFault,
     [](Border& b) { return corvane_snippet_reference_definition(units, 1, nullptr, 1, &b.string); }},
    {textFault, [](Border& b) { return corvane_snippet_code_block(nullptr, 1, &b.string); }},
    {nullFault, [](Border&) { return corvane_snippet_table(1, 1, nullptr); }},
    {numberFault, [](Border& b) { return corvane_snippet_table(-1, 1, &b.string); }},
    {numberFault, [](Border& b) { return corvane_snippet_table(1, 1001, &b.string); }},
    {nullFault, [](Border&) { return corvane_snippet_task(units, 1, 0, nullptr); }},
    {textFault, [](Border& b) { return corvane_snippet_task(nullptr, 1, 0, &b.string); }},
    {nullFault, [](Border&) { return corvane_snippet_filename_variants(units, 1, nullptr); }},
    {textFault, [](Border& b) { return corvane_snippet_filename_variants(nullptr, 1, &b.string); }},
};

TEST(Capi, AnswersBadArgumentsAndChangesNothing) {
    Border border;
    for (const BadCall& bad : badCalls) {
        EXPECT_EQ(bad.call(border), bad.expected) << "case " << &bad - badCalls;
        border.expectUntouched();
        if (HasFailure()) return;
    }
}

TEST(Capi, FunctionsWithoutAStatusTakeNull) {
    corvane_note_destroy(nullptr);
    corvane_annotation_destroy(nullptr);
    corvane_results_destroy(nullptr);
    corvane_string_destroy(nullptr);
    EXPECT_EQ(corvane_string_units(nullptr), nullptr);
    EXPECT_EQ(corvane_string_length(nullptr), 0);
    EXPECT_EQ(corvane_key_with_name(nullptr), -1);
    EXPECT_EQ(corvane_command_with_name(nullptr), -1);
    EXPECT_EQ(corvane_correction_with_name(nullptr), -1);
    EXPECT_STREQ(corvane_status_text(-1), corvane_status_text(99));
    EXPECT_STREQ(corvane_status_text(CORVANE_ERROR_ARGUMENTS), "the command takes other arguments");
}

} // namespace
} // namespace Ondo::Test
