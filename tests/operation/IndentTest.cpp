#include <gtest/gtest.h>

#include <string>

#include "corvane/operation/OperationIndent.h"
#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::RuleConfig;
using Ondo::Test::afterOperation;
using Ondo::Test::expectEach;
using Ondo::Test::visible;

const Indent indent(IndentAction::Indent, IndentStyle::Spaces);
const Indent outdent(IndentAction::Undent, IndentStyle::Spaces);

TEST(Indent, PutsAnItemUnderTheOneBefore) {
    expectEach(indent, {
                           // To the text of the item before, whatever its marker.
                           {u"- a\n- b‸\n- c", u"- a\n  - b‸\n- c"},
                           {u"- a\n‸- b", u"- a\n  ‸- b"},
                           {u"1. a\n2. b‸", u"1. a\n   1. b‸"},
                           {u"9) a\n10) b‸", u"9) a\n   1) b‸"},
                           {u"10. a\n11. b‸", u"10. a\n    1. b‸"},
                           {u"- [ ] a\n- [x] b‸", u"- [ ] a\n  - [x] b‸"},
                           {u"-   a\n-   b‸", u"-   a\n    -   b‸"},
                           {u"-\ta\n- b‸", u"-\ta\n    - b‸"},
                           {u"-     code\n- b‸", u"-     code\n  - b‸"},
                           {u"- \n- b‸", u"- \n  - b‸"},
                           {u" - a\n  - b‸", u" - a\n   - b‸"},
                           {u"- - a\n  - b‸", u"- - a\n    - b‸"},
                           {u"- a\r\n- b‸\r\n", u"- a\r\n  - b‸\r\n"},
                           {u"- a\n\n- b‸", u"- a\n\n  - b‸"},
                           {u"- 😀\n- א‸", u"- 😀\n  - א‸"},
                           // Behind what is nested in that one already.
                           {u"- a\n  - b\n- c‸", u"- a\n  - b\n  - c‸"},
                           {u"1. a\n   - b\n     - c\n2. d‸", u"1. a\n   - b\n     - c\n   1. d‸"},
                           // At the end of a list right above
                           {u"- a\n1. b‸", u"- a\n  1. b‸"},
                           {u"- a\n\n* b‸", u"- a\n\n  * b‸"},
                           // There is none before.
                           {u"- a‸\n- b", u""},
                           {u"- a\n  - b‸", u""},
                           {u"p\n\n- b‸", u""},
                           {u"- a\n\np\n\n- b‸", u""},
                           {u"- \n\n- b‸", u""},
                           {u"> - a‸", u""},
                           {u"a‸", u""},
                           {u"‸", u""},
                       });
}

TEST(Indent, PutsNoItemIntoABlockThatNothingCloses) {
    expectEach(indent, {
                           {u"- ```\n  x\n- b‸", u""},
                           {u"- a\n\n  ```\n  x\n\n- b‸", u""},
                           {u"- $$\n  x\n- b‸", u""},
                           {u"- <div>\n- b‸", u""},
                           {u"- <!-- x\n\n- b‸", u""},
                           {u"- ```\n  x\n  ```\n- b‸", u"- ```\n  x\n  ```\n  - b‸"},
                           {u"- $$\n  x\n  $$\n- b‸", u"- $$\n  x\n  $$\n  - b‸"},
                           {u"- <div>\n\n- b‸", u"- <div>\n\n  - b‸"},
                           {u"- <!-- x\n  -->\n- b‸", u"- <!-- x\n  -->\n  - b‸"},
                           {u"- <PRE>x</pre>\n- b‸", u"- <PRE>x</pre>\n  - b‸"},
                           // Beside it, or where its container ends, it stays out.
                           {u"- a\n⟦- ```\n- b⟧", u"- a\n  ⟦- ```\n  - b⟧"},
                           {u"- a\n  - ```\n- b‸", u"- a\n  - ```\n  - b‸"},
                           {u"- > ```\n- b‸", u"- > ```\n  - b‸"},
                       });
}

TEST(Indent, MovesAnItemWithAllBelow) {
    const std::vector<Ondo::Test::CommandCase> cases = {
        {u"- a\n- b‸\n  - c\n    - d\n- e", u"- a\n  - b‸\n    - c\n      - d\n- e"},
        {u"- a\n- b‸\n\n  p\n\n      code\n\n  - c", u"- a\n  - b‸\n\n    p\n\n        code\n\n    - c"},
        {u"- a\n- b‸\n  ```\n    x\n\n  y\n  ```\n", u"- a\n  - b‸\n    ```\n      x\n\n    y\n    ```\n"},
        {u"- a\n- b‸\n  > - c\n  >   d", u"- a\n  - b‸\n    > - c\n    >   d"},
        {u"- a\n- > b‸\n  > c", u"- a\n  - > b‸\n    > c"},
        {u"- a\n- b‸\nlazy", u"- a\n  - b‸\n  lazy"},
        {u"- a\n- b‸\n\tc", u"- a\n  - b‸\n      c"},
        {u"- a\n- <p>‸\n  <b>\n", u"- a\n  - <p>‸\n    <b>\n"},
        {u"> - a\n> - b‸\n>   c", u"> - a\n>   - b‸\n>     c"},
        {u">- a\n>- b‸\n>  c", u">- a\n>   - b‸\n>    c"},
        {u">\t- a\n>\t- b‸", u">\t- a\n>     - b‸"},
        {u"> - a\n> - b‸\nlazy", u"> - a\n>   - b‸\nlazy"},
        {u"- x\n  > - a\n  > - b‸", u"- x\n  > - a\n  >   - b‸"},
        // A shorter marker takes along what belongs to its text.
        {u"9. a\n10. b‸\n    - c", u"9. a\n   1. b‸\n      - c"},
        // Several items: none twice, and those side by side stay there.
        {u"- a\n⟦- b\n  - c\n- d⟧", u"- a\n  ⟦- b\n    - c\n  - d⟧"},
        {u"- a\n- b\n  - ⟦c\n- d⟧", u"- a\n- b\n  - ⟦c\n  - d⟧"},
        {u"⟦- a\n- b\n  - c\n- d⟧", u"⟦- a\n  - b\n    - c\n  - d⟧"},
        {u"100. a\n⟦1. b\n2. c⟧", u"100. a\n     ⟦1. b\n     1. c⟧"},
        {u"9. a\n10. ⟦b\n11. c⟧", u"9. a\n   1. ⟦b\n   1. c⟧"},
        {u"- a\n⟦- b\n\np\n\n- c\n- d⟧", u"- a\n  ⟦- b\n\np\n\n- c\n  - d⟧"},
        // Lines that aren't the first of an item
        {u"- a\n- b\n  c‸", u""},
        {u"- a\n- b\n  ⟦c\n  d⟧", u""},
        {u"- a\n- b\n\n  ```\n  x‸", u""},
    };
    expectEach(indent, cases);
}

TEST(Outdent, PutsAnItemBesideTheOneAround) {
    expectEach(outdent,
               {
                   {u"- a\n  - b‸", u"- a\n- b‸"},
                   {u"- a\n    - b‸", u"- a\n- b‸"},
                   {u"- a\n  1. b‸", u"- a\n1. b‸"},
                   {u"- a\n  - b\n    - c‸", u"- a\n  - b\n  - c‸"},
                   {u" - a\n   - b‸", u" - a\n - b‸"},
                   {u"  - a‸", u"- a‸"},
                   {u"1. a\n   - b\n     c‸", u"1. a\n   - b\n\n   c‸"},
                   {u"- a\n\t- b‸\n\t\t- c", u"- a\n- b‸\n    - c"},
                   {u"- a\r\n  - b‸\r\n", u"- a\r\n- b‸\r\n"},
                   {u"> - a\n>   - b‸", u"> - a\n> - b‸"},
                   {u"- x\n  > - a\n  >   - b‸", u"- x\n  > - a\n  > - b‸"},
                   {u"- - a\n  - b‸", u"- - a\n- b‸"},
                   // With all below, which stays as far from it
                   {u"- a\n  - b‸\n    - c\n\n      p\n\n          code",
                    u"- a\n- b‸\n  - c\n\n    p\n\n        code"},
                   {u"- a\n  - b‸\n    ```\n      x\n\n    ```", u"- a\n- b‸\n  ```\n    x\n\n  ```"},
                   {u"- a\n  - b‸\nlazy", u"- a\n- b‸\nlazy"},
                   // Those below at its level belong to it now, and count from 1.
                   {u"- a\n  - b‸\n  - c", u"- a\n- b‸\n  - c"},
                   {u"1. a\n   1. b‸\n   2. c\n   3. d", u"1. a\n1. b‸\n   1. c\n   3. d"},
                   {u"1. a\n   1) ⟦b\n   2) c⟧\n   3) d", u"1. a\n1) ⟦b\n2) c⟧\n   1) d"},
                   // and move as far as it takes to stay below.
                   {u"- a\n  1. b‸\n  2. c\n\n  p", u"- a\n1. b‸\n   1. c\n\n   p"},
                   {u"1. a\n   - b‸\n     - c\n   - d", u"1. a\n- b‸\n  - c\n  - d"},
                   {u"  - a‸\n  - b", u"- a‸\n- b"},
                   // Several items
                   {u"- a\n  ⟦- b\n    - c\n  - d⟧", u"- a\n⟦- b\n  - c\n- d⟧"},
                   {u"⟦- a\n  - b\n    - c⟧", u"⟦- a\n- b\n  - c⟧"},
                   // A further line stays with an item of the selection that can't move.
                   {u"⟦- a\n  b\n- c⟧", u""},
                   {u"⟦- a\n  b\n  - c⟧", u"⟦- a\n  b\n- c⟧"},
                   {u"⟦- a\n  - b\n\n  c⟧", u"⟦- a\n- b\n\n  c⟧"},
                   {u"- a\n⟦  b\n- c⟧", u"- a\n\n⟦b\n- c⟧"},
                   // Nowhere to go
                   {u"- a‸", u""},
                   {u"- a\nlazy‸", u""},
                   {u"> - a‸", u""},
                   {u"  a‸", u""},
                   {u"‸", u""},
               });
}

TEST(Outdent, TakesFurtherLinesOutOfTheirItem) {
    const std::vector<Ondo::Test::CommandCase> cases = {
        {u"- a\n  b‸", u"- a\n\nb‸"},
        {u"- a\n‸  b", u"- a\n\n‸b"},
        {u"- a\n  b‸\n  c\n  - d\n- e", u"- a\n\nb‸\nc\n- d\n- e"},
        {u"- a\n\n  b‸", u"- a\n\nb‸"},
        {u"- a\n\n  b‸\n\n  c", u"- a\n\nb‸\n\nc"},
        {u"- a\n  - b\n  lazy‸", u"- a\n  - b\n\nlazy‸"},
        {u"> - a\n>   b‸", u"> - a\n>\n> b‸"},
        // A block of several lines goes as a whole, or not at all.
        {u"- a\n  ```\n  x‸\n  ```", u"- a\n```\nx‸\n```"},
        {u"- ```\n  x‸\n  ```", u""},
        {u"- a\n  # b‸", u"- a\n# b‸"},
        {u"- a\n\n  Title\n  ===‸", u"- a\n\nTitle\n===‸"},
        {u"- a\n  ---‸", u""},
        // Code keeps its indentation.
        {u"- a\n\n      code\n      more‸", u"- a\n\n    code\n    more‸"},
        {u"- a\n  - b\n\n        code‸\n          x\n\n    p",
         u"- a\n  - b\n\n      code‸\n        x\n\n  p"},
        {u"- a\n\n      code\n\n  p‸", u"- a\n\n      code\n\np‸"},
        {u"-     code\n      more‸", u""},
        // A line feed behind a lone carriage return would only complete its line ending.
        {u"- a\r  b‸", u"- a\r\n\nb‸"},
        {u"> - a\r>   b‸", u"> - a\r>\n> b‸"},
    };
    expectEach(outdent, cases);
    expectEach(outdent, {{u"- a\n  b‸", u"- a\nb‸"}}, RuleConfig::Simplified);
}

TEST(Indent, TakesABlankLineThroughTheColumnsAbove) {
    expectEach(indent, {
                           {u"- a\n‸", u"- a\n  ‸"},
                           {u"- a\n\n‸", u"- a\n\n  ‸"},
                           {u"- a\n‸\nb", u"- a\n  ‸\nb"},
                           {u"- a\n  - b\n‸", u"- a\n  - b\n  ‸"},
                           {u"- a\n  - b\n  ‸", u"- a\n  - b\n    ‸"},
                           {u"- a\n  - b\n    ‸", u""},
                           {u"- a\n  b\n‸", u"- a\n  b\n  ‸"},
                           {u"- a\nlazy\n‸", u"- a\nlazy\n  ‸"},
                           {u"10. a\n‸\n11. b", u"10. a\n    ‸\n11. b"},
                           {u"- \n‸", u"- \n  ‸"},
                           {u"- \n\n‸", u""},
                           {u"p\n‸", u""},
                           {u"p\n‸\n- a", u""},
                           {u"> - a\n> ‸\n", u"> - a\n>   ‸\n"},
                           // The last empty line stands behind the whole quote.
                           {u"> - a\n> - b\n‸", u""},
                           {u"> - a\n>\n‸", u""},
                           {u"- x\n  > - a\n  > - b\n‸", u"- x\n  > - a\n  > - b\n  ‸"},
                       });
    expectEach(outdent, {
                            {u"- a\n  - b\n    ‸", u"- a\n  - b\n  ‸"},
                            {u"- a\n  - b\n  ‸", u"- a\n  - b\n\n‸"},
                            {u"- a\n      ‸\n  b", u"- a\n  ‸\n  b"},
                            {u"- a\n  ‸\n  b", u"- a\n‸\n  b"},
                            {u"- a\n  ‸\nb", u"- a\n\n‸\nb"},
                            {u"- a\n\n  ‸\nb", u"- a\n\n‸\nb"},
                            {u"- a\n‸", u"- a\n\n‸"},
                            {u"- a\n\n‸", u""},
                            {u"- a\n‸\nb", u"- a\n\n‸\nb"},
                            {u"> - a\n>   ‸\n", u"> - a\n> ‸\n"},
                            {u"> - a\n> - b\n‸", u""},
                            {u"p\n‸", u""},
                            {u"- a\n⟦  ⟧\nb", u"- a\n‸\nb"},
                            {u"- a\r‸", u"- a\r\n\n‸"},
                            {u"- a\r‸\rb", u"- a\r\n\n‸\rb"},
                        });
    expectEach(outdent, {{u"- a\n  ‸", u"- a\n‸"}, {u"- a\n‸", u""}}, RuleConfig::Simplified);
}

TEST(Indent, WithTabs) {
    const Indent in(IndentAction::Indent, IndentStyle::Tabs);
    const Indent out(IndentAction::Undent, IndentStyle::Tabs);
    for (const RuleConfig::RuleSet rules : Ondo::Test::allRuleSets) {
        expectEach(in,
                   {
                       {u"- a\n- b‸\n\t- c\n\t\td", u"- a\n\t- b‸\n\t\t- c\n\t\t\td"},
                       {u"- a\n\t- b\n\t- c‸", u"- a\n\t- b\n\t\t- c‸"},
                       {u"1. a\n2. b‸", u"1. a\n\t1. b‸"},
                       {u"- a\n‸", u"- a\n\t‸"},
                   },
                   rules);
        expectEach(out,
                   {
                       {u"- a\n\t- b‸\n\t\t- c\n\t\t\td", u"- a\n- b‸\n\t- c\n\t\td"},
                       {u"- a\n\t- b\n\t\t- c‸", u"- a\n\t- b\n\t- c‸"},
                   },
                   rules);
    }
}

TEST(Indent, MeasuresOnlyWhatStaysInTheItemAbove) {
    const Indent tabs(IndentAction::Indent, IndentStyle::Tabs);
    expectEach(tabs, {
                         {u"* a\n  9. ⟦b\n     9. c\n     10. d\n  10. e⟧",
                          u"* a\n  9. ⟦b\n     9. c\n\t\t1. d\n\t 1. e⟧"},
                         {u"* a\n  9. b\n     9. c\n     10. d\n  10. e‸",
                          u"* a\n  9. b\n     9. c\n     10. d\n\t\t1. e‸"},
                     });
}

TEST(Indent, TakesEachTabForAnItemWhereItIsOne) {
    const std::vector<Ondo::Test::CommandCase> in = {
        {u"- a\n- b‸\n  x\n\t- d", u"- a\n  - b‸\n    x\n\t\t- d"},
        {u"- a\n⟦- b\n- c⟧\n\td", u"- a\n  ⟦- b\n  - c⟧\n\t\td"},
        {u"- a\n- b‸\n  \tx\n\t  - c\n\t\ty", u"- a\n\t- b‸\n\t  \tx\n\t\t  - c\n\t\t\ty"},
        {u"- a\n\t- b\n  - c‸\n    d", u"- a\n\t- b\n\t\t- c‸\n\t\t  d"},
        {u"9. a\n10. b‸\n    - c\n\t- d", u"9. a\n   1. b‸\n      - c\n\t\t- d"},
    };
    expectEach(indent, in, RuleConfig::Simplified);
    const std::vector<Ondo::Test::CommandCase> out = {
        {u"- a\n\t- b‸\n    - c", u"- a\n- b‸\n  - c"},
        {u"+ a\n\t9. b‸\n     c\n\t\td", u"+ a\n9. b‸\n   c\n\td"},
        {u"- a\n\t- b\n\t  - c‸\n\t\t\td\n\t    e", u"- a\n\t- b\n\t- c‸\n\t\td\n\t  e"},
        {u"- a\n\t- b‸\n\t- c\n\t\td", u"- a\n- b‸\n\t- c\n\t\td"},
    };
    expectEach(outdent, out, RuleConfig::Simplified);
}

TEST(Indent, MixesTabsAndSpacesOnlyWhereColumnsCount) {
    const Indent tabs(IndentAction::Indent, IndentStyle::Tabs);
    const std::u16string_view spaced = u"- a\n- b‸\n  c";
    const std::u16string_view tabbed = u"- a\n- b‸\n\t- c";
    expectEach(tabs, {{spaced, u"- a\n\t- b‸\n\t  c"}, {u"- a\n  - b\n  - c‸", u"- a\n  - b\n\t- c‸"}});
    expectEach(indent, {{tabbed, u"- a\n  - b‸\n      - c"}});
    expectEach(tabs, {{spaced, u"- a\n  - b‸\n    c"}}, RuleConfig::Simplified);
    expectEach(indent, {{tabbed, u"- a\n\t- b‸\n\t\t- c"}}, RuleConfig::Simplified);
}

} // namespace
} // namespace CVN::Operation
