#pragma once

#include <cstdint>
#include <string_view>

#include "corvane/scan/Export.h"

namespace CVN {

/// How much there is to read in a plain text. Markup counts like any other text.
///
/// A word is a run of characters without white space, "-" and U+2213; punctuation neither starts nor ends
/// one. Each character of a script that sets no spaces (Han, kana, and with them CJK punctuation and
/// full-width forms) is a word of its own. A paragraph is a line with at least one character.
class CORVANE_EXPORT TextStatistics {
public:
    std::uint32_t wordsCount = 0;
    std::uint32_t paragraphCount = 0;
    std::uint32_t readTime = 0; ///< whole seconds: 300 logograms or 250 other words a minute

    /// A lone surrogate is a character of its own.
    explicit TextStatistics(std::u16string_view text);

    /// What ends a word.
    static bool isWordDelimiter(char32_t c);
    /// A character that is a word.
    static bool isWordCharacter(char32_t c);
    /// Punctuation.
    static bool isIgnorable(char32_t c);

    // Characters of a text by offset in code units; false for an offset outside of it.

    /// A character that is a word, but for CJK punctuation and full-width forms.
    static bool isSingleCharacterWord(std::u16string_view text, std::int64_t index);
    /// Whether words end there: a character that is a word, punctuation or white space.
    static bool isWordSeparator(std::u16string_view text, std::int64_t index);

private:
    void processString(std::u16string_view text);
};

} // namespace CVN
