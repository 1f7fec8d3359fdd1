#include "corvane/client/StringBuilder.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "corvane/client/CVNASTNodes.h"
#include "corvane/client/CVNASTTextOperations.h"
#include "corvane/client/FilenameMatch.h"
#include "corvane/client/OndoString.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/Tree.h"

namespace {

using CVN::FilenameMatch;
using CVN::StringBuilder;
using Front = CVNASTTextOperations;
using Ondo::Tree;
using Ondo::Util::escape;
using Ondo::Util::utf8;

/// A text, and what a function makes of it.
struct Case {
    std::u16string text;
    std::u16string expected;
};

template <class Function>
void expectAll(Function function, std::initializer_list<Case> cases) {
    for (const Case& c : cases)
        EXPECT_EQ(function(c.text), c.expected)
            << utf8(escape(c.text)) << " became " << utf8(function(c.text));
}

TEST(StringBuilder, TrimsExactlyThese) {
    std::u16string trimmed;
    for (int c = 0; c <= 0xFFFF; ++c) {
        const auto unit = static_cast<char16_t>(c);
        const std::u16string around{unit, unit, u'a', unit, u'b', unit};
        const std::u16string_view inside = StringBuilder::trimWhitespaceAndNewlines(around);
        const bool isTrimmed = inside.size() == 3;
        if (isTrimmed) trimmed += unit;
        EXPECT_TRUE(isTrimmed || inside == around) << c;
    }
    EXPECT_EQ(trimmed,
              u"\t\n\v\f\r \x85\u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009"
              u"\u200A\u2028\u2029\u202F\u205F\u3000");
}

TEST(StringBuilder, SafeLabels) {
    expectAll(Front::safeLabelString, {{u"", u""},
                                       {u" \n ", u""},
                                       {u"a]", u"a\\]"},
                                       {u"a\\]", u"a\\]"},
                                       {u"a\\\\]", u"a\\\\\\]"},
                                       {u"a\\\\\\]", u"a\\\\\\]"},
                                       {u"\\#", u"\\#"},
                                       {u"#()[]", u"\\#\\(\\)\\[\\]"},
                                       {u"\u00A0 a\nb\n\n(c \n", u"a b  \\(c"},
                                       {u"a\r\nb\rc", u"a b c"},
                                       {u"\\ ]", u"\\ \\]"}});
}

/// A link is made whatever the label, but for a backslash at its end: that takes the bracket's power.
TEST(StringBuilder, LinksAreLinks) {
    constexpr std::u16string_view alphabet = u"a\\[]()#\n";
    std::vector<std::u16string> labels{u""};
    for (std::size_t at = 0; at < labels.size(); ++at) {
        const std::u16string text = StringBuilder::markdownLink(labels[at], u"u)(\\ \n[v", u"t");
        const bool isLink = text[text.find(u"](u") - 1] != u'\\';
        const Tree tree(text);
        const Ondo::Node* const link = tree.root->firstChild->firstChild;
        if (isLink) {
            ASSERT_TRUE(link->type == Ondo::ONDO_LINK_NODE && !link->nextSibling) << utf8(escape(text));
            EXPECT_EQ(CVNASTNode::nodeForASTNode(link)->as<CVNASTLinkAndImageNode>()->url(),
                      u"u%29%28%5C%20%5Bv");
        }
        if (labels[at].size() == 4) continue;
        for (const char16_t c : alphabet)
            labels.push_back(labels[at] + c);
    }
}

TEST(StringBuilder, SafeURLs) {
    expectAll(Front::percentEscapedURL, {{u"", u""},
                                         {u" a b(c)\n", u"a%20b%28c%29"},
                                         {u"a\nb%20%zz", u"ab%20%25zz"},
                                         {u"tel:+1 (2)", u"tel:+1 (2)"},
                                         {u" te\nl:(1\n) ", u"tel:(1)"},
                                         {u"TEL:(1)", u"TEL:%281%29"},
                                         {u"\u00E9\U0001F600", u"%C3%A9%F0%9F%98%80"}});
}

TEST(StringBuilder, Snippets) {
    const Case cases[] = {
        {Front::markdownLinkWithLabel(u"a]", u"b c", u"d \"e\"", false), u"[a\\]](b%20c \"d \"e\"\")"},
        {Front::markdownLinkWithLabel(u"a", u"b", u"", true), u"[a](b)<!-- {\"preview\":\"true\"} -->"},
        {Front::markdownImageWithLabel(u" a ", u"b", u"c"), u"![a](b \"c\")"},
        {Front::markdownFileWithLabel(u"f", u"u", false), u"[f](u)<!-- {\"embed\":\"true\"} -->"},
        {Front::markdownFileWithLabel(u"f", u"u", true),
         u"[f](u)<!-- {\"embed\":\"true\", \"preview\":\"true\"} -->"},
        {Front::footnoteReferenceWithLabel(u" a]"), u"[^ a]]"},
        {Front::referenceDefinitionWithLabel(u"^a", u"b"), u"[^a]: b"},
        {Front::codeBlockWithString(u""), u"```\n\n```\n"},
        {Front::codeBlockWithString(u"a\n"), u"```\na\n\n```\n"},
        {Front::taskWithText(u"a", false), u"- [ ] a"},
        {Front::taskWithText(u"", true), u"- [x] "},
        {stringWithOndoString(std::u16string(ondoString(u"\uFEFFa"))), u"\uFEFFa"},
    };
    for (const auto& [snippet, expected] : cases)
        EXPECT_EQ(snippet, expected) << utf8(snippet);
}

TEST(StringBuilder, MetadataIsReadAsItWasWritten) {
    const Tree tree(StringBuilder::markdownFile(u"f", u"u", true));
    const CVNASTNode link = *CVNASTNode::nodeForASTNode(tree.root->firstChild->firstChild);
    EXPECT_EQ(
        link.nextSibling()->as<CVNASTHTMLInlineNode>()->metadata(),
        (CVNDictionary{{u"embed", CVNValue::string(u"true")}, {u"preview", CVNValue::string(u"true")}}));
    EXPECT_EQ(StringBuilder::metadataComment({}), u"");
}

TEST(StringBuilder, Tables) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    const struct {
        std::int64_t rows;
        std::int64_t columns;
        std::u16string_view expected;
    } cases[] = {
        {2, 2, u"|   |   |\n|---|---|\n|   |   |"},
        {1, 1, u"|   |\n|---|"},
        {0, 2, u"|   |   |"},
        {3, 0, u"|\n|\n|\n|"},
        {1, -5, u"|\n|"},
        {-1, 2, u""},
        {-most - 1, 2, u""},
        {most, most, u""},
        {most, 0, u""},
        {0, most, u""},
        {most / 4, 4, u""},
        {1, most / 2 + 2, u""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Front::tableStringWithRows(c.rows, c.columns), c.expected) << c.rows << " by " << c.columns;
    // Six units a line.
    constexpr std::int64_t rows = StringBuilder::maximumTableLength / 6 - 1;
    EXPECT_EQ(StringBuilder::table(rows, 1).size(), static_cast<std::size_t>((rows + 1) * 6 - 1));
    EXPECT_EQ(StringBuilder::table(rows + 1, 1), u"");
}

TEST(FilenameMatch, PercentDecode) {
    expectAll(Front::percentDecodedURL, {{u"", u""},
                                         {u"a%20b", u"a b"},
                                         {u"%C3%A9%c3%a9\u00E9", u"\u00E9\u00E9\u00E9"},
                                         {u"%F0%9F%98%80\U0001F600", u"\U0001F600\U0001F600"},
                                         {u"%zz%2%%20%", u"%zz%2% %"},
                                         {u"%2520", u"%20"},
                                         {u"%C3a", u"\uFFFDa"},
                                         {{u'a', 0xD83D, u'%', u'4', u'1'}, u"a\uFFFDA"}});
}

TEST(FilenameMatch, Variants) {
    EXPECT_EQ(Front::filenameVariantsForURL(u"a b%20(c)"),
              (std::vector<std::u16string>{u"a b%20(c)", u"a%20b%20%28c%29", u"a b (c)"}));
    const struct {
        std::u16string_view name;
        bool matches;
    } cases[] = {{u"\u00E4 %62", true},  {u"%C3%A4%20%62", true}, {u"\u00E4 b", true},
                 {u"\u00E4 B", false},   {u"\u00E4%20b", false},  {u"a\u0308 b", false},
                 {u"\u00E4 %62 ", false}};
    for (const auto& c : cases)
        EXPECT_EQ(FilenameMatch::filenameMatches(c.name, u"\u00E4 %62"), c.matches) << utf8(c.name);
}

} // namespace
