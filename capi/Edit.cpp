#include "capi/Arguments.h"
#include "capi/Handles.h"

using namespace CApi;

namespace {

corvane_status giveRange(CVNRange range, corvane_range* place) {
    if (place) *place = toC(range);
    return CORVANE_OK;
}

} // namespace

corvane_status corvane_note_replace(corvane_note* note, int64_t location, int64_t length,
                                    const corvane_unit* text, int64_t text_length, corvane_range* restyle) {
    if (!note) return CORVANE_ERROR_NULL;
    if (!isText(text, text_length)) return CORVANE_ERROR_TEXT;
    if (!isWithin(location, length, note->ast.markdownLength())) return CORVANE_ERROR_RANGE;
    if (note->isPending()) return CORVANE_ERROR_PENDING;
    return giveRange(note->ast.replaceRange({location, length}, view(text, text_length)), restyle);
}

corvane_status corvane_note_replace_all(corvane_note* note, const corvane_unit* text, int64_t text_length,
                                        corvane_range* restyle) {
    if (!note) return CORVANE_ERROR_NULL;
    if (!isText(text, text_length)) return CORVANE_ERROR_TEXT;
    if (note->isPending()) return CORVANE_ERROR_PENDING;
    return giveRange(note->ast.replaceAllWithMarkdown(view(text, text_length)), restyle);
}

corvane_status corvane_note_batch_add(corvane_note* note, int64_t location, int64_t length,
                                      const corvane_unit* text, int64_t text_length) {
    if (!note) return CORVANE_ERROR_NULL;
    if (!isText(text, text_length)) return CORVANE_ERROR_TEXT;
    const std::int64_t total = note->lengthAfterBatch();
    if (!isWithin(location, length, total)) return CORVANE_ERROR_RANGE;
    note->ast.batchReplaceRange({location, length}, view(text, text_length));
    note->pendingLength = total - length + text_length;
    return CORVANE_OK;
}

corvane_status corvane_note_batch_commit(corvane_note* note, corvane_range* restyle) {
    return note ? giveRange(note->ast.batchReplaceCommit(), restyle) : CORVANE_ERROR_NULL;
}

corvane_status corvane_note_batch_discard(corvane_note* note) {
    if (!note) return CORVANE_ERROR_NULL;
    note->ast.replaceBatch->clear();
    return CORVANE_OK;
}
