#include "corvane/operation/OperationUpdateWikiLinks.h"

#include <gtest/gtest.h>

#include "corvane/inline/Segments.h"
#include "corvane/inline/Wikilink.h"
#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using namespace Ondo::Test;
using Ondo::RuleConfig;
using Ondo::Segments;
using Ondo::Tree;

TEST(UpdateWikiLinks, ChangesThePrefix) {
    for (const RuleConfig::RuleSet rules : {RuleConfig::Extended, RuleConfig::Simplified})
        expectEach(UpdateWikiLinks(u"a", u"b"),
                   {
                       {u"‸[[a/c|x]]", u"‸[[b/c|x]]"},
                       {u"[[ A |  *x* ]]‸ [[ab]] [[a\\/c]]", u"[[b|  *x* ]]‸ [[ab]] [[a\\/c]]"},
                       {u"> - x[[a‸]]\r\n>   [[b/a]][[a]]", u"> - x[[b]]‸\r\n>   [[b/a]][[b]]"},
                       {u"‸[[a/]] [[a|]]", u"‸[[b]] [[b]]"},
                       {u"‸[[a/c/d]] [[/a]] [[]]", u"‸[[b/c/d]] [[/a]] [[]]"},
                       {u"‸[[a/ c\\/[1] &amp; |x]] [[a/ ]]", u"‸[[b/ c\\/[1] &amp; |x]] [[b/ ]]"},
                       {u"‸[a](a) #a `[[a]]` \\[[a]]", u""},
                       {u"---\n[[a]]\n---\n⟦# [[a]]\n\n| [[a]] ⟧|\n|-|",
                        u"---\n[[a]]\n---\n⟦# [[b]]\n\n| [[b]] ⟧|\n|-|"},
                       {u"‸", u""},
                   },
                   rules);
    expectEach(UpdateWikiLinks(u"a", u"b"), {{u"‸[[a]]", u""}}, RuleConfig::Commonmark);
    expectEach(UpdateWikiLinks(u"a/h", u"a/i"), {{u"‸[[a/h|x]] [[a]]", u"‸[[a/i|x]] [[a]]"}});
    expectEach(UpdateWikiLinks(u"/h", u"/i"), {{u"‸[[/h|x]] [[h]]", u"‸[[/i|x]] [[h]]"}});
    expectEach(UpdateWikiLinks(u"a", u"A"), {{u"‸[[a]] [[A]]", u"‸[[A]] [[A]]"}});
}

TEST(UpdateWikiLinks, LeavesTheTitle) {
    expectEach(UpdateWikiLinks(u"a", u"b", true),
               {
                   {u"‸[[a]]", u""},
                   {u"# [[a]] [[a]]‸\n[[a]]", u"# [[a]] [[a]]‸\n[[b]]"},
                   {u"---\nk: v\n---\n\n[[a]]\r\n[[a]]‸", u"---\nk: v\n---\n\n[[a]]\r\n[[b]]‸"},
                   {u"\n \n- [[a]]\n- [[a]]‸", u"\n \n- [[a]]\n- [[b]]‸"},
                   {u"‸\n", u""},
               });
}

/// Alone the heading has nothing to fold: its comment is HTML.
TEST(UpdateWikiLinks, InFoldedHeadings) {
    expectEach(UpdateWikiLinks(u"a", u"b"), {{u"# x [[a]] <!-- {\"fold\":true} -->\n\n[[a]]‸",
                                              u"# x [[b]] <!-- {\"fold\":true} -->\n\n[[b]]‸"}});
}

/// In a cell an escaped pipe is the separator of the simplified dialect, and part of the name elsewhere.
TEST(UpdateWikiLinks, InTables) {
    const std::u16string_view below = u" |\n|-|";
    const auto row = [below](std::u16string_view link) {
        return std::u16string(u"| ‸").append(link).append(below);
    };
    expectEach(UpdateWikiLinks(u"a", u"b"), {{row(u"[[a\\|x]]"), row(u"[[b\\|x]]")}}, RuleConfig::Simplified);
    expectEach(UpdateWikiLinks(u"a", u"b|c (&d)"), {{row(u"[[a\\|x]]"), row(u"[[b&vert;c (\\&d)\\|x]]")}},
               RuleConfig::Simplified);
    expectEach(UpdateWikiLinks(u"a|x", u"b|y"), {{row(u"[[a\\|x]]"), row(u"[[b\\|y]]")}});
}

TEST(UpdateWikiLinks, NamesThatNeedCare) {
    struct {
        std::u16string_view name; ///< of one segment, not encoded
        std::u16string_view text;
    } const cases[] = {
        {u"b]", u"[[b\\]]]"},
        {u"[[b|]]", u"[[\\[\\[b\\|\\]\\]]]"},
        {u"b/c\\", u"[[b\\/c\\\\]]"},
        {u"\\[", u"[[\\\\\\[]]"},
        {u"b & c&d &#1;", u"[[b & c\\&d \\&#1;]]"},
        {u"*b* `c` #d $e$ <f>", u"[[*b* `c` #d $e$ <f>]]"},
        {u"😀 שלום", u"[[😀 שלום]]"},
        {u" b\t", u"[[b]]"},
        // not to be spelt
        {u"b\nc", u""},
        {u"b\r", u""},
        {u"", u""},
        {u" ", u""},
    };
    for (const auto& each : cases) {
        const std::u16string to = Segments::encode({std::u16string(each.name)});
        const std::u16string after = each.text.empty() ? u"" : u"x‸ " + std::u16string(each.text);
        expectEach(UpdateWikiLinks(u"a", to), {{u"x‸ [[a]]", after}});
        if (after.empty()) continue;
        expectEach(UpdateWikiLinks(to, u"a"), {{after, u"x‸ [[a]]"}});
    }
    expectEach(UpdateWikiLinks(u"", u"b"), {{u"‸[[]] [[/a]]", u""}});
    expectEach(UpdateWikiLinks(u"a", u"b /c"), {{u"‸[[a]] [[a/d|x]]", u"‸[[b/c]] [[b/c/d|x]]"}});
    expectEach(UpdateWikiLinks(u"b/c/d", u"a"), {{u"‸[[b/c/d]] [[b/c]]", u"‸[[a]] [[b/c]]"}});
    expectEach(UpdateWikiLinks(u"a", u"b/"), {{u"‸[[a|x]]", u"‸[[b/|x]]"}});
    expectEach(UpdateWikiLinks(u"b/", u"/"), {{u"‸[[b]]", u""}});
}

/// What was opened before the link would end in the name.
TEST(UpdateWikiLinks, GuardsNamesFromWhatStandsBefore) {
    struct {
        std::u16string_view before;
        std::u16string_view name;
        std::u16string_view link;
    } const cases[] = {
        {u"x` ", u"b`c", u"[[b&grave;c]]"},      {u"$x ", u"b$ c", u"[[b&dollar; c]]"},
        {u"x <!-- ", u"b-->", u"[[b--&gt;]]"},   {u"[x]( ", u"b)'", u"[[b&rpar;&apos;]]"},
        {u"[x](<", u"b>)", u"[[b&gt;&rpar;]]"},  {u"<xx:", u"b>", u"[[b&gt;]]"},
        {u"<x y='", u"b'>", u"[[b&apos;&gt;]]"},
    };
    for (const auto& each : cases) {
        const std::u16string start = u"‸" + std::u16string(each.before);
        const std::u16string guarded = start + std::u16string(each.link);
        expectEach(UpdateWikiLinks(u"a", each.name), {{start + u"[[a]]", guarded}});
        expectEach(UpdateWikiLinks(each.name, u"a"), {{guarded, start + u"[[a]]"}});
    }
}

/// A blank kept the autolink from being one.
TEST(UpdateWikiLinks, WritesNothingThatIsNoLink) {
    expectEach(UpdateWikiLinks(u"a b", u"ab"), {{u"‸<xx:[[a b]]> [[a b]]", u"‸<xx:[[a b]]> [[ab]]"}});
}

TEST(UpdateWikiLinks, Conversions) {
    EXPECT_EQ(UpdateWikiLinks::encodedSegmentsToMarkdownWikiLink(u"a|b/c", u"x"), u"[[a\\|b/c|x]]");
    EXPECT_EQ(UpdateWikiLinks::encodedSegmentsToMarkdownWikiLink(u"a", u""), u"[[a]]");
    for (const std::u16string_view name : {u"a", u"a/b\\c", u"[a|b]", u"a\\[", u"&amp; & &#1; &", u"\\&a"}) {
        const std::u16string markdown =
            UpdateWikiLinks::encodedSegmentsToMarkdown(Segments::encode({std::u16string(name), u"h/i"}));
        EXPECT_EQ(UpdateWikiLinks::decodedSegmentsFromMarkdown(markdown), std::u16string(name) + u"/h/i");
    }
    EXPECT_EQ(UpdateWikiLinks::decodedSegmentsFromMarkdown(u""), u"");
    EXPECT_EQ(UpdateWikiLinks::decodedSegmentsFromMarkdown(u"/h"), u"/h");
}

/// The tree with what wikilinks lead to, in place of their text.
std::u16string meaning(const Tree& tree, std::u16string_view from, std::u16string_view to) {
    std::u16string lines;
    for (const Ondo::Node* node = tree.root.get(); node;) {
        if (node->type != Ondo::ONDO_WIKILINK_NODE) {
            lines += node->toIndentedTree() + u'\n';
            node = node->nextInSequence();
            continue;
        }
        const auto& link = *static_cast<const Ondo::Inline::WikilinkNode*>(node);
        const std::u16string target = link.encodedSegments();
        const bool isMeant = Segments::isPrefix(from, target);
        lines += isMeant ? Segments::replacePrefix(target, from, to) : target;
        lines += u"|" + link.alias + u'\n';
        node = node->nextInSequenceSkippingSubtree();
    }
    return lines;
}

std::size_t linkCount(const Tree& tree, std::u16string_view to) {
    std::size_t count = 0;
    for (const Ondo::Node* node = tree.root.get(); node; node = node->nextInSequence())
        if (node->type == Ondo::ONDO_WIKILINK_NODE &&
            Segments::isPrefix(to, static_cast<const Ondo::Inline::WikilinkNode*>(node)->encodedSegments()))
            ++count;
    return count;
}

TEST(UpdateWikiLinks, ChangesNothingElseAndBack) {
    int renamed = 0;
    for (std::uint64_t seed = 0; seed < 1500; ++seed) {
        RandomNote random(seed);
        std::u16string name = u"n";
        for (std::size_t pieces = random.below(3); pieces > 0; --pieces)
            name += construct(random.below(1000));
        const std::u16string to = Segments::encode({name + u"n"});
        std::u16string note;
        for (std::size_t parts = random.below(6); parts > 0; --parts)
            note += random.note(3) + u"[[q]]" + std::u16string(construct(random.below(1000)));
        const RuleConfig::RuleSet rules = allRuleSets[seed % 3];

        const Tree tree(note, rules);
        ASSERT_EQ(UpdateWikiLinks(u"q", u"p").run(tree, 0, 0, 0, 0).size(), linkCount(tree, u"q"))
            << visible(note);
        const auto results = UpdateWikiLinks(u"q", to).run(tree, 0, 0, 0, 0);
        if (results.empty()) continue;
        ++renamed;
        const Drawn there = applied({note, {0, 0}}, results);
        const Tree after(there.text, rules);
        ASSERT_EQ(visible(meaning(after, u"q", to)), visible(meaning(tree, u"q", to)))
            << visible(note) << " to " << visible(name);
        const Drawn back = applied(there, UpdateWikiLinks(to, u"q").run(after, 0, 0, 0, 0));
        ASSERT_EQ(visible(back.text), visible(note)) << " to " << visible(name);
    }
    EXPECT_GT(renamed, 500);
}

} // namespace
} // namespace CVN::Operation
