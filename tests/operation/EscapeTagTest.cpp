#include "corvane/operation/OperationEscapeTag.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"

namespace Ondo::Test {

namespace {

using CVN::Operation::EscapeTag;

TEST(EscapeTagTest, TheMarkersAreEscapedAndTheRestStays) {
    expectEach(EscapeTag(u"a"), {
                                    {u"‸x #a #A/b #ab", u"‸x \\#a \\#A/b #ab"},
                                    {u"‸#a#x\r\n> - #a b# #a/c d#", u"‸\\#a\\#x\r\n> - #a b# \\#a/c d\\#"},
                                    {u"‸#a//b, #a/ | #a", u"‸\\#a//b, \\#a/ | \\#a"},
                                    {u"#a x⟦y⟧", u"\\#a x⟦y⟧"},
                                    {u"#a‸ x", u"\\#a‸ x"},
                                    {u"\\#a `#a`‸", u""},
                                });
    expectEach(EscapeTag(u"a#b"), {{u"‸#a\\#b #a\\#b#", u"‸\\#a\\#b \\#a\\#b\\#"}});
    expectEach(EscapeTag(u"a\\"), {{u"‸#a\\\\# #A\\\\/b #a\\/b", u"‸\\#a\\\\\\# \\#A\\\\/b #a\\/b"}});
    // no tag begins or ends at what was escaped
    for (const std::u16string_view note : {u"‸#a #a #a", u"‸- #a#b #a/b c#d", u"‸(#a) **#a**\n#a"})
        EXPECT_EQ(afterOperation(EscapeTag(u"a"), afterOperation(EscapeTag(u"a"), note)), u"");
}

} // namespace

} // namespace Ondo::Test
