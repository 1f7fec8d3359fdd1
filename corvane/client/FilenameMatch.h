#pragma once

#include <array>
#include <string>
#include <string_view>

#include "corvane/scan/Export.h"

namespace CVN {

/// File names, and the forms that they take in URLs.
class CORVANE_EXPORT FilenameMatch {
public:
    /// The text that percent escapes, of either case, and the characters between them stand for as UTF-8. A
    /// "%" without two digits behind it stays; what is no UTF-8 becomes U+FFFD.
    static std::u16string percentDecode(std::u16string_view text);
    /// The URL as it is, made safe by StringBuilder::safeURLString(), and decoded.
    static std::array<std::u16string, 3> filenameVariants(std::u16string_view url);
    /// Whether the name is one of the URL's variants, to the letter.
    static bool filenameMatches(std::u16string_view name, std::u16string_view url);
};

} // namespace CVN
