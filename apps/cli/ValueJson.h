#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/client/CVNValue.h"

namespace Cli {

/// The value of an attribute run as JSON on one line, in UTF-8. List information is an object of its seven
/// coding keys. Lone surrogates become U+FFFD.
std::string jsonText(const CVNValue& value);
/// A string in the same form.
std::string jsonText(std::u16string_view text);
/// Numbers with commas between them.
std::string listOf(const std::vector<std::int64_t>& numbers);

} // namespace Cli
