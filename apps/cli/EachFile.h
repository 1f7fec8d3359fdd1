#pragma once

#include <string>
#include <string_view>

#include "Commands.h"

namespace Cli {

/// Prints a line about each file that the options name, in their order and as soon as it is known. `lineOf`
/// gets the file, "-" for standard input, and its text without byte order mark, and gives the line with its
/// ending. Files that can't be taken are named on standard error, and make the exit code 1.
Outcome printEachFile(const Options& options,
                      std::string (*lineOf)(const std::string& file, std::u16string_view text,
                                            const Options& options));

} // namespace Cli
