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
                            {u"# a ‸▸ ▸\nb\n", u"# a ‸▸ \nb\n"},
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
