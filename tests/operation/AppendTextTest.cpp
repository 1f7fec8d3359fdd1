#include "corvane/operation/OperationAppendText.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"

namespace Ondo::Test {

namespace {

using CVN::Operation::AppendText;

TEST(AppendTextTest, AtTheEndAboveTagsAndFootnotes) {
    expectEach(AppendText(u"x", false), {
                                            {u"‸", u"\nx\n‸"},
                                            {u"\n‸", u"\nx\n‸"},
                                            {u"‸a", u"‸a\nx\n"},
                                            {u"‸a\n\n", u"‸a\n\nx\n"},
                                            {u"‸a\r\n", u"‸a\r\nx\n"},
                                            {u"‸---\na: b\n---\n", u"‸---\na: b\n---\nx\n"},
                                            // tags stay the last line
                                            {u"‸# a\nb\n\n#t #u\n", u"‸# a\nb\nx\n\n#t #u\n"},
                                            {u"‸# a\nb\n\n \n#t", u"‸# a\nb\n\nx\n \n#t"},
                                            {u"‸# a\n\nb\n\n## c\n#t", u"‸# a\n\nb\n\n## c\nx\n\n#t"},
                                            {u"‸a\n\nb\n\n#t\n\n[^1]: b", u"‸a\n\nb\nx\n\n#t\n\n[^1]: b"},
                                            {u"#t‸", u"x\n\n#t‸"},
                                            {u"‸# a\n\nb\n\nc #t\n", u"‸# a\n\nb\n\nc #t\nx\n"},
                                            // but not those below the title
                                            {u"‸# a\n#t\n", u"‸# a\n#t\nx\n"},
                                            {u"‸# a\n\n#t\n\n[^1]: b", u"‸# a\n\n#t\nx\n\n[^1]: b"},
                                            {u"‸# a\n\n#t\n#u", u"‸# a\n\n#t\n#u\nx\n"},
                                            {u"‸a\n===\n#t\n", u"‸a\n===\n#t\nx\n"},
                                            {u"‸a\n===\n\n#t\n", u"‸a\n===\n\n#t\nx\n"},
                                            {u"‸- a\n\n#t\n", u"‸- a\n\n#t\nx\n"},
                                            // where the title is all that stands above
                                            {u"‸a\nb\n\n#t", u"‸a\nb\nx\n\n#t"},
                                            {u"‸a\nb\n===\n#t", u"‸a\nb\n===\nx\n\n#t"},
                                            {u"‸- a\n- b\n\n#t", u"‸- a\n- b\nx\n\n#t"},
                                            // footnotes stay behind, on their own
                                            {u"‸a\n\n[^1]: b\n", u"‸a\nx\n\n[^1]: b\n"},
                                            {u"‸# a\n[^1]: b\n", u"‸# a\nx\n\n[^1]: b\n"},
                                            {u"[^1]: b‸", u"x\n\n[^1]: b‸"},
                                        });
    expectEach(AppendText(u"x\n", false), {{u"a‸", u"a\nx\n‸"}, {u"⟦a\n⟧", u"⟦a\n⟧x\n"}});
    expectEach(AppendText(u"", false), {{u"a‸", u""}});
}

TEST(AppendTextTest, ExactlyAsItStands) {
    expectEach(AppendText(u"x", true), {{u"‸a", u"‸ax"}, {u"‸a\n#t\n", u"‸a\n#t\nx"}, {u"‸", u"x‸"}});
    expectEach(AppendText(u"", true), {{u"a‸", u""}});
}

} // namespace

} // namespace Ondo::Test
