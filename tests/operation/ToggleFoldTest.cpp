#include <gtest/gtest.h>

#include "corvane/inline/FoldMarker.h"
#include "corvane/operation/OperationToggleFold.h"
#include "tests/operation/FoldDrawing.h"
#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::RuleConfig;
using Ondo::Inline::Folding;
using Ondo::Inline::FoldMarkerNode;
using Ondo::Test::allRuleSets;
using Ondo::Test::Drawn;
using Ondo::Test::RandomNote;

const ToggleFold toggle(ToggleFoldType::ToggleAtSelection);
const ToggleFold foldAll(ToggleFoldType::FoldAll);
const ToggleFold unfoldAll(ToggleFoldType::UnfoldAll);

using Ondo::Test::CommandCase;
using Ondo::Test::expectFolds;

TEST(ToggleFold, FoldsTheHeadingAboveTheCaret) {
    expectFolds(toggle, {
                            {u"# a‸\nb\n", u"# a‸▸\nb\n"},
                            {u"‸# a\nb\n", u"‸# a▸\nb\n"},
                            {u"# a\n\nb‸\n\nc\n", u"# a‸▸\n\nb\n\nc\n"},
                            {u"# a\n> # b‸\n> c\n", u"# a‸▸\n> # b\n> c\n"},
                            {u"# a\n```\nb‸\n```\n", u"# a‸▸\n```\nb\n```\n"},
                            {u"# a  \r\nb\r‸\n", u"# a  ‸▸\r\nb\r\n"},
                            {u"# \U0001F534\n\U0001F534‸\n", u"# \U0001F534‸▸\n\U0001F534\n"},
                            {u"# \u05D0\n\u05D1‸\n", u"# \u05D0‸▸\n\u05D1\n"},
                            {u"---\nk: v\n---\n# a\nb‸\n", u"---\nk: v\n---\n# a‸▸\nb\n"},
                            {u"# a\nb\n## c\nd‸\n# e\nf\n", u"# a\nb\n## c‸▸\nd\n# e\nf\n"},
                            {u"# a\nb\n## c\nd\n# e‸\nf\n", u"# a\nb\n## c\nd\n# e‸▸\nf\n"},
                            // One that has nothing to fold leaves it to the one around it.
                            {u"# a\n## b‸\n## c\n", u"# a‸▸\n## b\n## c\n"},
                            {u"# a\n### b\nc\n## d‸\n", u"# a‸▸\n### b\nc\n## d\n"},
                            {u"# a\nb\n# c‸\n# d\n", u""},
                            {u"# a\nb\n# c\n‸\n# d\n", u""},
                            {u"# a‸", u""},
                            {u"# a\n\n‸", u""},
                            {u"a\n===\nb‸\n", u""},
                            {u"# a\nb\n\nc\n===\nd‸\n", u""},
                            {u"a‸\n\n# b\nc\n", u""},
                            {u"‸", u""},
                        });
}

TEST(ToggleFold, FoldsTheListItemAroundTheCaret) {
    expectFolds(toggle, {
                            {u"- a‸\n  - b\n", u"- a‸▸\n  - b\n"},
                            {u"- a\n  - b‸\n- c\n", u"- a‸▸\n  - b\n- c\n"},
                            {u"- a\n  - b\n    - c‸\n", u"- a\n  - b‸▸\n    - c\n"},
                            {u"- [ ] a\n\n  b‸\n", u"- [ ] a‸▸\n\n  b\n"},
                            {u"1. a\n   b‸\n   > c\n2. d\n", u"1. a\n   b‸▸\n   > c\n2. d\n"},
                            {u"> 3) a\n>    - b‸\n", u"> 3) a‸▸\n>    - b\n"},
                            {u"# a\n- b‸\n  - c\n", u"# a\n- b‸▸\n  - c\n"},
                            // An item without more leaves it to the heading.
                            {u"# a\n- b‸\n- c\n", u"# a‸▸\n- b\n- c\n"},
                            {u"# a\n- # b‸\n  c\n", u"# a‸▸\n- # b\n  c\n"},
                            {u"# a\n- ```\n  b‸\n  ```\n  c\n", u"# a‸▸\n- ```\n  b\n  ```\n  c\n"},
                            {u"# a\n- ***\n  b‸\n", u"# a‸▸\n- ***\n  b\n"},
                            {u"- a‸\n- b\n", u""},
                            // The empty last line is in the section but in no item.
                            {u"# a\n- b\n  - c\n‸", u"# a▸\n- b\n  - c\n‸"},
                            {u"- a\n  - b\n‸", u""},
                        });
}

TEST(ToggleFold, OpensTheOutermostFold) {
    expectFolds(toggle, {
                            {u"# a‸▸\nb\n", u"# a‸\nb\n"},
                            {u"# a▸‸\nb\n", u"# a‸\nb\n"},
                            {u"# a▸\nb‸\n", u"# a\nb‸\n"},
                            {u"# a▸\n## b▸\nc‸\n", u"# a\n## b▸\nc‸\n"},
                            {u"# a\n## b▸\nc‸\n", u"# a\n## b\nc‸\n"},
                            {u"> - a▸\r\n>   - b▸\r\n>     c‸\r\n>     - d\r\n",
                             u"> - a\r\n>   - b▸\r\n>     c‸\r\n>     - d\r\n"},
                            {u"# a▸\n- b▸\n  - c‸\n", u"# a\n- b▸\n  - c‸\n"},
                            {u"# a‸▸▸▸\nb\n", u"# a‸\nb\n"},
                            {u"# a ‸▸ \t▸\nb\n", u"# a ‸\nb\n"},
                            {u"# a ▸ b‸▸\nb\n", u"# a ▸ b‸\nb\n"},
                        });
}

TEST(ToggleFold, LeavesNoSelectionHidden) {
    expectFolds(toggle, {
                            {u"⟦# a⟧\nb\n", u"⟦# a⟧▸\nb\n"},
                            {u"⟦# a\nb⟧\n", u"⟦# a⟧▸\nb\n"},
                            {u"# a\n⟦b\n# c⟧\n", u"# a‸▸\nb\n# c\n"},
                            {u"⟦# a\nb\n# c⟧\n", u"⟦# a▸\nb\n# c⟧\n"},
                            {u"⟦# a\nb\n⟧# c\n", u"⟦# a▸\nb\n⟧# c\n"},
                            {u"# a\nb\n‸", u"# a▸\nb\n‸"},
                        });
}

TEST(ToggleFold, EndsTheLastLineThatItHides) {
    expectFolds(toggle, {
                            {u"# a‸\nb", u"# a‸▸\nb\n"},
                            {u"# a\n‸b", u"# a‸▸\nb\n"},
                            {u"# a\nb‸", u"# a▸\nb\n‸"},
                            {u"# a\n⟦b⟧", u"# a‸▸\nb\n"},
                            {u"⟦# a\nb⟧", u"‸# a▸\nb\n"},
                            {u"> - a\n>   - ‸b", u"> - a‸▸\n>   - b\n"},
                            {u"# a‸\rb\r", u"# a‸▸\rb\r"},
                        });
}

/// A comment that would be read as something else is not written.
TEST(ToggleFold, LeavesHeadsThatTakeNoComment) {
    const std::vector<CommandCase> cases = {
        {u"#‸\na\n", u""},     {u"# a\\‸\nb\n", u""},     {u"# a <!--‸\nb\n", u""},
        {u"# <!A‸\nb\n", u""}, {u"- a\\‸\n  - b\n", u""},
    };
    expectFolds(toggle, cases);
    expectFolds(foldAll, cases);
    expectFolds(toggle, {
                            {u"# ‸\na\n", u"# ‸▸\na\n"},
                            {u"# a #‸\nb\n", u"# a #‸▸\nb\n"},
                            {u"# a\\\\‸\nb\n", u"# a\\\\‸▸\nb\n"},
                            {u"# #t‸\nb\n", u"# #t‸▸\nb\n"},
                            {u"# http://a.com/‸\nb\n", u"# http://a.com/‸▸\nb\n"},
                            {u"# `a‸\nb`\n", u"# `a‸▸\nb`\n"},
                        });
    expectFolds(toggle, {{u"# a‸\nb\n", u""}}, RuleConfig::Commonmark);
    expectFolds(foldAll, {{u"a\n\n# b‸\nc\n", u""}}, RuleConfig::Commonmark);
    expectFolds(toggle, {{u"# a\nb‸\n", u"# a‸▸\nb\n"}}, RuleConfig::Simplified);
}

TEST(ToggleFold, KnowsWhichRulesAreOff) {
    const auto foldsText = [](bool isMathOff) {
        Ondo::Tree tree({});
        if (isMathOff) tree.removeRuleByName("MathBlock");
        tree.replaceAll(u"> $$\n> - a\n>   - b\n");
        return !toggle.run(tree, 9, 0, 9, 0).empty();
    };
    EXPECT_TRUE(foldsText(true));
    EXPECT_FALSE(foldsText(false));
}

TEST(ToggleFold, FoldsAllHeadings) {
    expectFolds(foldAll,
                {
                    {u"# a\nb‸\n# c\nd\n", u"# a‸▸\nb\n# c▸\nd\n"},
                    {u"# a\nb\n# c\n- d\n  - e‸", u"# a▸\nb\n# c▸\n- d\n  - e\n‸"},
                    {u"# a\n## b\nc‸\n# d\n", u"# a‸▸\n## b▸\nc\n# d\n"},
                    {u"a\n===\n# b\nc‸\n", u"a\n===\n# b‸▸\nc\n"},
                    {u"# a\nb\n# c▸\n⟦d\n⟧", u"# a▸\nb\n# c‸▸\nd\n"},
                    {u"# a\nb\n# c⟦▸⟧\nd", u"# a▸\nb\n# c⟦▸⟧\nd"},
                    {u"⟦x\n# a\nb\n# c\nd⟧", u"⟦x\n# a▸\nb\n# c▸\nd\n⟧"},
                    {u"# a\nb⟦\n# c\n## d⟧", u"# a‸▸\nb\n# c▸\n## d\n"},
                    {u"x\n# a\n## b\nc\n## d‸", u"x\n# a▸\n## b▸\nc\n## d\n‸"},
                    // From within the comment of a fold into what it hides.
                    {u"# x\ny\n# a▸⟦\n⟧b\n", u"# x▸\ny\n# a‸▸\nb\n"},
                    {u"# x\ny\n# a▸⟦▸\n\nb⟧\n", u"# x▸\ny\n# a‸▸▸\n\nb\n"},
                    {u"# T▸⟦\nx⟧\n# y\nz", u"# T‸▸\nx\n# y▸\nz\n"},
                    {u"# T▸⟦\nx\n# y\nz⟧", u"# T▸⟦\nx\n# y▸\nz\n⟧"},
                    // A title that holds the rest of the note stays open.
                    {u"# a\nb‸\n", u""},
                    {u"\n\n# a\nb‸\n", u""},
                    {u"---\nk: v\n---\n\n# a\n\nb\n## c\n‸d\n", u"---\nk: v\n---\n\n# a\n\nb\n## c‸▸\nd\n"},
                    {u"x\n# a\nb‸\n", u"x\n# a‸▸\nb\n"},
                    {u"- a\n  - b‸\n", u""},
                    {u"‸", u""},
                });
}

TEST(ToggleFold, UnfoldsAll) {
    expectFolds(unfoldAll, {
                               {u"# a▸\n## b▸\n- c▸\n  - d‸\n", u"# a\n## b\n- c\n  - d‸\n"},
                               {u"# a▸▸⟦\nb\n> - c▸⟧\n>\n>   d", u"# a⟦\nb\n> - c⟧\n>\n>   d"},
                               {u"# a ▸ ▸▸\t▸\n- c▸ ▸\n\n  d‸", u"# a \n- c\n\n  d‸"},
                               {u"> - a▸\n>         ▸\n>   - b‸", u"> - a\n>   - b‸"},
                               {u"# a ▸ b\n`▸`\n\n▸‸", u""},
                               {u"‸", u""},
                           });
    expectFolds(unfoldAll, {{u"# a▸\nb‸", u""}}, RuleConfig::Commonmark);
}

std::vector<Result> run(const ToggleFold& command, const Drawn& note, RuleConfig::RuleSet rules) {
    const Ondo::Tree tree(note.text, rules);
    const Ondo::Range& at = note.selection;
    return command.run(tree, at.offset, at.length, at.offset, at.length);
}

Drawn behind(const ToggleFold& command, const Drawn& note, RuleConfig::RuleSet rules) {
    return applied(note, run(command, note, rules));
}

bool isHidden(const Ondo::Tree& tree, std::int64_t offset) {
    if (offset == tree.length()) return false;
    Ondo::Node* const leaf = tree.nodeAtOffset(offset, Ondo::LevelSetting::Leaf);
    const Ondo::Node* const topmost = FoldMarkerNode::topmostFoldedContentHead(leaf);
    return topmost && topmost != leaf->parentBlock();
}

/// Whether a heading hides an offset. Folding all headings leaves the folds of items as they are.
bool isHiddenByHeading(const Ondo::Tree& tree, std::int64_t offset) {
    if (offset == tree.length()) return false;
    Ondo::Node* const leaf = tree.nodeAtOffset(offset, Ondo::LevelSetting::Leaf);
    const Ondo::Node* const topmost = FoldMarkerNode::topmostFoldedContentHead(leaf);
    return topmost && !topmost->parent->parent && isHidden(tree, offset);
}

/// Notes with folds here and there, and selections of any length.
TEST(ToggleFold, KeepsSelectionsInTheTextAndInSight) {
    constexpr std::u16string_view endings[] = {u"▸\n", u"▸ ▸\n", u"\n"};
    std::int64_t folds = 0;
    for (std::uint64_t seed = 0; seed < 2500; ++seed) {
        RandomNote random(seed);
        std::u16string text = random.note(4);
        for (std::size_t i = random.below(4); i > 0; --i) {
            text += u"\n#" + std::u16string(random.below(2), u'#') + u" h";
            text += Ondo::Test::withComments(endings[random.below(3)]) + random.note(3);
        }
        const std::size_t start = random.below(text.size() + 1);
        const std::size_t end = start + random.below(text.size() + 1 - start);
        const Ondo::Range range{static_cast<std::int64_t>(start), static_cast<std::int64_t>(end - start)};
        const Drawn note(text, range);
        const RuleConfig::RuleSet rules = allRuleSets[seed % 3];
        SCOPED_TRACE(Ondo::Test::visible(note.drawing()));

        const Drawn folded = behind(foldAll, note, rules);
        const Ondo::Tree tree(folded.text, rules);
        if (folded.text != text) {
            ++folds;
            EXPECT_FALSE(isHiddenByHeading(tree, folded.selection.offset));
            EXPECT_FALSE(isHiddenByHeading(tree, folded.selection.end()));
        }
        behind(toggle, note, rules);
        const Drawn open = behind(unfoldAll, folded, rules);
        EXPECT_EQ(Ondo::Tree(open.text, rules).toIndentedTree().find(u"fold_marker"), std::u16string::npos);
    }
    EXPECT_GT(folds, 500);
}

/// A note without comments that ends in a line feed is restored.
TEST(ToggleFold, IsUndoneByItself) {
    std::int64_t folds = 0;
    for (std::uint64_t seed = 0; seed < 4000; ++seed) {
        RandomNote random(seed);
        std::u16string text = random.note(12);
        for (std::size_t at; (at = text.find(Folding::comment)) != std::u16string::npos;)
            text.erase(at, Folding::comment.size());
        text += u"\n";
        const RuleConfig::RuleSet rules = allRuleSets[1 + seed % 2];
        const Drawn note(text, {random.range(static_cast<std::int64_t>(text.size())).offset, 0});
        const Drawn folded = behind(toggle, note, rules);
        SCOPED_TRACE(Ondo::Test::visible(note.drawing()));
        EXPECT_EQ(behind(unfoldAll, behind(foldAll, note, rules), rules).text, text);
        if (folded.text == text) continue;
        ++folds;
        EXPECT_FALSE(isHidden(Ondo::Tree(folded.text, rules), folded.selection.offset));
        EXPECT_EQ(behind(toggle, folded, rules).text, text);
    }
    EXPECT_GT(folds, 200);
}

} // namespace
} // namespace CVN::Operation
