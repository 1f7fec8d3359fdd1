#include "corvane/operation/OperationReorderFootnoteDefinitions.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "corvane/operation/FootnoteLabels.h"
#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::Tree;
using Ondo::Test::Drawn;
using Ondo::Test::expectEach;
using Ondo::Test::visible;

const ReorderFootnoteDefinitions reorder;

TEST(ReorderFootnoteDefinitions, SortsRuns) {
    expectEach(reorder,
               {
                   {u"‸\n[^10]: a\n[^9]: b\n[^b]: c\n[^a]: d\n", u"‸\n[^9]: b\n[^10]: a\n[^a]: d\n[^b]: c\n"},
                   {u"[^2]: a\n\n[^1]: b\n\n\n[^0]: c‸", u"[^1]: b\n[^2]: a\n\n\n[^0]: c‸"},
                   {u"[^2]: a\n[^1]: b\n\nx\n\n[^4]: c\n[^3]: d\n‸",
                    u"[^1]: b\n[^2]: a\n\nx\n\n[^3]: d\n[^4]: c\n‸"},
                   {u"[^2]: a\r\n[^1]: b\r\n‸\r\n", u"[^1]: b\r\n[^2]: a\r\n‸\r\n"},
                   {u"[^1]: a\n\n[^2]: b\n[^2]: c‸", u""},
                   {u"[^2]: a\nx\n[^1]: b‸", u""},
                   {u"[^2]: a‸", u""},
                   {u"‸", u""},
                   // No line ending appears at the end, and none is lost.
                   {u"‸x\n\n[^2]: a\n[^1]: b", u"‸x\n\n[^1]: b\n[^2]: a"},
                   // The ending of the place keeps the blank line behind it one.
                   {u"[^2]: a\r[^1]: b\n\nx‸", u"[^1]: b\r[^2]: a\n\nx‸"},
                   // In containers, and over two lines.
                   {u"> [^2]: a\n> [^1]: b\nx‸", u"> [^1]: b\n> [^2]: a\nx‸"},
                   {u"- [^2]: a\n\n  [^1]: b\n- x‸", u"- [^1]: b\n  [^2]: a\n- x‸"},
                   // Where it would be moved into the item.
                   {u"- [^x]: y\n[^2]: a\n  [^1]: b‸", u"- [^x]: y\n[^1]: b‸\n  [^2]: a"},
                   {u"[^b\nc]: x\n[^a]:\n‸", u"[^a]:\n[^b\nc]: x\n‸"},
               });
    expectEach(reorder, {{u"[^2]: a\n[^1]: b‸", u""}}, Ondo::RuleConfig::Commonmark);
}

TEST(ReorderFootnoteDefinitions, TakesTheSelectionAlong) {
    expectEach(reorder, {
                            {u"[^2]: ‸a\n[^1]: b\n", u"[^1]: b\n[^2]: ‸a\n"},
                            {u"[^2]: a\n[^1]: ⟦b⟧", u"[^1]: ⟦b⟧\n[^2]: a"},
                            {u"[^2]: a\n[^1]: b‸", u"[^1]: b‸\n[^2]: a"},
                            {u"[^2]: a\n‸\n[^1]: b\n", u"[^1]: b\n[^2]: a‸\n"},
                            {u"[^2]: ⟦a\n[^1]: b\n⟧", u"[^1]: b\n[^2]: ⟦a\n⟧"},
                            {u"[^2]: ⟦aa\n[^1]: b\n\n⟧x😀", u"[^1]: b\n[^2]: ⟦aa\n\nx😀⟧"},
                            {u"[^2]: ⟦aaa\n[^1]: b⟧\n\nx😀x", u"[^1]: b\n[^2]: ⟦aaa\n\nx😀x⟧"},
                            {u"[^2]: ⟦aaa\n[^1⟧]: b\n\nx😀x", u"[^1]: b\n[^2]: ⟦aaa\n\nx⟧😀x"},
                            {u"> [^2]: a\n‸> [^1]: b\n", u"> ‸[^1]: b\n> [^2]: a\n"},
                            {u"[^2]: a\n\n[^1]: b\n\nx\n\n[^4]: c\n[^3]: ‸d",
                             u"[^1]: b\n[^2]: a\n\nx\n\n[^3]: ‸d\n[^4]: c"},
                        });
}

std::vector<std::u16string> definitions(const Tree& tree) {
    std::vector<std::u16string> texts;
    for (const Ondo::LabelEntry& entry : footnotesOf(tree)->definitions()) {
        const std::u16string_view text = tree.markdownIn({entry.offset, entry.node->charCount});
        const std::size_t start = text.find(u'['); // behind what the container puts there
        texts.emplace_back(text.substr(start, text.find_last_not_of(u"\r\n") + 1 - start));
    }
    std::sort(texts.begin(), texts.end());
    return texts;
}

TEST(ReorderFootnoteDefinitions, LosesNone) {
    constexpr std::u16string_view pieces[] = {
        u"[^1]: a", u"[^2]:", u"[^b]: *c*", u"[^10\n]: d ", u"[^a]: [^1]", u"\n",
        u"\n\n",    u"\n",    u"\n",        u"\r\n",        u"\r",         u"> ",
        u"\n> ",    u"- ",    u"\n  ",      u"x",           u"  ",         u"[^A]: \\| 😀"};
    int answers = 0;
    for (std::uint64_t seed = 0; seed < 2500; ++seed) {
        Ondo::Test::RandomNote random(seed);
        std::u16string text;
        for (std::size_t i = random.below(16); i > 0; --i) {
            text += pieces[random.below(std::size(pieces))];
            if (random.below(3) > 0)
                text +=
                    u"\n[^" + std::u16string(1, static_cast<char16_t>(u'1' + random.below(5))) + u"]: e\n";
        }
        const Tree tree(text, seed % 2 ? Ondo::RuleConfig::Extended : Ondo::RuleConfig::Simplified);
        const Ondo::Range at = random.range(tree.length());
        const std::vector<Result> results = reorder.run(tree, 0, 0, at.offset, at.length);
        answers += results.empty() ? 0 : 1;
        const Drawn after = Ondo::Test::applied(Drawn(text, at), results);
        const Tree made(after.text, tree.ruleSet);
        EXPECT_EQ(definitions(made), definitions(tree)) << visible(text) << " to " << visible(after.text);
        EXPECT_TRUE(reorder.run(made, 0, 0, 0, 0).empty()) << visible(after.text);
    }
    EXPECT_GT(answers, 500);
}

} // namespace
} // namespace CVN::Operation
