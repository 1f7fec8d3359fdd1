#include "corvane/correction/FencedCodeCorrection.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

using namespace Ondo;
using namespace Ondo::Test;
using CVN::Correction::FencedCodeCorrection;
using CVN::Operation::IndentStyle;

namespace {

struct EditCase {
    std::u16string_view before;
    std::u16string_view typed;
    std::u16string_view after; ///< empty for no opinion
};

void expectEach(const std::vector<EditCase>& cases, IndentStyle style = IndentStyle::Spaces,
                RuleConfig::RuleSet rules = RuleConfig::Extended) {
    for (const EditCase& each : cases)
        EXPECT_EQ(visible(afterCorrection(FencedCodeCorrection(style), each.before, each.typed, rules)),
                  visible(each.after))
            << "behind " << visible(each.before) << " and " << visible(each.typed);
}

/// Types a text unit by unit, with the correction between.
std::u16string typed(std::u16string_view drawing, std::u16string_view text) {
    Drawn note(drawing);
    for (const char16_t& unit : text) {
        const std::u16string_view key(&unit, 1);
        const std::u16string corrected =
            afterCorrection(FencedCodeCorrection(IndentStyle::Spaces), note.drawing(), key);
        if (corrected.empty()) {
            note.text.insert(static_cast<std::size_t>(note.selection.offset), key);
            ++note.selection.offset;
        } else {
            note = Drawn(corrected);
        }
    }
    return note.drawing();
}

TEST(FencedCodeCorrection, FencesGrowAndShrinkTogether) {
    expectEach({
        {u"```\nx\n```‸", u"`", u"````\nx\n````‸"},
        {u"```js‸\nx\n```", u"", u""},
        {u"```‸js\nx\n```\ny", u"``", u"`````‸js\nx\n`````\ny"},
        {u"`‸``\nx\n```", u"`", u"``‸``\nx\n````"},
        {u"> - ```\n>   x\n>   ``‸`", u"`", u"> - ````\n>   x\n>   ```‸`"},
        {u"- ```‸\r\n  x\r\n  ```\r\n", u"`", u"- ````‸\r\n  x\r\n  ````\r\n"},
        {u"```‸\nx", u"`", u""}, // open
        {u"```\nx\n```‸", u"`a", u""},
        {u"~~~\nx\n‸~~~", u"`", u""},
        {u"```\nx `‸\n```", u"`", u""},
        {u"````⟦`⟧\nx\n`````", u"", u"````‸\nx\n````"},
        {u"````\nx\n⟦`⟧```", u"", u"```\nx\n‸```"},
        {u"``⟦`⟧\nx\n```", u"", u""},
    });
}

TEST(FencedCodeCorrection, OpeningFenceGetsAClosingOne) {
    const std::vector<EditCase> anyRules = {
        {u"``‸", u"`", u"```‸\n```"},
        {u"‸``", u"`", u"`‸``\n```"},
        {u"‸", u"````", u"````‸\n````"},
        {u"a\n``‸\nb", u"`", u"a\n```‸\n```\nb"},
        {u"‸swift\nb", u"```", u"```‸swift\n```\nb"},
        {u"- ``‸\n- b", u"`", u"- ```‸\n  ```\n- b"},
        {u"- a\n  1. ``‸", u"`", u"- a\n  1. ```‸\n     ```"},
        {u"> ``‸\n> b", u"`", u"> ```‸\n> ```\n> b"},
        {u"> > - ``‸", u"`", u"> > - ```‸\n> >   ```"},
        {u"   ``‸", u"`", u"   ```‸\n   ```"},
        {u"> a\n``‸", u"`", u"> a\n```‸\n```"},
        {u"😀\n\n``‸\n\n```js\nשלום\n```\n", u"`", u"😀\n\n```‸\n```\n\n```js\nשלום\n```\n"},
    };
    for (const auto rules : {RuleConfig::Commonmark, RuleConfig::Extended, RuleConfig::Simplified})
        expectEach(anyRules, IndentStyle::Spaces, rules);
    expectEach({{u"- [ ] ``‸", u"`", u"- [ ] ```‸\n  ```"}, {u"a\n⟦x⟧", u"```", u"a\n```‸\n```"}});
    expectEach({{u"1. ``‸", u"`", u"1. ```‸\n\t```"}, {u"> - - ``‸", u"`", u"> - - ```‸\n> \t\t```"}},
               IndentStyle::Tabs);
}

TEST(FencedCodeCorrection, NoOpinion) {
    expectEach({
        {u"`‸", u"`", u""},
        {u"a ``‸", u"`", u""},
        {u"``‸ `x`", u"`", u""},    // a backtick in the rest makes it text
        {u"a\n    ``‸", u"`", u""}, // too far in
        {u"``‸", u"`a", u""},
        {u"```\na\n``‸", u"`", u""}, // closes an open block
        {u"```\na\n‸", u"```", u""},
        {u"~~~\n``‸\n~~~", u"`", u""},
        {u"````\n``‸\n````", u"`", u""},
        {u"<div>\n‸", u"```", u""},
        {u"$$\n``‸\n$$", u"`", u""},
        {u"# ``‸", u"`", u""},
        {u"``‸\ncode\n\n```\nend", u"`", u""}, // the fence below closes it
        {u"``⟦`\nx⟧", u"`", u""},
    });
    expectEach({{u"``‸\ncode\n\n```js\nend", u"`", u"```‸\n```\ncode\n\n```js\nend"}});
}

TEST(FencedCodeCorrection, NoFenceIsLeftOver) {
    expectEach({
        {u"```\na\n``‸\n```\nb", u"`", u"```\na\n```‸\nb"},
        {u"> ```\n> ``‸\n> \n> ```  \nb", u"`", u"> ```\n> ```‸  \nb"},
        {u"```\n``‸\na\n```", u"`", u""}, // text between
        {u"```x‸\n```\nb", u"`", u"```x`‸\nb"},
        {u"- ``⟦`⟧\n\n  ```\n- b", u"", u"- ``‸\n- b"},
        {u"⟦```js⟧\n\n```\nb", u"", u"‸\nb"},
        {u"```‸\n```", u"x", u""},
        {u"```‸\n```", u"\n", u""},
        {u"```‸\nx\n```", u"x`", u""},
    });
}

TEST(FencedCodeCorrection, EditsInFrontOfAFenceKeepTheOther) {
    expectEach({
        {u"‸```\n```\nend", u" ", u""},
        {u"‸```\n```\nend", u"-", u""},
        {u"> - ‸```\n>   ```\nend", u" ", u""},
        {u"   ‸```\n   ```\nend", u" ", u""}, // too far in now
        {u" ⟦ ⟧```\n```\nend", u"", u""},
        {u" ⟦ `⟧``\n  ````\n y", u"`", u""},
        {u" ⟦ `⟧``\n  ````\n y", u"", u" ‸``\n y"},
        {u"⟦  ```js⟧\n```\nb", u"", u"‸\nb"},
    });
}

TEST(FencedCodeCorrection, TypedFenceMayBeIndented) {
    expectEach({
        {u"```\nx\n  ``‸\n```\nend", u"`", u"```\nx\n  ```‸\nend"},
        {u"- ```\n  x\n     ``‸\n  ```\n- end", u"`", u"- ```\n  x\n     ```‸\n- end"},
        {u"> ```\n>  ``‸\n>\n> ```\nend", u"`", u"> ```\n>  ```‸\nend"},
        {u"```\nx\n    ``‸\n```\nend", u"`", u""},
        {u"```\nx\n\t``‸\n```\nend", u"`", u""},
    });
}

// What is below turned around when a fence went missing: putting it back mends all of it.
TEST(FencedCodeCorrection, AFenceIsPutBack) {
    expectEach({
        {u"``‸\nx\n```\n\ntext\n\n```\ny\n```\nend", u"`", u""},
        {u"``‸\nx\n```\n\ntext\n\n```js\ny\n```\nend", u"`", u""},
        {u"> ``‸\n> x\n> ```\n> ```js\n> y\n> ```\nend", u"`", u""},
        {u"- a\n``‸\nx\n```\nend", u"`", u""}, // no line of the item
        {u"- a\n  - b\n  ``‸\n  x\n  ```\nend", u"`", u""},
        {u"> > a\n> ``‸\n> x\n> ```\nend", u"`", u""},
        {u"``‸\nx\n````\nend", u"`", u""},
        {u"```\nx\n``‸\n\n```\ny\n```\nend", u"`", u""}, // takes nothing's place
        {u"``⟦`⟧\n\n```\ny\n```\nend", u"", u""},
    });
    // Blocks below that are as they should be stay so.
    expectEach({
        {u"``‸\n\n```\ny\n```\nend", u"`", u"```‸\n```\n\n```\ny\n```\nend"},
        {u"``‸\n\n```\ny\n```\n\n```js\nz\n```", u"`", u"```‸\n```\n\n```\ny\n```\n\n```js\nz\n```"},
        {u"``‸\n\n````\n```js\n```\n````", u"`", u"```‸\n```\n\n````\n```js\n```\n````"},
        {u"> ``‸\n\n```\ny", u"`", u"> ```‸\n> ```\n\n```\ny"}, // open, but not in the quote
        {u"- ``‸\n\n```\ny", u"`", u"- ```‸\n  ```\n\n```\ny"},
        {u"- a\n  ``‸\n\n```\ny", u"`", u"- a\n  ```‸\n  ```\n\n```\ny"},
        {u"```\nx\n``‸\n```\n\n```js\ny", u"`", u"```\nx\n```‸\n\n```js\ny"},
    });
}

TEST(FencedCodeCorrection, CodeWithFencesKeepsItsOwn) {
    expectEach({
        {u"```⟦`⟧\n```\nx\n```\n````\nend", u"", u""},
        {u"```‸\n```\nx\n```\n````\nend", u"`", u""},
        {u"````\n```\nx\n```\n```⟦`⟧\nend", u"", u""},
        {u"```‸md\n```js\nx\n```\n````\nend", u"`", u""},
        {u"```\n```‸\nx\n```\n````\nend", u"`", u"````\n````‸\nx\n```\n````\nend"}, // the closing one
        {u"````⟦`⟧\n```\nx\n```\n`````\nend", u"", u"````‸\n```\nx\n```\n````\nend"},
        {u"```⟦`⟧\na ```\n    ```\n````\nend", u"", u"```‸\na ```\n    ```\n```\nend"},
        {u"```‸\nx\n```\n````\ny\n````\n", u"`", u"````‸\nx\n````\n````\ny\n````\n"},
    });
}

TEST(FencedCodeCorrection, TypingLeavesOneClosedBlock) {
    EXPECT_EQ(visible(typed(u"‸\n\nend", u"```swift\nlet a\n```")), visible(u"```swift\nlet a\n```‸\n\nend"));
    EXPECT_EQ(visible(typed(u"‸", u"````md\n```\nx\n```\n````\n")), visible(u"````md\n```\nx\n```\n````\n‸"));
    EXPECT_EQ(visible(typed(u"‸", u"```a``` and ``b``")), visible(u"```a``` and ``b``‸"));
    EXPECT_EQ(visible(typed(u"‸", u"~~~\n```\n~~~")), visible(u"~~~\n```\n~~~‸"));
    EXPECT_EQ(visible(typed(u"> ‸", u"```\n> x\n> ```")), visible(u"> ```\n> x\n> ```‸"));
}

} // namespace
