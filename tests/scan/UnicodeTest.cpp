#include "corvane/scan/Unicode.h"

#include <cstdint>

#include <gtest/gtest.h>

namespace Ondo {

namespace {

/// What a function says about all characters: how many are members, or do not map to themselves, and a
/// checksum of these and of what they map to.
struct Summary {
    int count = 0;
    std::uint64_t checksum = 0;

    void add(char32_t number) { checksum = checksum * 31 + number; }
    bool operator==(const Summary&) const = default;
};

template <class Function>
Summary summaryOf(Function addCharacter) {
    Summary summary;
    for (char32_t c = 0; c <= 0x110000; ++c)
        addCharacter(c, summary);
    return summary;
}

Summary summaryOf(bool (*predicate)(char32_t)) {
    return summaryOf([predicate](char32_t c, Summary& summary) {
        if (!predicate(c)) return;
        ++summary.count;
        summary.add(c);
    });
}

/// Where a mapping stands still, `map` answers an empty text.
template <class Map>
Summary summaryOfMapping(Map map) {
    return summaryOf([map](char32_t c, Summary& summary) {
        const std::u32string to = map(c);
        if (to.empty()) return;
        ++summary.count;
        summary.add(c);
        for (const char32_t part : to)
            summary.add(part);
    });
}

std::u32string unlessSame(char32_t c, char32_t to) {
    return c == to ? std::u32string() : std::u32string(1, to);
}

std::ostream& operator<<(std::ostream& out, const Summary& summary) {
    return out << summary.count << " characters, checksum " << std::hex << summary.checksum;
}

/// The expected summaries are what the raw data give: tools/generate_unicode.py --summary.
TEST(Unicode, PredicatesHoldForExactlyTheMembersOfTheirClass) {
    EXPECT_EQ(summaryOf(isUnicodePunctuation), (Summary{807, 0x0C63A4E97C61916F}));
    EXPECT_EQ(summaryOf(isUnicodeOpenPunctuation), (Summary{75, 0x3838000243D07525}));
    EXPECT_EQ(summaryOf(isUnicodeClosePunctuation), (Summary{73, 0x9569586A0666F2C6}));
    EXPECT_EQ(summaryOf(isUnicodeSymbol), (Summary{7564, 0x021A9CF00EED8D97}));
    EXPECT_EQ(summaryOf(isUnicodeCurrencySymbol), (Summary{62, 0xCEA86A3877B4CC1F}));
    EXPECT_EQ(summaryOf(isUnicodeDecimalNumber), (Summary{650, 0xCE97D8A0EA3F3245}));
    EXPECT_EQ(summaryOf(isBidiLeftToRight), (Summary{270161, 0x0BE01E35788A46EA}));
    EXPECT_EQ(summaryOf(isBidiRightToLeft), (Summary{2904, 0x47C5A0213E356D81}));
}

TEST(Unicode, MappingsAreThoseOfTheRawData) {
    EXPECT_EQ(summaryOfMapping([](char32_t c) { return unlessSame(c, commonCaseFolding(c)); }),
              (Summary{1386, 0x123B4526C2B4B578}));
    EXPECT_EQ(summaryOfMapping([](char32_t c) {
                  const std::u16string_view to = fullCaseFolding(c);
                  return std::u32string(to.begin(), to.end());
              }),
              (Summary{104, 0x293DAFE2A753EC67}));
    EXPECT_EQ(summaryOfMapping([](char32_t c) {
                  return c > 0xFFFF ? std::u32string() : unlessSame(c, baseLetter(static_cast<char16_t>(c)));
              }),
              (Summary{792, 0x60FED806329CA0DF}));
}

TEST(Unicode, VersionIs13) {
    EXPECT_TRUE(isUnicodeCurrencySymbol(0x1E2FF));
    EXPECT_TRUE(isUnicodeCurrencySymbol(0x11FDD));
    EXPECT_TRUE(isUnicodeDecimalNumber(0x11950));
    EXPECT_TRUE(isUnicodeDecimalNumber(0x1FBF0));
    EXPECT_TRUE(isUnicodeSymbol(0x1FAD6)) << "of version 13";
    EXPECT_FALSE(isUnicodeCurrencySymbol(0x20C0)) << "of version 14";
    EXPECT_FALSE(isUnicodeSymbol(0x1FAE0)) << "of version 14";
}

/// Below U+0080 punctuation is the set of CommonMark, which contains symbols, too.
TEST(Unicode, AsciiPunctuationIncludesSymbols) {
    for (const char32_t c : std::u32string_view(U"!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~"))
        EXPECT_TRUE(isUnicodePunctuation(c)) << testing::PrintToString(c);
    for (const char32_t c : std::u32string_view(U"$+<=>^`|~"))
        EXPECT_TRUE(isUnicodeSymbol(c)) << testing::PrintToString(c);
    EXPECT_FALSE(isUnicodePunctuation(0x20AC)) << "the euro sign is a symbol only";
}

/// A cursor hands halves of surrogate pairs to predicates. UCD files give them class L.
TEST(Unicode, LoneSurrogatesAreInNoClass) {
    for (char32_t c = 0xD800; c < 0xE000; ++c) {
        EXPECT_FALSE(isUnicodePunctuation(c) || isUnicodeSymbol(c) || isUnicodeDecimalNumber(c))
            << testing::PrintToString(c);
        EXPECT_FALSE(isBidiLeftToRight(c) || isBidiRightToLeft(c)) << testing::PrintToString(c);
        EXPECT_EQ(commonCaseFolding(c), c);
    }
}

} // namespace

} // namespace Ondo
