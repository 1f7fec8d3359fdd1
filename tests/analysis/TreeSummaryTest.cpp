#include "corvane/analysis/TreeSummary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "corvane/client/CVNAST.h"
#include "corvane/scan/Util.h"

namespace CVN {
namespace {

using Ondo::Tree;
using Ondo::Util::escape;
using Ondo::Util::utf8;

const std::u16string emoji = u"\U0001F600";

std::u16string xs(std::size_t count) {
    return std::u16string(count, u'x');
}

TEST(TreeSummary, HasTitleAndSubtitle) {
    const struct {
        std::u16string note;
        std::u16string title;
        std::u16string subtitle;
    } cases[] = {
        {u"", u"", u""},
        {u"a", u"a", u""},
        {u"a\n", u"a", u""},
        {u"# a #\nb", u"a", u"b"},
        {u"a\r\nb\r\n\r\nc\r\n", u"a", u"b c"},
        {u"\u3000 a \u00A0\n b \t\n\n c\u2003\u2003d\n", u"a", u"b c d"},
        // What stands before the title
        {u"---\nk: v\n---\n", u"", u""},
        {u"---\nk: v\n---\n\n\n", u"", u""},
        {u"---\nk: v\n---\n# a\nb\n", u"a", u"b"},
        {u"---\nk: v\n---\n\n \n\t\n# a\n\nb\n", u"a", u"b"},
        {u"\n  \n\na\n\n\nb\n", u"a", u"b"},
        {u"\n\n", u"", u""},
        // Blocks
        {u"a\n===\nb\n", u"a", u"b"},
        {u"a\nb\n---\nc\n", u"a", u"b c"},
        {u"- [ ] a *b*\n  - c\n", u"a b", u"c"},
        {u"> a\n> b\n\nc\n", u"a", u"b c"},
        {u"```x\na\n\nb\n```\nc\n", u"x", u"a b c"},
        {u"***\na\n", u"", u"a"},
        {u"<div>\na\n</div>\n", u"<div>", u"a </div>"},
        {u"## a <!-- {\"fold\":true} -->\nb\n", u"a", u"b"},
        {u"| a<br>b | c |\n|---|---|\n| d<br>e | *f* |\n", u"a b c", u"d e f"},
        {u"|a|b|\n|-|-|\n|c|d|", u"a b", u"c d"},
        {u"a[^1] b\n\n[^1]: c\n", u"a b", u"1:c"},
        // Inlines
        {u"a &amp; \\*b\\* &nope;\n&lt;\\_\n", u"a & *b* &nope;", u"<_"},
        {u"# [a](b \"c\") ![d](e) f", u"a d f", u""},
        {u"[a] [b] [c][a] [d][b] ![e]\n\n[a]: /u\n", u"a [b] c [d][b] ![e]", u"a:/u"},
        {u"[[a/b|c]] [[a/b]] [[a\\/b]]\n", u"c a/b a/b", u""},
        {u"a <b>c</b> <!-- d -->e\n", u"a c e", u""},
        {u"[a](b)<!-- {\"embed\":\"true\"} --> c\n", u"a c", u""},
        // Inlines that go on in the next line
        {u"[a\nb](c) *d\ne*\n", u"a", u"b d e"},
        {u"[a](b 'c\nd') e\n", u"a", u"e"},
        {u"a <!-- {\n\"b\":1} --> c <d\ne='f'>g\n", u"a", u"c g"},
        // Lines of tags
        {u"a\n#b #c/d\ne #f\n", u"a", u"e #f"},
        {u"#a\n#b\nc\n", u"#a", u"c"},
        {u"a\n\n#b, #c!\n#d e#\n\n#f", u"a", u""},
        {u"a\n- #b\n", u"a", u"#b"},
        // Limits
        {xs(501), xs(500), u""},
        {xs(499) + emoji + u"y\nb\n", xs(499), u"b"},
        {xs(498) + emoji + u"y\nb\n", xs(498) + emoji, u"b"},
        {u"a\n" + xs(199) + emoji + u"\n", u"a", xs(199)},
        {u"a\n" + xs(198) + u"  \ny\n", u"a", xs(198) + u" y"},
        {u"a\n" + xs(100) + u"\n\n" + xs(300) + u"\n", u"a", xs(100) + u" " + xs(98)},
    };
    for (const auto& c : cases) {
        const TreeSummary summary{Tree(c.note)};
        EXPECT_EQ(utf8(escape(summary.title)), utf8(escape(c.title))) << utf8(escape(c.note));
        EXPECT_EQ(utf8(escape(summary.subtitle)), utf8(escape(c.subtitle))) << utf8(escape(c.note));
    }
}

/// "code todo done spaces tabs | sorted tags | links | wikilink@offset"
std::string gathered(const TreeSummary& summary) {
    std::string out;
    for (const std::int64_t count : {summary.codeBlockCount, summary.todoCount, summary.doneCount,
                                     summary.spaceIndentedLineCount, summary.tabIndentedLineCount})
        out += std::to_string(count) + ' ';
    out += '|';
    for (const std::u16string& tag : std::set(summary.tags.begin(), summary.tags.end()))
        out += ' ' + utf8(tag);
    out += " |";
    for (const std::u16string& link : summary.links)
        out += ' ' + utf8(link);
    out += " |";
    for (const TreeSummary::WikiLink& link : summary.wikiLinks)
        out += ' ' + utf8(link.title) + '@' + std::to_string(link.offset);
    return out;
}

TEST(TreeSummary, GathersFromTheWholeNote) {
    const struct {
        std::u16string note;
        std::string expected;
    } cases[] = {
        {u"", "0 0 0 0 0 | | |"},
        {u"---\nk: \"[[a]] #b\"\n---\n", "0 0 0 0 0 | | |"},
        // Blocks
        {u"```\n#a [b](c) [[d]]\n- [ ] e\n```\n\n    f\n\n- g\n\n  ~~~\n  h\n", "3 0 0 2 0 | | |"},
        {u"- [ ] a\n- [x] b\n- c\n  - [ ] d\n\n[ ] e\n", "0 2 1 1 0 | | |"},
        {u"- a\n  - b\n\t- c\n \t d\n", "0 0 0 1 2 | | |"},
        {u"  a\n  b\n\tc\n", "0 0 0 0 0 | | |"},
        {u"> a\n>   b\n", "0 0 0 1 0 | | |"},
        // Tags
        {u"#a/b #a/c #A\n# #a\n", "0 0 0 0 0 | A a a/b a/c | |"},
        {u"#a b/c# #d\\/e/f\n", "0 0 0 0 0 | a b a b/c d\\/e d\\/e/f | |"},
        {u"`#a` \\#b [#c](d)\n", "0 0 0 0 0 | | d |"},
        // Links
        {u"[a](x) ![b](y) [c](x) [](z) [d]() <x:u> http://v.com\n", "0 0 0 0 0 | | x y z |"},
        {u"[![a](x)](y) [b](<z w> 't')\n", "0 0 0 0 0 | | y x z w |"},
        {u"[a][l] [b](y) [l] ![c][L] [d] [m]\n\n[l]: x\n[l]: z\n[m]: y\n[n]: w\n", "0 0 0 0 0 | | x y |"},
        {u"[a]\n\n> [a]: x\n\n[a]: y\n", "0 0 0 0 0 | | x |"},
        {u"[a] [b](x)\n\n[a]: <>\n", "0 0 0 0 0 | | x |"},
        // Wikilinks
        {u"[[a]] [[a/b|c]]\n[[a]] [[/h]] [[]]\n", "0 0 0 0 0 | | | a@0 a/b@6 a@16 /h@22"},
        {u"- \U0001F600 [[a\\/b]]\n", "0 0 0 0 0 | | | a\\/b@5"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(gathered(TreeSummary(Tree(c.note))), c.expected) << utf8(escape(c.note));
}

// The client's side

TEST(CVNTextSummary, IsASnapshot) {
    CVNAST note = CVNAST::fromMarkdown(u"# a\nb #c/d [[e\\/f/g]] [h](i)\n");
    const CVNTextSummary summary = note.textSummary();
    note.replaceAllWithMarkdown(u"x");
    EXPECT_EQ(summary.title, u"a");
    EXPECT_EQ(summary.subtitle, u"b #c/d e/f/g h");
    EXPECT_EQ(summary.tags, (std::set<std::u16string>{u"c", u"c/d"}));
    EXPECT_EQ(summary.links, std::vector<std::u16string>{u"i"});
    const std::vector<CVNTextSummaryWikiLink> wikiLinks{
        CVNTextSummaryWikiLink::wikiLinkWithTitle(u"e\\/f/g", 11)};
    EXPECT_EQ(summary.wikiLinks, wikiLinks);
    EXPECT_EQ(summary.wikiLinks[0].decodedTitle(), u"e/f");
    EXPECT_EQ(CVNTextSummaryWikiLink::wikiLinkWithTitle(u"", 0).decodedTitle(), std::nullopt);
    EXPECT_EQ(CVNTextSummaryWikiLink::wikiLinkWithTitle(u"/a", 0).decodedTitle(), u"");
}

TEST(CVNTextSummary, DescribesItself) {
    const auto described = [](std::u16string_view note) {
        return utf8(CVNAST::fromMarkdown(note).textSummary().description());
    };
    EXPECT_EQ(described(u""), "CVNTextSummary\ntitle: \nsubtitle: \ntags: \nlinks: \nwiki links: \n"
                              "Code block count: 0\ntodo count: 0\ndone count: 0\n"
                              "space indented line count: 0\ntab indented line count: 0");
    EXPECT_EQ(described(u"a\n- [ ] #z/b\n  - [x] [c](d) [e](f) [[g/h]]\n\t- [ ] [[i]]\n\n```\n```\n"),
              "CVNTextSummary\ntitle: a\nsubtitle: #z/b c e g/h i\ntags: z\nz/b\nlinks: d\nf\n"
              "wiki links: CVNTextSummaryWikiLink\ntitle: g/h\noffset: 35\n"
              "CVNTextSummaryWikiLink\ntitle: i\noffset: 50\n"
              "Code block count: 1\ntodo count: 2\ndone count: 1\n"
              "space indented line count: 1\ntab indented line count: 1");
}

} // namespace
} // namespace CVN
