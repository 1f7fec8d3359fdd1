#include "corvane/correction/MathBlockCorrection.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

using namespace Ondo;
using namespace Ondo::Test;
using CVN::Correction::MathBlockCorrection;
using CVN::Operation::IndentStyle;

namespace {

struct EditCase {
    std::u16string_view before;
    std::u16string_view typed;
    std::u16string_view after; ///< empty for no opinion
};

void expectEach(IndentStyle style, const std::vector<EditCase>& cases,
                RuleConfig::RuleSet rules = RuleConfig::Extended) {
    for (const EditCase& each : cases)
        EXPECT_EQ(visible(afterCorrection(MathBlockCorrection(style), each.before, each.typed, rules)),
                  visible(each.after))
            << "behind " << visible(each.before) << " and " << visible(each.typed);
}

TEST(MathBlockCorrection, FenceIsHeldBack) {
    expectEach(IndentStyle::Spaces, {
                                        {u"$‸", u"$", u"\\$$‸"},
                                        {u"‸$", u"$", u"\\$‸$"},
                                        {u"‸", u"$$", u"\\$$‸"},
                                        {u"a\n‸\nb", u"$$", u"a\n\\$$‸\nb"},
                                        {u"a\n⟦xyz⟧", u"$$", u"a\n\\$$‸"},
                                        {u"$$⟦abc⟧\nd", u"", u"\\$$‸\nd"},
                                        {u"> - [ ] $‸\n> b", u"$", u"> - [ ] \\$$‸\n> b"},
                                        {u"a\r\n  $‸  \r\n", u"$", u"a\r\n  \\$$‸  \r\n"},
                                        {u"> - a\n>     $‸", u"$", u"> - a\n>     \\$$‸"},
                                    });
}

TEST(MathBlockCorrection, NoFenceNoOpinion) {
    const std::vector<EditCase> cases = {
        {u"‸", u"$", u""},
        {u"$$‸x", u"x", u""},
        {u"$$⟦a⟧", u"", u""}, // the deletion of one code unit
        {u"a $‸", u"$", u""},
        {u"a\n    $‸", u"$", u""}, // too far in
        {u"- a\n\n  b\n      $‸", u"$", u""},
        {u"```\n$‸", u"$", u""},
        {u"<div>\n$‸", u"$", u""},
        {u"<div>\n‸", u"$$", u""},
        {u"# $‸", u"$", u""},
        {u"$‸\n---", u"$", u""},   // a heading
        {u"$$\nx\n$‸", u"$", u""}, // closes an open block
        {u"$$\nx\n‸", u"$$", u""},
        {u"‸", u"$$\nx\n$$", u""},
    };
    expectEach(IndentStyle::Spaces, cases);
    expectEach(IndentStyle::Spaces, {{u"$‸", u"$", u""}, {u"\\$$‸", u"\n", u""}}, RuleConfig::Commonmark);
}

TEST(MathBlockCorrection, LineBreakReleasesTheFence) {
    const std::vector<EditCase> anyRules = {
        {u"\\$$‸", u"\n", u"$$\n‸\n$$"},
        {u"a\n\\$$‸\nb", u"\n", u"a\n$$\n‸\n$$\nb"},
        {u"- \\$$‸\n- b", u"\n", u"- $$\n  ‸\n  $$\n- b"},
        {u"12) \\$$‸", u"\n", u"12) $$\n    ‸\n    $$"},
        {u"- a\n\n  \\$$‸", u"\n", u"- a\n\n  $$\n  ‸\n  $$"},
        {u"> \\$$‸", u"\n", u"> $$\n> ‸\n> $$"},
        {u"> - [x] \\$$‸", u"\n", u"> - [x] $$\n>   ‸\n>   $$"},
        {u"- > 1. \\$$‸", u"\n", u"- > 1. $$\n  >    ‸\n  >    $$"},
        {u"- [ ] - \\$$‸", u"\n", u"- [ ] - $$\n        ‸\n        $$"},
        {u"> a\n\\$$‸", u"\n", u"> a\n$$\n‸\n$$"},
    };
    expectEach(IndentStyle::Spaces, anyRules);
    expectEach(IndentStyle::Spaces, {
                                        {u"\\$$  ‸", u"\n", u"$$  \n‸\n$$"},
                                        {u"\\$‸$", u"\n", u"$\n‸$"}, // not behind it: an edit like any other
                                        {u"‸\\$$", u"\n", u""},
                                        {u"\\$$x‸", u"\n", u""},
                                        {u"# \\$$‸", u"\n", u""},
                                    });
    // The other half is there.
    expectEach(IndentStyle::Spaces,
               {
                   {u"\\$$‸\nx\n$$\nend", u"\n", u"$$\n‸\nx\n$$\nend"},
                   {u"- \\$$‸\n  x\n  $$\n- end", u"\n", u"- $$\n  ‸\n  x\n  $$\n- end"},
                   {u"- a\n\\$$‸\nx\n$$\nend", u"\n", u"- a\n$$\n‸\nx\n$$\nend"},
                   {u"> \\$$‸\n\n$$\nend", u"\n", u"> $$\n> ‸\n> $$\n\n$$\nend"}, // not in the quote
                   {u"\\$$‸\n$$\nx\n$$\nend", u"\n", u"$$\n‸\n$$\n$$\nx\n$$\nend"},
               });
}

TEST(MathBlockCorrection, TabsReachTheContent) {
    expectEach(IndentStyle::Tabs, {
                                      {u"- \\$$‸", u"\n", u"- $$\n\t‸\n\t$$"},
                                      {u"- a\n\t- \\$$‸", u"\n", u"- a\n\t- $$\n\t\t‸\n\t\t$$"},
                                      {u"- - \\$$‸", u"\n", u"- - $$\n\t‸\n\t$$"},
                                      {u"100. \\$$‸", u"\n", u"100. $$\n\t\t‸\n\t\t$$"},
                                      {u"> - \\$$‸", u"\n", u"> - $$\n> \t‸\n> \t$$"},
                                      {u"  \\$$‸", u"\n", u"  $$\n  ‸\n  $$"},
                                  });
    // A tab for each item: there a tab is what takes a line into an item.
    expectEach(IndentStyle::Tabs, {{u"- - \\$$‸", u"\n", u"- - $$\n\t\t‸\n\t\t$$"}}, RuleConfig::Simplified);
}

TEST(MathBlockCorrection, EscapeGoesWithItsReason) {
    expectEach(IndentStyle::Spaces, {
                                        {u"\\$$‸", u"x", u"$$x‸"},
                                        {u"\\$$‸", u"$", u"$$$‸"},
                                        {u"\\$$ ‸", u"😀", u"$$ 😀‸"},
                                        {u"- \\$⟦$⟧\n- b", u"", u"- $‸\n- b"},
                                        {u"\\⟦$$⟧", u"", u"‸"},
                                        {u"\\$$‸", u" ", u""},
                                        {u"⟦\\⟧$$", u"", u""},
                                        {u"‸\\$$", u"x", u""},
                                        {u"\\$‸", u"x", u""},
                                        {u"\\$$‸\nend", u"\nE=mc\n$$", u"$$\nE=mc\n$$‸\nend"},
                                        {u"> \\$$‸", u"\r\n> x", u"> $$\r\n> x‸"},
                                        {u"\\$$‸", u"\r\n", u""},
                                        {u"- \\$$⟦\n⟧- x", u"", u""}, // joins lines
                                        {u"\\$$⟦\r\n⟧x", u"", u""},
                                        {u"\\$$⟦\nx⟧y", u"", u"$$‸y"},
                                    });
}

TEST(MathBlockCorrection, TypedFenceReplacesTheClosingOne) {
    expectEach(IndentStyle::Spaces, {
                                        {u"$$\nx\n$‸\n$$\ny", u"$", u"$$\nx\n$$‸\ny"},
                                        {u"> $$\n> x\n> $‸\n> \n> $$", u"$", u"> $$\n> x\n> $$‸"},
                                        {u"- $$\r\n  $‸\r\n  $$\r\n", u"$", u"- $$\r\n  $$‸\r\n"},
                                        {u"$$\n$‸\nx\n$$", u"$", u""},
                                        {u"$$‸\n\n$$\ny", u"x", u"$$x‸\ny"},
                                        {u"$⟦$⟧\n$$", u"", u"$‸"},
                                        {u"$$‸\nx\n$$", u"x", u""},
                                        {u"$$\nx\n  $‸\n$$\nend", u"$", u"$$\nx\n  $$‸\nend"},
                                        {u"- $$\n     $‸\n  $$", u"$", u"- $$\n     $$‸"},
                                        {u"$$\nx\n    $‸\n$$", u"$", u""},
                                        {u"$$\nx\n$‸\n\n$$\ny\n$$\nend", u"$", u""}, // opens the next
                                        {u"$⟦$⟧\n\n$$\ny\n$$\nend", u"", u""},
                                        {u"‸$$\n\n$$\nend", u" ", u""},
                                        {u"‸$$\n$$\nend", u"x", u""},
                                        {u" ⟦ ⟧$$\n$$\nend", u"", u""},
                                        {u"⟦ $$⟧\n$$\nend", u"", u"‸\nend"},
                                    });
}

} // namespace
