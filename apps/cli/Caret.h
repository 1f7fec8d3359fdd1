#pragma once

#include <cstdint>

#include "corvane/client/CVNAST.h"

/// Where a caret can go in a note, in UTF-16 code units. Each call reads no more text than it passes.
namespace Cli::Caret {

/// The start of what a person takes for one character and that ends at an offset above 0: a code point, or a
/// carriage return with its line feed.
std::int64_t before(const CVNAST& note, std::int64_t offset);
/// The end of the one that starts at an offset below the length of the text.
std::int64_t after(const CVNAST& note, std::int64_t offset);

std::int64_t lineStart(const CVNAST& note, std::int64_t offset);
/// In front of the line ending.
std::int64_t lineEnd(const CVNAST& note, std::int64_t offset);
/// How many characters lie between the start of the line and an offset in it.
std::int64_t columnOf(const CVNAST& note, std::int64_t offset);
/// The place of a column in the line that starts at an offset, or the end of the line if that comes first.
std::int64_t atColumn(const CVNAST& note, std::int64_t lineStart, std::int64_t column);

} // namespace Cli::Caret
