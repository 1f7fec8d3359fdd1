#pragma once

#include <string>
#include <string_view>

namespace Cli {

/// Writes everything to standard output and closes it. Returns 0, or the error number of what failed.
int writeOutput(const std::string& text);

/// What writing to standard output failed with: an error number.
struct OutputError {
    int error;
};

/// Writes a part of what goes to standard output ahead of the rest, for output that is too long to be held.
/// Throws an OutputError.
void writePart(std::string_view text);

/// Writes "corvane: ", the message and a line ending to standard error, and the detail below it as it stands.
/// Control characters in the message show as "?", so that no file name or argument can break the line.
void complain(std::string message, const std::string& detail = {});

} // namespace Cli
