#include <utility>

#include "capi/Arguments.h"
#include "capi/Handles.h"
#include "capi/Json.h"

using namespace CApi;

// The layout that corvane.h promises where 64-bit numbers are aligned to their size.
static_assert(alignof(std::int64_t) != 8 || sizeof(corvane_run) == 56);
static_assert(alignof(std::int64_t) != 8 || sizeof(corvane_construct) == 104);
static_assert(sizeof(corvane_list_info) == 56);

namespace {

void setText(corvane_run& run, corvane_value_kind kind, std::u16string_view text) {
    run.kind = kind;
    run.text = text.data();
    run.text_length = std::ssize(text);
}

void setNumber(corvane_run& run, corvane_value_kind kind, std::int64_t number) {
    run.kind = kind;
    run.number = number;
}

/// No run has a value of another kind than these.
void setValue(corvane_run& run, const CVNValue& value, corvane_annotation& owner) {
    switch (value.kind()) {
    case CVNValue::Kind::Boolean:
        return setNumber(run, CORVANE_VALUE_BOOLEAN, value.integerValue());
    case CVNValue::Kind::String:
        return setText(run, CORVANE_VALUE_STRING, value.stringValue());
    case CVNValue::Kind::Dictionary:
        return setText(run, CORVANE_VALUE_DICTIONARY,
                       owner.jsonTexts.emplace_back(toJson(*value.dictionaryValue())));
    case CVNValue::Kind::ListInfo:
        run.kind = CORVANE_VALUE_LIST_INFO;
        run.list = &owner.lists.emplace_back(toC(*value.listInfoValue()));
        return;
    default:
        return setNumber(run, CORVANE_VALUE_INTEGER, value.integerValue());
    }
}

corvane_run emptyRun(corvane_key key, CVNRange range) {
    return {range.location, range.length, key, CORVANE_VALUE_NONE, 0, nullptr, 0, nullptr};
}

} // namespace

corvane_annotation::corvane_annotation(CVNAttributedString annotated) : string(std::move(annotated)) {
    for (corvane_key key = 0; isKey(key); ++key) {
        const AttributeRuns& all = string.runs(CVNAttributeName::withId(key));
        keyStarts.push_back(std::ssize(runs));
        for (std::int64_t i = 0; i < all.size(); ++i) {
            runs.push_back(emptyRun(key, CVNRange::between(all[i].location, all[i].end)));
            setValue(runs.back(), all[i].value, *this);
        }
    }
    keyStarts.push_back(std::ssize(runs));
}

corvane_status corvane_note_annotate(const corvane_note* note, int64_t location, int64_t length,
                                     corvane_annotation** annotation) {
    if (!note || !annotation) return CORVANE_ERROR_NULL;
    if (!isWithin(location, length, note->ast.markdownLength())) return CORVANE_ERROR_RANGE;
    *annotation = new corvane_annotation(note->ast.annotatedStringForRange({location, length}));
    return CORVANE_OK;
}

void corvane_annotation_destroy(corvane_annotation* annotation) {
    delete annotation;
}

corvane_status corvane_annotation_text(const corvane_annotation* annotation, const corvane_unit** text,
                                       int64_t* length) {
    if (!annotation || !text || !length) return CORVANE_ERROR_NULL;
    *text = annotation->string.string().data();
    *length = annotation->string.length();
    return CORVANE_OK;
}

corvane_status corvane_annotation_runs(const corvane_annotation* annotation, const corvane_run** runs,
                                       int64_t* count) {
    if (!annotation || !runs || !count) return CORVANE_ERROR_NULL;
    *runs = annotation->runs.data();
    *count = std::ssize(annotation->runs);
    return CORVANE_OK;
}

corvane_status corvane_annotation_runs_of_key(const corvane_annotation* annotation, corvane_key key,
                                              const corvane_run** runs, int64_t* count) {
    if (!annotation || !runs || !count) return CORVANE_ERROR_NULL;
    if (!isKey(key)) return CORVANE_ERROR_NUMBER;
    const std::int64_t* const start = &annotation->keyStarts[static_cast<std::size_t>(key)];
    *runs = annotation->runs.data() + start[0];
    *count = start[1] - start[0];
    return CORVANE_OK;
}

corvane_status corvane_annotation_run_at(const corvane_annotation* annotation, corvane_key key, int64_t index,
                                         corvane_run* run) {
    if (!annotation || !run) return CORVANE_ERROR_NULL;
    if (!isKey(key)) return CORVANE_ERROR_NUMBER;
    if (!isWithin(index, 0, annotation->string.length())) return CORVANE_ERROR_RANGE;
    const CVNAttributeName name = CVNAttributeName::withId(key);
    CVNRange range;
    if (annotation->string.attribute(name, index, &range)) {
        const std::int64_t start = annotation->keyStarts[static_cast<std::size_t>(key)];
        const std::int64_t found = annotation->string.runs(name).firstEndingBehind(index);
        *run = annotation->runs[static_cast<std::size_t>(start + found)];
    } else
        *run = emptyRun(key, range);
    return CORVANE_OK;
}
