#include "corvane/operation/OperationRenumberOrderedList.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <string_view>

#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::RuleConfig;
using Ondo::Test::Drawn;
using Ondo::Test::expectEach;
using Ondo::Test::visible;

const RenumberOrderedList renumber;

TEST(RenumberOrderedList, CountsFromTheFirst) {
    expectEach(renumber, {
                             {u"1. a\n1. b‸\n1. c", u"1. a\n2. b‸\n3. c"},
                             {u"3) a\n9) b\n1) c‸", u"3) a\n4) b\n5) c‸"},
                             {u"0. a\n‸0. b\r\n0. c\r\n", u"0. a\n‸1. b\r\n2. c\r\n"},
                             {u"1. a\n3. b\n‸", u"1. a\n2. b\n‸"},
                             {u"> 1. ‸😀\n> 3. א", u"> 1. ‸😀\n> 2. א"},
                             {u"- a\n- 1. b‸\n  1. c", u"- a\n- 1. b‸\n  2. c"},
                             {u"1. a\n1) ‸b\n1) c", u"1. a\n1) ‸b\n2) c"},
                             {u"1. a\n007. b‸", u"1. a\n2. b‸"},
                             {u"1. a\n2‸17. b", u"1. a\n2‸. b"},
                             // Whole lists, up to the outermost one, and those between
                             {u"1. a\n1. b\n   1. c\n   1. d‸\n1. e", u"1. a\n2. b\n   1. c\n   2. d‸\n3. e"},
                             {u"1. a\n1. ⟦b\n\np\n\n2. c\n\nq⟧\n\n1. d\n1. e",
                              u"1. a\n2. ⟦b\n\np\n\n2. c\n\nq⟧\n\n1. d\n1. e"},
                             // In order
                             {u"1. a\n02. b‸", u""},
                             {u"999999999. a\n1. b‸", u""},
                             {u"- a\n- b‸", u""},
                             {u"p‸\n\n1. a\n1. b", u""},
                             {u"```\n1. a\n1. b‸\n```", u""},
                             {u"‸", u""},
                         });
    for (const RuleConfig::RuleSet rules : Ondo::Test::allRuleSets)
        expectEach(renumber, {{u"1. a\n5. b‸", u"1. a\n2. b‸"}}, rules);
}

TEST(RenumberOrderedList, MovesTheLinesOfAnItemAlong) {
    expectEach(
        renumber,
        {
            {u"9. a\n9. b‸\n   c\n\n   - d\n     e", u"9. a\n10. b‸\n    c\n\n    - d\n      e"},
            {u"1. a\n10. b‸\n    c\n\n    d", u"1. a\n2. b‸\n   c\n\n   d"},
            {u"9. a\n9. b\n‸   c", u"9. a\n10. b\n ‸   c"},
            {u"9. a\n9. ```\n     b‸\n   ```", u"9. a\n10. ```\n      b‸\n    ```"},
            {u"9. a\n9. | b |\n   |---|\n   | c‸ |", u"9. a\n10. | b |\n    |---|\n    | c‸ |"},
            // The changes of nested lists add up; an item's own start moves with those around it alone.
            {u"9. a\n9. 9. b\n   9. c\n      d‸", u"9. a\n10. 9. b\n    10. c\n        d‸"},
            {u"99. a\n9. b\n   9. c\n   9. d\n      e‸",
             u"99. a\n100. b\n     9. c\n     10. d\n         e‸"},
            // Blanks before the marker of a quote are the items' around it, those behind it the ones' inside.
            {u"9. a\n9. > b\n   > c‸", u"9. a\n10. > b\n    > c‸"},
            {u"> 9. a\n> 9. b\n>    c‸", u"> 9. a\n> 10. b\n>     c‸"},
            {u"9. a\n9. > 9. b\n   > 9. c\n   >    d‸", u"9. a\n10. > 9. b\n    > 10. c\n    >     d‸"},
            {u"9. a\n9.     code‸", u"9. a\n10.     code‸"},
            // No more than the blanks that there are; none where a lazy line has none.
            {u"1. a\n100. b\n c‸", u"1. a\n2. b\nc‸"},
            {u"9. a\n9. b\nc‸", u"9. a\n10. b\nc‸"},
            // Tabs count as the columns they fill.
            {u"1. a\n10. b\n\n\tc‸", u"1. a\n2. b\n\n   c‸"},
            {u"99. a\n99. b\n\n\tc‸", u"99. a\n100. b\n\n\t c‸"},
            {u"1. a\n10.\tb\n\n    c‸", u"1. a\n2.\tb\n\n    c‸"},
            // An item must not get into the one before, whose text has come nearer.
            {u"1. a\n10. b\n   1. c‸", u"1. a\n2. b\n  3. c‸"},
        });
    // Lazy text stays text.
    expectEach(renumber, {
                             {u"1. x\n  100. x\n    9. x‸", u"1. x\n  2. x\n    9. x‸"},
                             {u"9. x\n100. x\n    - x‸", u"9. x\n10. x\n        - x‸"},
                             {u"9. x\n100. x\n    x‸", u"9. x\n10. x\n    x‸"},
                             {u"1. \n  10. x\n\t1. x‸", u"1. \n  2. x\n\t1. x‸"},
                             {u"> 1. x\n>   100. x\n>     9. x‸", u"> 1. x\n>   2. x\n>     9. x‸"},
                         });
    // A tab is enough for an item, whatever its marker.
    expectEach(renumber,
               {
                   {u"1. a\n10. b\n\tc‸", u"1. a\n2. b\n\tc‸"},
                   {u"99. a\n99. b\n\tc‸", u"99. a\n100. b\n\tc‸"},
                   {u"9. a\n9. b\n   c‸", u"9. a\n10. b\n    c‸"},
               },
               RuleConfig::Simplified);
}

TEST(RenumberOrderedList, OfManyNestedItems) {
    std::u16string note;
    for (int i = 0; i < 10000; ++i)
        note += u"1. a\n\n   1. b\n   1. c\n\n      d\n\n";
    const Ondo::Tree tree(note);
    const auto results = renumber.run(tree, 0, 0, 0, 0);
    const std::u16string behind = Ondo::Test::applied({note, {0, 0}}, results).text;
    EXPECT_EQ(behind.substr(behind.size() - 48), u"10000. a\n\n       1. b\n       2. c\n\n          d\n\n");
    EXPECT_EQ(Ondo::Test::html(behind, RuleConfig::Extended), Ondo::Test::html(note, RuleConfig::Extended));
}

std::u16string withoutDigitsAndBlanks(std::u16string text) {
    std::erase_if(text, [](char16_t c) { return c == u' ' || c == u'\t' || (c >= u'0' && c <= u'9'); });
    return text;
}

TEST(RenumberOrderedList, ChangesDigitsAndBlanksOfRandomNotesAndIsDoneAtOnce) {
    for (std::uint64_t seed = 0; seed < 2000; ++seed) {
        Ondo::Test::RandomNote random(seed);
        const RuleConfig::RuleSet rules = Ondo::Test::allRuleSets[random.below(3)];
        const std::u16string note = random.note(6) + u"9. a\n9. b\n   1. c\n   9. d\n" + random.note(6);
        const auto renumbered = [rules](const std::u16string& text) {
            const Ondo::Tree tree(text, rules);
            return Ondo::Test::applied({text, {0, 0}}, renumber.run(tree, 0, tree.length(), 0, 0)).text;
        };
        const std::u16string once = renumbered(note);
        ASSERT_EQ(withoutDigitsAndBlanks(once), withoutDigitsAndBlanks(note)) << seed;
        ASSERT_EQ(visible(renumbered(once)), visible(once)) << seed << ": " << visible(note);
    }
}

/// Of items and text at all kinds of indentation, lazy text among them.
std::u16string noteOfItems(Ondo::Test::RandomNote& random) {
    constexpr std::u16string_view starts[] = {u"", u"1. ", u"2. ", u"9. ", u"10. ", u"100. "};
    std::u16string note = u"9. a";
    for (std::size_t i = 1 + random.below(5); i > 0; --i) {
        note += random.below(8) ? u"\n" : u"\n\t";
        note += std::u16string(random.below(9), u' ');
        note += starts[random.below(std::size(starts))];
        note += u"a";
    }
    return note;
}

TEST(RenumberOrderedList, KeepsItemsAndLazyTextApartAndIsDoneAtOnce) {
    for (std::uint64_t seed = 0; seed < 1500; ++seed) {
        Ondo::Test::RandomNote random(seed);
        const RuleConfig::RuleSet rules = random.below(2) ? RuleConfig::Extended : RuleConfig::Commonmark;
        const Drawn note(noteOfItems(random), {0, 0});
        const auto renumbered = [rules](const Drawn& text) {
            const Ondo::Tree tree(text.text, rules);
            return Ondo::Test::applied(text, renumber.run(tree, 0, tree.length(), 0, 0));
        };
        const Drawn once = renumbered(note);
        ASSERT_EQ(Ondo::Test::html(once.text, rules), Ondo::Test::html(note.text, rules))
            << visible(note.text);
        ASSERT_EQ(visible(renumbered(once).text), visible(once.text)) << visible(note.text);
    }
}

} // namespace
} // namespace CVN::Operation
