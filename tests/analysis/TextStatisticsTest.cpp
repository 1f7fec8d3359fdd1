#include "corvane/analysis/TextStatistics.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "corvane/analysis/CVNTextStatistics.h"
#include "corvane/scan/Util.h"

namespace CVN {
namespace {

using Ondo::Util::utf8;

std::u16string repeated(std::u16string_view text, int count) {
    std::u16string out;
    for (int i = 0; i < count; ++i)
        out += text;
    return out;
}

struct Counts {
    std::u16string text;
    std::uint32_t words;
    std::uint32_t paragraphs;
};

void expectCounts(const std::vector<Counts>& table) {
    for (const Counts& row : table) {
        const TextStatistics statistics(row.text);
        EXPECT_EQ(statistics.wordsCount, row.words) << utf8(row.text);
        EXPECT_EQ(statistics.paragraphCount, row.paragraphs) << utf8(row.text);
    }
}

TEST(TextStatistics, Words) {
    expectCounts({
        {u"", 0, 0},
        {u" ", 0, 1},
        {u"...", 0, 1},
        {u"well-known", 2, 1},
        {u"a\u2213b \u2010c\u2014d", 3, 1}, // of the dashes only the one on the keyboard ends a word
        {u"don't a.b *c*d* - e", 4, 1},
        {u"\u20AC + 5", 2, 1}, // a currency sign beyond ASCII is no punctuation
        {u"e\u0301te\u0301 \u0301", 2, 1},
        {u"a\u00A0b\u3000c\u200Bd", 3, 1}, // no width is no space
        {u"السلام عليكم، يا صديقي", 4, 1},
        {u"\xD83D\xDE00\xD83D\xDE00 \xD83D", 2, 1},
        {u"안녕 하세요", 2, 1},
    });
}

TEST(TextStatistics, Logograms) {
    expectCounts({
        {u"日本語 text", 4, 1},
        {u"a日b", 3, 1},
        {u"日-本, ひらカナ", 6, 1},
        {u"「日」。", 4, 1}, // punctuation of these scripts counts
        {u"Ａ1！", 3, 1},    // so do full-width forms
        {u"\u3000", 0, 1},
        {u"\xD840\xDC00\xD840\xDC01x", 3, 1}, // U+20000, U+20001
        {u"\u9FFC\u9FFD\u9FFE", 2, 1},        // the last of its block, and one word of two that are not in it
        {u"\u4DBF\u4DC0\u4DC1", 2, 1},        // hexagrams are no script
    });
}

TEST(TextStatistics, Paragraphs) {
    expectCounts({
        {u"a b\n\nc", 3, 2},
        {u"\n\na\r\nb\r\n\r\n", 2, 2},
        {u"a\n \nb", 2, 3},
        {u"a\u2028b\u2029c\fd\n", 4, 4},
    });
    // What these are not for white space, they are for lines: each begins a word, and a line ends with it.
    expectCounts({{u"a \vb", 2, 2}, {u"a \u0085 b", 3, 2}});
}

TEST(TextStatistics, ReadTime) {
    const auto seconds = [](std::u16string_view text) { return TextStatistics(text).readTime; };
    EXPECT_EQ(seconds(u""), 0u);
    EXPECT_EQ(seconds(u"日本語 text"), 0u); // 0.6 + 0.24
    EXPECT_EQ(seconds(repeated(u"日", 300)), 60u);
    EXPECT_EQ(seconds(repeated(u"a ", 250)), 60u);
    EXPECT_EQ(seconds(repeated(u"a ", 24)), 5u);                         // 5.76
    EXPECT_EQ(seconds(repeated(u"a ", 250) + repeated(u"日", 4)), 60u);  // 60.8
    EXPECT_EQ(seconds(repeated(u"a ", 250) + repeated(u"日", 10)), 62u); // exactly
    // Where the sum is a whole number, rounding decides: once for the product of the logograms and the sum.
    EXPECT_EQ(seconds(repeated(u"日", 24) + repeated(u"a ", 5)), 6u);
    EXPECT_EQ(seconds(repeated(u"日", 81) + repeated(u"a ", 295)), 86u);
}

TEST(TextStatistics, Separators) {
    constexpr std::u16string_view text = u"a, 日。Ａ\xD840\xDC00-";
    const auto answers = [&](bool (*test)(std::u16string_view, std::int64_t)) {
        std::string out;
        for (std::int64_t i = -1; i <= std::ssize(text); ++i)
            out += test(text, i) ? '1' : '0';
        return out;
    };
    EXPECT_EQ(answers(TextStatistics::isWordSeparator), "00111101010");
    EXPECT_EQ(answers(TextStatistics::isSingleCharacterWord), "00001001000");
}

struct Block {
    char32_t first;
    char32_t last;
    bool isScript; ///< as against punctuation and forms

    bool has(char32_t c) const { return first <= c && c <= last; }
};

TEST(TextStatistics, EdgesOfLogographicBlocks) {
    static constexpr Block blocks[] = {
        {0x3400, 0x4DBF, true},   {0x4E00, 0x9FFC, true}, {0x20000, 0x2A6DF, true}, {0x2A700, 0x2EBEF, true},
        {0x30000, 0x3134F, true}, {0x3040, 0x30FF, true}, {0x3000, 0x303F, false},  {0xFF00, 0xFFEF, false},
    };
    for (const Block& block : blocks) {
        const char32_t edges[] = {block.first - 1, block.first, block.last, block.last + 1};
        for (const char32_t c : edges) {
            const auto* const found = std::find_if(std::begin(blocks), std::end(blocks),
                                                   [c](const Block& each) { return each.has(c); });
            const bool isAny = found != std::end(blocks);
            EXPECT_EQ(TextStatistics::isWordCharacter(c), isAny) << std::hex << +c;
            EXPECT_EQ(TextStatistics::isSingleCharacterWord(Ondo::Util::utf16(c), 0),
                      isAny && found->isScript)
                << std::hex << +c;
        }
    }
}

TEST(TextStatistics, AsTheClientHasThem) {
    const CVNTextStatistics statistics(repeated(u"a b\n", 1000));
    EXPECT_EQ(statistics.wordsCount, 2000u);
    EXPECT_EQ(statistics.paragraphCount, 1000u);
    EXPECT_EQ(statistics.readTime, 480u);
}

} // namespace
} // namespace CVN
