#include <gtest/gtest.h>

#include "corvane/operation/OperationRemoveStrayMetaComments.h"
#include "tests/operation/FoldDrawing.h"
#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::RuleConfig;
using Ondo::Test::allRuleSets;
using Ondo::Test::Drawn;
using Ondo::Test::expectFolds;
using Ondo::Test::RandomNote;
using Ondo::Test::withComments;

const RemoveStrayMetaComments clean;

TEST(RemoveStrayMetaComments, RemovesFoldsOfNoHead) {
    expectFolds(clean, {
                           {u"⟦a▸\n⟧", u"⟦a\n⟧"},
                           {u"⟦# a▸⟧\n", u"⟦# a⟧\n"},
                           {u"⟦# a▸\nb⟧\n", u""},
                           {u"⟦# a▸▸\nb⟧\n", u"⟦# a▸\nb⟧\n"},
                           {u"⟦# a▸ b\nc⟧\n", u"⟦# a b\nc⟧\n"},
                           {u"⟦# a▸\n# b\n⟧", u"⟦# a\n# b\n⟧"},
                           {u"⟦a▸\n===\nb⟧", u"⟦a\n===\nb⟧"},
                           {u"⟦- a▸\n- b▸\n  - c⟧\n", u"⟦- a\n- b▸\n  - c⟧\n"},
                           {u"⟦> ▸\r\n▸⟧", u"⟦> \r\n⟧"},
                           {u"⟦| a▸ |\n|---|\n| ▸b |⟧", u"⟦| a |\n|---|\n| b |⟧"},
                           {u"⟦*a▸* [b▸](c) ▸\U0001F534▸⟧", u"⟦*a* [b](c) \U0001F534⟧"},
                           {u"⟦<!-- {\"fold\": true} --> <!-- {\"FOLD\":true} -->⟧", u""},
                           {u"⟦`▸` $a▸$\n\n    ▸\n\n```\n▸\n```\n- ~~~\n  ▸\n\n$$\n▸\n$$\n⟧", u""},
                           {u"⟦``` ▸\n```\n▸⟧", u"⟦``` \n```\n⟧"},
                       });
    expectFolds(clean, {{u"⟦# a▸\nb⟧\n", u"⟦# a\nb⟧\n"}}, RuleConfig::Commonmark);
    expectFolds(clean, {{u"⟦# a▸\nb▸⟧\n", u"⟦# a▸\nb⟧\n"}}, RuleConfig::Simplified);
}

TEST(RemoveStrayMetaComments, RemovesPreviewsWithoutLink) {
    expectFolds(clean, {
                           {u"⟦[a](b)◦⟧", u""},
                           {u"⟦[a](b) ◦⟧", u"⟦[a](b) ⟧"},
                           {u"⟦a◦⟧ ◦", u"⟦a⟧ ◦"},
                           {u"⟦◦\n\n◦a⟧", u"⟦\n\na⟧"},
                           {u"⟦[a](b)◦◦⟧", u"⟦[a](b)◦⟧"},
                           {u"⟦[c]◦\n\n[c]: d⟧", u""},
                           {u"⟦[a◦◦⟧", u"⟦[a⟧"},
                           {u"⟦`◦` $◦$⟧", u""},
                           {u"⟦<!-- {\"preview\":\"false\"} -->⟧", u""},
                       });
}

TEST(RemoveStrayMetaComments, LeavesAPreviewBehindAFoldAlone) {
    expectFolds(clean, {
                           {u"⟦a◦ b▸ c◦⟧", u"⟦a b c◦⟧"},
                           {u"⟦a◦\n# b▸\nc◦⟧", u"⟦a\n# b▸\nc◦⟧"},
                           {u"a▸\n⟦b◦⟧", u"a▸\n⟦b⟧"},
                       });
}

TEST(RemoveStrayMetaComments, LooksAtWhatBeginsInTheRange) {
    expectFolds(clean, {
                           {u"a▸⟦b▸c⟧ ▸", u"a▸⟦bc⟧ ▸"},
                           {u"⟦a⟧▸ ▸", u"⟦a⟧ ▸"},
                           {u"a‸▸", u""},
                           {u"‸▸", u""},
                           {u"⟦▸⟧", u"‸"},
                           {u"⟦a<!--⟧", u""},
                           {u"‸", u""},
                       });
}

TEST(RemoveStrayMetaComments, RemovesNothingButComments) {
    const std::u16string comments[] = {withComments(u"▸"), withComments(u"◦")};
    std::size_t removed = 0;
    for (std::uint64_t seed = 0; seed < 3000; ++seed) {
        RandomNote random(seed);
        std::u16string text = random.note(12);
        for (std::size_t i = random.below(6); i > 0; --i)
            text.insert(random.below(text.size() + 1), comments[random.below(3) / 2]);
        const Ondo::Tree tree(text, allRuleSets[seed % 3]);
        const Drawn note(text, random.range(tree.length()));
        const auto results = clean.run(tree, 0, tree.length(), note.selection.offset, note.selection.length);
        for (const Result& each : results) {
            const std::u16string_view old = tree.markdownIn({each.replaceOffset, each.replaceLength});
            EXPECT_TRUE(old == comments[0] || old == comments[1]) << Ondo::Test::visible(text);
            EXPECT_EQ(each.replacementLength(), 0);
        }
        applied(note, results);
        removed += results.size();
    }
    EXPECT_GT(removed, 1000u);
}

} // namespace
} // namespace CVN::Operation
