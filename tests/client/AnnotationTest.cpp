#include <gtest/gtest.h>

#include "corvane/client/CVNAST.h"
#include "corvane/scan/Util.h"
#include "tests/support/Corpus.h"
#include "tests/support/Painted.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

CVNAST noteWith(std::u16string_view text, RuleConfig::RuleSet rules) {
    CVNAST note;
    note.ast = std::make_unique<Tree>(std::u16string(text), rules);
    return note;
}

std::string runsOf(const CVNAST& note, CVNRange range) {
    return showRuns(note.annotatedStringForRange(range), false);
}

template <class Check>
void forEachCaseWithRuns(Check check) {
    for (const auto& file : corpusFiles())
        for (const CorpusCase& c : readCorpus(file))
            for (const RuleConfig::RuleSet set : allRuleSets)
                if (c.runs[set]) check(c, set);
}

TEST(Annotation, corpus) {
    forEachCaseWithRuns([](const CorpusCase& c, RuleConfig::RuleSet set) {
        const bool withDirection = c.runs[set]->find("Direction |") != std::string::npos;
        EXPECT_EQ(showRuns(noteWith(c.text, set).annotatedString(), withDirection), *c.runs[set]) << c.place;
    });
}

TEST(Annotation, typed_unit_by_unit_and_deleted) {
    forEachCaseWithRuns([](const CorpusCase& c, RuleConfig::RuleSet set) {
        CVNAST note = noteWith(u"", set);
        Painted painted(note);
        const auto edit = [&](CVNRange range, std::u16string_view text) {
            painted.replace(range, static_cast<std::int64_t>(text.size()));
            painted.repaint(note, note.replaceRange(range, text));
            ASSERT_EQ(painted.difference(note, {}), "") << c.place << '\n' << visible(note.markdown());
        };
        for (const char16_t unit : c.text)
            edit({note.markdownLength(), 0}, {&unit, 1});
        while (note.markdownLength() > 0)
            edit({0, 1}, u"");
    });
}

TEST(Annotation, a_range_that_no_edit_gave_is_clipped) {
    const CVNAST note = noteWith(u"> **ab**\n> - c\n", RuleConfig::Extended);
    const std::int64_t length = note.markdownLength();
    EXPECT_EQ(runsOf(note, {3, 0}), "");
    EXPECT_EQ(runsOf(note, {length, 0}), "");
    EXPECT_EQ(runsOf(note, {2, 4}), "Strong |**ab| true\nStrongMarker |**| 1\n");
    EXPECT_EQ(note.annotatedStringForRange({12, 100}).string(), u" c\n");
    // Whatever the range is, nothing fails, and there is nothing but its text.
    forEachCaseWithRuns([](const CorpusCase& c, RuleConfig::RuleSet set) {
        const CVNAST all = noteWith(c.text, set);
        for (std::int64_t at = 0; at <= all.markdownLength(); ++at)
            for (const std::int64_t extent : {1, 5, 40})
                EXPECT_EQ(all.annotatedStringForRange({at, extent}).string(),
                          std::u16string_view(c.text).substr(static_cast<std::size_t>(at),
                                                             static_cast<std::size_t>(extent)));
    });
}

TEST(Annotation, inlines_only) {
    CVNAST note;
    note.setParseInlinesOnly(true);
    note.replaceAllWithMarkdown(u"# *a* $b$\n\n  - `c` [d](e)\n\n| f |\n|---|\n> g\n");
    EXPECT_EQ(runsOf(note, {0, note.markdownLength()}), "TableCell | f | 4\n"
                                                        "TableCellContent |f| 4\n"
                                                        "Emphasis |*a*| true\n"
                                                        "EmphasisMarker |*| 1\n"
                                                        "EmphasisMarker |*| 2\n"
                                                        "Code |`c`| true\n"
                                                        "CodeMarker |`| 1\n"
                                                        "CodeMarker |`| 2\n"
                                                        "Link |[d](e)| true\n"
                                                        "LinkMarker |[| 1\n"
                                                        "LinkMarker |]| 2\n"
                                                        "LinkMarker |(| 1\n"
                                                        "LinkMarker |)| 2\n"
                                                        "LinkURL |e| \"e\"\n"
                                                        "LinkLabel |d| true\n");
}

} // namespace
} // namespace Ondo::Test
