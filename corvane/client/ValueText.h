#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "corvane/client/CVNRange.h"

/// How client values are written, and the hashes that are made from what is written.
namespace CVN::ValueText {

/// Decimal digits.
std::u16string unsignedString(std::uint64_t number);
/// A number of 64 bits that is shown as if it had no sign.
inline std::u16string unsignedString(std::int64_t number) {
    return unsignedString(static_cast<std::uint64_t>(number));
}
/// "{location, length}"
std::u16string rangeString(CVNRange range);

/// The numbers as unsigned decimals, with hyphens between.
std::string hyphenated(std::initializer_list<std::uint64_t> numbers);
/// FNV-1a of 64 bits: the same on every machine and in every version.
std::uint64_t hashOfString(std::string_view text);

/// The hash of a value whose numbers these are.
template <class... Numbers>
std::uint64_t hashOf(Numbers... numbers) {
    return hashOfString(hyphenated({static_cast<std::uint64_t>(numbers)...}));
}

} // namespace CVN::ValueText
