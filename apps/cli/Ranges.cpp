#include "Ranges.h"

#include <charconv>

#include "Outcome.h"

namespace Cli {

std::optional<std::int64_t> takeCount(std::string_view& word) {
    std::int64_t count = 0;
    const bool isDigit = !word.empty() && word[0] >= '0' && word[0] <= '9';
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), count);
    if (!isDigit || error != std::errc()) return std::nullopt;
    word.remove_prefix(static_cast<std::size_t>(end - word.data()));
    return count;
}

std::optional<CVNRange> rangeOf(std::string_view word) {
    const auto offset = takeCount(word);
    if (!offset || !word.starts_with(',')) return std::nullopt;
    word.remove_prefix(1);
    const auto length = takeCount(word);
    if (!length || !word.empty()) return std::nullopt;
    return CVNRange{*offset, *length};
}

std::string complaintAboutRange(const std::string& word) {
    if (rangeOf(word)) return {};
    return word + " is not two whole numbers with a comma between them, from 0 to 9223372036854775807";
}

bool isInText(CVNRange range, std::int64_t length) {
    return range.location <= length && range.length <= length - range.location;
}

void requireInText(const std::string& option, CVNRange range, std::int64_t length) {
    if (isInText(range, length)) return;
    throw Failure(option + ": " + std::to_string(range.location) + "," + std::to_string(range.length) +
                      " reaches outside the text of " + std::to_string(length) + " code units",
                  BadUsage);
}

std::string jsonText(CVNRange range) {
    return "[" + std::to_string(range.location) + "," + std::to_string(range.length) + "]";
}

} // namespace Cli
