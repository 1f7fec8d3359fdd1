#include "corvane/operation/OperationDeleteNext.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::RuleConfig;
using Ondo::Test::expectEach;

const DeleteNext forwardDelete(IndentStyle::Spaces);

TEST(DeleteNext, LeavesCharactersToTheEditor) {
    for (const RuleConfig::RuleSet rules : Ondo::Test::allRuleSets)
        expectEach(forwardDelete,
                   {
                       {u"‸", u""},
                       {u"a‸", u""},
                       {u"a‸b", u""},
                       {u"a‸ b", u""},
                       {u"- a‸ b", u""},
                       {u"-‸ a", u""},
                       {u"‸😀", u""},
                       {u"‸שלום", u""},
                       {u"a\r‸\nb", u""},
                       {u"‸  a", u""},
                       {u"> a\n> ‸ b", u""},
                       {u"⟦- ⟧a", u""},
                       {u"a⟦\n⟧- b", u""},
                   },
                   rules);
}

TEST(DeleteNext, TakesMarkers) {
    expectEach(forwardDelete, {
                                  {u"‸### a", u"‸## a"},
                                  {u"‸## a", u"‸# a"},
                                  {u"‸# a", u"‸a"},
                                  {u"> ‸# a", u"> ‸a"},
                                  {u"‸- a\n- b", u"‸a\n- b"},
                                  {u"‸- [ ] a", u"‸a"},
                                  {u"- a\n  ‸10) b", u"- a\n  ‸b"},
                                  {u"‸> a\n> b", u"‸a\n> b"},
                                  {u"> ‸> a", u"> ‸a"},
                                  {u"‸***\na", u"‸\na"},
                                  {u"a ‸-> b", u"a ‸ b"},
                              });
}

TEST(DeleteNext, BringsTheNextLineUpWithoutItsPrefix) {
    expectEach(forwardDelete, {
                                  {u"a‸\nb", u"a‸b"},
                                  {u"a‸\r\n- b", u"a‸- b"},
                                  {u"a‸\n", u"a‸"},
                                  {u"- a‸\n- b", u"- a‸b"},
                                  {u"- a‸\r\n  - [x] b", u"- a‸b"},
                                  {u"1. a‸\n   b", u"1. a‸b"},
                                  {u"- a‸\n\n  b", u"- a‸\n  b"},
                                  {u"  - a\n    - b‸\n  - c", u"  - a\n    - b‸c"},
                                  {u"> a‸\n> b", u"> a‸b"},
                                  {u"> > a‸\n>  > 😀", u"> > a‸😀"},
                                  {u"> - a‸\n>   1) b", u"> - a‸b"},
                                  {u"> a‸\nb", u"> a‸b"},
                                  // An empty item doesn't take the next one in.
                                  {u"- ‸\n- c", u"- ‸c"},
                                  {u"- [ ] ‸\r\n- [ ] c", u"- [ ] ‸c"},
                                  {u"1. ‸\n2. c", u"1. ‸c"},
                                  {u"> - ‸\n> - c", u"> - ‸c"},
                                  {u"- a\n  - ‸\n  - c", u"- a\n  - ‸c"},
                                  {u"- > ‸\n  > c", u"- > ‸c"},
                                  // Another container keeps its marker.
                                  {u"- a‸\n\nb", u"- a‸\nb"},
                                  {u"- a‸\n* b", u"- a‸* b"},
                                  {u"- a‸\n> b", u"- a‸> b"},
                              });
}

TEST(DeleteNext, TakesBlankLines) {
    expectEach(forwardDelete, {
                                  {u"‸\na", u"‸a"},
                                  {u"a\n‸\nb", u"a\n‸b"},
                                  {u"- a\n‸\n- b", u"- a\n‸- b"},
                                  {u"- a\n  ‸\n  b", u"- a\n  ‸b"},
                                  {u"> a\n>‸\n> b", u"> a\n>‸b"},
                                  {u"> a\n>‸\n> - b", u"> a\n>‸- b"},
                                  {u"> - a\n>‸\n> - b", u"> - a\n>‸- b"},
                                  {u"‸\n- a", u"‸- a"},
                                  // The caret goes to the text of a heading.
                                  {u"‸\n## a", u"## ‸a"},
                                  {u"a\n‸\r\n# b", u"a\n# ‸b"},
                                  {u"a‸\n# b", u"a‸# b"},
                              });
}

TEST(DeleteNext, KeepsTablesApartAndTakesThemWhole) {
    expectEach(forwardDelete, {
                                  {u"a‸\n| a |\n|---|", u"a‸\n| a |\n|---|"},
                                  {u"‸\n| a |\n|---|", u"‸| a |\n|---|"},
                                  {u"| a |‸\n|---|", u"| a |‸\n|---|"},
                                  {u"| a |\n|---|\n| b |‸\r\n| c |", u"| a |\n|---|\n| b |‸\r\n| c |"},
                                  {u"| a |\n|---|‸\nb", u"| a |\n|---|‸\nb"},
                                  {u"| a |\n|---|‸", u""},
                                  {u"x\n\n‸| a |\n|---|\ny", u"x\n\n‸\ny"},
                                  {u"‸| a |\n|---|\n| b |", u"‸"},
                              });
}

TEST(DeleteNext, Outdents) {
    for (const RuleConfig::RuleSet rules : Ondo::Test::allRuleSets)
        expectEach(forwardDelete,
                   {
                       {u"- a\n‸  - b", u"- a\n‸- b"},
                       {u"1. a\n‸   1. b", u"1. a\n‸1. b"},
                   },
                   rules);
}

} // namespace
} // namespace CVN::Operation
