#include "corvane/operation/OperationExitInlines.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"

namespace Ondo::Test {

namespace {

using CVN::Operation::ExitInlines;

TEST(ExitInlinesTest, LeavesWhatTheMarkerAtTheCaretCloses) {
    expectEach(ExitInlines(), {
                                  {u"**a‸** b", u"**a**‸ b"},
                                  {u"__a‸__ b", u"__a__‸ b"},
                                  {u"- *a‸*\n- b", u"- *a*‸\n- b"},
                                  {u"> ~~a‸~~ b", u"> ~~a~~‸ b"},
                                  {u"~a‸~ b", u"~a~‸ b"},
                                  {u"==🔴a‸== b", u"==🔴a==‸ b"},
                                  {u"``a‸`` b", u"``a``‸ b"},
                                  {u"$a‸$ b", u"$a$‸ b"},
                                  {u"#a b‸# c", u"#a b#‸ c"},
                                  {u"[[a‸]] b", u"[[a]]‸ b"},
                                  {u"<http://a.b‸> c", u"<http://a.b>‸ c"},
                                  {u"**a*‸* b", u"**a**‸ b"},
                                  {u"***a‸*** b", u"***a**‸* b"},
                                  {u"| **a‸** |\n|---|\n", u"| **a**‸ |\n|---|\n"},
                                  {u"**👍🏽‸**\r\n", u"**👍🏽**‸\r\n"},
                              });
}

TEST(ExitInlinesTest, LeavesTheKeyToTheNewlineOtherwise) {
    expectEach(ExitInlines(), {
                                  {u"‸", u""},
                                  {u"‸**a**", u""},
                                  {u"**‸a**", u""},
                                  {u"**a**‸", u""},
                                  {u"**a**‸ b", u""},
                                  {u"**⟦a**⟧ b", u""},
                                  {u"**a⟦**⟧ b", u""},
                                  {u"[a‸](b) c", u""},
                                  {u"[a](b‸) c", u""},
                                  {u"&amp‸; c", u""},
                                  {u"# a ‸#\n", u""},
                                  {u"a ** b‸** c", u""},
                                  {u"```\n**a‸**\n```\n", u""},
                              });
    expectEach(ExitInlines(), {{u"==a‸== b", u""}, {u"**a‸** b", u"**a**‸ b"}}, RuleConfig::Commonmark);
}

} // namespace

} // namespace Ondo::Test
