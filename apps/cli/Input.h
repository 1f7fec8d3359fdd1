#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Cli {

/// How messages call a file: by its path, or "standard input" for "-".
std::string displayName(const std::string& file);

/// All bytes of a file, or of standard input for "-". Throws a Failure that names the file when they can't be
/// read or are not UTF-8; NUL and a byte order mark are text like any other.
std::string readUtf8(const std::string& file);
/// The same as UTF-16.
std::u16string readText(const std::string& file);
/// The same without a byte order mark at the start, which would hide front matter and stand in titles.
std::u16string readPlainText(const std::string& file);

/// The offset in bytes of the first sequence that is not UTF-8; -1 when there is none. Overlong forms,
/// surrogates and what lies beyond U+10FFFF are none.
std::int64_t invalidUtf8(std::string_view bytes);

} // namespace Cli
