#include <gtest/gtest.h>

#include "corvane/operation/OperationToggleBlockStyle.h"
#include "tests/support/Caret.h"

namespace CVN::Operation {
namespace {

using Ondo::RuleConfig;
using Ondo::Test::expectEach;

const ToggleBlockStyle code(BlockToggles::FencedCode);
const ToggleBlockStyle math(BlockToggles::MathBlock);

TEST(ToggleFences, GoAroundWholeLines) {
    expectEach(code, {
                         {u"‸", u"```\n‸\n```"},
                         {u"a‸b", u"```\na‸b\n```"},
                         {u"‸a\nb", u"```\n‸a\n```\nb"},
                         {u"a⟦a\nb⟧b\nc", u"```\na⟦a\nb⟧b\n```\nc"},
                         {u"⟦a\n⟧b", u"```\n⟦a\n⟧```\nb"},
                         {u"⟦a\r\n⟧b", u"```\n⟦a\n⟧```\r\nb"},
                         {u"a\n‸", u"a\n```\n‸\n```"},
                         {u"a\n‸\nb", u"a\n```\n‸\n```\nb"},
                         {u"    a\n⟦        b⟧", u"    a\n```\n⟦        b⟧\n```"},
                         {u"⟦אב\n🙂⟧", u"```\n⟦אב\n🙂⟧\n```"},
                     });
    expectEach(math, {{u"a‸", u"$$\na‸\n$$"}, {u"> a‸", u"> $$\n> a‸\n> $$"}});
}

TEST(ToggleFences, StandInContainers) {
    expectEach(code, {
                         {u"> a‸\n> b", u"> ```\n> a‸\n> ```\n> b"},
                         {u"⟦> a\n> b⟧", u"> ```\n> ⟦a\n> b⟧\n> ```"},
                         {u">a‸", u">```\n>a‸\n>```"},
                         {u"- a‸", u"- ```\n  a‸\n  ```"},
                         {u"- ‸", u"- ```\n  ‸\n  ```"},
                         {u"- [ ] a‸", u"- [ ] ```\n  a‸\n  ```"},
                         {u"10. a‸", u"10. ```\n    a‸\n    ```"},
                         {u"-   a‸", u"-   ```\n    a‸\n    ```"},
                         {u"- a\n  b‸\n  c", u"- a\n  ```\n  b‸\n  ```\n  c"},
                         {u"- a\n  - b‸", u"- a\n  - ```\n    b‸\n    ```"},
                         {u"- a\n\n‸\n  b", u"- a\n\n  ```\n  ‸\n  ```\n  b"},
                         {u"> - a‸", u"> - ```\n>   a‸\n>   ```"},
                         {u"- > a\n  > ‸b", u"- > a\n  > ```\n  > ‸b\n  > ```"},
                         {u"‸> a", u"> ```\n> ‸a\n> ```"},
                         // Tabs take the columns that they take.
                         {u"-\ta‸", u"-\t```\n    a‸\n    ```"},
                         {u"- a\n\t- b‸", u"- a\n\t- ```\n      b‸\n      ```"},
                         {u">- a‸", u">- ```\n>   a‸\n>   ```"},
                         {u">\t- a‸", u">\t- ```\n>     a‸\n>     ```"},
                         {u"-\t‸", u"-\t```\n    ‸\n    ```"},
                         {u"- a\n\tb‸", u"- a\n\t```\n  b‸\n  ```"},
                         // Code by its indentation keeps that.
                         {u">     a‸", u"> ```\n>     a‸\n> ```"},
                         {u"-     a‸", u"- ```\n      a‸\n  ```"},
                         // Several items, and lines that lack a prefix
                         {u"⟦- a\n- b⟧", u"```\n⟦- a\n- b⟧\n```"},
                         {u"⟦- a\n  - b⟧", u"- ```\n  ⟦a\n  - b⟧\n  ```"},
                         {u"⟦> - a\n> - b⟧", u"> ```\n> ⟦- a\n> - b⟧\n> ```"},
                         {u"⟦> a\nb⟧", u"```\n⟦> a\nb⟧\n```"},
                         {u"> a\nb‸", u"> a\n```\nb‸\n```"},
                         {u"> - a\n> b‸", u"> - a\n> ```\n> b‸\n> ```"},
                     });
    expectEach(code, {{u"-‸", u"- ```\n  ‸\n  ```"}}, RuleConfig::Commonmark);
    expectEach(code, {{u"10. a\n\tb‸", u"10. a\n\t```\n    b‸\n    ```"}}, RuleConfig::Simplified);
}

TEST(ToggleFences, AreNotClosedByWhatTheyHold) {
    expectEach(code, {
                         {u"⟦a\n```\nb\n```\n⟧c", u"````\n⟦a\n```\nb\n```\n⟧````\nc"},
                         {u"`````a`````‸", u"``````\n`````a`````‸\n``````"},
                         {u"⟦a\n~~~\nb\n~~~⟧\n", u"```\n⟦a\n~~~\nb\n~~~⟧\n```\n"},
                         {u"⟦$$\na\n$$⟧\n", u"```\n⟦$$\na\n$$⟧\n```\n"},
                     });
    expectEach(math, {
                         {u"⟦a\n\n$$\nb\n$$\n⟧", u""},
                         {u"⟦> a\n> $$ \n> b⟧\n", u""},
                         {u"⟦a\n\n> $$\n⟧", u"$$\n⟦a\n\n> $$\n⟧$$\n"},
                         {u"$$a$$‸", u"$$\n$$a$$‸\n$$"},
                     });
}

TEST(ToggleFences, AreTakenAway) {
    expectEach(code, {
                         {u"```js\na‸\nb\n```\nc", u"a‸\nb\nc"},
                         {u"‸```\na\n```\n", u"‸a\n"},
                         {u"```\na\n```‸", u"a\n‸"},
                         {u"```\na\n```\n‸", u"a\n‸"}, // where there is no node, the last one counts
                         {u"⟦```\na\n```\n⟧", u"⟦a\n⟧"},
                         {u"~~~\na‸\n~~~\n", u"a‸\n"},
                         {u"```\na‸", u"a‸"},
                         {u"```\na\n‸", u"a\n‸"},
                         {u"```\n‸\n```\nb", u"‸\nb"},
                         {u"```‸\n```\nb", u"‸\nb"},
                         {u"```‸", u"‸"},
                         {u"> ```\n> a‸\n>   b\n> ```\n> c", u"> a‸\n>   b\n> c"},
                         {u"- ```\n  a‸\n    b\n  ```\n- c", u"- a‸\n    b\n- c"},
                         {u"- a\n  > ```\n  > b‸\n  > ```", u"- a\n  > b‸\n"},
                         {u"```\r\na‸\r\n```\r\nb", u"a‸\r\nb"},
                     });
    expectEach(math, {
                         {u"$$\nx‸\n$$\n", u"x‸\n"},
                         {u"> $$\n> ‸\n> $$\n", u"> ‸\n"},
                     });
}

TEST(ToggleFences, StayOutOfOtherBlocks) {
    expectEach(code, {
                         {u"| a‸ |\n|---|\n", u""},
                         {u"<div>\na‸\n</div>", u""},
                         {u"<div>\n‸", u""},
                         {u"<!-- a -->\n‸", u"<!-- a -->\n```\n‸\n```"},
                         {u"---\na: b‸\n---\n", u""},
                         {u"$$\na‸\n$$\n", u""},
                         {u"$$\na\n‸", u""},
                         // An empty line below a block is not in it.
                         {u"| a |\n|---|\n‸", u"| a |\n|---|\n```\n‸\n```"},
                     });
    // Blocks that the lines would cut in two
    expectEach(code, {
                         {u"$$‸\na\n$$\n", u""},
                         {u"⟦a\n```\nb⟧\n```\n", u""},
                         {u"```\na\n⟦b\n```\nc⟧\n", u""},
                     });
    expectEach(math, {{u"```\na‸\n```\n", u""}});
}

} // namespace
} // namespace CVN::Operation
