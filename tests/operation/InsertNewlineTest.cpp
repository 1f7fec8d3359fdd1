#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "corvane/operation/OperationInsertNewline.h"
#include "corvane/scan/Util.h"
#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::Node;
using Ondo::RuleConfig;
using Ondo::Tree;
using Ondo::Test::CommandCase;
using Ondo::Test::expectEach;

constexpr auto NewItem = InsertNewlineListItemOption::NewItem;
constexpr auto SecondaryRow = InsertNewlineListItemOption::SecondaryRow;

const InsertNewline returnKey(NewItem, IndentStyle::Spaces);

TEST(InsertNewline, ContinuesTheInnermostItem) {
    const std::vector<CommandCase> cases{
        {u"- a‸", u"- a\n- ‸"},
        {u"- a‸b\n- c", u"- a\n- ‸b\n- c"},
        {u"- ‸a", u"- \n- ‸a"},
        {u"7. a‸", u"7. a\n7. ‸"},
        {u"9) a‸\n10) b", u"9) a\n9) ‸\n10) b"},
        {u"-\ta‸", u"-\ta\n- ‸"},
        {u"-   - a‸", u"-   - a\n    - ‸"},
        {u"1. - a‸", u"1. - a\n   - ‸"},
        {u"- a\n  1. b😀‸\n  2. c", u"- a\n  1. b😀\n  1. ‸\n  2. c"},
        {u"- אב‸ג", u"- אב\n- ‸ג"},
        {u"1. a\n   - b\n\n   c‸", u"1. a\n   - b\n\n   c\n1. ‸"},
        {u"- a\r\n- b‸\r\n", u"- a\r\n- b\n- ‸\r\n"},
        {u"- # h‸", u"- # h\n- ‸"},
        // a task starts unchecked, whatever it continues
        {u"- [x] done‸", u"- [x] done\n- [ ] ‸"},
        {u"- [x] a\n  - [X] b‸", u"- [x] a\n  - [X] b\n  - [ ] ‸"},
        // a selection gives way
        {u"- a⟦b\n- c⟧d", u"- a\n- ‸d"},
        {u"- a\n- ⟦b⟧", u"- a\n- \n- ‸"},
        {u"- a\n  ⟦b⟧c", u"- a\n  \n- ‸c"},
        {u"- ⟦\n- b⟧", u"- \n- ‸"},
        // in front of the marker it is a plain line feed
        {u"‸- a", u""},
        {u"-‸ a", u""},
        {u"- a\n  ‸- b", u""},
    };
    expectEach(returnKey, cases);
    expectEach(returnKey, cases, RuleConfig::Simplified);
    expectEach(returnKey, {{u"- [x] a‸", u"- [x] a\n- ‸"}, {u"-\n  b‸", u"-\n  b\n- ‸"}},
               RuleConfig::Commonmark);
}

TEST(InsertNewline, ContinuesQuotes) {
    const std::vector<CommandCase> cases{
        {u"> te‸xt", u"> te\n> ‸xt"},
        {u">a‸", u">a\n>‸"},
        {u"> > a‸", u"> > a\n> > ‸"},
        {u"> - a‸", u"> - a\n> - ‸"},
        {u"> - [x] a\n>   - [ ] b‸", u"> - [x] a\n>   - [ ] b\n>   - [ ] ‸"},
        {u"- > a‸", u"- > a\n  > ‸"},
        {u"- [x] > a‸", u"- [x] > a\n  > ‸"},
        {u"1. > a\n   > ‸b", u"1. > a\n   > \n   > ‸b"},
        {u"> [!note] x‸", u"> [!note] x\n> ‸"},
        {u"> # h‸", u"> # h\n> ‸"},
        {u"‸> a", u""},
        {u"> ‸> a", u""},
    };
    expectEach(returnKey, cases);
    expectEach(returnKey, cases, RuleConfig::Simplified);
    // A line without markers is one of the quote only where lazy lines are.
    expectEach(returnKey, {{u"> > a\nb‸", u"> > a\nb\n> > ‸"}});
    expectEach(returnKey, {{u"> > a\nb‸", u""}}, RuleConfig::Simplified);
}

TEST(InsertNewline, MakesAnItemOfAFurtherLineAtItsStart) {
    expectEach(returnKey, {
                              {u"- a\n  b‸", u"- a\n  b\n- ‸"},
                              {u"- a\n  ‸b", u"- a\n- ‸b"},
                              {u"- [x] a\n  ‸**b**", u"- [x] a\n- [ ] ‸**b**"},
                              {u"- a\n\n  ‸b\n\n  c", u"- a\n\n- ‸b\n\n  c"},
                              {u"> 1. a\n>    ‸b", u"> 1. a\n> 1. ‸b"},
                              {u"- a\n‸b", u"- a\n- ‸b"},
                          });
    expectEach(returnKey, {{u"- a\n  ‸b", u"- a\n- ‸b"}, {u"- a\n‸b", u""}}, RuleConfig::Simplified);
}

TEST(InsertNewline, EndsWhatIsEmpty) {
    const std::vector<CommandCase> oneLevel{
        {u"- ‸", u"‸"},
        {u"- [ ] ‸\n- b", u"‸\n- b"},
        {u"> ‸", u"‸"},
        {u"- a\n  - ‸", u"- a\n- ‸"},
        {u"- [x] a\n  - ‸", u"- [x] a\n- [ ] ‸"},
        {u"- a\n  - b\n    - ‸\n- c", u"- a\n  - b\n  - ‸\n- c"},
        {u"2. a\n   - b\n   - ‸\n3. c", u"2. a\n   - b\n2. ‸\n3. c"},
        {u"-   a\n    - ‸", u"-   a\n-   ‸"},
        {u"- - a\n  - ‸", u"- - a\n- ‸"},
        {u"- - a\n    - ‸", u"- - a\n  - ‸"},
        {u"- - ‸", u"- ‸"},
        {u"> - ‸", u"> ‸"},
        {u"> - a\n> - ‸\n> - b", u"> - a\n> ‸\n> - b"},
        {u"> - a\n>   - ‸", u"> - a\n> - ‸"},
        {u"> > a\n> > ‸", u"> > a\n> ‸"},
        {u"- > a\n  > ‸", u"- > a\n- ‸"},
        {u"- > - a\n  > - ‸", u"- > - a\n  > ‸"},
        {u"- > - ‸", u"- > ‸"},
        {u"> > - a\n> > ‸\n> > - b", u"> > - a\n> ‸\n> > - b"}, // a line of the inner quote already
        {u"- > - a\n  > ‸\n  > - b", u"- > - a\n- ‸\n  > - b"},
    };
    expectEach(returnKey, oneLevel);
    expectEach(returnKey, oneLevel, RuleConfig::Simplified);
}

TEST(InsertNewline, SetsApartWhatComesBehindTheLastLevel) {
    const std::vector<CommandCase> cases{
        {u"- a\n- ‸", u"- a\n\n‸"},
        {u"1. a\r\n2. ‸\r\n3. b", u"1. a\r\n\n‸\r\n3. b"},
        {u"> a\n> ‸", u"> a\n\n‸"},
        {u"> a\n> ‸\n> b", u"> a\n\n‸\n> b"},
        {u"> - a\n> ‸\n>   b", u"> - a\n\n‸\n>   b"},
        {u"> [!note]\n> ‸", u"> [!note]\n\n‸"},
    };
    expectEach(returnKey, cases);
    for (const CommandCase& each : cases) { // no lazy lines, and so nothing to keep apart
        std::u16string after(each.after);
        after.erase(after.find(u"\n‸"), 1);
        expectEach(returnKey, {{each.before, after}}, RuleConfig::Simplified);
    }
}

TEST(InsertNewline, GoesOutALevelOnAnEmptyLineOfAnItem) {
    expectEach(returnKey, {
                              {u"- a\n  - b\n\n    ‸\n\n    c", u"- a\n  - b\n\n  ‸\n\n    c"},
                              {u"- a\n  - b\n\n  ‸\n\n    c", u"- a\n  - b\n\n‸\n\n    c"},
                              {u"- a\n‸", u""},
                              {u"- a\n\n‸", u""},
                          });
}

TEST(InsertNewline, KeepsCodeAndMathInTheirContainer) {
    const std::vector<CommandCase> cases{
        {u"- ```‸\n  a\n  ```", u"- ```\n  ‸\n  a\n  ```"},
        {u"- ```\n  a‸\n  ```", u"- ```\n  a\n  ‸\n  ```"},
        {u"- ```\n  ‸a\n  ```", u"- ```\n  \n  ‸a\n  ```"},
        {u"- ```\n\t‸a\n\t```", u"- ```\n\t\n\t‸a\n\t```"},
        {u"- ```\n  a\n  ```‸", u"- ```\n  a\n  ```\n  ‸"},
        {u"- [ ] ~~~\n  a‸", u"- [ ] ~~~\n  a\n  ‸"},
        {u"- a\n  1. ```\n     x‸", u"- a\n  1. ```\n     x\n     ‸"},
        {u"> ```\n> ‸a\n> ```", u"> ```\n> \n> ‸a\n> ```"},
        {u"> - ```\n>   ‸a\n>   ```", u"> - ```\n>   \n>   ‸a\n>   ```"},
        {u"> - ```\n>   a‸\n>   ```", u"> - ```\n>   a\n>   ‸\n>   ```"},
        {u"- $$\n  x‸\n  $$", u"- $$\n  x\n  ‸\n  $$"},
        {u"- ```\n  ⟦a⟧b\n  ```", u"- ```\n  \n  ‸b\n  ```"},
        {u"- ```\n‸\n  ```", u""},
        {u"-\t```‸\n\t```", u"-\t```\n \t‸\n\t```"},
        {u"- [ ] - ```‸", u"- [ ] - ```\n        ‸"}, // the box counts for an item behind it
        // a held back fence opens, and closes by itself
        {u"- a\n- \\$$‸", u"- a\n- $$\n  ‸\n  $$"},
        {u"> - \\$$‸\n> - b", u"> - $$\n>   ‸\n>   $$\n> - b"},
    };
    expectEach(returnKey, cases);
    expectEach(returnKey, cases, RuleConfig::Simplified);
}

TEST(InsertNewline, PushesAHeadingDownFromTheStartOfItsText) {
    expectEach(returnKey, {
                              {u"# ‸Title", u"\n# ‸Title"},
                              {u"a\n## ‸**Ti**tle\nb", u"a\n\n## ‸**Ti**tle\nb"},
                              {u"# ⟦Ti⟧tle", u"\n# ‸tle"},
                              {u"# Ti‸tle", u""},
                              {u"#‸ Title", u""},
                              {u"# ‸", u""},
                              {u"- # ‸h", u"- # \n- ‸h"},
                          });
}

/// With the fold comment in the place of each "…".
std::u16string withFolds(std::u16string text) {
    for (auto at = text.find(u'…'); at != std::u16string::npos; at = text.find(u'…'))
        text.replace(at, 1, u" <!-- {\"fold\":true} -->");
    return text;
}

TEST(InsertNewline, PassesOverWhatAFoldHides) {
    struct Case {
        const char16_t* before;
        const char16_t* after;
    };
    const Case cases[] = {
        {u"# A…‸\nb", u"# A…\nb\n# ‸"},
        {u"## A…‸\nb\n### c\n\n# D", u"## A…\nb\n### c\n\n## ‸\n# D"},
        {u"# A…\n## B…\nc‸\n", u"# A…\n## B…\nc\n# ‸\n"},
        {u"- a…‸\n  - b\n- c", u"- a…\n  - b\n- ‸\n- c"},
        {u"- [x] a…‸\n  - b…\n    - c", u"- [x] a…\n  - b…\n    - c\n- [ ] ‸"},
        {u"- a…\n  - b…\n    - c‸\n", u"- a…\n  - b…\n    - c\n- ‸\n"},
        {u"> 1. a…‸\n>    - b\n> 2. c", u"> 1. a…\n>    - b\n> 1. ‸\n> 2. c"},
        // the head's text is not folded
        {u"# A‸…\nb", u""},
        {u"- a‸b…\n  - c", u"- a\n- ‸b…\n  - c"},
    };
    for (const auto rules : {RuleConfig::Extended, RuleConfig::Simplified})
        for (const Case& each : cases)
            expectEach(returnKey, {{withFolds(each.before), withFolds(each.after)}}, rules);
}

TEST(InsertNewline, LeavesPlainTextToTheEditor) {
    expectEach(returnKey, {{u"‸", u""},
                           {u"a‸", u""},
                           {u"> a\n‸", u""},
                           {u"```\na‸\n```", u""},
                           {u"|a|b|\n|-|-|\n|c|d‸|", u""},
                           {u"[^1]: a‸", u""},
                           {u"---\na: b‸\n---\n", u""}});
}

/// What the text belongs to that is typed behind the return: ">" for a quote, an item's place in its list,
/// and the block.
std::string homeOfTyped(std::u16string_view before, RuleConfig::RuleSet rules) {
    Ondo::Test::Drawn note(Ondo::Test::afterOperation(returnKey, before, rules));
    Tree tree(note.text, rules);
    tree.replace({note.selection.offset, 0}, u"x");
    std::string home;
    for (const Node* node = tree.nodeAtOffset(note.selection.offset, Ondo::LevelSetting::Leaf)->parentBlock();
         node->parent; node = node->parent) {
        std::string each = Ondo::Util::utf8(node->name());
        if (node->type == Ondo::ONDO_LIST_NODE) continue;
        if (node->type == Ondo::ONDO_BLOCK_QUOTE_NODE) each = ">";
        if (node->type == Ondo::ONDO_LIST_ITEM_NODE) {
            int place = 1;
            for (const Node* item = node; item->previousSibling; item = item->previousSibling)
                ++place;
            each = std::to_string(place);
        }
        home = home.empty() ? each : each + ' ' + home;
    }
    return home;
}

TEST(InsertNewline, PlacesTheTextThatFollows) {
    struct Case {
        const char16_t* before;
        const char* home;
    };
    const Case cases[] = {
        {u"- a‸", "2 paragraph"},
        {u"-\ta‸\n- b", "2 paragraph"},
        {u"- - a‸", "1 2 paragraph"},
        {u"- a\n  - b\n    - ‸", "1 2 paragraph"},
        {u"- - a\n    - ‸", "1 2 paragraph"},
        {u"- a\n- ‸\n- c", "paragraph"},
        {u"1. > a\n   > b‸", "1 > paragraph"},
        {u"> - a\n>   ‸b", "> 2 paragraph"},
        {u"> - a\n> ‸", "paragraph"},
        {u"> a\n> ‸\n> b", "paragraph"},
        {u"- > ‸", "1 paragraph"},
        {u"- a\n  - ```\n    x‸\n    ```", "1 1 fenced_code"},
        {u"> - ```\n>   ‸x\n>   ```", "> 1 fenced_code"},
        {u"- \\$$‸", "1 math_block"},
        {u"- a…‸\n\n  b\n- c", "2 paragraph"},
        {u"# A…‸\nb\n\n# C", "atx_heading"},
    };
    for (const auto rules : {RuleConfig::Extended, RuleConfig::Simplified})
        for (const Case& each : cases)
            EXPECT_EQ(homeOfTyped(withFolds(each.before), rules), each.home)
                << "behind " << Ondo::Test::visible(each.before) << " under " << Ondo::Test::nameOf(rules);
}

TEST(InsertNewline, SecondaryRowStaysInTheItemWithoutAMarker) {
    const InsertNewline row(SecondaryRow, IndentStyle::Spaces);
    const std::vector<CommandCase> cases{
        {u"- a‸b", u"- a\n  ‸b"},
        {u"- [ ] a‸", u"- [ ] a\n  ‸"},
        {u"-   a‸", u"-   a\n    ‸"},
        {u"1. - a‸", u"1. - a\n     ‸"},
        {u"- a\n      b‸", u"- a\n      b\n      ‸"},
        {u"> a‸", u"> a\n> ‸"},
        {u"> a\n>    b‸", u"> a\n>    b\n> ‸"},
        {u"> - a‸", u"> - a\n>   ‸"},
        {u"- > a\n  > b‸", u"- > a\n  > b\n  > ‸"},
        {u"> # h‸", u"> # h\n> ‸"},
        {u"> [!note] x‸", u"> [!note] x\n> ‸"},
        {u"> ```\n>   a‸\n> ```", u"> ```\n>   a\n> ‸\n> ```"},
        {u"> - ⟦a⟧b", u"> - \n>   ‸b"},
        {u"- ```\n\ta‸", u"- ```\n\ta\n\t‸"},
        {u"-‸ a", u"-\n‸ a"}, // never wider than what stands in front
        {u"‸- a", u"\n‸- a"},
        {u"- a\n‸", u"- a\n\n‸"},
        {u"# a‸", u"# a\n‸"},
        {u"‸", u"\n‸"},
    };
    expectEach(row, cases);
    expectEach(row, cases, RuleConfig::Simplified);
    expectEach(row, {{u"1. a\n  b‸", u"1. a\n  b\n  ‸"}},
               RuleConfig::Simplified); // a paragraph below the list
}

TEST(InsertNewline, SecondaryRowWithTabs) {
    const InsertNewline row(SecondaryRow, IndentStyle::Tabs);
    const std::vector<CommandCase> cases{
        {u"> - ```\n>   a‸", u"> - ```\n>   a\n> \t‸"},
        {u"- > a‸", u"- > a\n\t> ‸"},
        {u"> a‸", u"> a\n> ‸"},
    };
    expectEach(row, cases);
    expectEach(row, cases, RuleConfig::Simplified);
    // Text below an item's text continues it without a tab of the item, but not where lines need a prefix.
    expectEach(row, {{u"- a\n\t- b‸", u"- a\n\t- b\n\t‸"}, {u"- a‸", u"- a\n‸"}});
    expectEach(row, {{u"- a\n\t- b‸", u"- a\n\t- b\n\t\t‸"}, {u"- a‸", u"- a\n\t‸"}}, RuleConfig::Simplified);
}

TEST(InsertNewline, IndentsByTabs) {
    expectEach(InsertNewline(NewItem, IndentStyle::Tabs), {
                                                              {u"1. - a‸", u"1. - a\n\t- ‸"},
                                                              {u"- a\n\t- b‸", u"- a\n\t- b\n\t- ‸"},
                                                              {u"- > a‸", u"- > a\n\t> ‸"},
                                                              {u"- ```\n\ta‸", u"- ```\n\ta\n\t‸"},
                                                          });
}

} // namespace
} // namespace CVN::Operation
