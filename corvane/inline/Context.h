#pragma once

#include <string_view>

#include "corvane/scan/Escape.h"

/// What inline rules ask of the text before and behind them.

namespace Ondo::Inline {

/// The emoji that count as punctuation in front of an opening delimiter, so that a coloured mark can stand
/// before it. The first five are also the colours of highlights, in this order.
inline constexpr std::u16string_view colorEmoji[] = {
    u"\U0001F534", u"\U0001F535", u"\U0001F7E2", u"\U0001F7E1", u"\U0001F7E3", u"\U0001F7E4", u"\U0001F7E0"};

inline bool isBehindColorEmoji(const Go& go) {
    // All seven end in a low surrogate, which nearly no text does.
    if (!go.isPrevious([](char32_t c) { return (c & 0xFC00) == 0xDC00; })) return false;
    for (const std::u16string_view emoji : colorEmoji)
        if (go.isPreviousString(emoji)) return true;
    return false;
}

/// Whether a construct of its own may begin here: at the start of the range, or behind whitespace,
/// punctuation or one of the emoji.
inline bool hasOpenLeft(const Go& go) {
    return go.pos() == go.minPos() || go.isPrevious(Go::unicodeWhitespace) ||
           go.isPrevious(Go::unicodePunctuation) || isBehindColorEmoji(go);
}

/// Whether a construct of its own may end here: at the end of the range, or before whitespace or punctuation.
inline bool hasOpenRight(const Go& go) {
    return go.pos() == go.maxPos() || go.isNext(Go::unicodeWhitespace) || go.isNext(Go::unicodePunctuation);
}

/// Whether the character before the cursor is a `c` that no backslash escapes, so that a run of them began
/// there or earlier.
inline bool isBehindUnescaped(const Go& go, char32_t c) {
    if (!go.isPrevious(Go::character(c))) return false;
    Go before = go;
    before.setPos(go.pos() - 1);
    return !isNextCharacterEscaped(before);
}

} // namespace Ondo::Inline
