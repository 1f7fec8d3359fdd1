#include "corvane/analysis/TextStatistics.h"

#include <array>
#include <cmath>

#include "corvane/scan/Util.h"

namespace CVN {

using Ondo::Go;
using Ondo::Predicate::isIn;

namespace {

constexpr float logogramsPerMinute = 300;
constexpr float wordsPerMinute = 250;
constexpr float secondsPerMinute = 60;

/// The scripts proper, without their punctuation and forms.
constexpr bool isOfLogographicScript(char32_t c) {
    return isIn(c, 0x3040, 0x30FF) || isIn(c, 0x3400, 0x4DBF) || isIn(c, 0x4E00, 0x9FFC) ||
           isIn(c, 0x20000, 0x2A6DF) || isIn(c, 0x2A700, 0x2EBEF) || isIn(c, 0x30000, 0x3134F);
}

/// More than what parsing takes for a line ending: texts come from anywhere.
constexpr bool isLineBreak(char32_t c) {
    return isIn(c, 0x0A, 0x0D) || c == 0x85 || c == 0x2028 || c == 0x2029;
}

/// The first product is rounded together with the sum.
std::uint32_t secondsToRead(std::uint32_t logograms, std::uint32_t otherWords) {
    const float others = static_cast<float>(otherWords) / wordsPerMinute * secondsPerMinute;
    const float minutes = static_cast<float>(logograms) / logogramsPerMinute;
    return static_cast<std::uint32_t>(std::fma(minutes, secondsPerMinute, others));
}

enum class Kind : std::uint8_t { Delimiter, Logogram, Punctuation, Other };

/// The kinds of ASCII, which most texts are made of.
constexpr auto asciiKinds = [] {
    std::array<Kind, 0x80> kinds{};
    for (char32_t c = 0; c < kinds.size(); ++c) {
        const Kind rest = Ondo::Predicate::isAsciiPunctuation(c) ? Kind::Punctuation : Kind::Other;
        kinds[c] = c == U'-' || Ondo::Predicate::isUnicodeWhitespace(c) ? Kind::Delimiter : rest;
    }
    return kinds;
}();

Kind kindOf(char32_t c) {
    if (c < asciiKinds.size()) return asciiKinds[c];
    if (TextStatistics::isWordDelimiter(c)) return Kind::Delimiter;
    if (TextStatistics::isWordCharacter(c)) return Kind::Logogram;
    return TextStatistics::isIgnorable(c) ? Kind::Punctuation : Kind::Other;
}

bool isInText(std::u16string_view text, std::int64_t index) {
    return index >= 0 && index < std::ssize(text);
}

} // namespace

TextStatistics::TextStatistics(std::u16string_view text) {
    processString(text);
}

bool TextStatistics::isWordDelimiter(char32_t c) {
    return Go::unicodeWhitespace(c) || c == U'-' || c == 0x2213;
}

bool TextStatistics::isWordCharacter(char32_t c) {
    return c >= 0x3000 && (isOfLogographicScript(c) || isIn(c, 0x3000, 0x303F) || isIn(c, 0xFF00, 0xFFEF));
}

bool TextStatistics::isIgnorable(char32_t c) {
    return Go::unicodePunctuation(c);
}

bool TextStatistics::isSingleCharacterWord(std::u16string_view text, std::int64_t index) {
    return isInText(text, index) && isOfLogographicScript(Ondo::Util::codePointAt(text, index));
}

bool TextStatistics::isWordSeparator(std::u16string_view text, std::int64_t index) {
    if (!isInText(text, index)) return false;
    const char32_t c = Ondo::Util::codePointAt(text, index);
    return isOfLogographicScript(c) || Go::unicodePunctuation(c) || Go::unicodeWhitespace(c);
}

void TextStatistics::processString(std::u16string_view text) {
    std::uint32_t logograms = 0;
    bool inWord = false;
    bool afterLineBreak = true;
    for (std::int64_t at = 0; at < std::ssize(text);) {
        const char32_t c = Ondo::Util::codePointAt(text, at);
        at += Ondo::Util::codeUnitCount(c);
        const Kind kind = kindOf(c);
        if (kind == Kind::Logogram) ++logograms;
        if (kind == Kind::Logogram || (kind == Kind::Other && !inWord)) ++wordsCount;
        if (kind != Kind::Punctuation) inWord = kind == Kind::Other;
        const bool isBreak = isLineBreak(c);
        if (afterLineBreak && !isBreak) ++paragraphCount;
        afterLineBreak = isBreak;
    }
    readTime = secondsToRead(logograms, wordsCount - logograms);
}

} // namespace CVN
