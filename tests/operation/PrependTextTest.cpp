#include "corvane/operation/OperationPrependText.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"

namespace Ondo::Test {

namespace {

using CVN::Operation::PrependText;

TEST(PrependTextTest, BelowTitleAndTags) {
    expectEach(PrependText(u"x"), {
                                      {u"‸", u"x\n‸"},
                                      {u"‸# a", u"‸# a\nx\n"},
                                      {u"‸# a\r\nb", u"‸# a\r\nx\nb"},
                                      {u"‸a\rb", u"‸a\rx\nb"},
                                      {u"‸# a\n\n#t #u\nb", u"‸# a\n\n#t #u\nx\nb"},
                                      {u"‸# a\n#t", u"‸# a\n#t\nx\n"},
                                      {u"‸a\n===\n#t\nb", u"‸a\n===\n#t\nx\nb"},
                                      {u"‸a\n===\n#t", u"‸a\n===\n#t\nx\n"},
                                      {u"‸---\nk: v\n---\n\na\n\nb", u"‸---\nk: v\n---\n\na\nx\n\nb"},
                                      {u"‸---\nk: v\n---\n\n", u"‸---\nk: v\n---\nx\n\n"},
                                      {u"‸---\nk: v\n---", u"‸---\nk: v\n---\nx\n"},
                                      {u"[^1]: a‸", u"x\n\n[^1]: a‸"},
                                      {u"‸---\nk: v\n---\n[^1]: a", u"‸---\nk: v\n---\nx\n\n[^1]: a"},
                                  });
}

TEST(PrependTextTest, NoBlockIsBrokenUp) {
    expectEach(PrependText(u"x"), {
                                      {u"‸a\nb\n===\nc", u"‸a\nb\n===\nx\nc"},
                                      {u"‸- a\n- b\n\nc", u"‸- a\n- b\n\nx\n\nc"},
                                      {u"‸> a\n> b\n", u"‸> a\n> b\n\nx\n"},
                                      {u"‸| a |\n|---|", u"‸| a |\n|---|\n\nx\n"},
                                      {u"‸```\na\n```\nb", u"‸```\na\n```\nx\nb"},
                                      {u"‸<!-- a -->\n# b\nc", u"‸<!-- a -->\nx\n# b\nc"},
                                      {u"‸<p>\n</p>", u"‸<p>\n</p>\n\nx\n"},
                                      {u"‸# a\n    b", u"‸# a\nx\n\n    b"},
                                      {u"‸# a\n[^1]: b", u"‸# a\nx\n\n[^1]: b"},
                                  });
    // what is added takes nothing in, either
    expectEach(PrependText(u"- x"), {{u"‸# a\nb", u"‸# a\n- x\n\nb"}, {u"‸# a\n- b", u"‸# a\n- x\n- b"}});
    expectEach(PrependText(u"> x"), {{u"‸# a\nb", u"‸# a\n> x\n\nb"}});
    expectEach(PrependText(u"\nx"), {{u"‸# a\nb", u"‸# a\n\nx\nb"}});
    expectEach(PrependText(u""), {{u"a‸", u""}});
}

} // namespace

} // namespace Ondo::Test
