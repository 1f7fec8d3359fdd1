#include "corvane/analysis/CVNHashtag.h"

#include <gtest/gtest.h>

#include "corvane/client/CVNAST.h"
#include "corvane/inline/Hashtag.h"
#include "corvane/scan/Util.h"
#include "tests/support/RandomNote.h"

namespace Ondo::Test {
namespace {

using Util::utf8;
using Names = std::vector<std::u16string>;

std::string joined(const Names& names) {
    std::string out;
    for (const std::u16string& name : names)
        out += (out.empty() ? "" : " | ") + utf8(name);
    return out;
}

TEST(CVNHashtag, WritesNames) {
    EXPECT_EQ(joined(CVNHashtag::hashtagStringsForTagNames(
                  Names{u"work", u"a b/c", u"a\\/b", u"1", u"a#b", u"", u"a//b", u"(a)"})),
              "#work | #a b/c# | #a\\/b | #1# | #a\\#b |  |  | " +
                  utf8(CVNHashtag::hashtagStringForTagName(u"(a)")));
    EXPECT_EQ(utf8(CVNHashtag::normalizeTagName(u"ÉTÉ/Ａ")), "ete/a");
    EXPECT_EQ(utf8(CVNHashtag::sanitizeTagName(u" / #two\twords/x/ \n")), "twowords/x");
}

TEST(CVNHashtag, ComponentsAndNames) {
    const Names components{u"a/b", u"c", u"d\\"};
    const std::u16string name = CVNHashtag::tagNameFromComponents(components);
    EXPECT_EQ(utf8(name), "a\\/b/c/d\\\\");
    EXPECT_EQ(CVNHashtag::componentsForForTagName(name), components);
    EXPECT_EQ(CVNHashtag::componentsForForTagName(u"/a//b/"), (Names{u"a", u"b"}));
    EXPECT_TRUE(CVNHashtag::componentsForForTagName(u"").empty());
    EXPECT_TRUE(CVNHashtag::tagNameFromComponents({}).empty());
}

TEST(CVNHashtag, ChangesTexts) {
    const Names two{u"x", u"y z"};
    const Names one{u"a"};
    const std::pair<std::u16string, std::u16string> cases[] = {
        {CVNHashtag::addTagNameToTheTopOfString(u"x", u"# h\n\nb\n"), u"# h\n#x\n\nb\n"},
        {CVNHashtag::addTagsNamesToTheTopOfString(two, u"# h\n\nb\n"), u"# h\n#x #y z#\n\nb\n"},
        {CVNHashtag::addTagNameToTheTopOfString(u"x", u""), u"\n#x\n"},
        {CVNHashtag::addTagNameToTheBottomOfString(u"x", u"b\r\n"), u"b\n\n#x\r\n"},
        {CVNHashtag::addTagsNamesToTheBottomOfString(two, u"b\n\n[^1]: f"), u"b\n\n#x #y z#\n\n[^1]: f"},
        {CVNHashtag::addTagsNamesToTheBottomOfString({}, u"b"), u"b"},
        {CVNHashtag::addTagNameToTheBottomOfString(u"a//b", u"b"), u"b"},
        {CVNHashtag::removeTagName(u"a/b", u"#a/b #A/B/c #a/d `#a/b`"), u"#a #A #a/d `#a/b`"},
        {CVNHashtag::removeTagName(u"a", u"#a #a/b #ab"), u"#ab"},
        {CVNHashtag::removeTagName(u"n", u"#a"), u"#a"},
        {CVNHashtag::renameTagName(u"a", u"b c", u"#a #a/d. #ab"), u"#b c# #b c/d#. #ab"},
        {CVNHashtag::renameTagName(u"a", u"", u"#a"), u"#a"},
        {CVNHashtag::escapeTagsNames(one, u"#a #a/b #ab"), u"\\#a \\#a/b #ab"},
        {CVNHashtag::escapeTagsNames(Names{u"a", u"b"}, u"#a #b#"), u"\\#a \\#b\\#"},
    };
    for (const auto& [changed, expected] : cases)
        EXPECT_EQ(utf8(changed), utf8(expected)) << "case " << utf8(expected);
}

TEST(CVNHashtag, FindsTheTagsThatItAdded) {
    for (const std::u16string name : {u"C:\\x", u"a\\", u"\\", u"a\\b/c\\", u"a\\\\\\b"}) {
        const std::u16string added = CVNHashtag::addTagNameToTheBottomOfString(name, u"b");
        ASSERT_EQ(utf8(added), "b\n\n" + utf8(CVNHashtag::hashtagStringForTagName(name)));
        EXPECT_EQ(utf8(CVNHashtag::renameTagName(name, u"n", added)), "b\n\n#n");
        const std::u16string removed = CVNHashtag::removeTagName(name, added);
        EXPECT_EQ(utf8(removed), name.find(u'/') == name.npos ? "b\n\n" : "b\n\n#a\\\\b");
        EXPECT_EQ(utf8(CVNHashtag::removeTagName(name, CVNHashtag::escapeTagsNames(Names{name}, added))),
                  utf8(CVNHashtag::escapeTagsNames(Names{name}, added)));
        EXPECT_NE(CVNHashtag::escapeTagsNames(Names{name}, added), added);
    }
}

/// The names of the tags of a text, in order.
Names tagsOf(std::u16string_view text) {
    const Tree tree{std::u16string(text)};
    Names names;
    for (Node::Iterator at = tree.root->begin(); at.node; ++at)
        if (at->type == ONDO_HASHTAG_NODE)
            names.push_back(static_cast<const Inline::HashtagNode*>(at.node)->encodedSegments());
    return names;
}

bool has(const Names& names, const std::u16string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

TEST(CVNHashtag, AddedTagsAreThereAndGoAgain) {
    static constexpr std::u16string_view pieces[] = {u"a", u"B", u"7",  u" ", u"日", u"é", u"\\",
                                                     u"&", u".", u"-x", u"[", u"*",  u"`", u"\xD83D\xDE00"};
    RandomNote random(82);
    int written = 0;
    for (int round = 0; round < 400; ++round) {
        Names components;
        for (std::size_t c = 1 + random.below(3); c > 0; --c) {
            std::u16string component = u"q"; // no tag of the random notes begins with it
            for (std::size_t i = random.below(4); i > 0; --i)
                component += pieces[random.below(std::size(pieces))];
            while (component.back() == u' ')
                component.pop_back();
            components.push_back(component);
        }
        const std::u16string name = CVNHashtag::tagNameFromComponents(components);
        const std::u16string text = u"title\n\n" + random.note(8); // nothing that a tag would come to lie in
        const std::u16string added = random.below(2) ? CVNHashtag::addTagNameToTheTopOfString(name, text)
                                                     : CVNHashtag::addTagNameToTheBottomOfString(name, text);
        if (added == text) continue;
        ++written;
        ASSERT_TRUE(has(tagsOf(added), name)) << utf8(name) << '\n' << utf8(added);
        const std::u16string renamed = CVNHashtag::renameTagName(name, u"new/one", added);
        ASSERT_TRUE(has(tagsOf(renamed), u"new/one") && !has(tagsOf(renamed), name)) << utf8(added);
        const std::u16string back = CVNHashtag::renameTagName(u"new/one", name, renamed);
        ASSERT_EQ(tagsOf(back), tagsOf(added)) << utf8(added) << "\n---\n" << utf8(back);
        const std::u16string removed = CVNHashtag::removeTagName(name, added);
        ASSERT_FALSE(has(tagsOf(removed), name)) << utf8(added);
    }
    EXPECT_GT(written, 300);
}

} // namespace
} // namespace Ondo::Test
