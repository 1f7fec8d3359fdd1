#include <algorithm>

#include "capi/Arguments.h"
#include "capi/Handles.h"

using namespace CApi;

namespace {

using Lookup = CVNRange (CVNASTQuery::*)(std::u16string_view text) const;

corvane_status lookUp(const corvane_note* note, const corvane_unit* text, std::int64_t length, Lookup lookup,
                      corvane_range* range) {
    if (!note || !range) return CORVANE_ERROR_NULL;
    if (!isText(text, length)) return CORVANE_ERROR_TEXT;
    *range = toC((note->ast.*lookup)(view(text, length)));
    return CORVANE_OK;
}

} // namespace

corvane_status corvane_note_heading_range(const corvane_note* note, const corvane_unit* title,
                                          int64_t title_length, corvane_range* range) {
    return lookUp(note, title, title_length, &CVNASTQuery::rangeOfHeaderWithTitle, range);
}

corvane_status corvane_note_footnote_definition_range(const corvane_note* note, const corvane_unit* label,
                                                      int64_t label_length, corvane_range* range) {
    return lookUp(note, label, label_length, &CVNASTQuery::footnoteDefinitionRangeForLabel, range);
}

corvane_status corvane_note_footnote_reference_range(const corvane_note* note, const corvane_unit* label,
                                                     int64_t label_length, corvane_range* range) {
    return lookUp(note, label, label_length, &CVNASTQuery::footnoteReferenceRangeForLabel, range);
}

corvane_status corvane_note_is_foldable(const corvane_note* note, int64_t index, int32_t* is_foldable) {
    if (!note || !is_foldable) return CORVANE_ERROR_NULL;
    if (!isWithin(index, 0, note->ast.markdownLength())) return CORVANE_ERROR_RANGE;
    *is_foldable = note->ast.hasFoldableContentAtIndex(index);
    return CORVANE_OK;
}
