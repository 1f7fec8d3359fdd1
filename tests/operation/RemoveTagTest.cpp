#include "corvane/operation/OperationRemoveTag.h"

#include <gtest/gtest.h>

#include "corvane/inline/Hashtag.h"
#include "corvane/inline/Segments.h"
#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {

namespace {

using CVN::Operation::RemoveTag;

TEST(RemoveTagTest, ATagAndThoseBelowIt) {
    expectEach(RemoveTag(u"a"), {
                                    {u"x #a #a/b\t #ab‸", u"x #ab‸"},
                                    {u"#a  ‸\r\n#A/b \n> #a", u"‸\r\n\n> "},
                                    {u"- #a x\n- [ ] #a#\n| #a b#| #a |‸", u"- x\n- [ ] \n| #a b#| |‸"},
                                    {u"x‸#a#y", u"x‸y"},
                                    {u"#⟦a x⟧", u"⟦x⟧"},
                                    {u"`#a` \\#a #ab‸", u""},
                                    {u"‸", u""},
                                });
    expectEach(RemoveTag(u""), {{u"#a #/#‸", u""}});
}

TEST(RemoveTagTest, ALowerLevelLeavesTheParent) {
    expectEach(RemoveTag(u"a/b"), {
                                      {u"‸#a/b #a/b/c #A/B d# #a/c", u"‸#a #a #A/B d# #a/c"},
                                      {u"‸#a/b#x #a/b, c", u"‸#a#x #a, c"},
                                      {u"#a‸", u""},
                                  });
    expectEach(RemoveTag(u"a b/c d/e"), {{u"‸#a b/c d/e# x", u"‸#a b/c d# x"}});
    expectEach(RemoveTag(u"7/e"), {{u"‸#7/e x", u"‸#7# x"}});
    expectEach(RemoveTag(u"a\\/b/c"), {{u"‸#a\\/b/c", u"‸#a\\/b"}});
}

TEST(RemoveTagTest, BackslashesThatEscapeNothing) {
    expectEach(RemoveTag(u"C:\\x"), {{u"‸#C:\\\\x #c:\\\\X/y, #C:x", u"‸, #C:x"}});
    expectEach(RemoveTag(u"a\\"), {{u"‸#a\\\\# #a\\/b #a\\\\/b #a", u"‸#a\\/b #a"}});
    expectEach(RemoveTag(u"a\\b/c"), {{u"‸#a\\\\b/c", u"‸#a\\\\b"}});
}

TEST(RemoveTagTest, LeavesNoSuchTag) {
    static constexpr std::u16string_view pieces[] = {u" #a", u"#a/b c#", u" #a, ",  u"\n",  u" ",
                                                     u"x",   u"- ",      u"(#a/b)", u"#b#", u"\n\n> #a/b",
                                                     u"**",  u"\r\n",    u" #a#x"};
    RandomNote random(612);
    for (int round = 0; round < 1000; ++round) {
        std::u16string text = u"x";
        for (std::size_t i = random.below(8); i > 0; --i)
            text += pieces[random.below(std::size(pieces))];
        const Drawn after = applied(Drawn(text, Range{0, 0}), RemoveTag(u"a").run(Tree(text), 0, 0, 0, 0));
        const Tree tree(after.text);
        for (Node::Iterator at = tree.root->begin(); at.node; ++at)
            ASSERT_FALSE(
                at->type == ONDO_HASHTAG_NODE &&
                Segments::isPrefix(u"a", static_cast<const Inline::HashtagNode*>(at.node)->encodedSegments()))
                << visible(text) << '\n'
                << visible(after.text);
    }
}

} // namespace

} // namespace Ondo::Test
