#pragma once

#include <string_view>

#include "corvane/scan/Export.h"

/// What Unicode 13.0.0 says about a character, for any value of char32_t.
///
/// Lone surrogates, unassigned code points and values beyond U+10FFFF are in no class and map to themselves.
/// In particular, currency signs and emoji that came after version 13, such as U+20C0, are no symbols.
///
/// The definitions in generated/ are written by tools/generate_unicode.py. They decide by comparisons alone,
/// with ASCII first, and read no tables.

namespace Ondo {

/// The ASCII punctuation of CommonMark (all that is printable there, but letters, digits and the space), and
/// general categories Pc, Pd, Pe, Pf, Pi, Po and Ps beyond ASCII.
CORVANE_EXPORT bool isUnicodePunctuation(char32_t c);
/// General category Ps.
CORVANE_EXPORT bool isUnicodeOpenPunctuation(char32_t c);
/// General category Pe.
CORVANE_EXPORT bool isUnicodeClosePunctuation(char32_t c);
/// General categories Sc, Sk, Sm and So.
CORVANE_EXPORT bool isUnicodeSymbol(char32_t c);
/// General category Sc.
CORVANE_EXPORT bool isUnicodeCurrencySymbol(char32_t c);
/// General category Nd.
CORVANE_EXPORT bool isUnicodeDecimalNumber(char32_t c);

/// Bidirectional class L.
CORVANE_EXPORT bool isBidiLeftToRight(char32_t c);
/// Bidirectional classes R and AL.
CORVANE_EXPORT bool isBidiRightToLeft(char32_t c);

/// The case folding of `c` when it is one character (status C); `c` itself when there is none.
CORVANE_EXPORT char32_t commonCaseFolding(char32_t c);
/// The case folding of `c` when it is two or three code units (status F), as "ss" for U+00DF; empty for all
/// other characters. A character has at most one of the two foldings.
CORVANE_EXPORT std::u16string_view fullCaseFolding(char32_t c);

/// The letter that the canonical decomposition of `c` begins with, if it is Latin, Greek or Cyrillic; `c`
/// itself when there is no decomposition, or one of another script, or one of a sign.
CORVANE_EXPORT char16_t baseLetter(char16_t c);

} // namespace Ondo
