#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/tree/Range.h"

namespace Cli {

/// One line of a script: the range to replace, in the text that the edit before left, and what takes its
/// place.
struct ScriptEdit {
    std::int64_t line; ///< from 1
    Ondo::Range range; ///< not negative, but not known to lie in a text
    std::u16string text;
};

/// The edits of a script, one JSON object a line: {"range":[offset,length],"text":"..."}. Blank lines hold
/// none. Throws a Failure that names the file and the line for anything else. `bytes` are UTF-8.
std::vector<ScriptEdit> parseScript(std::string_view bytes, const std::string& file);

/// How messages call a line of a file.
std::string linePlace(const std::string& file, std::int64_t line);

} // namespace Cli
