#include "corvane/correction/DeleteWhitespaceCorrection.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

using namespace Ondo;
using namespace Ondo::Test;
using CVN::Correction::DeleteWhitespaceCorrection;

namespace {

TEST(DeleteWhitespaceCorrection, TakesTheSpaceBehindAWordAlong) {
    struct {
        std::u16string_view before;
        std::u16string_view after;
    } const cases[] = {
        {u"one ⟦two⟧ three", u"one ‸three"},
        {u"- ⟦one⟧ two", u"- ‸two"},
        {u"> a ⟦😀\r\n> b⟧ c", u"> a ‸c"},
        {u"`a` ⟦two⟧ `b`", u"`a` ‸`b`"},
        {u"שלום ⟦גדול⟧ עולם", u"שלום ‸עולם"},
        {u"a ⟦ b ⟧ c", u"a ‸c"},
        {u"a ⟦ \n\t⟧ b", u""}, // blank itself
        {u"one⟦ two⟧ three", u""},
        {u"one ⟦two ⟧three", u""},
        {u"⟦one⟧ two", u""},
        {u"one ⟦two⟧", u""},
        {u"one ⟦two⟧\nthree", u""},
        {u"one ‸ two", u""},
        {u"‸", u""},
        {u"`one ⟦two⟧ three`", u""},
        {u"$a ⟦+⟧ b$", u""},
        {u"```\na ⟦b⟧ c\n```", u""},
        {u"    a ⟦b⟧ c", u""},
        {u"---\na: ⟦b⟧ c\n---\n", u""},
        {u"one ⟦two `a⟧ b`", u""},
    };
    for (const auto& each : cases)
        EXPECT_EQ(visible(afterCorrection(DeleteWhitespaceCorrection(), each.before, u"")),
                  visible(each.after))
            << "behind " << visible(each.before);
    EXPECT_EQ(afterCorrection(DeleteWhitespaceCorrection(), u"one ⟦two⟧ three", u"x"), u"");
}

TEST(DeleteWhitespaceCorrection, SelectionsBehindFollowTheText) {
    const Tree tree(u"a b c d");
    const auto results = DeleteWhitespaceCorrection().run(tree, 2, 1, u"", 4, 2);
    ASSERT_EQ(results.size(), 1U);
    EXPECT_EQ(results[0], CVN::Operation::Result(2, 2, u"", 3, 2));
}

} // namespace
