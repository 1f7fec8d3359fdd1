#include "corvane/operation/OperationDeletePrevious.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::RuleConfig;
using Ondo::Test::expectEach;

const DeletePrevious backspace(IndentStyle::Spaces);

TEST(DeletePrevious, LeavesCharactersToTheEditor) {
    for (const RuleConfig::RuleSet rules : Ondo::Test::allRuleSets)
        expectEach(backspace,
                   {
                       {u"‸", u""},
                       {u"‸a", u""},
                       {u"‸- a", u""},
                       {u"ab‸", u""},
                       {u"a ‸b", u""},
                       {u"- a  ‸b", u""},
                       {u"-‸ a", u""},
                       {u"#‸# a", u""},
                       {u"a 😀‸", u""},
                       {u"שלום‸ a", u""},
                       {u"a\r‸\nb", u""},
                       {u"- [ ‸a](b)", u""},
                       {u"- a  \n  b ‸c", u""},
                       {u"⟦- ⟧a", u""},
                       {u"a\n⟦\n⟧- b", u""},
                   },
                   rules);
}

TEST(DeletePrevious, TakesMarkersWhole) {
    expectEach(backspace, {
                              {u"## ‸a", u"‸a"},
                              {u"a\n\n  # ‸b", u"a\n\n‸b"},
                              {u"- ‸a", u"‸a"},
                              {u"1) ‸a\r\n2) b", u"‸a\r\n2) b"},
                              {u"- [x] ‸a", u"‸a"},
                              {u"  - ‸a", u"‸a"},
                              {u"> ‸a", u"‸a"},
                              {u"  >‸a", u"‸a"},
                              {u">  - ‸a", u"> ‸a"},
                              {u"***‸\na", u"‸\na"},
                              {u"a ->‸ b", u"a ‸ b"},
                              // The text of a nested item stays in the item around it.
                              {u"- a\n  - ‸b", u"- a\n  ‸b"},
                              {u"> 1. a\n>    - [ ] ‸b", u"> 1. a\n>    ‸b"},
                              {u"-  - ‸b", u"- ‸b"},
                          });
}

TEST(DeletePrevious, JoinsQuotedLines) {
    expectEach(backspace, {
                              {u"> a\n> ‸b", u"> a‸b"},
                              {u"> > a\r\n> > ‸b", u"> > a‸b"},
                              {u"> a\n>\n> ‸b", u"> a\n>‸b"},
                              {u"- > a\n  > ‸b", u"- > a‸b"},
                              {u"> a\n> > ‸b", u"> a\n> ‸b"},
                          });
    expectEach(backspace, {{u"> a\n> ‸b", u"> a\n‸b"}}, RuleConfig::Simplified);
}

TEST(DeletePrevious, TakesLineEndingsButKeepsRowsApart) {
    expectEach(backspace, {
                              {u"a\n‸b", u"a‸b"},
                              {u"a\r\n‸b", u"a‸b"},
                              {u"a\n‸", u"a‸"},
                              {u"\n‸- a", u"‸- a"},
                              {u"- a\n\n‸b", u"- a\n‸b"},
                              {u"| a |\n|---|\n‸| b |", u"| a |\n|---|‸\n| b |"},
                              {u"| a |\r\n‸|---|", u"| a |‸\r\n|---|"},
                              {u"| a |\n|---|\n‸b", u"| a |\n|---|‸\nb"},
                              {u"a\n‸| a |\n|---|", u"a‸\n| a |\n|---|"},
                              {u"| a |\n|---|\n‸\nb", u"| a |\n|---|‸\nb"},
                              {u"a\n\n‸| a |\n|---|", u"a\n‸| a |\n|---|"},
                          });
}

TEST(DeletePrevious, TakesATableByItsLastPipe) {
    expectEach(backspace, {
                              {u"x\n| a |\n|---|\n| b |‸\ny", u"x\n‸\ny"},
                              {u"| a |\n|---|  ‸", u""},
                              {u"| a |\r\n|---|‸\r\n", u"‸\n"},
                              {u"| a |\n|---|\n| 😀 |‸", u"‸"},
                              {u"| a |\n|---|‸\n| b |", u""},
                              {u"| a |\n|---|\n|‸ b |", u""},
                              {u"| a | c |\n|---|---|\n| b |‸ |", u""},
                          });
}

TEST(DeletePrevious, TakesIndentationWithWhatMadeIt) {
    expectEach(backspace, {
                              // Code: a line goes up with its indentation.
                              {u"- ```\n  a\n  ‸b\n  ```", u"- ```\n  a‸b\n  ```"},
                              {u"> - $$\n>   a\n>   ‸b", u"> - $$\n>   a‸b"},
                              // In front of a closing fence it would open the block.
                              {u"- ```\n  a\n  ‸```", u""},
                              {u"> $$\n> a\n>  ‸$$", u""},
                              {u"- ```\n  ‸```", u""},
                              {u"    ‸a", u"‸a"},
                              {u"a\n\n    b\n    ‸c", u"a\n\n    b\n‸c"},
                              // Blank lines behind a list.
                              {u"- a\n  ‸\n", u"- a‸\n"},
                              {u"- a\n- b\n  ‸", u"- a\n- b‸"},
                              {u"> - a\n>   ‸\n", u"> - a\n> ‸\n"},
                              // The second line of an item keeps its text in the item as a lazy line.
                              {u"- a\n  ‸b", u"- a\n‸b"},
                              {u"> - a\n>   ‸b", u"> - a\n> ‸b"},
                              // Another paragraph of the item moves up.
                              {u"- a\n\n  ‸b", u"- a\n‸b"},
                              // No structure outside containers.
                              {u"a\n  ‸b", u""},
                              {u"  ‸a", u""},
                              {u"\n   ‸\n", u""},
                          });
}

/// In the simplified dialect the line goes out by a level.
TEST(DeletePrevious, Outdents) {
    expectEach(backspace,
               {
                   {u"- a\n  ‸- b", u"- a\n‸- b"},
                   {u"- a\n  - b\n    ‸- c", u"- a\n  - b\n  ‸- c"},
                   {u"- a\n  ‸\n", u"- a\n‸\n"},
               },
               RuleConfig::Simplified);
}

} // namespace
} // namespace CVN::Operation
