#include "corvane/scan/Util.h"

#include <algorithm>
#include <limits>

#include <gtest/gtest.h>

namespace Ondo::Util {

namespace {

using namespace std::string_literals;

constexpr char16_t high = 0xD83D;
constexpr char16_t low = 0xDE00;

/// A function on text, and what it makes of some texts; failures print both as UTF-8.
struct Case {
    std::u16string text;
    std::u16string expected;
};

template <class Function>
void expectAll(Function function, std::initializer_list<Case> cases) {
    for (const Case& c : cases)
        EXPECT_EQ(function(c.text), c.expected)
            << utf8(c.text) << " became " << utf8(function(c.text)) << ", not " << utf8(c.expected);
}

TEST(Util, CodePointAtCombinesOnlyWholePairs) {
    const std::u16string text = {u'a', high, low, high, u'b', low, low, high};
    const char32_t expected[] = {U'a', 0x1F600, 0xDE00, 0xD83D, U'b', 0xDE00, 0xDE00, 0xD83D};
    for (std::size_t i = 0; i < text.size(); ++i)
        EXPECT_EQ(codePointAt(text, static_cast<std::int64_t>(i)), expected[i]) << i;
    EXPECT_EQ(codeUnitCount(0xFFFF), 1);
    EXPECT_EQ(codeUnitCount(0x10000), 2);
    EXPECT_DEATH(codePointAt(text, 8), "Util");
    EXPECT_DEATH(codePointAt(text, -1), "Util");
}

TEST(Util, Utf8AndBack) {
    const struct {
        std::u16string text;
        std::string bytes;
    } cases[] = {
        {u"", ""},
        {u"a\0b"s, "a\0b"s},
        {u"\u007F\u0080\u07FF\u0800\uFFFF", "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF"},
        {u"\U00010000\U0001F600\U0010FFFF", "\xF0\x90\x80\x80\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(utf8(c.text), c.bytes);
        EXPECT_EQ(utf16(c.bytes), c.text) << c.bytes;
    }
}

TEST(Util, LoneSurrogatesAreReplacedInUtf8) {
    EXPECT_EQ(utf8(std::u16string{high}), "\xEF\xBF\xBD");
    EXPECT_EQ(utf8(std::u16string{low, high, u'x'}), "\xEF\xBF\xBD\xEF\xBF\xBDx");
    EXPECT_EQ(utf8(std::u16string{high, high, low}), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
}

TEST(Util, MalformedUtf8IsReplaced) {
    const struct {
        std::string bytes;
        std::u16string expected;
    } cases[] = {
        {"a\x80z", u"a\uFFFDz"},                           // continuation without a lead
        {"\xC0\xAF\xC1\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD"}, // overlong in two bytes
        {"\xE0\x9F\xBF", u"\uFFFD\uFFFD\uFFFD"},           // overlong in three
        {"\xF0\x8F\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},           // a surrogate
        {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"}, // beyond U+10FFFF
        {"\xF5\xFF", u"\uFFFD\uFFFD"},
        {"\xC3", u"\uFFFD"}, // cut off
        {"\xE2\x82", u"\uFFFD"},
        {"\xF0\x9F\x98", u"\uFFFD"},
        {"\xF0\x9F\x98x", u"\uFFFDx"}, // broken off: the next character is kept
        {"\xE2\xE2\x82\xAC", u"\uFFFD\u20AC"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(utf16(c.bytes), c.expected) << testing::PrintToString(c.bytes);
}

TEST(Util, Utf16OfOneCodePoint) {
    EXPECT_EQ(utf16(U'a'), u"a");
    EXPECT_EQ(utf16(char32_t{0xFFFF}), u"\uFFFF");
    EXPECT_EQ(utf16(char32_t{0x1F600}), u"\U0001F600");
    EXPECT_EQ(utf16(char32_t{0xD83D}), std::u16string{high});
    EXPECT_EQ(utf16(char32_t{0x110000}), u"\uFFFD");
}

TEST(Util, Numbers) {
    constexpr auto max = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(toString(0), u"0");
    EXPECT_EQ(toString(-10), u"-10");
    EXPECT_EQ(toString(max), u"9223372036854775807");
    EXPECT_EQ(toString(-max - 1), u"-9223372036854775808");
    EXPECT_EQ(decimalToInteger(u""), 0);
    EXPECT_EQ(decimalToInteger(u"0012340"), 12340);
    EXPECT_EQ(decimalToInteger(u"9223372036854775807"), max);
    EXPECT_EQ(decimalToInteger(u"18446744073709551617"), 1) << "2^64 + 1 wraps";
    EXPECT_EQ(hexadecimalToInteger(u""), 0);
    EXPECT_EQ(hexadecimalToInteger(u"0aFAf9"), 0xAFAF9);
    EXPECT_EQ(hexadecimalToInteger(u"10000000000000002"), 2);
}

TEST(Util, BadDigitsStop) {
    for (const char16_t* digits : {u"-1", u" 1", u"1a", u"1:", u"/", u"\u0661"})
        EXPECT_DEATH(decimalToInteger(digits), "false.*decimalToInteger.*Util");
    for (const char16_t* digits : {u"g", u"1G", u"@", u"`", u"0x1", u"\uFF11"})
        EXPECT_DEATH(hexadecimalToInteger(digits), "false.*hexadecimalToInteger.*Util");
}

TEST(Util, Escape) {
    expectAll(escape, {{u"", u""}, {u"a\\n\n\r\tb", u"a\\\\n\\n\\r\\tb"}, {u"\\\\", u"\\\\\\\\"}});
    expectAll(unescape, {{u"", u""}, {u"a\\n\\r\\tb", u"a\n\r\tb"}, {u"\\\\x\\", u"\\x\\"}});
    // Lopsided on purpose: control characters are replaced before backslashes.
    expectAll(unescape, {{u"\\\\n", u"\\\n"}});
}

TEST(Util, ReplaceAll) {
    EXPECT_EQ(replaceAll(u"aaaaa", u"aa", u"b"), u"bba");
    EXPECT_EQ(replaceAll(u"a.b.", u".", u".."), u"a..b..");
    EXPECT_EQ(replaceAll(u"abc", u"abcd", u"x"), u"abc");
    EXPECT_EQ(replaceAll(u"abab", u"ab", u""), u"");
    EXPECT_EQ(replaceAll(u"ab", u"", u"x"), u"ab");
}

TEST(Util, AddHtmlEscaped) {
    std::u16string out = u"<p>";
    addHtmlEscaped(u"", out);
    addHtmlEscaped(u"\"&amp;\" <'x>", out);
    EXPECT_EQ(out, u"<p>&quot;&amp;amp;&quot; &lt;'x&gt;");
}

TEST(Util, PercentEscape) {
    expectAll(percentEscape,
              {
                  {u"", u""},
                  {u"a%20b", u"a%20b"},
                  {u"a b", u"a%20b"},
                  {u"%zz", u"%25zz"},
                  {u"%aF%4", u"%aF%254"},
                  {u"%", u"%25"},
                  {u"%%41", u"%25%41"},
                  {u"http://x.y/~a_b-c?d=(e)&f;g#'h'!$*+,@", u"http://x.y/~a_b-c?d=(e)&f;g#'h'!$*+,@"},
                  {u"\"<>[\\]^`{|}\n\x7F", u"%22%3C%3E%5B%5C%5D%5E%60%7B%7C%7D%0A%7F"},
                  {u"\u00E9\u20AC\U0001F600", u"%C3%A9%E2%82%AC%F0%9F%98%80"},
                  {{high, u'a'}, u"%EF%BF%BDa"},
                  {{low}, u"%EF%BF%BD"},
              });
    for (const char16_t* text : {u"a b%20%zz\u00E9%", u"%2%25%%%41"})
        EXPECT_EQ(percentEscape(percentEscape(text)), percentEscape(text));
    std::u16string out;
    addPercentEscape(0x12AF, out);
    EXPECT_EQ(out, u"%AF");
}

TEST(Util, TrimAndCountLeading) {
    EXPECT_EQ(countLeading(u"", Go::spaceOrTab), 0);
    EXPECT_EQ(countLeading(u" \t x ", Go::spaceOrTab), 3);
    EXPECT_EQ(countLeading(u"   ", Go::spaceOrTab), 3);
    EXPECT_EQ(trim(u" \t a b\t", Go::spaceOrTab), u"a b");
    EXPECT_EQ(trim(u" \n ", Go::whitespace), u"");
    EXPECT_EQ(trim(u"aba", Go::character(U'a')), u"b");
    EXPECT_EQ(trim(u"", Go::always), u"");
}

TEST(Util, MergeTrimUnicodeWhitespace) {
    expectAll(mergeTrimUnicodeWhitespace, {
                                              {u"", u""},
                                              {u" \t\u3000 ", u""},
                                              {u"  a \n\r b\u00A0c\u2003", u"a b c"},
                                              {u"a\u000Bb\u200Bc", u"a\u000Bb\u200Bc"}, // not whitespace here
                                          });
}

TEST(Util, Downcase) {
    EXPECT_EQ(downcaseAscii(u'Z'), u'z');
    expectAll([](std::u16string_view text) { return downcaseAscii(text); },
              {{u"@AZ[`az{\u00C4\u0391", u"@az[`az{\u00C4\u0391"}});
    expectAll(downcaseUnicode,
              {
                  {u"", u""},
                  {u"@AZ[`az{09", u"@az[`az{09"},
                  {u"\u00DF\u1E9E\uFB03", u"ssssffi"},
                  {u"\u0130I\u0131", u"i\u0307i\u0131"}, // no Turkic folding
                  {u"\u03A3\u03C3\u03C2", u"\u03C3\u03C3\u03C3"},
                  {u"\u212A\u00B5\u017F", u"k\u03BCs"},
                  {u"\u0100\u0101\u0139\u013A\u0178", u"\u0101\u0101\u013A\u013A\u00FF"},
                  {u"\u13A0\uAB70\u13F8", u"\u13A0\u13A0\u13F0"}, // Cherokee folds to capitals
                  {u"\U00010400\U0001E921", u"\U00010428\U0001E943"},
                  {{high, u'A', low, high}, {high, u'a', low, high}},
              });
}

TEST(Util, WidthFolding) {
    expectAll(widthFolding,
              {{u"\uFF01\uFF21\uFF5E\u3000", u"!A~ "}, {u"\uFF00\uFF5F\u3001", u"\uFF00\uFF5F\u3001"}});
}

TEST(Util, DiacriticFolding) {
    expectAll(diacriticFolding,
              {
                  {u"\u00C0\u00C5\u0100\u0102 \u00C7\u0106\u010C \u00D1\u0147\u01F8", u"AAAA CCC NNN"},
                  {u"\u00DD\u0176\u0178\u0232 \u011C\u01E6\u01F4 \u00E0\u0101\u00FF\u01F5", u"YYYY GGG aayg"},
                  {u"e\u0301\u036Fx\u0300", u"ex"},
                  {u"\u1EA5\u1EC7\u01D6\u1E69", u"aeus"}, // two marks
                  {u"\u03AC\u1FB7\u1F71\u0390\u03D3", u"\u03B1\u03B1\u03B1\u03B9\u03D2"},
                  {u"\u0439\u0451\u0407\u04D0", u"\u0438\u0435\u0406\u0410"},
                  {u"\u01FC\u01FE\u1E9B", u"\u00C6\u00D8\u017F"}, // bases beyond ASCII
                  {u"\u212A\u212B\u2126", u"KA\u03A9"},
                  {u"\u00C6\u00D8\u00DF\u0110\u0131\u0141",
                   u"\u00C6\u00D8\u00DF\u0110\u0131\u0141"},                              // no decomposition
                  {u"\u226E\u0385\u1FEF\u037E\u0374", u"\u226E\u0385\u1FEF\u037E\u0374"}, // signs
                  {u"\uAC00\u304C\u0622\u0929\uFB2A", u"\uAC00\u304C\u0622\u0929\uFB2A"}, // other scripts
                  {u"\u01C4\uFB01\u00AA\uFF21", u"\u01C4\uFB01\u00AA\uFF21"}, // compatibility forms
                  {u"\u02FF\u0370\U0001D15E", u"\u02FF\u0370\U0001D15E"},
                  {{high, low, low, high}, {high, low, low, high}},
              });
}

TEST(Util, StrongDirection) {
    for (const char32_t c : {U'a', U'\u00E9', U'\u4E2D', U'\U00010400', U'\u200E'})
        EXPECT_TRUE(isStrongLeftToRight(c) && !isStrongRightToLeft(c)) << testing::PrintToString(c);
    for (const char32_t c : {U'\u05D0', U'\u0627', U'\u07CA', U'\U0001E900', U'\u200F'})
        EXPECT_TRUE(isStrongRightToLeft(c) && !isStrongLeftToRight(c)) << testing::PrintToString(c);
    for (const char32_t c : {U'1', U' ', U'-', U'\u0661', U'\u0301', U'\U0001F600', char32_t{0x10FFFF}})
        EXPECT_FALSE(isStrongRightToLeft(c) || isStrongLeftToRight(c)) << testing::PrintToString(c);
}

struct DomainCase {
    const char16_t* domain;
    bool isCountry;
    bool isNonAscii;
    bool isShortlisted;
};

TEST(Util, TopLevelDomains) {
    const DomainCase cases[] = {
        {u"ac", true, false, false},
        {u"zw", true, false, false},
        {u"UK", true, false, false},
        {u"u\u212A", true, false, false},
        {u"GaL", true, false, false},
        {u"eus", true, false, false},
        {u"cat", true, false, false},
        {u"co", true, false, true},
        {u"Me", true, false, true},
        {u"com", false, false, true},
        {u"TECH", false, false, true},
        {u"", false, false, false},
        {u"c", false, false, false},
        {u"ukr", false, false, false},
        {u"gb", false, false, false},
        {u"\u0423\u041A\u0420", false, true, false}, // capitals of укр
        {u"укр", false, true, false},
        {u"中国", false, true, false},
        {u"中", false, false, false},
        {u"\u0B13\u0B21\u0B3C\u0B3F\u0B06", false, true, false},
        {u"\u0395\u03C5", false, true, false},
        {u"\u042E", false, true, false},
    };
    for (const DomainCase& c : cases) {
        EXPECT_EQ(isCountryTLD(c.domain), c.isCountry) << utf8(c.domain);
        EXPECT_EQ(isNonAsciiCountryTLD(c.domain), c.isNonAscii) << utf8(c.domain);
        EXPECT_EQ(isShortlistTLD(c.domain), c.isShortlisted) << utf8(c.domain);
    }
    EXPECT_EQ(countryTLD.size(), 255U);
    EXPECT_TRUE(
        std::all_of(countryTLD.begin(), countryTLD.end(), [](auto domain) { return isCountryTLD(domain); }));
}

} // namespace

} // namespace Ondo::Util
