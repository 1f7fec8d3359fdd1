#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "corvane/analysis/TreeSummary.h"
#include "corvane/scan/Util.h"

namespace CVN {
namespace {

using Ondo::Node;
using Ondo::Tree;
using Ondo::Util::escape;
using Ondo::Util::utf8;

constexpr std::int64_t noLimit = std::numeric_limits<std::int64_t>::max();

std::u16string title(std::u16string_view note, std::int64_t limit = noLimit) {
    const Tree tree{std::u16string(note)};
    return TreeSummary::normalizedTitle(tree, Node::Iterator(tree.root->firstChild), tree.length(), limit);
}

struct Case {
    std::u16string note;
    std::u16string title;
};

void expectAll(std::initializer_list<Case> cases, std::int64_t limit = noLimit) {
    for (const Case& c : cases) {
        const std::u16string actual = title(c.note, limit);
        EXPECT_EQ(actual, c.title) << utf8(escape(c.note)) << " gives " << utf8(escape(actual)) << ", not "
                                   << utf8(escape(c.title));
    }
}

TEST(NormalizedTitle, OfConstructs) {
    expectAll({
        {u"# a #\n", u"a"},
        {u"  a  \nb\\\n*c* `d` ~~e~~ $f$ \\* ==g==\n", u"a b c d e f * g"},
        {u"- [ ] a\n  - b\n> c\n", u"a b c"},
        {u"```x\ny\n```\n", u"x y"},
        {u"\u3000a\u00A0\n", u"a"},
        {u"", u""},
        {u"# \n", u""},
        // Links
        {u"[a](http://b)", u"a"},
        {u"![a](b \"c\")", u"a"},
        {u"[a][b]\n\n[b]: /c\n", u"a  b:/c"},
        {u"![a]\n\n[a]: /c 'd'\n", u"a  a:/cd"},
        {u"[a][b] [c][] ![d]", u"[a][b] [c][] ![d]"},
        {u"[a](b&amp;\\*c 'd&lt;e\nf') ![g](<h&gt;\\>>)", u"a g"},
        {u"[a][b&amp;\\*]", u"[a][b&*]"},
        {u"[a][b&amp;\\*]\n\n[b&amp;\\*]: c\n", u"a  b&*:c"},
        {u"[![a] b *c*](d 'e')", u"![a] b c"},
        {u"<http://a.b> http://c.d", u"http://a.b http://c.d"},
        {u"a[^1]\n\n[^1]: b\n", u"a  1:b"},
        {u"[[x|y]] [[x/z]] [[x/z|y]] [[x|]]", u"y x/z y x"},
        {u"#a/b #c d# e", u"#a/b #c d# e"},
        // Entities, and HTML, of which nothing is shown
        {u"&amp;&#x41;&#0;", u"&A\uFFFD"},
        {u"a<br>b <i c='d\ne'>f</i>", u"ab f"},
        {u"[a](b)<!-- {\"preview\":\"true\"} --> c <!-- d -->", u"a c"},
        {u"# a <!-- {\"fold\":true} -->\nb\n", u"a  b"},
        // Cells
        {u"| a<br>b | c |\n|---|---|\n| d | e |\n", u"a b c   d e"},
        {u"|a<BR>b|c|\n|---|---|\n", u"ab c"},
        {u"|a|b|\n|-|-|\n|c|d|", u"a b   c d"},
    });
}

TEST(NormalizedTitle, StopsAtItsEnd) {
    const std::u16string note = u"a <!-- {\n} --> b\nc\n\nd\n";
    const Tree tree(note);
    const Node::Iterator first(tree.root->firstChild);
    const auto upTo = [&](std::int64_t end) {
        return TreeSummary::normalizedTitle(tree, first, end, noLimit);
    };
    EXPECT_EQ(upTo(0), u"");
    EXPECT_EQ(upTo(8), u"a"); // within what is left out
    EXPECT_EQ(upTo(static_cast<std::int64_t>(note.find(u"\nc"))), u"a  b");
    EXPECT_EQ(upTo(static_cast<std::int64_t>(note.find(u"\nd"))), u"a  b c");
    EXPECT_EQ(
        TreeSummary::normalizedTitle(tree, Node::Iterator(tree.root->lastChild), tree.length(), noLimit),
        u"d");
}

TEST(NormalizedTitle, StartsBehindWhatItStartsIn) {
    const std::u16string notes[] = {u"a <!-- b\nc\nd --> e", u"a <b c='\nd'> e", u"[a](b 'c\nd\\*\n&lt;') e",
                                    u"[a][b\nc] e\n\n[b c]: d"};
    for (const std::u16string& note : notes) {
        const Tree tree(note);
        Node::Iterator behindLine(tree.root->firstChild);
        behindLine.endOfLine();
        behindLine.nextInSequence();
        const std::int64_t end = tree.root->firstChild->charCount;
        EXPECT_EQ(utf8(TreeSummary::normalizedTitle(tree, behindLine, end, noLimit)), "e") << utf8(note);
    }
}

TEST(NormalizedTitle, HasALimit) {
    const std::u16string pair = u"\U0001F600";
    const struct {
        std::u16string note;
        std::int64_t limit;
        std::u16string expected;
    } cases[] = {
        {u"abc", 3, u"abc"},
        {u"abc", 2, u"ab"},
        {u"a b", 2, u"a "}, // cut behind the trimming
        {u"- a\n- b\n", 2, u"a"},
        {u"ab" + pair, 4, u"ab" + pair},
        {u"ab" + pair, 3, u"ab"},
        {pair + pair, 1, u""},
        {u"ab\xD83D", 3, u"ab"},
        {u"ab\xD83D", 4, u"ab\xD83D"},
        {std::u16string(600, u'x'), 500, std::u16string(500, u'x')},
    };
    for (const auto& c : cases)
        EXPECT_EQ(title(c.note, c.limit), c.expected) << utf8(c.note) << ", at most " << c.limit;
    EXPECT_DEATH(title(u"a", 0), "limit > 0.*normalizedTitle.*TreeSummary");
}

TEST(NormalizedTitle, OfASubtitleHasNoTagLines) {
    expectAll(
        {
            {u"a\n#b #c/d\ne\n", u"a e"},
            {u"#b, (#c) – \u3000#d! \ne", u"e"},
            {u"  #b\n\n#c", u""},
            {u"a\n(#b, #c)\nd", u"a d"}, // what stands before the first tag goes, too
            {u"a\n\u2013 #b\n(#c) d", u"a (#c) d"},
            {u"(\n#b)\nc", u"( c"},
            {u"#b c# \nd", u"d"},
            {u"a #b\n", u"a #b"},
            {u"#b a #c\n", u"#b a #c"},
            {u"#b *c*\n", u"#b c"},
            {u"#b `\n", u""},
            {u"#b 1\n", u"#b 1"},
            {u"#b  \nc", u"#b c"}, // a hard line break is more than the end of the line
            {u"- #b\n", u"#b"},
            {u"> #b\n", u"#b"},
            {u"# #b\n", u"#b"},
            {u"*a\n#b c*\n#d", u"a #b c"},
        },
        TreeSummary::subtitleLimit);
    expectAll({{u"a\n#b\n", u"a #b"}}, TreeSummary::subtitleLimit - 1);
    expectAll({{u"a\n#b\n", u"a #b"}}, TreeSummary::subtitleLimit + 1);
}

} // namespace
} // namespace CVN
