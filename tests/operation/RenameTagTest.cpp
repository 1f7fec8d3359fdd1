#include "corvane/operation/OperationRenameTag.h"

#include <gtest/gtest.h>

#include "corvane/inline/Hashtag.h"
#include "corvane/inline/Segments.h"
#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {

namespace {

using CVN::Operation::RenameTag;
using CVN::Operation::TagBase;

std::vector<std::u16string> tagsOf(const Tree& tree) {
    std::vector<std::u16string> tags;
    for (Node::Iterator at = tree.root->begin(); at.node; ++at)
        if (at->type == ONDO_HASHTAG_NODE)
            tags.push_back(static_cast<const Inline::HashtagNode*>(at.node)->encodedSegments());
    return tags;
}

TEST(TagTextTest, ThePlainestThatParsesAsTheTag) {
    const struct {
        std::u16string_view name;
        std::u16string_view text; ///< empty when the name can't be spelt
    } cases[] = {
        {u"a", u"#a"},
        {u"a/b", u"#a/b"},
        {u"a b", u"#a b#"},
        {u"a b/c", u"#a b/c#"},
        {u"123", u"#123#"},
        {u"a.b", u"#a.b"},
        {u"a.", u"#a.#"},
        {u"\U0001F600", u"#\U0001F600"},
        {u"a\U0001F534", u"#a\U0001F534"},
        {u"\u05d0\u05d1", u"#\u05d0\u05d1"},
        // escapes: of the path, of the marker, of what ends a tag
        {u"a\\/b", u"#a\\/b"},
        {u"a\\\\b", u"#a\\\\b"},
        {u"a\\b", u"#a\\\\b"},
        {u"a#b", u"#a\\#b"},
        {u"a|b", u"#a|b"},
        {u"R&D", u"#R&D"},
        {u"&amp;", u"#\\&amp;#"},
        {u"a[b]", u"#a\\[b\\]#"},
        {u"a<br>", u"#a\\<br>#"},
        {u"a<b", u"#a<b#"},
        // a slash keeps apart what may not stand at a marker
        {u"a b(", u"#a b(/#"},
        {u"a b*", u"#a b*/#"},
        {u"a b\U0001F534", u"#a b\U0001F534/#"},
        // no spelling
        {u"", u""},
        {u" a", u""},
        {u"a ", u""},
        {u"a//b", u""},
        {u"/a", u""},
        {u"a/", u""},
        {u"\u00a0a", u""},
        {u"a\rb", u""},
        {u"a\nb", u""},
    };
    for (const auto& each : cases)
        EXPECT_EQ(visible(TagBase::encodedSegmentsToMarkdown(each.name)), visible(each.text))
            << visible(each.name);
    EXPECT_FALSE(TagBase::encodedSegmentsToMarkdown(std::u16string(500, u'a')).empty());
    EXPECT_TRUE(TagBase::encodedSegmentsToMarkdown(std::u16string(502, u'a')).empty());
}

TEST(TagTextTest, NamesAsTyped) {
    EXPECT_EQ(TagBase::sanitizeTag(u" / #a\t b\u0085\ufeff/c// "), u"a b/c");
    EXPECT_EQ(TagBase::sanitizeTag(u"/ / "), u"");
    EXPECT_EQ(TagBase::normalizeTag(u"\uff21\u00c9/Stra\u00dfe"), u"ae/strasse");
}

TEST(RenameTagTest, TheTagAndThoseBelowIt) {
    expectEach(
        RenameTag(u"a", u"n"),
        {
            {u"‸#a #a/b #ab #A x", u"‸#n #n/b #ab #n x"},
            {u"# h #a\n\n- [ ] #a#x‸\n> **#a**, [b](c)\n", u"# h #n\n\n- [ ] #n#x‸\n> **#n**, [b](c)\n"},
            {u"| #a | `#a` |\n|---|---|\n| x‸ | #a\\|b |\n", u"| #n | `#a` |\n|---|---|\n| x‸ | #a\\|b |\n"},
            {u"#a⟦ x\n#a⟧", u"#n⟦ x\n#n⟧"},
            {u"x #b‸", u""},
            {u"\\#a [#a](u) `#a`‸", u""},
        });
}

TEST(RenameTagTest, TheClosingMarkerWhereTheTextAroundNeedsIt) {
    expectEach(RenameTag(u"a", u"b c"), {
                                            {u"‸#a, #a\r\n#a#d", u"‸#b c#, #b c#\r\n#b c#d"},
                                            {u"‸x#a#", u"‸x#b c#"},
                                            {u"*#a*‸", u""}, // there no form of it is a tag
                                        });
    expectEach(RenameTag(u"b c", u"a"), {
                                            {u"‸#b c#", u"‸#a"},
                                            {u"‸#b c#d", u"‸#a#d"},
                                            {u"‸#b c#.d", u"‸#a#.d"},
                                            {u"‸#b c#. d", u"‸#a. d"},
                                            {u"‸x#b c#", u"‸x#a#"},
                                            {u"‸#b c#\U0001F600", u"‸#a#\U0001F600"},
                                        });
    expectEach(RenameTag(u"C:\\x", u"n\\"), {{u"‸#C:\\\\x #c:\\\\X/y", u"‸#n\\\\# #n\\\\/y"}});
    expectEach(RenameTag(u"a\\/b", u"n"), {{u"‸#a\\/b/c #a\\\\/b #a/b", u"‸#n/c #a\\\\/b #a/b"}});
    expectEach(RenameTag(u"a", u"b//c"), {{u"‸#a #a/d", u""}});
}

TEST(RenameTagTest, WhatWouldCloseAnotherConstructIsEscapedJustThere) {
    expectEach(RenameTag(u"a", u"us$"), {
                                            {u"‸$5 #a", u"‸$5 #us\\$#"},
                                            {u"‸- x\n- $5 y #a", u"‸- x\n- $5 y #us\\$#"},
                                            {u"‸Costs $5.\n\n#a x", u"‸Costs $5.\n\n#us$# x"},
                                            {u"‸$5$ #a $x", u"‸$5$ #us$# $x"},
                                        });
    expectEach(RenameTag(u"a", u"b`c"), {
                                            {u"‸`x #a", u"‸`x #b&grave;c"},
                                            {u"‸`x\ny #a #a", u"‸`x\ny #b&grave;c #b&grave;c"},
                                            {u"‸`ls` #a x\n\n#a", u"‸`ls` #b`c x\n\n#b`c"},
                                        });
    expectEach(RenameTag(u"a", u"b|c"), {
                                            {u"‸#a x", u"‸#b|c x"},
                                            {u"‸| #a |\n|---|\n| #a |", u"‸| #b\\|c |\n|---|\n| #b\\|c |"},
                                            {u"‸| #a |\n|---|---|", u"‸| #b\\|c |\n|---|---|"},
                                        });
    expectEach(RenameTag(u"a", u"b>c"), {{u"‸<x y=#a", u"‸<x y=#b&gt;c"}, {u"‸<!-- #a", u""}});
    expectEach(RenameTag(u"a", u"b\")c"), {{u"‸[x](u \"#a", u"‸[x](u \"#b\\\"\\)c"}, {u"‸#a", u"‸#b\")c#"}});
    // in a long block always
    const std::u16string words(5000, u'x');
    EXPECT_EQ(visible(afterOperation(RenameTag(u"a", u"us$"), u"‸$5 " + words + u" #a")),
              visible(u"‸$5 " + words + u" #us\\$#"));
}

/// A name of pieces that stand in the way somewhere.
std::u16string randomName(RandomNote& random) {
    static constexpr std::u16string_view pieces[] = {
        u"a", u"b", u" ",    u"/", u"\\/",  u"\\\\",       u"#",          u"7", u".",     u"!",
        u"(", u"]", u"&gt;", u"|", u"<br>", u"\U0001F600", u"\U0001F534", u"*", u"\u05d0"};
    std::u16string name;
    for (std::size_t count = 1 + random.below(4); count > 0; --count)
        name += pieces[random.below(std::size(pieces))];
    return name;
}

/// In whatever way a tag is spelt and whatever stands behind it, it parses as that tag, and no other changes.
TEST(RenameTagTest, RenamedTagsParseAsTheNewName) {
    static constexpr std::u16string_view around[] = {
        u" ", u"\n", u", ", u".", u"#x", u"(", u"\U0001F600", u" \U0001F534", u"- ", u" [", u"7 ", u"\r\n> "};
    RandomNote random(610);
    for (int round = 0; round < 3000; ++round) {
        std::u16string text = u"#k ";
        for (int i = 0; i < 3; ++i) {
            text += around[random.below(std::size(around))];
            text += u" #a";
            text += around[random.below(std::size(around))];
        }
        const std::u16string name = randomName(random);
        const Tree tree(text);
        const auto results = RenameTag(u"a", name).run(tree, 0, 0, 0, 0);
        std::vector<std::u16string> expected = tagsOf(tree);
        if (!TagBase::encodedSegmentsToMarkdown(name).empty())
            for (std::u16string& tag : expected)
                if (Segments::isPrefix(u"a", tag)) tag = Segments::replacePrefix(tag, u"a", name);
        const Drawn after = applied(Drawn(text, Range{0, 0}), results);
        ASSERT_EQ(tagsOf(Tree(after.text)), expected) << visible(text) << " to " << visible(name);
    }
}

std::u16string renamed(const std::u16string& text, std::u16string_view from, std::u16string_view to) {
    return applied(Drawn(text, Range{0, 0}), RenameTag(from, to).run(Tree(text), 0, 0, 0, 0)).text;
}

std::u16string thereAndBack(const std::u16string& text) {
    return renamed(renamed(text, u"a", u"zz"), u"zz", u"a");
}

TEST(RenameTagTest, ThereAndBackAgain) {
    RandomNote random(611);
    for (int round = 0; round < 1000; ++round) {
        std::u16string text = random.note(6);
        for (const std::u16string_view tag : {u" #a ", u" #a/b c# ", u" #a/7 "})
            text.insert(random.below(text.size() + 1), tag);
        // the first time changes how the tags are spelt
        const std::u16string canonical = thereAndBack(text);
        ASSERT_EQ(visible(thereAndBack(canonical)), visible(canonical));
    }
}

} // namespace

} // namespace Ondo::Test
