#include "corvane/operation/OperationNormalizeIndentation.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::RuleConfig;
using Ondo::Test::expectEach;

const NormalizeIndentation withSpaces(IndentStyle::Spaces);
const NormalizeIndentation withTabs(IndentStyle::Tabs);

TEST(NormalizeIndentation, LeavesWhatIsInPlace) {
    expectEach(withSpaces, {
                               {u"⟦⟧", u""},
                               {u"⟦  a\n   b\n⟧", u""},
                               {u"⟦   # a\n  ***\n⟧", u""},
                               {u"⟦  | a |\n|---|\n⟧", u""},
                               {u"⟦- a\n  b\n  1. c\n     d\n\n  e⟧", u""},
                               {u"⟦> a\n>   b\n> > c⟧", u""},
                               {u"⟦-   a\n    b⟧", u""},
                               {u"⟦- [ ] a\n  b⟧", u""},
                               {u"⟦-\ta\n    b⟧", u""},
                           });
}

TEST(NormalizeIndentation, OfItems) {
    expectEach(withSpaces, {
                               {u"- item‸\ntext", u"- item‸\n  text"},
                               {u"10. item\n      text‸", u"10. item\n    text‸"},
                               {u"-   a\nb‸\n\n     c", u"-   a\n    b‸\n\n    c"},
                               {u" - ‸a\n  - b\n     - c", u"- ‸a\n- b\n  - c"},
                               {u"- a\n\t- b\n\t\tc‸", u"- a\n  - b\n    c‸"},
                               {u"- [ ] a\r\n   - [x] ‸b\r\n", u"- [ ] a\r\n  - [x] ‸b\r\n"},
                               {u"- a\n    # b\n   ***‸", u"- a\n  # b\n  ***‸"},
                               {u"  -\t😀\n    - ‸b", u"- 😀\n  - ‸b"},
                               // Blank lines hold nothing of the item.
                               {u"- a\n  \n  b‸", u"- a\n\n  b‸"},
                               {u"- a\n  ‸\n\nb", u"- a\n‸\n\nb"},
                               {u"- a‸\r \n- b", u""},
                               {u"- a\n   - \n‸", u"- a\n  - \n‸"},
                               // A list that stands further in holds off the text behind it.
                               {u"  - a‸\n\n  b", u""},
                               {u"  - a‸\n\nb", u"- a‸\n\nb"},
                               // Blanks that keep a text from being a block.
                               {u"- a\n      # b‸", u""},
                               {u"- a\n      b‸", u"- a\n  b‸"},
                           });
    // There the blanks are text.
    expectEach(withSpaces,
               {
                   {u"- a\n   b‸", u""},
                   {u"- a\n\tb‸", u"- a\n  b‸"},
                   // Only a paragraph is left as it stands.
                   {u"- a\n   - b\n\n    c‸", u""},
                   {u"- a\n   - b\n    # h‸", u"- a\n  - b\n  # h‸"},
                   {u"- a\n   - b\n    ---‸", u"- a\n  - b\n  ---‸"},
               },
               RuleConfig::Simplified);
    expectEach(withTabs, {{u"- a\n   - b\n    ---‸", u"- a\n\t- b\n\t---‸"}}, RuleConfig::Simplified);
    // A tab would make a closing fence of the code.
    expectEach(withTabs, {{u"- [ ] ```\n      ```‸", u""}}, RuleConfig::Simplified);
    // A line without the blanks of its item keeps the paragraph from being a definition.
    expectEach(withSpaces, {{u"  -  [a]:\n\t$$$‸", u"-  [a]:\n$$$‸"}}, RuleConfig::Commonmark);
}

TEST(NormalizeIndentation, OfTasks) {
    expectEach(withSpaces, {
                               {u"- [ ] a\n\n      b‸", u"- [ ] a\n\n  b‸"},
                               {u"- [ ] a\n\n      b\n      c‸", u"- [ ] a\n\n  b\n  c‸"},
                               {u"> - [x] a\n>\n>         b‸", u"> - [x] a\n> \n>   b‸"},
                               {u"- [ ] a\n\n   -    b\n\n      c‸", u"- [ ] a\n\n  -    b\n\n  c‸"},
                               // What would become a block there.
                               {u"- [ ] a\n\n      # b‸", u""},
                               {u"- [ ] a\n\n      [b]: c‸", u""},
                               {u"- [ ] a\n\n      |b|\n      |-|‸", u"- [ ] a\n\n      |b|\n  |-|‸"},
                               // Nor becomes a task what is none.
                               {u"  -\t[ ] a\n\tb‸", u"-  [ ] a\n   b‸"},
                           });
}

/// HTML keeps its blanks, but not so many that it would get into the nested item above.
TEST(NormalizeIndentation, OfHtmlBehindANestedItem) {
    for (const RuleConfig::RuleSet rules : Ondo::Test::allRuleSets)
        expectEach(withSpaces,
                   {
                       {u"  - a\n    - b\n    <div>‸", u"- a\n  - b\n  <div>‸"},
                       {u"  - a\n\n    - b\n\n    <img src=\"x\">‸", u"- a\n\n  - b\n\n  <img src=\"x\">‸"},
                       {u"- a\n  - b\n   <div>‸", u""},
                   },
                   rules);
    expectEach(withTabs, {{u" * -\n\t<v>‸", u"* -\n   <v>‸"}}, RuleConfig::Commonmark);
}

TEST(NormalizeIndentation, OfQuotes) {
    expectEach(withSpaces, {
                               {u">text‸", u"> text‸"},
                               {u">‸text", u""},
                               {u">a\n>‸b", u"> a\n>‸b"},
                               {u">a\n>⟦b⟧", u"> a\n> ⟦b⟧"},
                               {u"  >a\nb‸", u"> a\n> b‸"},
                               {u">>a\n  >  > b‸\n>c", u"> > a\n> > b‸\n> > c"},
                               {u"> a‸\n===", u""},
                               {u"- >a\n  >\n   > - b\n   >  c‸", u"- > a\n  > \n  > - b\n  >   c‸"},
                               {u">1. a\n>\n>   b‸", u"> 1. a\n> \n>   b‸"},
                               {u">\ta‸", u">   a‸"},
                               {u">  - a\n>\n >\tb‸", u"> - a\n> \n>  b‸"},
                               {u">[!note] a‸", u"> [!note] a‸"},
                           });
}

TEST(NormalizeIndentation, OfCode) {
    expectEach(withSpaces, {
                               {u"\ta‸\n      b", u"    a‸\n      b"},
                               {u"- a\n\n\t\tb‸", u"- a\n\n        b‸"},
                               {u"  - a\n\n        b‸", u"- a\n\n      b‸"},
                               {u"- a\n    ```\n    b‸\n      c\n   ```", u"- a\n  ```\n  b‸\n    c\n  ```"},
                               {u"- ```\n  a\n\n  b‸\n  ```", u"- ```\n  a\n  \n  b‸\n  ```"},
                               {u">```\n>  a‸\n>```", u"> ```\n>   a‸\n> ```"},
                               {u"- $$\n  a‸\n   $$", u"- $$\n  a‸\n  $$"},
                               // A fence gets the blank that its lines get, or each would have one more.
                               {u">‸```\n>x\n>```", u"> ‸```\n> x\n> ```"},
                               {u"> >‸$$\n> >x\n> >$$", u"> > ‸$$\n> > x\n> > $$"},
                               {u">‸```", u""},
                               {u">```\n>‸x\n>```", u"> ```\n>‸x\n> ```"},
                               // The fence keeps its place where it tells content from a fence.
                               {u"- a\n\n    ```\n      ```‸\n  ```", u""},
                           });
}

TEST(NormalizeIndentation, WithTabs) {
    expectEach(withTabs, {
                             {u"- a\n  b‸\n  - c\n    d", u"- a\n\tb‸\n\t- c\n\t\td"},
                             {u"    a‸\n      b", u"\ta‸\n\t  b"},
                             {u"-   a\n\n        b‸", u"-   a\n\n\t    b‸"},
                             {u"100. a\n     b‸", u""},
                             {u"> - a\n>   b‸", u"> - a\n> \tb‸"},
                             {u"> 1. a\n>    b‸", u""},
                         });
}

/// Some 100 ms; with a scan of the lists behind each one it would be half a minute.
TEST(NormalizeIndentation, OfManyListsInARow) {
    std::u16string note;
    for (int i = 0; i < 8000; ++i)
        note += u"  - a\n\n  1. b\n\n";
    const Ondo::Tree tree(note);
    EXPECT_EQ(withSpaces.run(tree, 0, tree.length(), 0, 0).size(), 16000u);
}

TEST(NormalizeIndentation, TakesWholeContainersThatTheRangeTouches) {
    const std::u16string note = u" - a\n - b\n\n---\n\n>c\n";
    const struct {
        std::int64_t offset;
        std::int64_t length;
        std::u16string expected;
    } cases[] = {
        {0, 0, u"- a\n- b\n\n---\n\n>c\n"},
        {7, 1, u"- a\n- b\n\n---\n\n>c\n"},
        {12, 1, note},
        {7, 9, u"- a\n- b\n\n---\n\n> c\n"},
    };
    for (const auto& c : cases) {
        const Ondo::Tree tree(note);
        const auto results = withSpaces.run(tree, c.offset, c.length, 0, 0);
        EXPECT_EQ(Ondo::Test::applied({note, {0, 0}}, results).text, c.expected) << c.offset;
    }
}

/// What lines belong to and say: HTML without the blanks between words, but with all of those in code.
std::string meaning(std::u16string_view note, RuleConfig::RuleSet rules) {
    const std::string html = Ondo::Test::html(note, rules);
    std::string kept;
    bool isCode = false;
    for (std::size_t i = 0; i < html.size(); ++i) {
        if (html.compare(i, 10, "<pre><code") == 0 || html.compare(i, 6, "<math>") == 0) isCode = true;
        if (html.compare(i, 6, "</pre>") == 0 || html.compare(i, 7, "</math>") == 0) isCode = false;
        const bool isBlank = html[i] == ' ' || html[i] == '\t' || html[i] == '\n';
        if (isCode || !isBlank) kept += html[i];
    }
    return kept;
}

TEST(NormalizeIndentation, KeepsTheMeaningOfRandomNotesAndIsDoneAtOnce) {
    for (std::uint64_t seed = 0; seed < 1500; ++seed) {
        Ondo::Test::RandomNote random(seed);
        const RuleConfig::RuleSet rules = Ondo::Test::allRuleSets[random.below(3)];
        const NormalizeIndentation& operation = random.below(2) == 0 ? withSpaces : withTabs;
        const std::u16string note = random.note(10);
        const auto normalized = [&](const std::u16string& text) {
            const Ondo::Tree tree(text, rules);
            const auto results = operation.run(tree, 0, tree.length(), 0, 0);
            return Ondo::Test::applied({text, {0, 0}}, results).text;
        };
        const std::u16string once = normalized(note);
        ASSERT_EQ(meaning(once, rules), meaning(note, rules)) << seed << ": " << Ondo::Test::visible(note);
        ASSERT_EQ(Ondo::Test::visible(normalized(once)), Ondo::Test::visible(once)) << seed;
    }
}

} // namespace
} // namespace CVN::Operation
