#include "Caret.h"

namespace Cli::Caret {

namespace {

/// U+0000 outside the text.
char16_t unitAt(const CVNAST& note, std::int64_t offset) {
    if (offset < 0 || offset >= note.markdownLength()) return u'\0';
    return note.markdownIn({offset, 1}).front();
}

/// Whether an offset lies between two units that no caret parts.
bool isInsideCharacter(const CVNAST& note, std::int64_t offset) {
    const char16_t left = unitAt(note, offset - 1);
    const char16_t right = unitAt(note, offset);
    const bool isPair = (left & 0xFC00) == 0xD800 && (right & 0xFC00) == 0xDC00;
    return isPair || (left == u'\r' && right == u'\n');
}

bool isLineEnding(char16_t c) {
    return c == u'\n' || c == u'\r';
}

} // namespace

std::int64_t before(const CVNAST& note, std::int64_t offset) {
    return offset - (isInsideCharacter(note, offset - 1) ? 2 : 1);
}

std::int64_t after(const CVNAST& note, std::int64_t offset) {
    return offset + (isInsideCharacter(note, offset + 1) ? 2 : 1);
}

std::int64_t lineStart(const CVNAST& note, std::int64_t offset) {
    while (offset > 0 && (!isLineEnding(unitAt(note, offset - 1)) || isInsideCharacter(note, offset)))
        --offset;
    return offset;
}

std::int64_t lineEnd(const CVNAST& note, std::int64_t offset) {
    while (offset < note.markdownLength() && !isLineEnding(unitAt(note, offset)))
        ++offset;
    return offset;
}

std::int64_t columnOf(const CVNAST& note, std::int64_t offset) {
    std::int64_t column = 0;
    for (std::int64_t at = lineStart(note, offset); at < offset; at = after(note, at))
        ++column;
    return column;
}

std::int64_t atColumn(const CVNAST& note, std::int64_t lineStart, std::int64_t column) {
    const std::int64_t end = lineEnd(note, lineStart);
    std::int64_t at = lineStart;
    for (; column > 0 && at < end; --column)
        at = after(note, at);
    return at;
}

} // namespace Cli::Caret
