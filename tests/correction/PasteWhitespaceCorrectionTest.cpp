#include "corvane/correction/PasteWhitespaceCorrection.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

using namespace Ondo;
using namespace Ondo::Test;
using CVN::Correction::PasteWhitespaceCorrection;
using CVN::Operation::Result;

namespace {

TEST(PasteWhitespaceCorrection, Edges) {
    struct {
        std::u16string_view before;
        std::u16string_view pasted;
        std::u16string_view after;
    } const cases[] = {
        // words
        {u"a‸ b", u"word", u"a word‸ b"},
        {u"a ‸b", u"word", u"a word ‸b"},
        {u"a‸b", u"word", u"a word ‸b"},
        {u"a⟦xy⟧b", u"word", u"a word ‸b"},
        {u"a ‸ b", u"  word  ", u"a word‸ b"},
        {u"a‸b", u" word ", u""},
        {u"a ⟦x⟧b", u" ", u"a ‸b"},
        {u"a ⟦x⟧ b", u" ", u"a ‸ b"},
        {u"a‸b", u" ", u""},
        {u"a\t‸\u00A0b", u"word", u""},
        // lines
        {u"‸", u" word ", u""},
        {u"a\n‸\nb", u" word ", u"a\n word‸\nb"},
        {u"‸ b", u"word ", u"word‸ b"},
        {u"‸ b", u"  ", u""},
        {u"‸ b", u"\t ", u""},
        {u"a\r‸b", u"word", u"a\rword ‸b"},
        {u"a ‸\r\nb", u" word ", u"a word‸\r\nb"},
        {u"a‸b", u"\nword\n", u""},
        {u"- ‸x", u" word\n", u"- word\n‸x"},
        {u"> a‸", u"word", u"> a word‸"},
        // markers of items alone
        {u"- ‸", u"- [ ] ", u""},
        {u"- ‸\n", u"1. - ", u""},
        {u"- ‸", u"- [ ] x ", u"- - [ ] x‸"},
        {u"a‸", u"- ", u"a -‸"},
        // punctuation
        {u"(‸)", u" word ", u"(word‸)"},
        {u"a,‸b", u"word", u"a, word ‸b"},
        {u"a)‸.", u"word", u"a) word‸."},
        {u"“a”‸", u"word", u"“a” word‸"},
        {u"a-‸/b", u"word", u""},
        {u"a‸(b)", u"word", u"a word ‸(b)"},
        {u"a ‸, b", u"word ", u"a word‸, b"},
        {u"😀‸😀", u"word", u"😀 word ‸😀"},
        {u"𐄀‸𐄀", u"word", u""}, // punctuation of two units
        // markers
        {u"**‸a**", u"word", u"**word ‸a**"},
        {u"**a‸**", u"word", u"**a word‸**"},
        {u"**a**‸", u"word", u"**a** word‸"},
        {u"a ‸**b**", u"word", u"a word ‸**b**"},
        {u"2 *‸", u"3", u""},
        {u"[a](b)‸c", u"word", u"[a](b) word ‸c"},
        {u"[‸a](b)", u"x", u"[x ‸a](b)"},
        {u"#tag/‸", u"sub", u""},
        {u"#tag#‸", u"word", u"#tag# word‸"},
        {u"[[p/‸q]]", u"x", u"[[p/x ‸q]]"},
        {u"==🔴‸a==", u"x", u"==🔴x ‸a=="},
        // code
        {u"`a‸b`", u"word", u""},
        {u"$a ‸ b$", u" word ", u""},
        {u"```\na ‸b\n```", u" word", u""},
        {u"```\na\n```\n‸b", u"word", u"```\na\n```\nword ‸b"},
        // what stands together
        {u"1‸3", u"2", u""},
        {u"١‸", u"٢", u""},
        {u"𝟙‸", u"𝟚", u""},
        {u"$‸", u"a", u""},
        {u"5‸", u"€", u""},
        {u"«‸»", u"mot", u""},
        {u"a‸", u"»b", u""},
        {u"太‸字", u"郎", u""},
        {u"𠀀‸𠀀", u"𠀀", u""},
        {u"太‸", u"word", u"太 word‸"},
        {u"שלום‸", u"עולם", u"שלום עולם‸"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(visible(afterCorrection(PasteWhitespaceCorrection(), each.before, each.pasted)),
                  visible(each.after))
            << "behind " << visible(each.before);
}

TEST(PasteWhitespaceCorrection, Selections) {
    const Tree tree(u"ab");
    const auto selected = [&tree](std::u16string_view text, std::int64_t start, std::int64_t length) {
        const auto results = PasteWhitespaceCorrection().run(tree, 1, 0, text, start, length);
        EXPECT_EQ(results.size(), 1U);
        return Range{results[0].selectionOffset, results[0].selectionLength};
    };
    EXPECT_EQ(selected(u"word", 5, 0), (Range{7, 0}));
    EXPECT_EQ(selected(u"word", 3, 0), (Range{4, 0}));
    EXPECT_EQ(selected(u"word", 1, 4), (Range{1, 6}));
    EXPECT_EQ(selected(u"word", 0, 0), (Range{0, 0}));
    EXPECT_EQ(selected(u"word", 6, 9), (Range{8, 0}));

    const Tree spaced(u"a  b");
    EXPECT_EQ(PasteWhitespaceCorrection().run(spaced, 2, 0, u" ", 2, 1),
              (std::vector<Result>{Result(2, 0, u"", 2, 0)}));
    EXPECT_EQ(PasteWhitespaceCorrection().run(spaced, 2, 0, u"  x", 3, 0),
              (std::vector<Result>{Result(2, 0, u"x", 2, 0)}));
}

TEST(PasteWhitespaceCorrection, ACorrectedPasteIsLeftAlone) {
    RandomNote random(5);
    for (int round = 0; round < 3000; ++round) {
        const Tree tree(random.note(3), allRuleSets[random.below(3)]);
        const Range range = random.range(tree.length());
        std::u16string text = random.piece();
        if (random.below(2) == 0) text.insert(0, 1 + random.below(2), u' ');
        if (random.below(2) == 0) text.append(1 + random.below(2), u' ');
        const auto once =
            PasteWhitespaceCorrection().run(tree, range.offset, range.length, text, range.offset, 0);
        if (once.empty()) continue;
        EXPECT_TRUE(PasteWhitespaceCorrection()
                        .run(tree, range.offset, range.length, once[0].replacementString, range.offset, 0)
                        .empty())
            << visible(Drawn(std::u16string(tree.markdown()), range).drawing()) << " with " << visible(text);
    }
}

} // namespace
