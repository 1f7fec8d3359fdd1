#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Cli {

/// A text of one line for a terminal, in UTF-8: control characters but tabs show by signs, and with colours
/// the characters at the offsets `indexes` stand out, with the combining marks behind them. The offsets count
/// UTF-16 code units and ascend. Adds no line ending, and leaves the terminal as it was.
std::string highlighted(std::u16string_view text, const std::vector<std::int64_t>& indexes, bool colored);

} // namespace Cli
