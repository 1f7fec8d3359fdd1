#include "corvane/scan/Go.h"

#include <gtest/gtest.h>

#include <span>
#include <stdexcept>
#include <string>

namespace Ondo {
namespace {

Go at(std::u16string_view text, std::int64_t pos) {
    Go go(text);
    go.setPos(pos);
    return go;
}

constexpr std::int64_t none = Go::NoPos;
constexpr auto isA = Go::character(U'a');

using Move = std::int64_t (*)(Go&);

constexpr Move moves[] = {
    [](Go& go) { return go.nextMatch(Go::always, 0, 0); },
    [](Go& go) { return go.nextMatch(Go::always, 1, 1); },
    [](Go& go) { return go.nextWhile(Go::always); },
    [](Go& go) { return go.previousMatch(Go::always, 0, 0); },
    [](Go& go) { return go.previousWhile(Go::always, 1); },
    [](Go& go) { return go.nextMatchString(u""); },
    [](Go& go) { return go.nextMatchString(u"a"); },
    [](Go& go) { return go.nextMatchCaseInsensitiveString(u""); },
    [](Go& go) { return go.beginningOfLine(); },
    [](Go& go) { return go.endOfLine(); },
    [](Go& go) { return go.nextLine(); },
    [](Go& go) { return go.previousLine(); },
};

TEST(Go, FailureSticksThroughEveryMove) {
    for (const std::int64_t start : {none, std::int64_t{0}, std::int64_t{6}}) {
        for (std::size_t i = 0; i < std::size(moves); ++i) {
            Go go(u"aaaaaaa", 1, 5);
            go.setPos(start);
            EXPECT_EQ(moves[i](go), none) << "move " << i << " from " << start;
            EXPECT_EQ(go.pos(), none);
            EXPECT_TRUE(go.hasFailed());
            EXPECT_EQ(go.nextWhile(Go::always), none);
        }
    }
}

TEST(Go, AFailedCursorTestsFalse) {
    const Go go = at(u"aaa", none);
    EXPECT_FALSE(go.isNext(Go::always));
    EXPECT_FALSE(go.isPrevious(Go::always));
    EXPECT_FALSE(go.isWithOffset(1, Go::always));
    EXPECT_FALSE(go.isWithOffset(2, Go::always));
    EXPECT_FALSE(go.isNextString(u""));
    EXPECT_FALSE(go.isPreviousString(u""));
    EXPECT_FALSE(go.isNextCaseInsensitiveString(u""));
    EXPECT_FALSE(go.isAtLineStart());
    EXPECT_FALSE(go.isAtLineEnd());
}

struct MatchCase {
    const char16_t* text;
    std::int64_t pos, min, max;
    std::int64_t next;     ///< of nextMatch on the text
    std::int64_t previous; ///< of previousMatch on the same text, from its other end
};

TEST(Go, MatchConsumesFromMinToMax) {
    const MatchCase cases[] = {
        {u"ab", 0, 2, 5, none, none},
        {u"aaab", 0, 2, 5, 3, 1},
        {u"aaab", 0, 2, 2, 2, 2},
        {u"aaab", 0, 3, 1, 3, 1}, // a maximum below the minimum adds nothing
        {u"aaa", 0, 0, Go::NoLimit, 3, 0},
        {u"aaa", 0, 4, Go::NoLimit, none, none},
        {u"aaa", 0, 0, 0, 0, 3},
        {u"b", 0, 0, Go::NoLimit, 0, 1},
        {u"b", 0, 1, Go::NoLimit, none, none},
        {u"aaa", 3, 0, Go::NoLimit, 3, 0},
        {u"aaa", 3, 1, 1, none, none},
        {u"", 0, 0, 1, 0, 0},
    };
    for (const MatchCase& c : cases) {
        const std::u16string text = c.text;
        const auto size = static_cast<std::int64_t>(text.size());
        EXPECT_EQ(at(text, c.pos).nextMatch(isA, c.min, c.max), c.next) << c.min << ", " << c.max;
        const std::u16string mirrored(text.rbegin(), text.rend());
        EXPECT_EQ(at(mirrored, size - c.pos).previousMatch(isA, c.min, c.max), c.previous)
            << c.min << ", " << c.max;
    }
    EXPECT_EQ(at(u"aaa", 3).nextWhile(isA), 3) << "standing still is no failure";
    EXPECT_EQ(at(u"aaa", 0).nextWhile(isA, 2), 2);
    EXPECT_EQ(at(u"aaa", 3).previousWhile(isA, 2), 1);
}

TEST(Go, BoundsHideTheTextAround) {
    Go go(u"aaaaa", 1, 4);
    EXPECT_EQ(go.nextWhile(isA), 4);
    EXPECT_FALSE(go.isNext(isA));
    EXPECT_TRUE(go.isWithOffset(-3, isA));
    EXPECT_FALSE(go.isWithOffset(-4, isA));
    EXPECT_FALSE(go.isNextString(u"a"));
    EXPECT_TRUE(go.isPreviousString(u"aaa"));
    EXPECT_FALSE(go.isPreviousString(u"aaaa"));
    EXPECT_EQ(go.previousWhile(isA), 1);
    EXPECT_FALSE(go.isPrevious(isA));
    EXPECT_TRUE(go.isNextString(u"aaa"));
    EXPECT_FALSE(go.isNextString(u"aaaa"));
    EXPECT_FALSE(go.isNextCaseInsensitiveString(u"AAAA"));
    EXPECT_EQ(go.previousMatch(isA, 1, 1), none);
}

TEST(Go, Strings) {
    EXPECT_TRUE(at(u"ab", 2).isNextString(u""));
    EXPECT_TRUE(at(u"ab", 0).isPreviousString(u""));
    EXPECT_FALSE(at(u"ab", 3).isPreviousString(u""));
    EXPECT_TRUE(at(u"ab", 2).isPreviousString(u"ab"));
    EXPECT_FALSE(at(u"ab", 1).isPreviousString(u"ab"));
    EXPECT_EQ(at(u"abc", 1).nextMatchString(u"bc"), 3);
    EXPECT_EQ(at(u"abc", 1).nextMatchString(u"BC"), none);
    EXPECT_EQ(at(u"[az", 1).nextMatchCaseInsensitiveString(u"AZ"), 3);
    EXPECT_EQ(at(u"[AZ", 1).nextMatchCaseInsensitiveString(u"az"), 3);
    EXPECT_EQ(at(u"abc", 2).nextMatchCaseInsensitiveString(u"cd"), none);
    // Only letters are folded, and only those of ASCII.
    EXPECT_FALSE(Go(u"[`{@").isNextCaseInsensitiveString(u"{@[`"));
    EXPECT_FALSE(Go(u"\u00E4").isNextCaseInsensitiveString(u"\u00C4"));
    EXPECT_FALSE(Go(u"k").isNextCaseInsensitiveString(u"\u212A"));
}

struct LineCase {
    std::int64_t beginning, end, next, previous;
    bool isStart, isEnd;
};

void expectLines(std::u16string_view text, std::span<const LineCase> cases) {
    std::int64_t pos = 0;
    for (const LineCase& c : cases) {
        EXPECT_EQ(at(text, pos).beginningOfLine(), c.beginning) << pos;
        EXPECT_EQ(at(text, pos).endOfLine(), c.end) << pos;
        EXPECT_EQ(at(text, pos).nextLine(), c.next) << pos;
        EXPECT_EQ(at(text, pos).previousLine(), c.previous) << pos;
        EXPECT_EQ(at(text, pos).isAtLineStart(), c.isStart) << pos;
        EXPECT_EQ(at(text, pos).isAtLineEnd(), c.isEnd) << pos;
        ++pos;
    }
    EXPECT_EQ(pos, static_cast<std::int64_t>(text.size()) + 1) << "one case a position";
}

TEST(Go, LinesFromEveryPosition) {
    const LineCase mixed[] = {
        {0, 1, 3, none, true, false},  {0, 1, 3, none, false, true},
        {0, 4, 3, none, false, false}, // between CR and LF
        {3, 4, 5, 1, true, false},     {3, 4, 5, 1, false, true},
        {5, 6, 7, 4, false, false}, // behind a lone CR: no line start
        {5, 6, 7, 4, false, true},     {7, 7, 8, 6, true, true},
        {8, 9, none, 7, true, false},  {8, 9, none, 7, false, true},
    };
    expectLines(u"a\r\nb\rc\n\nd", mixed);
    const LineCase nothing[] = {{0, 0, none, none, true, true}};
    expectLines(u"", nothing);
    const LineCase pair[] = {
        {0, 0, 2, none, true, true}, {0, 2, 2, none, false, false}, {2, 2, none, 0, true, true}};
    expectLines(u"\r\n", pair);
    const LineCase reversed[] = {
        {0, 0, 1, none, true, true}, {1, 1, 2, 0, true, true}, {2, 2, none, 1, false, true}};
    expectLines(u"\n\r", reversed);
    // Neither a form feed nor a Unicode separator ends a line.
    EXPECT_EQ(Go(u"a\f\v\u0085\u2028\u2029b").endOfLine(), 7);
}

TEST(Go, LinesStopAtTheBounds) {
    EXPECT_EQ(Go(u"ab\r\nc", 1, 3).nextLine(), 3);
    EXPECT_EQ(Go(u"ab\r\nc", 1, 2).nextLine(), none);
    EXPECT_EQ(Go(u"abc", 1, 2).endOfLine(), 2);
    EXPECT_EQ(Go(u"a\nb", 2, 3).previousLine(), none);
    Go go(u"abc\r\n", 1, 4);
    go.setPos(3);
    EXPECT_EQ(Go(go).beginningOfLine(), 1);
    go.setPos(4);
    EXPECT_EQ(go.beginningOfLine(), 4) << "the LF is out of sight";
}

TEST(Go, UncheckedReads) {
    EXPECT_EQ(at(u"ab", 1).unsafePeekNextCharacter(), u'b');
    EXPECT_EQ(at(u"ab", 1).unsafePeekPreviousCharacter(), u'a');
    EXPECT_DEATH(at(u"ab", 2).unsafePeekNextCharacter(), "pos_ < maxPos_.*Go");
    EXPECT_DEATH(Go(u"abc", 0, 0).unsafePeekNextCharacter(), "pos_ < maxPos_");
    EXPECT_DEATH(at(u"ab", 0).unsafePeekPreviousCharacter(), "pos_ > minPos_.*Go");
    EXPECT_DEATH(at(u"ab", none).unsafePeekPreviousCharacter(), "pos_ > minPos_");
}

TEST(Go, SubstringIsClampedToTheView) {
    const Go go(u"abc", 1, 2);
    EXPECT_EQ(go.substring(0, 3), u"abc") << "not to the bounds";
    EXPECT_EQ(go.substring(1, 9), u"bc");
    EXPECT_EQ(go.substring(3, 3), u"");
    EXPECT_THROW(go.substring(4, 5), std::out_of_range);
    EXPECT_DEATH(go.substring(2, 1), "startPos <= endPos.*Go");
}

template <class P>
std::u32string membersOf(P predicate) {
    std::u32string members;
    for (char32_t c = 0; c <= 0x110000; ++c)
        if (predicate(c)) members += c;
    return members;
}

TEST(Go, SmallClassesAreListed) {
    EXPECT_EQ(membersOf(Go::never), U"");
    EXPECT_EQ(membersOf(Go::no(Go::always)), U"");
    EXPECT_EQ(membersOf(Go::spaceOrTab), U"\t ");
    EXPECT_EQ(membersOf(Go::whitespace), U"\t\n\v\f\r ");
    EXPECT_EQ(membersOf(Go::unicodeWhitespace),
              U"\t\n\f\r \u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009\u200A"
              U"\u2028\u2029\u202F\u205F\u3000");
    EXPECT_EQ(membersOf(Go::lineEndingCharacter), U"\n\r");
    EXPECT_EQ(membersOf(Go::asciiPunctuation), U"!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~");
    EXPECT_EQ(membersOf(Go::decimalNumber), U"0123456789");
    EXPECT_EQ(membersOf(Go::hexadecimalNumber), U"0123456789ABCDEFabcdef");
    EXPECT_EQ(membersOf(Go::characterAnyOf(u"b\u00E4a")), U"ab\u00E4");
    EXPECT_EQ(membersOf(Go::eitherOf(Go::spaceOrTab, Go::lineEndingCharacter)), U"\t\n\r ");
    EXPECT_EQ(membersOf(Go::eitherOf(Go::character(U'\U0001F600'), Go::no(Go::always))), U"\U0001F600");
    EXPECT_TRUE(Go::unicodePunctuationOrSymbol(U'\u20AC'));
    EXPECT_FALSE(Go::unicodePunctuation(U'\u20AC'));
    EXPECT_TRUE(Go::unicodeOpenClosePunctuation(U'(') && Go::unicodeOpenClosePunctuation(U'\u300D'));
    EXPECT_FALSE(Go::unicodeOpenClosePunctuation(U'-'));
}

TEST(Go, LogogramRanges) {
    std::u32string expected;
    for (const auto& [first, last] : std::initializer_list<std::pair<char32_t, char32_t>>{{0x2E80, 0x2FDF},
                                                                                          {0x3000, 0x30FF},
                                                                                          {0x3200, 0x4DBF},
                                                                                          {0x4E00, 0x9FCF},
                                                                                          {0xAC00, 0xD7AF},
                                                                                          {0xF900, 0xFAFF},
                                                                                          {0xFE30, 0xFE4F},
                                                                                          {0x20000, 0x2A6DF},
                                                                                          {0x2F800, 0x2FA1F}})
        for (char32_t c = first; c <= last; ++c)
            expected += c;
    EXPECT_TRUE(membersOf(Go::logogram) == expected);
}

TEST(Go, PredicatesSeeHalvesOfSurrogatePairs) {
    const std::u16string_view emoji = u"\U0001F600";
    EXPECT_EQ(Go(emoji).nextWhile(Go::character(0x1F600)), 0);
    EXPECT_EQ(Go(emoji).nextWhile(Go::unicodeSymbol), 0);
    EXPECT_EQ(Go(emoji).nextMatch(Go::character(0xD83D), 1, Go::NoLimit), 1);
}

} // namespace
} // namespace Ondo
