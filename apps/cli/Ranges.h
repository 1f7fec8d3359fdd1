#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "corvane/client/CVNRange.h"

/// Ranges as words of the command line and of scripts, and as JSON.
namespace Cli {

/// A count at the start of a word, which loses it; null when there is none.
std::optional<std::int64_t> takeCount(std::string_view& word);

/// "OFFSET,LENGTH"; null for anything else.
std::optional<CVNRange> rangeOf(std::string_view word);
/// Empty for a range.
std::string complaintAboutRange(const std::string& word);

bool isInText(CVNRange range, std::int64_t length);
/// Throws a Failure for a range of the command line that reaches outside a text.
void requireInText(const std::string& option, CVNRange range, std::int64_t length);

/// [offset,length]
std::string jsonText(CVNRange range);

} // namespace Cli
