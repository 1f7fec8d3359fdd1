#include "corvane/operation/OperationEscapePipes.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using namespace Ondo::Test;

TEST(EscapePipes, EscapesThoseOfTheRange) {
    for (const Ondo::RuleConfig::RuleSet rules : allRuleSets)
        expectEach(EscapePipes(),
                   {
                       {u"⟦a|b\\|c⟧", u"⟦a\\|b\\|c⟧"},
                       {u"⟦||⟧|", u"\\⟦|\\|⟧|"},
                       {u"|⟦a⟧|", u""},
                       {u"a‸|", u""},
                       // an even run of backslashes escapes itself, also across the start of the range
                       {u"⟦\\\\|⟧", u"⟦\\\\\\|⟧"},
                       {u"\\⟦|⟧", u""},
                       {u"\\\\⟦|⟧", u"\\\\\\⟦|⟧"},
                       {u"⟦\\|⟧", u""},
                       {u"⟦`a|b\\|`⟧", u"⟦`a\\|b\\|`⟧"},
                       {u"⟦😀|\r\nש|\n⟧|", u"⟦😀\\|\r\nש\\|\n⟧|"},
                       {u"‸", u""},
                   },
                   rules);
}

TEST(EscapePipes, RangesBeyondTheText) {
    const Ondo::Tree tree(u"a|b|");
    EXPECT_TRUE(EscapePipes().run(tree, 2, -1, 0, 0).empty());
    EXPECT_TRUE(EscapePipes().run(tree, 4, 5, 0, 0).empty());
    EXPECT_EQ(applied({u"a|b|", {0, 0}}, EscapePipes().run(tree, 2, 9, 0, 0)).text, u"a|b\\|");
}

} // namespace
} // namespace CVN::Operation
