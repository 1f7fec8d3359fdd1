#include "corvane/correction/PasteLineEndingCorrection.h"

#include <gtest/gtest.h>

#include "corvane/client/CVNAST.h"
#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

using namespace Ondo;
using namespace Ondo::Test;
using CVN::Correction::PasteLineEndingCorrection;
using CVN::Operation::IndentStyle;

namespace {

TEST(PasteLineEndingCorrection, LinesGetThePrefix) {
    struct {
        std::u16string_view before;
        std::u16string_view pasted;
        std::u16string_view after;
    } const cases[] = {
        {u"- a‸", u"b\nc", u"- ab\n  c‸"},
        {u"> a⟦x⟧y", u"b\n\nc\n", u"> ab\n> \n> c\n> ‸y"},
        {u"> 12. a‸\n> b", u"b\r\nc", u"> 12. ab\r\n>     c‸\n> b"},
        {u"- [ ] a‸", u"😀\nc", u"- [ ] a😀\n  c‸"},
        {u"- ```\n  a‸\n  ```", u"b\nc", u"- ```\n  ab\n  c‸\n  ```"},
        {u"- a‸", u"b", u""},
        {u"a‸", u"b\nc", u""},
        {u"‸- a", u"b\nc", u""},
        {u"‸", u"b\nc", u""},
    };
    for (const auto& each : cases) {
        const PasteLineEndingCorrection correction(IndentStyle::Spaces);
        EXPECT_EQ(visible(afterCorrection(correction, each.before, each.pasted)), visible(each.after))
            << "behind " << visible(each.before);
    }
    EXPECT_EQ(afterCorrection(PasteLineEndingCorrection(IndentStyle::Tabs), u"- a\n\t- b‸", u"\nc"),
              u"- a\n\t- b\n\tc‸");
}

TEST(PasteLineEndingCorrection, OnlyWithTheSelectionBehindThePaste) {
    const Tree tree(u"- a");
    const PasteLineEndingCorrection correction(IndentStyle::Spaces);
    EXPECT_TRUE(correction.run(tree, 3, 0, u"\nb", 3, 2).empty());
    EXPECT_TRUE(correction.run(tree, 2, 0, u"\nb", 3, 0).empty());
    const auto results = correction.run(tree, 2, 0, u"\nb", 4, 1);
    ASSERT_EQ(results.size(), 1U);
    EXPECT_EQ(results[0], CVN::Operation::Result(2, 0, u"\n  b", 6, 1));
}

/// What all corrections of a paste make of it together; empty when none has an opinion.
std::u16string pasted(std::u16string_view drawing, std::u16string_view text) {
    const Drawn note(drawing);
    const CVNAST ast = CVNAST::fromMarkdown(note.text);
    const CVNRange range{note.selection.offset, note.selection.length};
    const CVNRange caret{range.location + static_cast<std::int64_t>(text.size()), 0};
    std::vector<CVN::Operation::Result> results;
    for (const CVNASTOperationResult& each : ast.pasteCorrectionIn(range, text, caret))
        results.emplace_back(each.replacementRange.location, each.replacementRange.length,
                             each.replacementString, each.proposedSelection.location,
                             each.proposedSelection.length);
    return results.empty() ? std::u16string() : applied(note, results).drawing();
}

TEST(PasteCorrections, OneBehindTheOther) {
    struct {
        std::u16string_view before;
        std::u16string_view pasted;
        std::u16string_view after;
    } const cases[] = {
        {u"- ‸a", u" - b\nc ", u"- b\n  c ‸a"},         // all three
        {u"- ‸", u"- [ ] milk", u"- milk‸"},            // the second alone
        {u"> a‸b", u"c\nd", u"> a c\n> d ‸b"},          // the first and the third
        {u"- [x] ⟦old⟧", u" - [ ] new", u"- [x] new‸"}, // the first and the second
        {u"> a ‸", u"c\nd", u"> a c\n> d‸"},            // the third alone
        {u"a ‸ b", u"word", u""},
        {u"‸", u"- b\nc ", u""},
        {u"a ⟦x⟧ b", u" ", u"a ‸ b"}, // nothing is left for the others
    };
    for (const auto& each : cases)
        EXPECT_EQ(visible(pasted(each.before, each.pasted)), visible(each.after))
            << "behind " << visible(each.before);
}

} // namespace
