#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "corvane/scan/Assert.h"
#include "corvane/scan/Export.h"
#include "corvane/scan/Go.h"
#include "corvane/scan/Unicode.h"

/// Text utilities: pure functions over UTF-16 text, re-entrant, of which those called `add...` append.
///
/// Lengths and offsets count UTF-16 code units. No text is malformed: a lone surrogate is a character of its
/// own, which only utf8() and percentEscape() can't keep.

namespace Ondo::Util {

// Code points

/// The code point at `offset`, with a surrogate pair combined. Asserts that `offset` lies in the text.
constexpr char32_t codePointAt(std::u16string_view text, std::int64_t offset) {
    const auto at = static_cast<std::size_t>(offset);
    CORVANE_ASSERT(at < text.size(), "Util");
    const char32_t high = text[at];
    if ((high & 0xFC00) != 0xD800 || at + 1 == text.size()) return high;
    const char32_t low = text[at + 1];
    return (low & 0xFC00) == 0xDC00 ? 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00) : high;
}

/// How many code units `c` takes up: 1 or 2.
constexpr std::int64_t codeUnitCount(char32_t c) {
    return c < 0x10000 ? 1 : 2;
}

// Conversions

/// Lone surrogates become U+FFFD.
CORVANE_EXPORT std::string utf8(std::u16string_view text);
/// Each malformed sequence becomes one U+FFFD: a byte that begins nothing, or what is there of a sequence
/// that breaks off. Overlong forms, surrogates and values beyond U+10FFFF are malformed at their first byte.
CORVANE_EXPORT std::u16string utf16(std::string_view bytes);
/// One or two code units, a surrogate as it stands; U+FFFD for a value beyond U+10FFFF.
CORVANE_EXPORT std::u16string utf16(char32_t c);
CORVANE_EXPORT void addUtf16(char32_t c, std::u16string& out);

/// Decimal, with a minus sign when negative.
CORVANE_EXPORT std::u16string toString(std::int64_t number);
/// The value of decimal digits, 0 for none, modulo 2^64. Asserts that all are digits.
CORVANE_EXPORT std::int64_t decimalToInteger(std::u16string_view digits);
/// The value of hexadecimal digits of either case, in the same way.
CORVANE_EXPORT std::int64_t hexadecimalToInteger(std::u16string_view digits);

// Escaping

/// A backslash and the control characters LF, CR and tab as "\\", "\n", "\r" and "\t": text on one line, for
/// debugging.
CORVANE_EXPORT std::u16string escape(std::u16string_view text);
/// Replaces "\n", "\r", "\t" and, last, "\\". This is not the exact inverse of escape(): an escaped
/// backslash before an n, r or t is taken for a control character.
CORVANE_EXPORT std::u16string unescape(std::u16string_view text);
/// Replaces all occurrences from left to right; they do not overlap. An empty `from` occurs nowhere.
CORVANE_EXPORT std::u16string replaceAll(std::u16string_view text, std::u16string_view from,
                                         std::u16string_view to);
/// Quotation mark, ampersand, less-than and greater-than as entities.
CORVANE_EXPORT void addHtmlEscaped(std::u16string_view text, std::u16string& out);

/// What may not stand in a URL in HTML: controls, space, all beyond ASCII, and " % < > [ \ ] ^ ` { | }.
CORVANE_EXPORT bool shouldPercentEscape(char32_t c);
/// "%" and the low byte of `c` as two capital hexadecimal digits.
CORVANE_EXPORT void addPercentEscape(char32_t c, std::u16string& out);
/// A link destination for HTML: characters of shouldPercentEscape() as their escaped UTF-8 bytes. Escapes
/// that are there already stay, so that escaping twice is escaping once. Lone surrogates become U+FFFD.
CORVANE_EXPORT std::u16string percentEscape(std::u16string_view destination);

// Trimming and counting. A predicate is a callable from char32_t to bool, as in Go.

/// How many code units at the start satisfy the predicate.
template <class P>
std::int64_t countLeading(std::u16string_view text, P predicate) {
    return Go(text).nextWhile(predicate, Go::NoLimit);
}

/// The part of `text` without the code units at both ends that satisfy the predicate.
template <class P>
std::u16string_view trim(std::u16string_view text, P predicate) {
    text.remove_prefix(static_cast<std::size_t>(countLeading(text, predicate)));
    while (!text.empty() && predicate(text.back()))
        text.remove_suffix(1);
    return text;
}

/// Each run of Go::unicodeWhitespace as one space, with none at the ends.
CORVANE_EXPORT std::u16string mergeTrimUnicodeWhitespace(std::u16string_view text);

// Folding, for the comparison of labels and for search

/// ASCII letters only.
constexpr char16_t downcaseAscii(char16_t c) {
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c - u'A' + u'a') : c;
}
CORVANE_EXPORT std::u16string downcaseAscii(std::u16string_view text);
/// Full case folding of Unicode 13.0.0, which may lengthen the text: U+00DF becomes "ss".
CORVANE_EXPORT std::u16string downcaseUnicode(std::u16string_view text);
/// Fullwidth ASCII and the ideographic space as plain ASCII.
CORVANE_EXPORT std::u16string widthFolding(std::u16string_view text);
/// Drops U+0300 to U+036F and takes the diacritics off Latin, Greek and Cyrillic letters. Letters that do
/// not decompose, such as U+00D8, stay.
CORVANE_EXPORT std::u16string diacriticFolding(std::u16string_view text);

// Classification

/// Bidirectional class L.
inline bool isStrongLeftToRight(char32_t c) {
    return isBidiLeftToRight(c);
}
/// Bidirectional classes R and AL.
inline bool isStrongRightToLeft(char32_t c) {
    return isBidiRightToLeft(c);
}

/// Top-level domains of countries and the regional "cat", "eus" and "gal", in ASCII, small and sorted.
CORVANE_EXPORT extern const std::span<const std::u16string_view> countryTLD;

/// In these three, case is folded with downcaseUnicode().
CORVANE_EXPORT bool isCountryTLD(std::u16string_view domain);
/// Domains of countries in their own scripts.
CORVANE_EXPORT bool isNonAsciiCountryTLD(std::u16string_view domain);
/// Widely used domains that are taken for a URL's without further evidence.
CORVANE_EXPORT bool isShortlistTLD(std::u16string_view domain);

} // namespace Ondo::Util
