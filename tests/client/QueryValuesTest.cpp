#include <gtest/gtest.h>

#include "tests/client/QueryNotes.h"

namespace Ondo::Test {
namespace {

namespace Query = CVN::Query;

TEST(QueryValues, InsideMeansTouchedAtAnEnd) {
    const struct {
        std::u16string note;
        const char* query;
        bool isInside;
    } cases[] = {
        {u"a ⟦[b⟧](c) d", "isRangeInsideLink", true},
        {u"⟦a [b](c) d⟧", "isRangeInsideLink", false},
        {u"⟦a [⟧b](c) d", "isRangeInsideLink", true},
        {u"a ‸[b](c)", "isRangeInsideLink", true},
        {u"[b](c)‸", "isRangeInsideLink", false},
        {u"`a‸b`", "isRangeInsideCode", true},
        {u"```\na‸b\n```", "isRangeInsideCode", true},
        {u"a\n\n    b‸b\n", "isRangeInsideBlockCode", true},
        {u"`a‸b`", "isRangeInsideBlockCode", false},
        {u"[^a‸b]\n\n[^ab]: c", "isRangeInsideFootnoteLabel", true},
        {u"[^ab]\n\n[^ab]: c‸c", "isRangeInsideFootnoteLabel", false},
        {u"- [ ] a‸a\n  - b", "isRangeInsideTaskList", true},
        {u"- [ ] a\n  - b‸b", "isRangeInsideTaskList", false},
        {u"a <a@b.c>‸ d", "isRangeInsideAutoLink", false},
        {u"a <a@‸b.c> d", "isRangeInsideAutoLink", true},
        {u"a ‸[b]\n\n[b]: c", "isRangeInsideReferenceOrDefinition", true},
        {u"a [b]\n\n[b]‸: c", "isRangeInsideReferenceOrDefinition", true},
        {u"⟦a [b](c) d⟧", "rangeContainsLink", true},
        {u"⟦a ⟧[b](c) d", "rangeContainsLink", false},
        {u"a [b‸](c) d", "rangeContainsLink", true},
    };
    for (const auto& c : cases) {
        const QueriedNote note = queried(c.note);
        EXPECT_EQ((*Query::rangeTest(c.query))(note.text, note.selection), c.isInside)
            << visible(c.note) << c.query;
    }
}

TEST(QueryValues, TestsOfACharacter) {
    const auto trueAt = [](const std::u16string& note) {
        const QueriedNote queriedNote = queried(note);
        std::string all;
        const auto add = [&](const auto& table) {
            for (const auto* const query : table)
                if ((*query)(queriedNote.text, queriedNote.selection.location))
                    all += (all.empty() ? "" : " ") + std::string(query->name);
        };
        add(Query::hasQueries);
        add(Query::codeTests);
        add(Query::blockquoteTests);
        return all;
    };
    EXPECT_EQ(trueAt(u"‸**a**"), "hasMarkerAtIndex hasOpeningMarkerAtIndex");
    EXPECT_EQ(trueAt(u"**a*‸*"), "hasMarkerAtIndex hasClosingMarkerAtIndex");
    EXPECT_EQ(trueAt(u"$a‸$"), "");
    EXPECT_EQ(trueAt(u"#‸ a"), "hasMarkerAtIndex hasBeginOfSentenceMarkerAtIndex hasHeaderMarkerAtIndex");
    EXPECT_EQ(trueAt(u"‸#a b#"), "hasMarkerAtIndex hasOpeningMarkerAtIndex hasOpeningTagMarkerAtIndex");
    EXPECT_EQ(trueAt(u"==a‸=="), "hasMarkerAtIndex hasHighlightAtIndex hasClosingMarkerAtIndex "
                                 "hasClosingHighlightMarkerAtIndex");
    EXPECT_EQ(
        trueAt(u"- [ ]‸ a\n  - b"),
        "hasMarkerAtIndex hasBeginOfSentenceMarkerAtIndex hasListMarkerAtIndex hasTaskListMarkerAtIndex "
        "hasListWithSublistAtIndex");
    EXPECT_EQ(trueAt(u"- a\n  - b\n\n  ‸c"), "hasListWithSublistAtIndex");
    EXPECT_EQ(trueAt(u"- a\n‸  - b\n"), "hasIndentSpaceAtIndex");
    EXPECT_EQ(trueAt(u"- a\n  > ‸\n"), "isListOrBlockquoteParagraphEmptyAtIndex");
    EXPECT_EQ(trueAt(u"- [ ] ‸\r\n- a"), "isListOrBlockquoteParagraphEmptyAtIndex");
    EXPECT_EQ(trueAt(u"- ‸a\r\n-"), "");
    EXPECT_EQ(trueAt(u"- ```\n  x\n‸\n  y\n  ```\n"), "") << "a blank line of code is content";
    EXPECT_EQ(trueAt(u"[^a]: b ‸[^a]"), "hasMarkerAtIndex hasOpeningMarkerAtIndex");
    EXPECT_EQ(trueAt(u"[^a]: b‸b [^a]"), "hasFootnoteDefinitionAtIndex");
    EXPECT_EQ(trueAt(u"---\n‸a: b\n---\n"), "hasYamlAtIndex");
    EXPECT_EQ(trueAt(u"```\n‸```"), "hasMarkerAtIndex hasClosingMarkerAtIndex isFencedCodeEmptyAtIndex");
    EXPECT_EQ(trueAt(u"> ```‸\n>\n> ```"), "isFencedCodeEmptyAtIndex");
    EXPECT_EQ(trueAt(u"```‸\n"), "") << "not closed";
    EXPECT_EQ(trueAt(u"```x‸\na\n```"), "");
    EXPECT_EQ(trueAt(u"```a‸"), "");
}

TEST(QueryValues, CodeString) {
    const struct {
        std::u16string note;
        const char* code;
    } cases[] = {
        {u"``‸ ` ``", "`"},
        {u"> ``‸a\n>  b``", "a b"},
        {u"```x\n‸a\r\n\n  b\r\n```\n", R"(a\n\n  b\n)"},
        {u"```\n‸\ta", R"(\ta)"},
        {u"1. > ```\n   > a‸\n   >   > b\n   > ```\n", R"(a\n  > b\n)"},
        {u"  ```\n a‸\n   b\n", R"(a\n b\n)"},
        {u"---\na:‸ b\n---\n", R"(a: b\n)"},
        {u"    a‸\n\n\t  b\n", R"(a\n\n  b\n)"},
        {u"-   a\n\n        b‸\n", R"(b\n)"},
        {u">     a‸\n>\tb\n", R"(a\n)"},
        {u"> - a\n>\n>       b‸\n>        c\n", R"(b\n c\n)"},
        {u"a‸a", "null"},
    };
    for (const auto& c : cases) {
        const QueriedNote note = queried(c.note);
        const auto code = Query::codeStringAtIndex(note.text, note.selection.location);
        EXPECT_EQ(code ? visible(*code) : "null", c.code) << visible(c.note);
    }
}

TEST(QueryValues, OtherValues) {
    const CVNAttributedString text = annotated(u"## a <!-- {\"k\":\"v\"} --> b\n");
    EXPECT_EQ(Query::headerLevelAtIndex(text, 3), 2);
    EXPECT_EQ(Query::headerLevelAtIndex(text, text.length()), 0);
    const CVNDictionary* const metadata = Query::metadataAtIndex(text, 5);
    ASSERT_TRUE(metadata);
    EXPECT_EQ(metadata->find(u"k")->second, CVNValue::string(u"v"));
    EXPECT_EQ(Query::metadataAtIndex(text, 3), nullptr);
    const CVNAttributedString nest = annotated(u"> [!NOTE]\n> a\n> > b\n> > > [!TIP]\n");
    EXPECT_EQ(Query::calloutNestLevelAtIndex(nest, 12), 1);
    EXPECT_EQ(Query::calloutNestLevelAtIndex(nest, 18), 1);
    EXPECT_EQ(Query::calloutNestLevelAtIndex(nest, 26), 2);
    const CVNAttributedString two = annotated(u"a\n\nאב\n\n1");
    EXPECT_EQ(Query::writingDirectionAtIndex(two, 0), 0);
    EXPECT_EQ(Query::writingDirectionAtIndex(two, 4), 1);
    EXPECT_EQ(Query::writingDirectionAtIndex(two, 7), -1);
}

} // namespace
} // namespace Ondo::Test
