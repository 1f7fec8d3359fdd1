#include <array>
#include <limits>

#include "corvane/scan/Util.h"
#include "tests/capi/Handles.h"

/// The functions of the C API that take texts and no note. What the library does behind them has its tests
/// elsewhere: here each is called once, to see that arguments arrive in their places.

namespace Ondo::Test {
namespace {

using Util::utf8;

/// Texts as C takes them: `UNITS(u"a")` is two arguments.
#define UNITS(text) (text), static_cast<std::int64_t>(std::size(text) - 1)

constexpr corvane_text names[] = {{u"b c", 3}, {u"d", 1}};
constexpr corvane_text brokenNames[] = {{u"b c", 3}, {nullptr, 1}};

std::string taken(corvane_string* string) {
    const Handle<corvane_string> owner(string);
    return utf8({corvane_string_units(string), static_cast<std::size_t>(corvane_string_length(string))});
}

std::string taken(corvane_strings* strings) {
    std::string out;
    for (std::int64_t i = 0; i < corvane_strings_count(strings); ++i) {
        std::int64_t length = -1;
        const corvane_unit* const units = corvane_strings_units(strings, i, &length);
        out += utf8({units, static_cast<std::size_t>(length)}) + '|';
    }
    corvane_strings_destroy(strings);
    return out;
}

/// What a function gives back through its last argument.
template <class Result, class Call>
std::string got(Call call) {
    Result* result = nullptr;
    EXPECT_EQ(call(&result), CORVANE_OK);
    return taken(result);
}
#define STRING(call) got<corvane_string>([&](corvane_string** out) { return call; })
#define STRINGS(call) got<corvane_strings>([&](corvane_strings** out) { return call; })

TEST(CapiTexts, Tags) {
    EXPECT_EQ(STRING(corvane_tag_markdown(UNITS(u"a b"), out)), "#a b#");
    EXPECT_EQ(STRINGS(corvane_tag_markdowns(names, 2, out)), "#b c#|#d|");
    EXPECT_EQ(STRING(corvane_tag_normalized_name(UNITS(u"É"), out)), "e");
    EXPECT_EQ(STRING(corvane_tag_sanitized_name(UNITS(u" #a/"), out)), "a");
    EXPECT_EQ(STRING(corvane_tag_name_from_components(names, 2, out)), "b c/d");
    EXPECT_EQ(STRINGS(corvane_tag_components(UNITS(u"a\\/b//c"), out)), "a/b|c|");
    EXPECT_EQ(STRING(corvane_tag_add_to_top(names, 2, UNITS(u"x\ny"), out)), "x\n#b c# #d\ny");
    EXPECT_EQ(STRING(corvane_tag_add_to_bottom(names, 2, UNITS(u"x\ny"), out)), "x\ny\n\n#b c# #d");
    EXPECT_EQ(STRING(corvane_tag_remove(UNITS(u"a"), UNITS(u"#a #b"), out)), "#b");
    EXPECT_EQ(STRING(corvane_tag_rename(UNITS(u"a"), UNITS(u"c"), UNITS(u"#a #b"), out)), "#c #b");
    EXPECT_EQ(STRING(corvane_tag_escape(names + 1, 1, UNITS(u"#a #d"), out)), "#a \\#d");
    EXPECT_EQ(STRING(corvane_tag_escape(nullptr, 0, UNITS(u"#d"), out)), "#d");
}

TEST(CapiTexts, Wikilinks) {
    EXPECT_EQ(STRING(corvane_wikilink_encoded_segment(UNITS(u"a/[b"), out)), "a\\/[b");
    EXPECT_EQ(STRING(corvane_wikilink_encoded_title(UNITS(u"a/[b"), out)), "a\\/\\[b");
    EXPECT_EQ(STRING(corvane_wikilink_markdown(UNITS(u"a"), UNITS(u"b"), out)), "[[a|b]]");
    EXPECT_EQ(STRING(corvane_wikilink_markdown(UNITS(u"a"), nullptr, 0, out)), "[[a]]");
    EXPECT_EQ(STRING(corvane_wikilink_markdown_with_header(UNITS(u"a"), UNITS(u"b"), out)), "[[a/b]]");
    EXPECT_EQ(STRINGS(corvane_wikilink_components(UNITS(u"a/b/c"), out)), "a|b/c|");
    EXPECT_EQ(STRING(corvane_wikilink_title(UNITS(u"a\\/b/c"), out)), "a/b");
    EXPECT_EQ(STRINGS(corvane_wikilink_titles(names, 2, out)), "b c|d|");
    EXPECT_EQ(STRING(corvane_wikilink_decoded(UNITS(u"a\\[b"), out)), "a[b");
    constexpr char16_t text[] = u"[[a]]\n[[a]]";
    EXPECT_EQ(STRING(corvane_wikilink_update(UNITS(u"a"), UNITS(u"b"), 1, UNITS(text), out)), "[[a]]\n[[b]]");
    EXPECT_EQ(STRING(corvane_wikilink_update(UNITS(u"a"), UNITS(u"b"), 0, UNITS(text), out)), "[[b]]\n[[b]]");

    corvane_string* title = nullptr;
    EXPECT_EQ(corvane_wikilink_title(nullptr, 0, &title), CORVANE_OK);
    EXPECT_EQ(title, nullptr);
    std::int32_t isValid = -7;
    EXPECT_EQ(corvane_wikilink_is_valid_backlink(2, 3, UNITS(u"a Foo"), &isValid), CORVANE_OK);
    EXPECT_EQ(isValid, 1);
    EXPECT_EQ(corvane_wikilink_is_valid_backlink(-1, 99, UNITS(u"a Foo"), &isValid), CORVANE_OK);
    EXPECT_EQ(isValid, 0);
}

TEST(CapiTexts, StatisticsAndSearch) {
    corvane_statistics statistics{};
    EXPECT_EQ(corvane_text_statistics(UNITS(u"日本語日本 text\n-"), &statistics), CORVANE_OK);
    EXPECT_TRUE(statistics.words == 6 && statistics.paragraphs == 2 && statistics.read_time_seconds == 1);
    std::int32_t truths[4] = {-7, -7, -7, -7};
    EXPECT_EQ(corvane_text_is_word_separator(UNITS(u"a."), 1, &truths[0]), CORVANE_OK);
    EXPECT_EQ(corvane_text_is_word_separator(UNITS(u"a."), -1, &truths[1]), CORVANE_OK);
    EXPECT_EQ(corvane_text_is_single_character_word(UNITS(u"a日"), 1, &truths[2]), CORVANE_OK);
    EXPECT_EQ(corvane_text_is_single_character_word(UNITS(u"a."), 1, &truths[3]), CORVANE_OK);
    EXPECT_TRUE(truths[0] == 1 && truths[1] == 0 && truths[2] == 1 && truths[3] == 0);

    using CodePointTest = corvane_status (*)(std::uint32_t codePoint, std::int32_t * truth);
    const std::pair<CodePointTest, std::string_view> tests[] = {
        {corvane_code_point_is_word_delimiter, "1100000"},
        {corvane_code_point_is_word_character, "0011000"},
        {corvane_code_point_is_ignorable, "1001100"},
    };
    for (const auto& [test, expected] : tests) {
        std::string answers;
        for (const std::uint32_t c : {0x2Du, 0x20u, 0x20000u, 0x3001u, 0x2Eu, 0x61u, 0xFFFFFFFFu}) {
            std::int32_t truth = -7;
            EXPECT_EQ(test(c, &truth), CORVANE_OK);
            answers += std::to_string(truth);
        }
        EXPECT_EQ(answers, expected);
    }

    corvane_fuzzy_match match{};
    std::array<std::int64_t, 3> indexes{-7, -7, -7};
    EXPECT_EQ(corvane_fuzzy_search(UNITS(u"ab"), UNITS(u"xab"), &match, indexes.data()), CORVANE_OK);
    EXPECT_TRUE(match.matched == 1 && match.score == 22 && match.index_count == 2);
    EXPECT_EQ(indexes, (std::array<std::int64_t, 3>{1, 2, -7}));
    EXPECT_EQ(corvane_fuzzy_search(UNITS(u"ab"), UNITS(u"xb"), &match, nullptr), CORVANE_OK);
    EXPECT_TRUE(match.matched == 0 && match.score == 0 && match.index_count == 0);
}

void keep(void* user, const corvane_unit* line, int64_t length) {
    static_cast<std::string*>(user)->append(utf8({line, static_cast<std::size_t>(length)}));
}

TEST(CapiTexts, TimeLogger) {
    corvane_time_logger* logger = nullptr;
    ASSERT_EQ(corvane_time_logger_create(&logger), CORVANE_OK);
    std::string line;
    EXPECT_EQ(corvane_time_logger_log(logger, UNITS(u"work"), keep, &line), CORVANE_OK);
    EXPECT_TRUE(line.starts_with("work in ") && line.ends_with("ms")) << line;
    EXPECT_EQ(corvane_time_logger_log(logger, UNITS(u"work"), nullptr, nullptr), CORVANE_ERROR_NULL);
    EXPECT_EQ(corvane_time_logger_log(logger, nullptr, 1, keep, nullptr), CORVANE_ERROR_TEXT);
    EXPECT_EQ(corvane_time_logger_log(nullptr, UNITS(u"work"), keep, &line), CORVANE_ERROR_NULL);
    EXPECT_EQ(corvane_time_logger_create(nullptr), CORVANE_ERROR_NULL);
    corvane_time_logger_destroy(logger);
    corvane_time_logger_destroy(nullptr);
}

struct Places {
    corvane_string* string = nullptr;
    corvane_strings* strings = nullptr;
    corvane_statistics statistics{7, 7, 7};
    corvane_fuzzy_match match{7, 7, 7};
    std::int64_t index = 7;
    std::int32_t truth = 7;

    bool areUntouched() const {
        return !string && !strings && statistics.words == 7 && match.matched == 7 && index == 7 && truth == 7;
    }
};
struct BadCall {
    corvane_status expected;
    corvane_status (*call)(Places& p);
};
constexpr corvane_status nullFault = CORVANE_ERROR_NULL;
constexpr corvane_status textFault = CORVANE_ERROR_TEXT;
constexpr std::int64_t tooLong = std::numeric_limits<std::int64_t>::max();

#define GOOD UNITS(u"a")
#define BAD nullptr, 1
constexpr BadCall badCalls[] = {
    {nullFault, [](Places&) { return corvane_tag_markdown(GOOD, nullptr); }},
    {textFault, [](Places& p) { return corvane_tag_markdown(BAD, &p.string); }},
    {textFault, [](Places& p) { return corvane_tag_normalized_name(u"a", -1, &p.string); }},
    {textFault, [](Places& p) { return corvane_tag_sanitized_name(u"a", tooLong, &p.string); }},
    {nullFault, [](Places&) { return corvane_tag_markdowns(names, 2, nullptr); }},
    {textFault, [](Places& p) { return corvane_tag_markdowns(brokenNames, 2, &p.strings); }},
    {textFault, [](Places& p) { return corvane_tag_name_from_components(nullptr, 1, &p.string); }},
    {textFault, [](Places& p) { return corvane_tag_components(BAD, &p.strings); }},
    {nullFault, [](Places&) { return corvane_tag_add_to_top(names, 2, GOOD, nullptr); }},
    {textFault, [](Places& p) { return corvane_tag_add_to_top(brokenNames, 2, GOOD, &p.string); }},
    {textFault, [](Places& p) { return corvane_tag_add_to_bottom(names, -1, GOOD, &p.string); }},
    {textFault, [](Places& p) { return corvane_tag_escape(names, tooLong, GOOD, &p.string); }},
    {nullFault, [](Places&) { return corvane_tag_remove(GOOD, GOOD, nullptr); }},
    {textFault, [](Places& p) { return corvane_tag_remove(GOOD, BAD, &p.string); }},
    {nullFault, [](Places&) { return corvane_tag_rename(GOOD, GOOD, GOOD, nullptr); }},
    {textFault, [](Places& p) { return corvane_tag_rename(GOOD, BAD, GOOD, &p.string); }},
    {textFault, [](Places& p) { return corvane_wikilink_encoded_segment(BAD, &p.string); }},
    {textFault, [](Places& p) { return corvane_wikilink_encoded_title(BAD, &p.string); }},
    {textFault, [](Places& p) { return corvane_wikilink_markdown(GOOD, BAD, &p.string); }},
    {textFault, [](Places& p) { return corvane_wikilink_markdown_with_header(BAD, GOOD, &p.string); }},
    {textFault, [](Places& p) { return corvane_wikilink_components(BAD, &p.strings); }},
    {nullFault, [](Places&) { return corvane_wikilink_title(GOOD, nullptr); }},
    {textFault, [](Places& p) { return corvane_wikilink_title(BAD, &p.string); }},
    {textFault, [](Places& p) { return corvane_wikilink_titles(brokenNames, 2, &p.strings); }},
    {textFault, [](Places& p) { return corvane_wikilink_decoded(BAD, &p.string); }},
    {nullFault, [](Places&) { return corvane_wikilink_update(GOOD, GOOD, 0, GOOD, nullptr); }},
    {textFault, [](Places& p) { return corvane_wikilink_update(GOOD, BAD, 0, GOOD, &p.string); }},
    {nullFault, [](Places&) { return corvane_wikilink_is_valid_backlink(0, 1, GOOD, nullptr); }},
    {textFault, [](Places& p) { return corvane_wikilink_is_valid_backlink(0, 1, BAD, &p.truth); }},
    {nullFault, [](Places&) { return corvane_text_statistics(GOOD, nullptr); }},
    {textFault, [](Places& p) { return corvane_text_statistics(BAD, &p.statistics); }},
    {nullFault, [](Places&) { return corvane_text_is_word_separator(GOOD, 0, nullptr); }},
    {textFault, [](Places& p) { return corvane_text_is_single_character_word(BAD, 0, &p.truth); }},
    {nullFault, [](Places&) { return corvane_code_point_is_word_delimiter(u'-', nullptr); }},
    {nullFault, [](Places&) { return corvane_code_point_is_word_character(u'-', nullptr); }},
    {nullFault, [](Places&) { return corvane_code_point_is_ignorable(u'-', nullptr); }},
    {nullFault, [](Places& p) { return corvane_fuzzy_search(GOOD, GOOD, nullptr, &p.index); }},
    {textFault, [](Places& p) { return corvane_fuzzy_search(GOOD, BAD, &p.match, &p.index); }},
};
#undef GOOD
#undef BAD

TEST(CapiTexts, AnswersBadArgumentsAndChangesNothing) {
    Places places;
    for (const BadCall& bad : badCalls) {
        EXPECT_EQ(bad.call(places), bad.expected) << "case " << &bad - badCalls;
        ASSERT_TRUE(places.areUntouched()) << "case " << &bad - badCalls;
    }
}

} // namespace
} // namespace Ondo::Test
