#include "corvane/operation/OperationToggleBlockStyle.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"

namespace CVN::Operation {
namespace {

using Ondo::RuleConfig;
using Ondo::Test::expectEach;

TEST(ToggleBlockStyle, Headings) {
    expectEach(ToggleBlockStyle(BlockToggles::Heading2), {
                                                             {u"# ti‸tle", u"## ti‸tle"},
                                                             {u"## ti‸tle", u"ti‸tle"},
                                                             {u"##   ti‸tle\n", u"ti‸tle\n"},
                                                             {u"#‸", u"## #‸"},
                                                             {u"## ‸", u"‸"},
                                                             {u"‸title", u"## ‸title"},
                                                             {u"a\nb‸", u"a\n## b‸"},
                                                             {u"‸", u"## ‸"},
                                                             {u"a\r\n‸", u"a\r\n## ‸"},
                                                             {u"a\n‸\nb", u"a\n## ‸\nb"},
                                                             {u"a\n ‸ \nb", u"a\n## ‸\nb"},
                                                             // Blanks go at the top level only.
                                                             {u"   a‸", u"## a‸"},
                                                             {u"    a‸", u"## a‸"},
                                                             {u"a\n  b‸", u"a\n## b‸"},
                                                             {u"  # a‸", u"## a‸"},
                                                             {u"- a\n\n  b‸", u"- a\n\n  ## b‸"},
                                                             // Behind the markers of containers
                                                             {u"- a‸", u"- ## a‸"},
                                                             {u"- # a‸", u"- ## a‸"},
                                                             {u"- ## a‸", u"- a‸"},
                                                             {u"> 1. [ ] a‸", u"> 1. ## [ ] a‸"},
                                                             {u"- [ ] a‸", u"- [ ] ## a‸"},
                                                             {u"> a\n> b‸", u"> a\n> ## b‸"},
                                                             {u"> a\n> - > b‸", u"> a\n> - > ## b‸"},
                                                             // Lines of closed blocks stay.
                                                             {u"| a‸ |\n|---|\n| b |\n", u""},
                                                             {u"```\na‸\n```", u""},
                                                             {u"> ```‸\n> a\n> ```", u""},
                                                             {u"$$\n‸\n$$", u""},
                                                             {u"**‸*", u""},
                                                             {u"<div>‸\n", u""},
                                                             {u"---\na: ‸b\n---\n", u""},
                                                             {u"```\na\n‸", u""},
                                                         });
}

TEST(ToggleBlockStyle, Lists) {
    expectEach(ToggleBlockStyle(BlockToggles::BulletList), {
                                                               {u"a‸", u"* a‸"},
                                                               {u"‸a", u"* ‸a"},
                                                               {u"‸", u"* ‸"},
                                                               {u"- a‸", u"a‸"},
                                                               {u"‸- a", u"‸a"},
                                                               {u"-   a‸\n", u"a‸\n"},
                                                               {u"- [x] a‸", u"* a‸"},
                                                               {u"1. a‸", u"* a‸"},
                                                               {u"  a‸", u"  * a‸"},
                                                               {u"- a\n  - b‸", u"- a\n  b‸"},
                                                               {u"- - a‸", u"- a‸"},
                                                               {u"- a\n  b‸", u"- a\n  * b‸"},
                                                               {u"> a‸\n", u"> * a‸\n"},
                                                               {u"> - a‸\n", u"> a‸\n"},
                                                               {u"# a‸", u"* # a‸"},
                                                               {u"- ```\n  a‸\n  ```", u""},
                                                               {u"- ```‸\n  a\n  ```", u"```‸\n  a\n  ```"},
                                                               {u"a\r\n1) b‸\r\n", u"a\r\n* b‸\r\n"},
                                                               {u"אב‸", u"* אב‸"},
                                                           });
    expectEach(ToggleBlockStyle(BlockToggles::OrderedList),
               {
                   {u"a‸", u"1. a‸"},
                   {u"‸", u"1. ‸"},
                   {u"7. a‸", u"a‸"},
                   {u"7) a‸", u"1. a‸"},
                   {u"⟦a\nb⟧", u"⟦1. a\n1. b⟧"},
                   {u"⟦a\n- b⟧", u"⟦1. a\n 1. b⟧"},
                   // Deeper items move along with their parents.
                   {u"⟦- a\n  - b\n    - c⟧\n", u"⟦1. a\n   1. b\n      1. c⟧\n"},
                   {u"⟦> - a\n>   - b⟧", u"⟦> 1. a\n>    1. b⟧"},
                   {u"⟦- a\n  b⟧", u"⟦1. a\n  1. b⟧"},
                   {u"- a\n  - b‸", u"- a\n  1. b‸"},
               });
    expectEach(ToggleBlockStyle(BlockToggles::TaskList), {
                                                             {u"a‸", u"- [ ] a‸"},
                                                             {u"* a‸", u"- [ ] a‸"},
                                                             {u"- [x] a‸", u"a‸"},
                                                             {u"- [ ] ‸", u"‸"},
                                                             {u"- ‸", u"- [ ] ‸"},
                                                             {u"2. 🙂‸", u"- [ ] 🙂‸"},
                                                         });
}

TEST(ToggleBlockStyle, Selections) {
    expectEach(ToggleBlockStyle(BlockToggles::BulletList),
               {
                   // The marker of the first line joins.
                   {u"⟦a\nb⟧", u"⟦* a\n* b⟧"},
                   {u"a⟦a\nb⟧b", u"* a⟦a\n* b⟧b"},
                   {u"⟦* a\n* b⟧", u"⟦a\nb⟧"},
                   {u"⟦- a\nb\n+ c⟧", u"⟦- a\n* b\n+ c⟧"},
                   // What ends at column 0 ends on the line before.
                   {u"⟦a\n⟧b\n", u"⟦* a\n⟧b\n"},
                   {u"⟦a\r\n⟧b\r\n", u"⟦* a\r\n⟧b\r\n"},
                   {u"a\n⟦b\n⟧", u"a\n⟦* b\n⟧"},
                   // Blank lines and closed blocks stay and don't count.
                   {u"⟦a\n\nb⟧", u"⟦* a\n\n* b⟧"},
                   {u"⟦* a\n\n* b⟧", u"⟦a\n\nb⟧"},
                   {u"⟦* a\n\n```\nx\n```\n⟧", u"⟦a\n\n```\nx\n```\n⟧"},
                   {u"⟦- a\n- \n- b⟧", u"⟦a\n\nb⟧"},
                   {u"⟦\n\n⟧a", u""},
                   {u"⟦> a\n>\n> b⟧", u"⟦> * a\n>\n> * b⟧"},
               });
}

TEST(ToggleBlockStyle, Quotes) {
    expectEach(ToggleBlockStyle(BlockToggles::BlockQuote), {
                                                               {u"a‸", u"> a‸"},
                                                               {u"‸", u"> ‸"},
                                                               {u"> ‸", u"‸"},
                                                               {u">a‸", u"a‸"},
                                                               {u"- a‸", u"> - a‸"},
                                                               {u"⟦a\n\nb⟧", u"⟦> a\n> \n> b⟧"},
                                                               {u"⟦> a\n>\n> b⟧", u"⟦a\n\nb⟧"},
                                                               {u"⟦> > a\n> > b⟧", u"⟦> a\n> b⟧"},
                                                               {u"- > a‸", u"- a‸"},
                                                               // Closed blocks go into a quote, too.
                                                               {u"⟦```\na\n```⟧\n", u"⟦> ```\n> a\n> ```⟧\n"},
                                                               {u"⟦> | a |\n> |---|⟧", u"⟦| a |\n|---|⟧"},
                                                               // What leaves a quote is set apart from it.
                                                               {u"> a\n> b‸", u"> a\n\nb‸"},
                                                               {u"> a\n> b‸\n> c", u"> a\n\nb‸\n> c"},
                                                               {u"> a\nb‸", u"> a\n\nb‸"},
                                                               {u"> a\r> b‸", u"> a\r\n\nb‸"},
                                                               {u"> a\n⟦> b\nc⟧", u"> a\n⟦\nb\nc⟧"},
                                                               {u"⟦> [!TIP] a\n> b⟧", u"⟦[!TIP] a\nb⟧"},
                                                           });
}

TEST(ToggleBlockStyle, OtherDialects) {
    expectEach(ToggleBlockStyle(BlockToggles::BulletList), {{u"- a\n-‸", u"- a\n‸"}}, RuleConfig::Commonmark);
    expectEach(ToggleBlockStyle(BlockToggles::Heading1), {{u"- a\n-‸", u"- a\n- # ‸"}},
               RuleConfig::Commonmark);
    expectEach(ToggleBlockStyle(BlockToggles::BlockQuote), {{u"> a\nb‸", u"> a\n> b‸"}},
               RuleConfig::Simplified);
}

} // namespace
} // namespace CVN::Operation
