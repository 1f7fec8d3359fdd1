#include "corvane/scan/Util.h"
#include "tests/capi/Handles.h"

namespace Ondo::Test {
namespace {

using Util::utf8;

struct DestroySummary {
    void operator()(corvane_summary* summary) const { corvane_summary_destroy(summary); }
};
using Summary = std::unique_ptr<corvane_summary, DestroySummary>;

Summary summaryOf(std::u16string_view text) {
    corvane_summary* summary = nullptr;
    EXPECT_EQ(corvane_note_summary(noteOf(text).get(), &summary), CORVANE_OK);
    return Summary(summary);
}

std::string shown(const corvane_unit* units, std::int64_t length) {
    return utf8({units, static_cast<std::size_t>(length)});
}
std::string shown(const corvane_strings* strings) {
    std::string out;
    for (std::int64_t i = 0; i < corvane_strings_count(strings); ++i) {
        std::int64_t length = -1;
        const corvane_unit* const units = corvane_strings_units(strings, i, &length);
        out += shown(units, length) + ' ';
    }
    return out;
}
std::string textOf(const Summary& summary,
                   corvane_status (*function)(const corvane_summary*, const corvane_unit**, std::int64_t*)) {
    const corvane_unit* units = nullptr;
    std::int64_t length = -1;
    EXPECT_EQ(function(summary.get(), &units, &length), CORVANE_OK);
    EXPECT_EQ(units[length], 0);
    return shown(units, length);
}
std::string listOf(const Summary& summary,
                   corvane_status (*function)(const corvane_summary*, const corvane_strings**)) {
    const corvane_strings* strings = nullptr;
    EXPECT_EQ(function(summary.get(), &strings), CORVANE_OK);
    return shown(strings);
}
std::string wikilinksOf(const Summary& summary) {
    const corvane_wikilink* links = nullptr;
    std::int64_t count = -1;
    EXPECT_EQ(corvane_summary_wikilinks(summary.get(), &links, &count), CORVANE_OK);
    std::string out;
    for (const corvane_wikilink* link = links; link != links + count; ++link)
        out += shown(link->target, link->target_length) + " is " + shown(link->title, link->title_length) +
               " at " + std::to_string(link->location) + '\n';
    return out;
}

/// Short texts stand within their strings, which a move could leave behind.
TEST(CapiSummary, HasAllThatTheNoteHas) {
    const Summary summary = summaryOf(u"a *b*\n\n[[c\\/d/e]] #z #b/c ![x](u)\n"
                                      u"- [ ] f [x](v) [x](u)\n  - [x] g\n\t- [ ] [[/h]]\n\n```\n```\n");
    EXPECT_EQ(textOf(summary, corvane_summary_title), "a b");
    EXPECT_EQ(textOf(summary, corvane_summary_subtitle), "c/d/e #z #b/c x f x x g /h");
    EXPECT_EQ(listOf(summary, corvane_summary_tags), "b b/c z ");
    EXPECT_EQ(listOf(summary, corvane_summary_links), "u v ");
    EXPECT_EQ(wikilinksOf(summary), "c\\/d/e is c/d at 7\n/h is  at 73\n");
    corvane_summary_counts counts{};
    EXPECT_EQ(corvane_summary_count(summary.get(), &counts), CORVANE_OK);
    EXPECT_TRUE(counts.code_blocks == 1 && counts.open_tasks == 2 && counts.done_tasks == 1 &&
                counts.space_indented_lines == 1 && counts.tab_indented_lines == 1);
}

TEST(CapiSummary, OfAnEmptyNoteIsEmpty) {
    const Summary summary = summaryOf({});
    EXPECT_EQ(textOf(summary, corvane_summary_title), "");
    EXPECT_EQ(textOf(summary, corvane_summary_subtitle), "");
    EXPECT_EQ(listOf(summary, corvane_summary_tags) + listOf(summary, corvane_summary_links), "");
    EXPECT_EQ(wikilinksOf(summary), "");
}

TEST(CapiSummary, AnswersNullAndChangesNothing) {
    const Note note = noteOf(u"a");
    const Summary made = summaryOf(u"a");
    const corvane_summary* const ask = made.get();
    corvane_summary* summary = nullptr;
    const corvane_unit* text = nullptr;
    const corvane_strings* list = nullptr;
    const corvane_wikilink* links = nullptr;
    corvane_summary_counts counts{-7, -7, -7, -7, -7};
    std::int64_t number = -7;
    const corvane_status answers[] = {
        corvane_note_summary(nullptr, &summary),
        corvane_note_summary(note.get(), nullptr),
        corvane_summary_title(nullptr, &text, &number),
        corvane_summary_title(ask, nullptr, &number),
        corvane_summary_title(ask, &text, nullptr),
        corvane_summary_subtitle(nullptr, &text, &number),
        corvane_summary_subtitle(ask, nullptr, &number),
        corvane_summary_subtitle(ask, &text, nullptr),
        corvane_summary_tags(nullptr, &list),
        corvane_summary_tags(ask, nullptr),
        corvane_summary_links(nullptr, &list),
        corvane_summary_links(ask, nullptr),
        corvane_summary_wikilinks(nullptr, &links, &number),
        corvane_summary_wikilinks(ask, nullptr, &number),
        corvane_summary_wikilinks(ask, &links, nullptr),
        corvane_summary_count(nullptr, &counts),
        corvane_summary_count(ask, nullptr),
    };
    for (const corvane_status& answer : answers)
        EXPECT_EQ(answer, CORVANE_ERROR_NULL) << "case " << &answer - answers;
    EXPECT_TRUE(!summary && !text && !list && !links && number == -7 && counts.code_blocks == -7);
    corvane_summary_destroy(nullptr);
}

} // namespace
} // namespace Ondo::Test
