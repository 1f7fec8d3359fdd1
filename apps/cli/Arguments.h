#pragma once

#include "Outcome.h"

namespace Cli {

/// Runs the command that the arguments name; a request for help or the version is answered like a command.
/// Throws a Failure for arguments that don't fit.
Outcome runArguments(int argc, const char* const* argv);

} // namespace Cli
