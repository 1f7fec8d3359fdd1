#include "corvane/operation/OperationToggleTask.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::RuleConfig;
using Ondo::Test::expectEach;

const ToggleTask toggle(ToggleTaskType::Toggle);
const ToggleTask check(ToggleTaskType::Check);
const ToggleTask uncheck(ToggleTaskType::Uncheck);

TEST(ToggleTask, AtACaret) {
    expectEach(toggle, {
                           {u"- [ ] a‸", u"- [x] a‸"},
                           {u"- [x] a‸", u"- [ ] a‸"},
                           {u"‸* [X] a", u"‸* [ ] a"},
                           {u"+ [ ] ‸😀\r\n", u"+ [x] ‸😀\r\n"},
                           {u"- [‸ ] a", u"- [x] ‸a"},
                           {u"- ‸[ ] א", u"- ‸[x] א"},
                           {u"- [ ] ‸", u"- [x] ‸"},
                           {u"- [ ] a\n‸\n  b", u"- [x] a\n‸\n  b"},
                           {u"- [ ] a\n‸", u""},
                           {u"- [ ] a\n  b‸\n- [ ] c", u"- [x] a\n  b‸\n- [ ] c"},
                           {u"- [ ] *a **b‸***", u"- [x] *a **b‸***"},
                           {u"> > - [ ] a\n> > - [ ] b‸", u"> > - [ ] a\n> > - [x] b‸"},
                           {u"- [ ] a\n  > b‸", u"- [x] a\n  > b‸"},
                           // The innermost item is meant, and text behind nested items is its own item's.
                           {u"- [ ] a\n  - [ ] b‸", u"- [ ] a\n  - [x] b‸"},
                           {u"- [ ] a\n  - [ ] b\n\n  c‸", u"- [x] a\n  - [ ] b\n\n  c‸"},
                           {u"-‸ [ ] - [ ] a", u"-‸ [x] - [ ] a"},
                           {u"- [ ] a\n  - b‸", u""},
                           {u"- [ ] a\n  1. b‸", u""},
                           // No tasks
                           {u"- a‸", u""},
                           {u"1. [ ] a‸", u""},
                           {u"-  [ ] a‸", u""},
                           {u"a‸\n\n- [ ] b", u""},
                           {u"    - [ ] a‸", u""},
                           {u"‸", u""},
                       });
    expectEach(toggle, {{u"- [ ] a‸", u""}}, RuleConfig::Commonmark);
    expectEach(check, {{u"- [ ] a‸", u"- [x] a‸"}, {u"- [X] a‸", u"- [x] a‸"}}, RuleConfig::Simplified);
    expectEach(uncheck, {{u"- [x] a‸", u"- [ ] a‸"}, {u"- [ ] a‸", u"- [ ] a‸"}});
}

TEST(ToggleTask, InARange) {
    expectEach(toggle,
               {
                   {u"⟦- [ ] a\n- [x] b⟧", u"⟦- [x] a\n- [ ] b⟧"},
                   {u"- [ ] ⟦a\n- [ ] b\n⟧- [ ] c", u"- [x] ⟦a\n- [x] b\n⟧- [ ] c"},
                   {u"⟦p\n\n> - [ ] a\n>   - b\n> - [x] c\n\n1. d⟧",
                    u"⟦p\n\n> - [x] a\n>   - b\n> - [ ] c\n\n1. d⟧"},
                   // What began before the range counts with text of its own alone.
                   {u"- [ ] a\n  - [ ] ⟦b\n  - [ ] c⟧", u"- [ ] a\n  - [x] ⟦b\n  - [x] c⟧"},
                   {u"- [ ] a\n  - [ ] x\n  - [ ] ⟦b\n\n  c⟧", u"- [x] a\n  - [ ] x\n  - [x] ⟦b\n\n  c⟧"},
                   {u"- [ ] a\n  - [ ] b\n\n  ⟦c\n- [ ] d⟧", u"- [x] a\n  - [ ] b\n\n  ⟦c\n- [x] d⟧"},
                   {u"- [ ] a\n⟦\n- [ ] b⟧", u"- [ ] a\n⟦\n- [x] b⟧"},
                   {u"⟦- [ ] a\n  - [ ] b\n\n  c⟧", u"⟦- [x] a\n  - [x] b\n\n  c⟧"},
               });
    expectEach(check, {{u"⟦- [ ] a\n- [x] b\n- c⟧", u"⟦- [x] a\n- [x] b\n- c⟧"}});
}

TEST(ToggleTask, TwiceIsNothingAndCheckChecksAll) {
    for (std::uint64_t seed = 0; seed < 1500; ++seed) {
        Ondo::Test::RandomNote random(seed);
        std::u16string note = random.note(6) + u"- [ ] a\n  - [x] b\n" + random.note(6);
        std::replace(note.begin(), note.end(), u'X', u'x');
        const Ondo::Range range = random.range(static_cast<std::int64_t>(note.size()));
        const auto behind = [&range](const ToggleTask& command, const std::u16string& text) {
            const Ondo::Tree tree(text);
            return Ondo::Test::applied({text, range}, command.run(tree, range.offset, range.length,
                                                                  range.offset, range.length))
                .text;
        };
        const std::u16string once = behind(toggle, note);
        ASSERT_EQ(Ondo::Test::visible(behind(toggle, once)), Ondo::Test::visible(note)) << seed;
        const std::u16string checked = behind(check, note);
        ASSERT_EQ(Ondo::Test::visible(behind(check, behind(toggle, checked))), Ondo::Test::visible(checked))
            << seed;
    }
}

} // namespace
} // namespace CVN::Operation
