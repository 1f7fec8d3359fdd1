#include "corvane/correction/PasteDeduplicateBlockCorrection.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

using namespace Ondo;
using namespace Ondo::Test;
using CVN::Correction::PasteDeduplicateBlockCorrection;

namespace {

TEST(PasteDeduplicateBlockCorrection, DropsMarkersBehindAMarker) {
    struct {
        std::u16string_view before;
        std::u16string_view pasted;
        std::u16string_view after;
    } const cases[] = {
        {u"- ‸", u"- - [ ] milk", u"- milk‸"},
        {u"- ‸x", u"* milk", u"- milk‸x"},
        {u"- ⟦x⟧", u"12) milk", u"- milk‸"},
        {u"- [ ] ‸", u"- [x] milk", u"- [ ] milk‸"},
        {u"> 1. ‸\r\n", u"1. milk\n2. tea", u"> 1. milk\n2. tea‸\r\n"},
        {u"* a\n  + ‸b", u"+ 😀", u"* a\n  + 😀‸b"},
        {u"- ‸", u"* [ ] milk", u"- [ ] milk‸"}, // a box goes with a dash only
        {u"- ‸", u"- [ ]milk", u"- [ ]milk‸"},
        {u"- ‸", u"- ", u""},
        {u"- ‸", u"- - [ ] ", u""},
        {u"- ‸", u"-milk", u""},
        {u"- ‸", u"milk", u""},
        {u"- ⟦x⟧", u"", u""},
        {u"- x‸", u"- milk", u""},
        {u"‸- x", u"- milk", u""},
        {u"-‸ x", u"- milk", u""},
        {u"> ‸x", u"- milk", u""},
        {u"‸", u"- milk", u""},
    };
    for (const auto& each : cases) {
        const std::u16string after =
            afterCorrection(PasteDeduplicateBlockCorrection(), each.before, each.pasted);
        EXPECT_EQ(visible(after), visible(each.after)) << "behind " << visible(each.before);
    }
}

TEST(PasteDeduplicateBlockCorrection, SelectionsStayBehindTheMarker) {
    const Tree tree(u"- x");
    const auto results = PasteDeduplicateBlockCorrection().run(tree, 2, 0, u"- - tea", 3, 5);
    ASSERT_EQ(results.size(), 1U);
    EXPECT_EQ(results[0], CVN::Operation::Result(2, 0, u"tea", 2, 2));
}

} // namespace
