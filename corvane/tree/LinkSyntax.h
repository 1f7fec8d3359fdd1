#pragma once

#include <string>

#include "corvane/scan/GoLines.h"

/// The pieces that links, images, footnotes and definitions are written with.
///
/// Each function takes the cursor over its piece. Where that fails the cursor has failed, too, unless said
/// otherwise. Offsets are UTF-16 code units, lines are indices in the table of lines.

namespace Ondo::LinkSyntax {

/// A stretch between two delimiters.
struct Span {
    std::int64_t start = Go::NoPos;
    std::int64_t end = Go::NoPos;
    std::int64_t line = 0;     ///< of the start
    std::int64_t lastLine = 0; ///< of the end

    bool isEmpty() const { return end <= start; }
};

struct Destination {
    Span span;
    bool isBracketed = false; ///< stands between "<" and ">", which lie outside the span
};

struct Title {
    Span span; ///< without its delimiters
    bool isPresent = false;

    std::int64_t start() const { return span.start - 1; }
};

/// Whitespace with at most one line ending. Never fails.
inline void matchInterspacing(GoLines& go) {
    go.nextWhile(Go::whitespace);
    go.nextWhileLineEnding(1);
    go.nextWhile(Go::whitespace);
}

/// "<" to ">" on one line, or a run without blanks and controls, which ends before a ")" that closes nothing
/// in it. The run may be empty and may leave a "(" open.
CORVANE_EXPORT Destination matchDestination(GoLines& go);
/// The run as above, for a cursor that does not stand on "<".
CORVANE_EXPORT Span matchBareDestination(GoLines& go);

/// A text in quotes or parentheses. Nothing of the kind at the cursor is no failure: then none is present.
CORVANE_EXPORT Title matchTitle(GoLines& go);

/// "[" to the first "]". Fails at a further "[", at a line with nothing on it, and when all is whitespace. A
/// backslash takes the power from the character behind it.
CORVANE_EXPORT Span matchLabel(GoLines& go);

/// The text of a label as its lines have it, normalised.
CORVANE_EXPORT std::u16string labelString(std::u16string_view text, const Lines& lines, const Span& label);

} // namespace Ondo::LinkSyntax
