#pragma once

#include <string>

namespace Cli {

/// Writes everything to standard output and closes it. Returns 0, or the error number of what failed.
int writeOutput(const std::string& text);

/// Writes "corvane: ", the message and a line ending to standard error, and the detail below it as it stands.
/// Control characters in the message show as "?", so that no file name or argument can break the line.
void complain(std::string message, const std::string& detail = {});

} // namespace Cli
