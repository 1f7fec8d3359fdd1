#include "corvane/operation/DocumentParts.h"

#include <gtest/gtest.h>

#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::Tree;
using Ondo::Test::visible;

/// A note with a mark where the part begins that is asked for.
struct Marked {
    std::u16string text;
    std::int64_t offset;

    explicit Marked(std::u16string_view drawing)
        : text(drawing), offset(static_cast<std::int64_t>(text.find(u'‸'))) {
        text.erase(static_cast<std::size_t>(offset), 1);
    }
};

void expectEach(std::int64_t (*part)(const Tree& tree), std::initializer_list<std::u16string_view> drawings) {
    for (const std::u16string_view drawing : drawings) {
        const Marked marked(drawing);
        EXPECT_EQ(part(Tree(marked.text)), marked.offset) << visible(drawing);
    }
}

TEST(DocumentParts, BodyBeginsBehindTitleAndTagline) {
    expectEach(afterTitleAndTagline, {
                                         u"‸",
                                         u"‸\n\n  \n",
                                         u"title‸",
                                         u"title\n‸",
                                         u"title\n‸two\n",
                                         u"- title\n‸- two\n",
                                         u"> # title\r\n‸> two\r\n",
                                         // front matter, and blank lines before the title
                                         u"‸---\na: b\n---\n",
                                         u"‸---\na: b\n---\n\n\n",
                                         u"---\na: b\n---\n\n\n# title\n‸body\n",
                                         u"---\na: b\n---\ntitle\n#tag\n‸",
                                         u"\n\ntitle\n#tag\n‸body\n",
                                         // tags directly below
                                         u"# title\n#tag\n‸\nbody\n",
                                         u"# title\n #a #b/c  #d e# \n‸body\n",
                                         u"title\n#tag‸",
                                         u"title\r\n#tag\r\n‸body\r\n",
                                         u"title  \n#tag\n‸body\n",
                                         u"# title\n‸#a, #b\n",
                                         u"# title\n‸#a \u00a0 #b\n",
                                         u"# title\n‸- #tag\n",
                                         u"# title\n‸> #tag\n",
                                         u"# title\n‸**#tag**\n",
                                         u"# title\n‸## #tag\n",
                                         // behind one blank line, not two
                                         u"# title\n\n#tag #tag\n‸\nbody\n",
                                         u"# title\n \n#tag‸",
                                         u"# title\n‸\n\n#tag\n",
                                         u"# title\n‸\nbody\n",
                                         u"# title\n‸\n",
                                         u"#tag\n#tag\n‸#tag\n",
                                         u"- title\n- two\n\n#tag\n‸",
                                     });
}

TEST(DocumentParts, FootnotesAtTheEnd) {
    expectEach(trailingFootnotesStart, {
                                           u"‸",
                                           u"a\n\n\n‸",
                                           u"[^1]: a\n\nb‸",
                                           u"‸[^1]: a",
                                           u"‸[^1]: a\n\n\n",
                                           u"‸\n[^1]: a\n",
                                           u"a[^1]\n\n[^1]: b\n\nc\n\n> [^2]: d\n‸",
                                           u"a[^1]\n‸\n[^1]: b\n[^2]: c\n\n[^3]: d\n\n\n",
                                           u"a[^1]\n\n‸\n[^1]: b\n",
                                           u"[^1]: a\n\n‸\n[^2]: b\n",
                                           u"# a\n‸[^1]: b\n\n[^2]: c",
                                           u"a\r\n‸\r\n[^1]: b\r\n\r\n[^2]: c\r\n",
                                       });
}

TEST(DocumentParts, FirstBlockBehindFrontMatter) {
    const struct {
        std::u16string_view note;
        std::u16string_view first; ///< its text
    } cases[] = {
        {u"", u""},
        {u"a\n\nb\n", u"a\n"},
        {u"\na\n", u"\n"},
        {u"---\na: b\n---\n", u""},
        {u"---\na: b\n---\n\n", u""},
        {u"---\na: b\n---\n# c\nd\n", u"# c\n"},
        {u"---\na: b\n---\n\nc\n", u"c\n"},
        {u"---\na: b\n---\n\n\nc\n", u"\n"},
    };
    for (const auto& each : cases) {
        const Tree tree{std::u16string(each.note)};
        const Ondo::Node* const first = firstContentBlock(tree);
        EXPECT_EQ(visible(first ? tree.markdownForNode(first) : u""), visible(each.first))
            << visible(each.note);
    }
}

/// Of the last block of a note.
TEST(DocumentParts, BlocksOfTagsOnly) {
    const struct {
        std::u16string_view note;
        bool expected;
    } cases[] = {
        {u"", false},
        {u"\n", false},
        {u"a\n\n#b", true},
        {u"#a  #b/c\n  #d e#  \n", true},
        {u"#a, #b\n", false},
        {u"#a\u00a0#b\n", false},
        {u"# #a\n", false},
        {u"- #a\n", false},
        {u"#a **#b**\n", false},
        {u"#a [b](c)\n", false},
        {u"a\n", false},
    };
    for (const auto& each : cases) {
        const Tree tree{std::u16string(each.note)};
        EXPECT_EQ(isBlockOnlyTags(tree, tree.root->lastChild), each.expected) << visible(each.note);
    }
}

} // namespace
} // namespace CVN::Operation
