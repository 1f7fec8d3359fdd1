#include "corvane/correction/CalloutCorrection.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

using namespace Ondo;
using namespace Ondo::Test;
using CVN::Correction::CalloutCorrection;

namespace {

TEST(CalloutCorrection, KeepsASpaceBehindTheMarker) {
    struct {
        std::u16string_view before;
        std::u16string_view typed;
        std::u16string_view after;
    } const cases[] = {
        {u"> [!NOTE]‸", u"x", u"> [!NOTE] x‸"},
        {u"> [!tip]‸\n> a", u"😀 b", u"> [!tip] 😀 b‸\n> a"},
        {u"- > [!WARNING]⟦ a⟧", u"b", u"- > [!WARNING] b‸"},
        {u"> [!NOTE]‸", u" ", u""},
        {u"> [!NOTE]‸", u"\n", u""}, // the return key goes on to a line of the quote
        {u"> [!NOTE]‸ x", u" ", u""},
        {u"> [!NOTE]⟦ ⟧x", u"", u"> [!NOTE] ‸x"},
        {u"> [!NOTE]⟦ \n> ⟧x", u"", u"> [!NOTE] ‸x"},
        {u"> [!NOTE]⟦\n⟧> x", u"", u"> [!NOTE] ‸x"},
        {u"- > [!NOTE]⟦\r\n⟧  >   - x", u"", u"- > [!NOTE] ‸- x"},
        {u"> [!NOTE]⟦\n⟧x", u"", u"> [!NOTE] ‸x"},
        {u"> [!NOTE]⟦ ⟧", u"", u""},
        {u"> [!NOTE]⟦ ⟧ x", u"", u""},
        {u"> [!NOTE]⟦ x⟧\n> b", u"", u""},
        {u"> [!NOTE]⟦ x⟧\r\n> b", u"", u""},
        {u"> ‸[!NOTE]", u"x", u""}, // in front of it
        {u"> [!NOTE] ‸x", u"y", u""},
        {u"> [!NOTE‸]", u"x", u""},
        {u"> a ‸", u"x", u""},
        {u"[!NOTE]‸", u"x", u""},
        {u"‸", u"x", u""},
    };
    for (const auto& each : cases)
        EXPECT_EQ(visible(afterCorrection(CalloutCorrection(), each.before, each.typed)), visible(each.after))
            << "behind " << visible(each.before);
}

} // namespace
