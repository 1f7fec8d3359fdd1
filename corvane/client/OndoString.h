#pragma once

#include <string>
#include <string_view>

/// Strings over the border between a platform and the library. Both sides hold UTF-16 here, without a byte
/// order mark, so that nothing changes; a platform with strings of its own converts in these two functions.

constexpr std::u16string_view ondoString(std::u16string_view string) {
    return string;
}

inline std::u16string stringWithOndoString(std::u16string string) {
    return string;
}
