#include <gtest/gtest.h>

#include "corvane/operation/OperationToggleBlockStyle.h"
#include "tests/support/Caret.h"

namespace CVN::Operation {
namespace {

using Ondo::Test::expectEach;

const ToggleBlockStyle note(BlockToggles::CalloutNote);

TEST(ToggleCallout, HasTheLabelOfItsKind) {
    const struct {
        BlockToggles style;
        std::u16string_view after;
    } cases[] = {
        {BlockToggles::Callout, u"> [!NOTE]‸ a"},
        {BlockToggles::CalloutNote, u"> [!NOTE]‸ a"},
        {BlockToggles::CalloutTip, u"> [!TIP]‸ a"},
        {BlockToggles::CalloutCaution, u"> [!CAUTION]‸ a"},
        {BlockToggles::CalloutWarning, u"> [!WARNING]‸ a"},
        {BlockToggles::CalloutImportant, u"> [!IMPORTANT]‸ a"},
    };
    for (const auto& each : cases)
        expectEach(ToggleBlockStyle(each.style), {{u"a‸", each.after}});
}

TEST(ToggleCallout, TakesWholeBlocks) {
    expectEach(note, {
                         {u"‸", u"> [!NOTE]‸"},
                         {u"a\n‸", u"a\n> [!NOTE]‸\n"},
                         {u"a\n‸\nb", u"a\n> [!NOTE]‸\nb"},
                         {u"a‸\nb\n\nc", u"> [!NOTE]‸ a\n> b\n\nc"},
                         {u"a\nb‸\n", u"a\n> [!NOTE]‸ b\n"},
                         {u"  a‸", u"> [!NOTE]‸  a"},
                         {u"⟦a\n\nb⟧\n", u"> [!NOTE]‸ a\n> \n> b\n"},
                         {u"⟦a\n\n> b⟧\n", u"> [!NOTE]‸ a\n> \n> b\n"},
                         {u"⟦> a\n\nb⟧\n", u"> [!NOTE]‸ a\n> \n> b\n"},
                         // Other blocks are no title.
                         {u"# a‸\nb", u"> [!NOTE]‸\n> # a\nb"},
                         {u"a‸\n===\n", u"> [!NOTE]‸\n> a\n> ===\n"},
                         {u"- a\n- b‸\n", u"- a\n> [!NOTE]‸\n> - b\n"},
                         {u"⟦- a\n  - b\n- c⟧", u"> [!NOTE]‸\n> - a\n>   - b\n> - c"},
                         {u"***‸\n", u"> [!NOTE]‸\n> ***\n"},
                         {u"| a‸ |\n|---|\n", u""},
                         {u"```\na‸\n```\n", u""},
                         {u"```\na\n‸", u""},
                         {u"<p>‸\n", u""},
                         {u"---\na: b‸\n---\n", u""},
                     });
}

TEST(ToggleCallout, LabelsQuotes) {
    expectEach(note, {
                         {u"> a\n> b‸", u"> [!NOTE]‸ a\n> b"},
                         {u"> ‸", u"> [!NOTE]‸"},
                         {u">a‸", u">[!NOTE]‸ a"},
                         {u"> \n> a‸", u"> [!NOTE]‸\n> a"},
                         {u">   a‸", u"> [!NOTE]‸  a"},
                         {u"> a\nlazy‸", u"> [!NOTE]‸ a\nlazy"},
                         {u"- > a‸", u"- > [!NOTE]‸ a"},
                         {u"> # a‸", u"> [!NOTE]‸\n> # a"},
                         {u">     a‸", u"> [!NOTE]‸\n>     a"},
                         {u"- > - a‸\n", u"- > [!NOTE]‸\n  > - a\n"},
                         {u"> > [!TIP] a‸\n", u"> [!NOTE]‸\n> > [!TIP] a\n"},
                         {u"> ```\n> a‸\n> ```\n", u"> [!NOTE]‸\n> ```\n> a\n> ```\n"},
                     });
}

TEST(ToggleCallout, ChangesAndTakesAwayLabels) {
    expectEach(note, {
                         {u"> [!TIP] a\n> b‸", u"> [!NOTE] a\n> b‸"},
                         {u"> [!important]\n> ‸b", u"> [!NOTE]\n> ‸b"},
                         {u"> [!NOTE] a\n> ‸b\n>\n> c", u"a\n‸b\n\nc"},
                         {u"> [!note]‸ a", u"‸a"},
                         {u"> [!NOTE]‸", u"‸"},
                         {u"⟦> [!NOTE]\n> a⟧\n", u"⟦\na⟧\n"},
                         {u"- > [!NOTE]   a‸\n  > b\n", u"- a‸\n  b\n"},
                     });
}

TEST(ToggleCallout, IsSetApartFromQuotesBesideIt) {
    expectEach(note, {
                         {u"> a\n# b‸\n> c", u"> a\n\n> [!NOTE]‸\n> # b\n\n> c"},
                         {u"> a\n- b‸\n", u"> a\n\n> [!NOTE]‸\n> - b\n"},
                         {u"> a\n> b\n‸", u"> a\n> b\n\n> [!NOTE]‸\n"},
                         {u"a\n> b\n‸", u"a\n> b\n\n> [!NOTE]‸\n"},
                         {u"b‸\n  > c\n", u"> [!NOTE]‸ b\n\n  > c\n"},
                         {u"⟦b⟧\r\n> c\r\n", u"> [!NOTE]‸ b\r\n\n> c\r\n"},
                     });
}

} // namespace
} // namespace CVN::Operation
