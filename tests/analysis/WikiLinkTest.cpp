#include "corvane/analysis/CVNWikiLink.h"

#include <gtest/gtest.h>

#include "corvane/client/CVNAST.h"
#include "corvane/inline/Wikilink.h"
#include "corvane/scan/Util.h"
#include "tests/support/RandomNote.h"

namespace Ondo::Test {
namespace {

using Util::utf8;

TEST(CVNWikiLink, Writes) {
    const std::pair<std::u16string, std::string_view> cases[] = {
        {CVNWikiLink::encodeSegment(u"a/b\\c [d]"), "a\\/b\\\\c [d]"},
        {CVNWikiLink::encodeTitle(u"a/b [c]|d &amp; & e&#1;"), "a\\/b \\[c\\]\\|d \\&amp; & e\\&#1;"},
        {CVNWikiLink::wikiLinkStringForTitle(u""), "[[]]"},
        {CVNWikiLink::wikiLinkStringForTitle(u"a/b"), "[[a\\/b]]"},
        {CVNWikiLink::wikiLinkStringForTitle(u"a", u""), "[[a]]"},
        {CVNWikiLink::wikiLinkStringForTitle(u"a|b", u"c|d/e"), "[[a\\|b|c\\|d\\/e]]"},
        {CVNWikiLink::wikiLinkStringForTitleAndHeader(u"a/b", u"c/d"), "[[a\\/b/c\\/d]]"},
    };
    for (const auto& [written, expected] : cases)
        EXPECT_EQ(utf8(written), expected);
}

TEST(CVNWikiLink, TakesTargetsApart) {
    const auto parts = [](std::u16string_view target) {
        std::string out;
        for (const std::u16string& part : CVNWikiLink::componentsForWikiLink(target))
            out += '<' + utf8(part) + '>';
        return out;
    };
    EXPECT_EQ(parts(u"a/b/c"), "<a><b/c>");
    EXPECT_EQ(parts(u"a\\/b/c\\/d/e"), "<a/b><c/d/e>");
    EXPECT_EQ(parts(u"a/"), "<a><>");
    EXPECT_EQ(parts(u"/b"), "<><b>");
    EXPECT_EQ(parts(u"a"), "<a>");
    EXPECT_EQ(parts(u""), "");
    EXPECT_EQ(CVNWikiLink::decodeTitleForWikiLink(u"a\\/b/c"), u"a/b");
    EXPECT_EQ(CVNWikiLink::decodeTitleForWikiLink(u"/c"), u"");
    EXPECT_EQ(CVNWikiLink::decodeTitleForWikiLink(u""), std::nullopt);
    const std::vector<std::u16string> targets{u"a/b", u"", u"c"};
    EXPECT_EQ(CVNWikiLink::decodeTitlesForWikiLinks(targets), (std::vector<std::u16string>{u"a", u"", u"c"}));
    EXPECT_EQ(utf8(CVNWikiLink::decodeWikiLink(u"a\\/b/c \\[d\\] \\| e")), "a/b/c [d] | e");
}

const Inline::WikilinkNode* linkOf(const Tree& tree) {
    for (Node::Iterator at = tree.root->begin(); at.node; ++at)
        if (at->type == ONDO_WIKILINK_NODE) return static_cast<const Inline::WikilinkNode*>(at.node);
    return nullptr;
}

/// Titles of what markup is made of come back from the tree.
TEST(CVNWikiLink, TitlesSurvive) {
    static constexpr std::u16string_view pieces[] = {u"[", u"]",  u"|", u"/", u"\\", u"&",  u"&amp;",
                                                     u"#", u"*",  u"a", u" ", u"!",  u"`",  u"&#65;",
                                                     u"<", u"日", u"$", u"_", u"]]", u"[[", u"\xD83D\xDE00"};
    RandomNote random(6);
    const auto make = [&](std::size_t least) {
        std::u16string out;
        for (std::size_t i = least + random.below(8); i > 0; --i)
            out += pieces[random.below(std::size(pieces))];
        return std::u16string(Util::trim(std::u16string_view(out), Go::whitespace));
    };
    for (int round = 0; round < 5000; ++round) {
        const std::u16string title = make(1), other = make(0);
        if (title.empty()) continue;
        const bool isHeader = random.below(2) == 0;
        const std::u16string text = isHeader ? CVNWikiLink::wikiLinkStringForTitleAndHeader(title, other)
                                             : CVNWikiLink::wikiLinkStringForTitle(title, other);
        const Tree tree(u"x " + text + u" y");
        const Inline::WikilinkNode* const link = linkOf(tree);
        ASSERT_TRUE(link && link->charCount == std::ssize(text)) << utf8(text);
        ASSERT_EQ(utf8(*CVNWikiLink::decodeTitleForWikiLink(link->encodedSegments())), utf8(title))
            << utf8(text);
        const auto parts = CVNWikiLink::componentsForWikiLink(link->encodedSegments());
        if (isHeader) {
            ASSERT_EQ(utf8(parts.size() > 1 ? parts[1] : u""), utf8(other)) << utf8(text);
        } else {
            ASSERT_EQ(utf8(link->alias), utf8(other)) << utf8(text);
        }
    }
}

TEST(CVNWikiLink, FollowsANoteToItsNewTitle) {
    const auto update = [](std::u16string_view text, bool skip = false) {
        return utf8(CVNWikiLink::updateWikiLinkWithTitle(u"a/b", u"c|d", skip, text));
    };
    EXPECT_EQ(update(u"[[a\\/b]] [[A\\/B/h|x]] [[a/b]] [a/b](a/b)"),
              "[[c\\|d]] [[c\\|d/h|x]] [[a/b]] [a/b](a/b)");
    EXPECT_EQ(update(u"# [[a\\/b]]\n[[a\\/b]]", true), "# [[a\\/b]]\n[[c\\|d]]");
    EXPECT_EQ(utf8(CVNWikiLink::updateWikiLinkWithTitle(u"a", u"x/y\\z", false, u"[[a]] [[A/h|b]]")),
              "[[x\\/y\\\\z]] [[x\\/y\\\\z/h|b]]");
    EXPECT_EQ(update(u""), "");
    EXPECT_EQ(utf8(CVNWikiLink::updateWikiLinkWithTitle(u"", u"x", false, u"[[]] [[/h]]")), "[[]] [[/h]]");
}

struct Backlink {
    std::u16string_view drawing; ///< the range is what stands between ⟦ and ⟧
    bool isValid;
};

TEST(CVNWikiLink, OffersBacklinks) {
    static constexpr Backlink cases[] = {
        {u"⟦Foo⟧", true},
        {u"see ⟦Foo⟧ bar", true},
        {u"see \"⟦Foo⟧\", bar", true},
        {u"a⟦Foo⟧", false},
        {u"⟦Foo⟧s", false},
        {u"⟦Foo⟧_s", true}, // punctuation
        {u"这是⟦标题⟧吗", true},
        {u"这是⟦Foo⟧吗", true},
        {u"a⟦标题⟧b", true},            // it is itself made of words
        {u"a⟦(Foo)⟧b", true},           // it has its own separators
        {u"\xD840\xDC00⟦Foo⟧ x", true}, // U+20000
        {u"\xD83D\xDE00⟦Foo⟧", false},  // a symbol is none
        {u"\xDC00⟦Foo⟧", false},        // nor is half a pair
        {u"x ⟦\xD840\xDC00⟧x", true},
        {u"x\u3000⟦Foo⟧\u00A0y", true},
        {u"한글⟦Foo⟧ x", false},
        {u"[⟦Foo⟧](x)", false},
        {u"![⟦Foo⟧](x)", false},
        {u"[x](/⟦Foo⟧)", false},
        {u"[**⟦Foo⟧**](x)", false},
        {u"⟦[Foo](x)⟧", false},
        {u"[[⟦Foo⟧]]", false},
        {u"#a/⟦Foo⟧", false},
        {u"#two ⟦Foo⟧#", false},
        {u"<https://⟦Foo⟧.org>", false},
        {u"https://⟦Foo⟧.org", true},
        {u"a@⟦Foo⟧.org", true},
        {u"[⟦Foo⟧] x", false}, // a reference, even if nothing defines it
        {u"[⟦Foo⟧]\n\n[foo]: /x", false},
        {u"`⟦Foo⟧`", true},
        {u"# ⟦Foo⟧\n", true},
        {u"| ⟦Foo⟧ |\n|-|", true},
    };
    for (const Backlink& each : cases) {
        std::u16string text(each.drawing);
        const auto start = text.find(u'⟦');
        text.erase(start, 1);
        const auto end = text.find(u'⟧');
        text.erase(end, 1);
        const CVNRange range =
            CVNRange::between(static_cast<std::int64_t>(start), static_cast<std::int64_t>(end));
        EXPECT_EQ(CVNWikiLink::validateImplictBacklinkForRange(range, text), each.isValid)
            << utf8(each.drawing);
    }
}

TEST(CVNWikiLink, OffersNothingOutsideTheText) {
    for (const CVNRange range : {CVNRange{-1, 2}, CVNRange{0, -1}, CVNRange{1, 1}, CVNRange{3, 1},
                                 CVNRange{0, 4}, CVNRange{1, CVNNotFound}, CVNRange::notFound(),
                                 CVNRange{CVNNotFound, CVNNotFound}, CVNRange{0, 0}, CVNRange{3, 0}})
        EXPECT_FALSE(CVNWikiLink::validateImplictBacklinkForRange(range, u"abc")) << range.location;
    EXPECT_FALSE(CVNWikiLink::validateImplictBacklinkForRange({0, 0}, u""));
    EXPECT_TRUE(CVNWikiLink::validateImplictBacklinkForRange({0, 3}, u"abc"));
}

/// The dialect of notes has no say here: in the other one this is no code, but a tag.
TEST(CVNWikiLink, OffersBacklinksInTheExtendedDialect) {
    CVNAST::setUsesSimplifiedRuleSet(true);
    const bool isValid = CVNWikiLink::validateImplictBacklinkForRange({5, 3}, u"    #Foo");
    CVNAST::setUsesSimplifiedRuleSet(false);
    EXPECT_TRUE(isValid);
}

} // namespace
} // namespace Ondo::Test
