#include "capi/Arguments.h"
#include "capi/GiveFrom.h"
#include "capi/Handles.h"

using namespace CApi;

namespace {

constexpr std::int64_t maximumTableSize = 1000;

} // namespace

corvane_status corvane_snippet_safe_label(const corvane_unit* label, int64_t length,
                                          corvane_string** snippet) {
    return giveFrom({label, length}, CVNAST::safeLabelString, snippet);
}

corvane_status corvane_snippet_escaped_url(const corvane_unit* url, int64_t length,
                                           corvane_string** snippet) {
    return giveFrom({url, length}, CVNAST::percentEscapedURL, snippet);
}

corvane_status corvane_snippet_decoded_url(const corvane_unit* url, int64_t length,
                                           corvane_string** snippet) {
    return giveFrom({url, length}, CVNAST::percentDecodedURL, snippet);
}

corvane_status corvane_snippet_footnote_reference(const corvane_unit* label, int64_t length,
                                                  corvane_string** snippet) {
    return giveFrom({label, length}, CVNAST::footnoteReferenceWithLabel, snippet);
}

corvane_status corvane_snippet_code_block(const corvane_unit* code, int64_t length,
                                          corvane_string** snippet) {
    return giveFrom({code, length}, CVNAST::codeBlockWithString, snippet);
}

corvane_status corvane_snippet_link(const corvane_unit* label, int64_t label_length, const corvane_unit* url,
                                    int64_t url_length, const corvane_unit* title, int64_t title_length,
                                    int32_t preview, corvane_string** snippet) {
    if (!snippet) return CORVANE_ERROR_NULL;
    const bool areTexts =
        isText(label, label_length) && isText(url, url_length) && isText(title, title_length);
    if (!areTexts) return CORVANE_ERROR_TEXT;
    return give(CVNAST::markdownLinkWithLabel(view(label, label_length), view(url, url_length),
                                              view(title, title_length), preview != 0),
                snippet);
}

corvane_status corvane_snippet_image(const corvane_unit* label, int64_t label_length, const corvane_unit* url,
                                     int64_t url_length, const corvane_unit* title, int64_t title_length,
                                     corvane_string** snippet) {
    if (!snippet) return CORVANE_ERROR_NULL;
    const bool areTexts =
        isText(label, label_length) && isText(url, url_length) && isText(title, title_length);
    if (!areTexts) return CORVANE_ERROR_TEXT;
    return give(CVNAST::markdownImageWithLabel(view(label, label_length), view(url, url_length),
                                               view(title, title_length)),
                snippet);
}

corvane_status corvane_snippet_file(const corvane_unit* label, int64_t label_length, const corvane_unit* url,
                                    int64_t url_length, int32_t preview, corvane_string** snippet) {
    if (!snippet) return CORVANE_ERROR_NULL;
    if (!isText(label, label_length) || !isText(url, url_length)) return CORVANE_ERROR_TEXT;
    return give(CVNAST::markdownFileWithLabel(view(label, label_length), view(url, url_length), preview != 0),
                snippet);
}

corvane_status corvane_snippet_reference_definition(const corvane_unit* label, int64_t label_length,
                                                    const corvane_unit* text, int64_t text_length,
                                                    corvane_string** snippet) {
    return giveFrom({label, label_length}, {text, text_length}, CVNAST::referenceDefinitionWithLabel,
                    snippet);
}

corvane_status corvane_snippet_table(int64_t rows, int64_t columns, corvane_string** snippet) {
    if (!snippet) return CORVANE_ERROR_NULL;
    if (rows < 0 || rows > maximumTableSize || columns < 0 || columns > maximumTableSize)
        return CORVANE_ERROR_NUMBER;
    return give(CVNAST::tableStringWithRows(rows, columns), snippet);
}

corvane_status corvane_snippet_task(const corvane_unit* text, int64_t length, int32_t completed,
                                    corvane_string** snippet) {
    if (!snippet) return CORVANE_ERROR_NULL;
    if (!isText(text, length)) return CORVANE_ERROR_TEXT;
    return give(CVNAST::taskWithText(view(text, length), completed != 0), snippet);
}

corvane_status corvane_snippet_filename_variants(const corvane_unit* url, int64_t length,
                                                 corvane_string** variants) {
    if (!variants) return CORVANE_ERROR_NULL;
    if (!isText(url, length)) return CORVANE_ERROR_TEXT;
    for (std::u16string& variant : CVNAST::filenameVariantsForURL(view(url, length)))
        give(std::move(variant), variants++);
    return CORVANE_OK;
}
