#pragma once

#include <string>
#include <string_view>

namespace Cli {

/// The unified diff of two texts with three lines of context, empty when they are equal. Of a stretch that
/// differs over thousands of lines only the first are compared; a last line then says how many were left out.
std::string unifiedDiff(std::u16string_view before, std::u16string_view after, const std::string& beforeName,
                        const std::string& afterName);

} // namespace Cli
