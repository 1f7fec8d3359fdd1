#include "corvane/client/FilenameMatch.h"

#include <algorithm>

#include "corvane/client/StringBuilder.h"
#include "corvane/scan/Predicate.h"
#include "corvane/scan/Util.h"

namespace CVN {

namespace Util = Ondo::Util;

namespace {

bool startsWithEscape(std::u16string_view text) {
    using Ondo::Predicate::isHexadecimalNumber;
    return text.size() >= 3 && text[0] == u'%' && isHexadecimalNumber(text[1]) &&
           isHexadecimalNumber(text[2]);
}

} // namespace

std::u16string FilenameMatch::percentDecode(std::u16string_view text) {
    std::string bytes;
    while (!text.empty()) {
        std::size_t taken = 3;
        if (startsWithEscape(text)) {
            bytes += static_cast<char>(Util::hexadecimalToInteger(text.substr(1, 2)));
        } else {
            taken = std::min(text.find(u'%', 1), text.size());
            bytes += Util::utf8(text.substr(0, taken));
        }
        text.remove_prefix(taken);
    }
    return Util::utf16(bytes);
}

std::array<std::u16string, 3> FilenameMatch::filenameVariants(std::u16string_view url) {
    return {std::u16string(url), StringBuilder::safeURLString(url), percentDecode(url)};
}

bool FilenameMatch::filenameMatches(std::u16string_view name, std::u16string_view url) {
    const std::array<std::u16string, 3> variants = filenameVariants(url);
    return std::find(variants.begin(), variants.end(), name) != variants.end();
}

} // namespace CVN
