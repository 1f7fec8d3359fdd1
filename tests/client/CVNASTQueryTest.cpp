#include <gtest/gtest.h>

#include <string>

#include "corvane/client/CVNAST.h"
#include "corvane/scan/Util.h"

namespace {

using Ondo::Util::escape;
using Ondo::Util::utf8;

/// The text of a range, escaped; "none" for nothing found.
std::string shown(const CVNAST& note, CVNRange range) {
    return range.isFound() ? utf8(escape(note.markdownIn(range))) : "none";
}

TEST(CVNASTQuery, RangeOfHeaderWithTitle) {
    const struct {
        std::u16string note;
        std::u16string title;
        std::string text;
    } cases[] = {
        {u"a\n\n# b\nc\n", u"b", "# b\\n"},
        {u"# One\n## *oNE*\n", u"ONE", "# One\\n"},
        {u"## \u00C4 [x](y)  ##\n", u"\u00E4 X", "## \xC3\x84 [x](y)  ##\\n"},
        {u"# Stra\u00DFe", u"STRASSE",
         "# Stra\xC3\x9F"
         "e"},
        {u"> -   # a\n>   ## b\n", u"a", "# a\\n"},
        {u"> -   # a\n>     ## b\n", u"b", "## b\\n"},
        {u"  # a\n", u"a", "# a\\n"},
        {u"# a <!-- {\"fold\":true} -->\nb\n", u"a", "# a <!-- {\"fold\":true} -->\\n"},
        {u"a\n===\n", u"a", "none"},
        {u"# " + std::u16string(700, u'x'), std::u16string(700, u'X'), "# " + std::string(700, 'x')},
        {u"# #a\n", u"#a", "# #a\\n"},
        {u"# a b\n", u"a", "none"},
        {u"a\n# \n", u"", "# \\n"},
        {u"a\n", u"a", "none"},
        {u"", u"", "none"},
    };
    for (const auto& c : cases) {
        const CVNAST note = CVNAST::fromMarkdown(c.note);
        EXPECT_EQ(shown(note, note.rangeOfHeaderWithTitle(c.title)), c.text) << utf8(escape(c.note));
    }
    EXPECT_EQ(CVNAST().rangeOfHeaderWithTitle(u"a"), CVNRange::notFound());
}

TEST(CVNASTQuery, HasFoldableContentAtIndex) {
    // A line a string: whether its offsets are in a head of something to fold.
    const struct {
        std::u16string note;
        std::string isFoldable;
    } cases[] = {
        {u"# a\nb\n# c\n", "111100"
                           "0000"},
        {u"# a\n\n## b\n\n", "1111"
                             "0"
                             "00000"
                             "0"},
        {u"- a\n  - b\n  - c\n", "1111"
                                 "000000"
                                 "000000"},
        {u"> # a\n> b\n", "000000"
                          "0000"},
        {u"a", "0"},
        {u"", ""},
    };
    for (const auto& c : cases) {
        const CVNAST note = CVNAST::fromMarkdown(c.note);
        std::string actual;
        for (std::int64_t index = 0; index < note.markdownLength(); ++index)
            actual += note.hasFoldableContentAtIndex(index) ? '1' : '0';
        EXPECT_EQ(actual, c.isFoldable) << utf8(escape(c.note));
        EXPECT_FALSE(note.hasFoldableContentAtIndex(-1));
        EXPECT_FALSE(note.hasFoldableContentAtIndex(note.markdownLength()));
        EXPECT_FALSE(note.hasFoldableContentAtIndex(CVNNotFound));
    }
}

TEST(CVNASTQuery, FootnoteRanges) {
    CVNAST note = CVNAST::fromMarkdown(u"a[^B c] d[^b  C]\n\n[^1]: e\n[^b C]: f\n[^b c]: g\n");
    EXPECT_EQ(shown(note, note.footnoteReferenceRangeForLabel(u"B c")), "[^B c]");
    EXPECT_EQ(shown(note, note.footnoteDefinitionRangeForLabel(u"b c")), "[^b C]: f\\n");
    EXPECT_EQ(note.footnoteReferenceRangeForLabel(u"b c").location, 1);
    EXPECT_EQ(shown(note, note.footnoteDefinitionRangeForLabel(u"1")), "[^1]: e\\n");
    for (const char16_t* label : {u"1", u"^b c", u"[^b c]", u""})
        EXPECT_EQ(note.footnoteReferenceRangeForLabel(label), CVNRange::notFound()) << utf8(label);

    note.replaceRange({0, 0}, u"- [^b c] [^1]\n\n");
    EXPECT_EQ(note.footnoteReferenceRangeForLabel(u"b c"), (CVNRange{2, 6}));
    EXPECT_EQ(shown(note, note.footnoteDefinitionRangeForLabel(u"1")), "[^1]: e\\n");
    note.replaceAllWithMarkdown(u"");
    EXPECT_EQ(note.footnoteDefinitionRangeForLabel(u"1"), CVNRange::notFound());
}

TEST(CVNASTQuery, ARuleSetWithoutFootnotesHasNone) {
    CVNAST::ruleSet = Ondo::RuleConfig::Commonmark;
    const CVNAST note = CVNAST::fromMarkdown(u"a[^1]\n\n[^1]: b\n");
    CVNAST::ruleSet = Ondo::RuleConfig::Extended;
    EXPECT_EQ(note.footnoteDefinitionRangeForLabel(u"1"), CVNRange::notFound());
    EXPECT_EQ(note.footnoteReferenceRangeForLabel(u"1"), CVNRange::notFound());
}

} // namespace
