#include "corvane/client/ValueText.h"

#include <charconv>
#include <iterator>
#include <limits>

#include "corvane/scan/Util.h"

namespace CVN::ValueText {

namespace {

std::string digitsOf(std::uint64_t number) {
    char digits[std::numeric_limits<std::uint64_t>::digits10 + 1];
    char* const end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    return {std::begin(digits), end};
}

} // namespace

std::u16string unsignedString(std::uint64_t number) {
    const std::string digits = digitsOf(number);
    return {digits.begin(), digits.end()};
}

std::u16string rangeString(CVNRange range) {
    return u"{" + Ondo::Util::toString(range.location) + u", " + Ondo::Util::toString(range.length) + u"}";
}

std::string hyphenated(std::initializer_list<std::uint64_t> numbers) {
    std::string text;
    for (const std::uint64_t number : numbers) {
        if (!text.empty()) text += '-';
        text += digitsOf(number);
    }
    return text;
}

std::uint64_t hashOfString(std::string_view text) {
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
    return hash;
}

} // namespace CVN::ValueText
