// Holds a note, styles it, types into it, styles the range that the edit gave, asks about its list, and
// presses return in it. At last it tries what does not fit, and fails if the answer is not the error that
// corvane.h tells.
#include <inttypes.h>
#include <stdio.h>

#include "corvane.h"

static const corvane_unit packing[] =
    u"# Packing\n\n- [ ] a **compass**\n- [x] socks <!-- {\"pairs\":3} -->\n";
enum { packing_length = sizeof packing / sizeof *packing - 1 };

static int faults = 0;

static void expect(corvane_status expected, corvane_status status, const char* what) {
    if (status == expected) return;
    printf("%s: %s, instead of: %s\n", what, corvane_status_text(status), corvane_status_text(expected));
    faults += 1;
}

/// The texts of this program are ASCII; all else becomes a question mark.
static void print_text(const corvane_unit* text, int64_t length) {
    for (int64_t i = 0; i < length; i += 1)
        putchar(text[i] < 0x80 ? text[i] : '?');
}

static void print_run(const corvane_run* run) {
    printf("  %-22s {%" PRId64 ", %" PRId64 "} ", corvane_key_name(run->key), run->location, run->length);
    switch (run->kind) {
    case CORVANE_VALUE_STRING:
    case CORVANE_VALUE_DICTIONARY:
        print_text(run->text, run->text_length);
        break;
    case CORVANE_VALUE_LIST_INFO:
        printf("item %" PRId64 "%s", run->list->item_index,
               run->list->task_type == CORVANE_TASK_DONE ? ", done" : "");
        break;
    default:
        printf("%" PRId64, run->number);
    }
    putchar('\n');
}

/// What an editor does behind each edit.
static void style(const corvane_note* note, corvane_range range) {
    corvane_annotation* annotation = NULL;
    const corvane_run* runs = NULL;
    int64_t count = 0;
    expect(CORVANE_OK, corvane_note_annotate(note, range.location, range.length, &annotation), "annotate");
    expect(CORVANE_OK, corvane_annotation_runs(annotation, &runs, &count), "runs");
    printf("styling %" PRId64 " code units from %" PRId64 "\n", range.length, range.location);
    for (int64_t i = 0; i < count; i += 1)
        print_run(&runs[i]);
    corvane_annotation_destroy(annotation);
}

/// Gets a pointer to the note's text as `user`, and first the list, then its items.
static int32_t print_item(void* user, const corvane_construct* construct) {
    const corvane_unit* text = *(const corvane_unit**)user;
    if (construct->list) print_text(text + construct->range.location, construct->range.length);
    return 0;
}

static void ask(const corvane_note* note) {
    corvane_annotation* annotation = NULL;
    int64_t length = 0;
    int32_t is_task = 0;
    const corvane_unit* text = NULL;
    expect(CORVANE_OK, corvane_note_length(note, &length), "length");
    expect(CORVANE_OK, corvane_note_annotate(note, 0, length, &annotation), "annotate");
    expect(CORVANE_OK, corvane_annotation_text(annotation, &text, &length), "text");
    expect(CORVANE_OK, corvane_query_range_test(annotation, "isRangeInsideTaskList", 14, 1, &is_task),
           "query");
    printf("at 14 there is %s task; all items:\n", is_task ? "a" : "no");
    expect(
        CORVANE_OK,
        corvane_query_enumerate(annotation, "enumerateUnorderedListInRange", 0, length, 0, print_item, &text),
        "enumerate");
    corvane_annotation_destroy(annotation);
}

/// Asks what the return key does with the caret at a place, and does it.
static void press_return(corvane_note* note, int64_t caret) {
    corvane_results* results = NULL;
    corvane_range restyle = {0, 0};
    corvane_range selection = {0, 0};
    expect(
        CORVANE_OK,
        corvane_note_run_command(note, CORVANE_COMMAND_INSERT_NEWLINE, caret, 0, caret, 0, NULL, 0, &results),
        "return");
    expect(CORVANE_OK, corvane_note_apply_results(note, results, &restyle, &selection), "apply");
    corvane_results_destroy(results);
    printf("return moves the caret from %" PRId64 " to %" PRId64 "\n", caret, selection.location);
    style(note, restyle);
}

static void print_html(const corvane_note* note) {
    corvane_string* html = NULL;
    expect(CORVANE_OK, corvane_note_html(note, &html), "html");
    print_text(corvane_string_units(html), corvane_string_length(html));
    corvane_string_destroy(html);
}

static void try_errors(corvane_note* note) {
    corvane_annotation* annotation = NULL;
    corvane_run run;
    int32_t truth = 0;
    const int64_t beyond = packing_length + 100;
    expect(CORVANE_ERROR_NULL, corvane_note_annotate(note, 0, 0, NULL), "no place for the result");
    expect(CORVANE_ERROR_TEXT, corvane_note_replace_all(note, NULL, 3, NULL), "a null text of length 3");
    expect(CORVANE_ERROR_NUMBER, corvane_set_rule_set(7), "an unknown rule set");
    expect(CORVANE_ERROR_RANGE, corvane_note_is_foldable(note, beyond, &truth), "an index behind the end");
    expect(CORVANE_ERROR_RANGE, corvane_note_replace(note, 0, beyond, NULL, 0, NULL),
           "a range beyond the end");
    expect(CORVANE_ERROR_NOT_EMPTY, corvane_note_disable_math(note), "an option of new notes");
    expect(CORVANE_OK, corvane_note_batch_add(note, 0, 0, packing, 2), "the first of a batch");
    expect(CORVANE_ERROR_PENDING, corvane_note_replace(note, 0, 0, packing, 1, NULL),
           "an edit during a batch");
    expect(CORVANE_OK, corvane_note_batch_discard(note), "discarding the batch");
    expect(CORVANE_OK, corvane_note_annotate(note, 0, 4, &annotation), "annotating the start");
    expect(CORVANE_ERROR_NUMBER, corvane_annotation_run_at(annotation, -1, 0, &run), "an unknown key");
    expect(CORVANE_ERROR_NAME, corvane_query_index_test(annotation, "hasNoSuchName", 0, &truth),
           "an unknown query");
    expect(CORVANE_ERROR_RANGE, corvane_annotation_run_at(annotation, 0, 5, &run),
           "an index behind the range");
    corvane_annotation_destroy(annotation);
}

int main(void) {
    corvane_note* note = NULL;
    corvane_range restyle = {0, 0};
    printf("Corvane %s\n", corvane_version());
    expect(CORVANE_OK, corvane_note_create(&note), "create");
    expect(CORVANE_OK, corvane_note_replace_all(note, packing, packing_length, &restyle), "load");
    style(note, restyle);

    const corvane_unit s = u's';
    expect(CORVANE_OK, corvane_note_replace(note, 9, 0, &s, 1, &restyle), "type a letter");
    style(note, restyle);
    ask(note);
    press_return(note, 31);
    print_html(note);

    try_errors(note);
    corvane_note_destroy(note);
    return faults == 0 ? 0 : 1;
}
