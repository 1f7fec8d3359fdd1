#include "corvane/correction/InvalidCharacterCorrection.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

using namespace Ondo;
using namespace Ondo::Test;
using CVN::Correction::InvalidCharacterCorrection;
using CVN::Operation::Result;

namespace {

using std::literals::operator""s;
using Results = std::vector<Result>;

TEST(InvalidCharacterCorrection, LineEndingsAndNul) {
    const InvalidCharacterCorrection correction;
    EXPECT_EQ(afterCorrection(correction, u"x‸y", u"a\r\nb"), u"xa\nb‸y");
    EXPECT_EQ(afterCorrection(correction, u"x⟦y⟧", u"\r\r\n\n😀\r"), u"x\n\n\n😀\n‸");
    EXPECT_EQ(afterCorrection(correction, u"x‸y", u"\0a\0\r\0\n"s), u"xa\n\n‸y");
    EXPECT_EQ(afterCorrection(correction, u"‸", u"\0"s), u"‸");
    EXPECT_EQ(afterCorrection(correction, u"x\r\n‸y", u"a\nb"), u"");
    EXPECT_EQ(afterCorrection(correction, u"x⟦\r\n⟧y", u""), u"");
}

TEST(InvalidCharacterCorrection, SelectionsStayWithTheText) {
    const auto selected = [](std::int64_t start, std::int64_t length) {
        const auto results = InvalidCharacterCorrection::process(10, 0, u"a\r\nb\0c"s, start, length);
        EXPECT_EQ(results.size(), 1U);
        return Range{results[0].selectionOffset, results[0].selectionLength};
    };
    EXPECT_EQ(selected(16, 0), (Range{14, 0}));
    EXPECT_EQ(selected(12, 0), (Range{12, 0})); // between the two goes behind the line feed
    EXPECT_EQ(selected(13, 0), (Range{12, 0}));
    EXPECT_EQ(selected(14, 0), (Range{13, 0}));
    EXPECT_EQ(selected(10, 6), (Range{10, 4}));
    EXPECT_EQ(selected(3, 2), (Range{3, 2}));
    EXPECT_EQ(selected(20, 5), (Range{18, 5}));
}

TEST(InvalidCharacterCorrection, InitialStrings) {
    const auto corrections = InvalidCharacterCorrection::correctionsForInitialString;
    EXPECT_EQ(corrections(u"a\r\nb"), (Results{Result(1, 1, u"", 0, 0)}));
    EXPECT_EQ(corrections(u"a\rb\rc"), (Results{Result(1, 3, u"\nb\n", 0, 0)}));
    EXPECT_EQ(corrections(u"\0\0"s), (Results{Result(0, 2, u"", 0, 0)}));
    EXPECT_EQ(corrections(u"\n\r\n"), (Results{Result(1, 1, u"", 0, 0)}));
    EXPECT_TRUE(corrections(u"a\nb").empty());
    EXPECT_TRUE(corrections(u"").empty());
}

TEST(InvalidCharacterCorrection, NothingInvalidIsLeft) {
    RandomNote random(3);
    for (int round = 0; round < 1000; ++round) {
        std::u16string text = random.note(4);
        for (std::size_t i = random.below(4); i > 0; --i)
            text.insert(random.below(text.size() + 1), 1, random.below(2) == 0 ? u'\r' : u'\0');
        const std::u16string clean =
            applied({text, {0, 0}}, InvalidCharacterCorrection::correctionsForInitialString(text)).text;
        EXPECT_EQ(clean.find_first_of(u"\r\0"s), std::u16string::npos);
        const auto whole = InvalidCharacterCorrection::process(0, 0, text, 0, 0);
        EXPECT_EQ(clean, whole.empty() ? text : whole[0].replacementString);
        EXPECT_TRUE(InvalidCharacterCorrection::process(0, 0, clean, 0, 0).empty());
    }
}

} // namespace
