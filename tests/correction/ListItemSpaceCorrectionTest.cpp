#include "corvane/correction/ListItemSpaceCorrection.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

using namespace Ondo;
using namespace Ondo::Test;
using CVN::Correction::ListItemSpaceCorrection;

namespace {

TEST(ListItemSpaceCorrection, CutsBlanksBehindAMarker) {
    struct {
        std::u16string_view before;
        std::u16string_view typed;
        std::u16string_view after;
    } const cases[] = {
        {u"- ‸a", u" \tb", u"- b‸a"},
        {u"- ‸a", u" ", u"- ‸a"}, // the key is consumed
        {u"- ‸", u" ", u"- ‸"},
        {u"- ‸\n- b", u"\t", u"- ‸\n- b"},
        {u"> 12) ⟦x⟧", u"  y z", u"> 12) y z‸"},
        {u"- [ ] ‸a", u" 😀", u"- [ ] 😀‸a"},
        {u"* a\r\n  + ‸b", u" c", u"* a\r\n  + c‸b"},
        {u"- ‸a", u"b ", u""},
        {u"- a‸", u" b", u""},
        {u"- a\n-‸", u" ", u""}, // has no space yet
        {u"-‸ a", u" ", u""},
        {u"‸- a", u" ", u""},
        {u"> ‸a", u" b", u""},
        {u"- ⟦a⟧", u"", u""},
        {u"‸", u" ", u""},
    };
    for (const auto& each : cases)
        EXPECT_EQ(visible(afterCorrection(ListItemSpaceCorrection(), each.before, each.typed)),
                  visible(each.after))
            << "behind " << visible(each.before);
}

TEST(ListItemSpaceCorrection, SelectionMovesBackByWhatWasCut) {
    const Tree tree(u"- a");
    const auto results = ListItemSpaceCorrection().run(tree, 2, 0, u"  bcd", 3, 3);
    ASSERT_EQ(results.size(), 1U);
    EXPECT_EQ(results[0], CVN::Operation::Result(2, 0, u"bcd", 2, 2));
}

} // namespace
