#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "capi/Arguments.h"
#include "capi/GiveFrom.h"
#include "capi/Handles.h"
#include "corvane/analysis/CVNHashtag.h"
#include "corvane/analysis/CVNTimeLogger.h"
#include "corvane/analysis/CVNWikiLink.h"
#include "corvane/analysis/FuzzySearch.h"
#include "corvane/analysis/TextStatistics.h"

using namespace CApi;

static_assert(sizeof(corvane_statistics) == 12 && sizeof(corvane_fuzzy_match) == 16);

struct corvane_time_logger {
    CVNTimeLogger logger;
};

namespace {

std::vector<std::u16string> copies(const corvane_text* texts, std::int64_t count) {
    std::vector<std::u16string> made;
    for (std::int64_t i = 0; i < count; ++i)
        made.emplace_back(view(texts[i].units, texts[i].length));
    return made;
}

using List = std::span<const std::u16string>;

template <class Made, class Result>
corvane_status giveFrom(const corvane_text* texts, std::int64_t count, Made (*make)(List texts),
                        Result** result) {
    if (!result) return CORVANE_ERROR_NULL;
    if (!areTexts(texts, count)) return CORVANE_ERROR_TEXT;
    return give(make(copies(texts, count)), result);
}

corvane_status giveFrom(const corvane_text* names, std::int64_t count, Text text,
                        std::u16string (*make)(List names, std::u16string_view text),
                        corvane_string** result) {
    if (!result) return CORVANE_ERROR_NULL;
    if (!areTexts(names, count) || !text.isOne()) return CORVANE_ERROR_TEXT;
    return give(make(copies(names, count), *text), result);
}

corvane_status answer(Text text, std::int64_t index,
                      bool (*test)(std::u16string_view text, std::int64_t index), std::int32_t* truth) {
    if (!truth) return CORVANE_ERROR_NULL;
    if (!text.isOne()) return CORVANE_ERROR_TEXT;
    *truth = test(*text, index);
    return CORVANE_OK;
}

corvane_status answer(std::uint32_t codePoint, bool (*test)(char32_t c), std::int32_t* truth) {
    if (!truth) return CORVANE_ERROR_NULL;
    *truth = test(codePoint);
    return CORVANE_OK;
}

} // namespace

// Statistics and search

corvane_status corvane_text_statistics(const corvane_unit* text, int64_t length,
                                       corvane_statistics* statistics) {
    if (!statistics) return CORVANE_ERROR_NULL;
    if (!isText(text, length)) return CORVANE_ERROR_TEXT;
    const CVN::TextStatistics made(view(text, length));
    *statistics = {made.wordsCount, made.paragraphCount, made.readTime};
    return CORVANE_OK;
}

corvane_status corvane_text_is_word_separator(const corvane_unit* text, int64_t length, int64_t index,
                                              int32_t* is_separator) {
    return answer({text, length}, index, CVN::TextStatistics::isWordSeparator, is_separator);
}

corvane_status corvane_text_is_single_character_word(const corvane_unit* text, int64_t length, int64_t index,
                                                     int32_t* is_word) {
    return answer({text, length}, index, CVN::TextStatistics::isSingleCharacterWord, is_word);
}

corvane_status corvane_code_point_is_word_delimiter(uint32_t code_point, int32_t* is_delimiter) {
    return answer(code_point, CVN::TextStatistics::isWordDelimiter, is_delimiter);
}

corvane_status corvane_code_point_is_word_character(uint32_t code_point, int32_t* is_word) {
    return answer(code_point, CVN::TextStatistics::isWordCharacter, is_word);
}

corvane_status corvane_code_point_is_ignorable(uint32_t code_point, int32_t* is_ignorable) {
    return answer(code_point, CVN::TextStatistics::isIgnorable, is_ignorable);
}

corvane_status corvane_fuzzy_search(const corvane_unit* pattern, int64_t pattern_length,
                                    const corvane_unit* text, int64_t text_length, corvane_fuzzy_match* match,
                                    int64_t* indexes) {
    if (!match) return CORVANE_ERROR_NULL;
    if (!isText(pattern, pattern_length) || !isText(text, text_length)) return CORVANE_ERROR_TEXT;
    const CVN::FuzzyMatch made = CVN::fuzzySearch(view(pattern, pattern_length), view(text, text_length));
    *match = {made.matched, made.score, std::ssize(made.indexes)};
    if (indexes) std::copy(made.indexes.begin(), made.indexes.end(), indexes);
    return CORVANE_OK;
}

// Tags

corvane_status corvane_tag_markdown(const corvane_unit* name, int64_t name_length,
                                    corvane_string** markdown) {
    return giveFrom({name, name_length}, CVNHashtag::hashtagStringForTagName, markdown);
}

corvane_status corvane_tag_markdowns(const corvane_text* names, int64_t name_count,
                                     corvane_strings** markdowns) {
    return giveFrom(names, name_count, CVNHashtag::hashtagStringsForTagNames, markdowns);
}

corvane_status corvane_tag_normalized_name(const corvane_unit* name, int64_t name_length,
                                           corvane_string** normalized) {
    return giveFrom({name, name_length}, CVNHashtag::normalizeTagName, normalized);
}

corvane_status corvane_tag_sanitized_name(const corvane_unit* typed, int64_t typed_length,
                                          corvane_string** name) {
    return giveFrom({typed, typed_length}, CVNHashtag::sanitizeTagName, name);
}

corvane_status corvane_tag_name_from_components(const corvane_text* components, int64_t component_count,
                                                corvane_string** name) {
    return giveFrom(components, component_count, CVNHashtag::tagNameFromComponents, name);
}

corvane_status corvane_tag_components(const corvane_unit* name, int64_t name_length,
                                      corvane_strings** components) {
    return giveFrom({name, name_length}, CVNHashtag::componentsForForTagName, components);
}

corvane_status corvane_tag_add_to_top(const corvane_text* names, int64_t name_count, const corvane_unit* text,
                                      int64_t text_length, corvane_string** changed) {
    return giveFrom(names, name_count, {text, text_length}, CVNHashtag::addTagsNamesToTheTopOfString,
                    changed);
}

corvane_status corvane_tag_add_to_bottom(const corvane_text* names, int64_t name_count,
                                         const corvane_unit* text, int64_t text_length,
                                         corvane_string** changed) {
    return giveFrom(names, name_count, {text, text_length}, CVNHashtag::addTagsNamesToTheBottomOfString,
                    changed);
}

corvane_status corvane_tag_remove(const corvane_unit* name, int64_t name_length, const corvane_unit* text,
                                  int64_t text_length, corvane_string** changed) {
    return giveFrom({name, name_length}, {text, text_length}, CVNHashtag::removeTagName, changed);
}

corvane_status corvane_tag_rename(const corvane_unit* name, int64_t name_length, const corvane_unit* new_name,
                                  int64_t new_name_length, const corvane_unit* text, int64_t text_length,
                                  corvane_string** changed) {
    if (!changed) return CORVANE_ERROR_NULL;
    const bool areAll =
        isText(name, name_length) && isText(new_name, new_name_length) && isText(text, text_length);
    if (!areAll) return CORVANE_ERROR_TEXT;
    return give(CVNHashtag::renameTagName(view(name, name_length), view(new_name, new_name_length),
                                          view(text, text_length)),
                changed);
}

corvane_status corvane_tag_escape(const corvane_text* names, int64_t name_count, const corvane_unit* text,
                                  int64_t text_length, corvane_string** changed) {
    return giveFrom(names, name_count, {text, text_length}, CVNHashtag::escapeTagsNames, changed);
}

// Wikilinks

corvane_status corvane_wikilink_encoded_segment(const corvane_unit* title, int64_t title_length,
                                                corvane_string** target) {
    return giveFrom({title, title_length}, CVNWikiLink::encodeSegment, target);
}

corvane_status corvane_wikilink_encoded_title(const corvane_unit* title, int64_t title_length,
                                              corvane_string** encoded) {
    return giveFrom({title, title_length}, CVNWikiLink::encodeTitle, encoded);
}

corvane_status corvane_wikilink_markdown(const corvane_unit* title, int64_t title_length,
                                         const corvane_unit* alias, int64_t alias_length,
                                         corvane_string** markdown) {
    return giveFrom({title, title_length}, {alias, alias_length}, CVNWikiLink::wikiLinkStringForTitle,
                    markdown);
}

corvane_status corvane_wikilink_markdown_with_header(const corvane_unit* title, int64_t title_length,
                                                     const corvane_unit* header, int64_t header_length,
                                                     corvane_string** markdown) {
    return giveFrom({title, title_length}, {header, header_length},
                    CVNWikiLink::wikiLinkStringForTitleAndHeader, markdown);
}

corvane_status corvane_wikilink_components(const corvane_unit* target, int64_t target_length,
                                           corvane_strings** components) {
    return giveFrom({target, target_length}, CVNWikiLink::componentsForWikiLink, components);
}

corvane_status corvane_wikilink_title(const corvane_unit* target, int64_t target_length,
                                      corvane_string** title) {
    if (!title) return CORVANE_ERROR_NULL;
    if (!isText(target, target_length)) return CORVANE_ERROR_TEXT;
    std::optional<std::u16string> made = CVNWikiLink::decodeTitleForWikiLink(view(target, target_length));
    *title = nullptr;
    return made ? give(std::move(*made), title) : CORVANE_OK;
}

corvane_status corvane_wikilink_titles(const corvane_text* targets, int64_t target_count,
                                       corvane_strings** titles) {
    return giveFrom(targets, target_count, CVNWikiLink::decodeTitlesForWikiLinks, titles);
}

corvane_status corvane_wikilink_decoded(const corvane_unit* written, int64_t written_length,
                                        corvane_string** decoded) {
    return giveFrom({written, written_length}, CVNWikiLink::decodeWikiLink, decoded);
}

corvane_status corvane_wikilink_update(const corvane_unit* title, int64_t title_length,
                                       const corvane_unit* new_title, int64_t new_title_length,
                                       int32_t skip_title, const corvane_unit* text, int64_t text_length,
                                       corvane_string** changed) {
    if (!changed) return CORVANE_ERROR_NULL;
    const bool areAll =
        isText(title, title_length) && isText(new_title, new_title_length) && isText(text, text_length);
    if (!areAll) return CORVANE_ERROR_TEXT;
    return give(CVNWikiLink::updateWikiLinkWithTitle(view(title, title_length),
                                                     view(new_title, new_title_length), skip_title != 0,
                                                     view(text, text_length)),
                changed);
}

corvane_status corvane_wikilink_is_valid_backlink(int64_t location, int64_t length, const corvane_unit* text,
                                                  int64_t text_length, int32_t* is_valid) {
    if (!is_valid) return CORVANE_ERROR_NULL;
    if (!isText(text, text_length)) return CORVANE_ERROR_TEXT;
    *is_valid = CVNWikiLink::validateImplictBacklinkForRange({location, length}, view(text, text_length));
    return CORVANE_OK;
}

// Times

corvane_status corvane_time_logger_create(corvane_time_logger** logger) {
    if (!logger) return CORVANE_ERROR_NULL;
    *logger = new corvane_time_logger;
    return CORVANE_OK;
}

corvane_status corvane_time_logger_log(corvane_time_logger* logger, const corvane_unit* text, int64_t length,
                                       corvane_line_callback callback, void* user) {
    if (!logger || !callback) return CORVANE_ERROR_NULL;
    if (!isText(text, length)) return CORVANE_ERROR_TEXT;
    const std::u16string line = logger->logger.line(view(text, length));
    callback(user, line.data(), std::ssize(line));
    logger->logger.lastChunkTime = CVNTimeLogger::Clock::now();
    return CORVANE_OK;
}

void corvane_time_logger_destroy(corvane_time_logger* logger) {
    delete logger;
}
