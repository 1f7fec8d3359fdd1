#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Keyboard.h"

namespace Cli {

/// A key that is pressed, ready for a keyboard.
struct KeyPress {
    using Action = Keyboard::Effect (*)(Keyboard&, const KeyPress&);

    std::int64_t line = 0; ///< of the script, from 1
    std::string name;      ///< as the script calls it
    Action action = nullptr;
    std::u16string text = {};               ///< of what is typed or pasted
    std::optional<CVNRange> selection = {}; ///< what is selected; not known to lie in the text
    CVNTextOperation::Number command = {};
    std::int64_t style = 0;
};

/// The keys of a script, one a line; a line of typed text becomes a key for each of its characters. Blank
/// lines and those that begin with "#" hold none. Throws a Failure that names the file and the line for
/// anything else. `bytes` are UTF-8.
std::vector<KeyPress> parseKeys(std::string_view bytes, const std::string& file);

/// The names of all keys, with what the ones that take something take, a line each.
std::string listOfKeys();

} // namespace Cli
