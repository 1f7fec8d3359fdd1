#pragma once

#include "Commands.h"

namespace Cli {

/// Whether to colour standard output. What is automatic depends on whether that is a terminal, and on
/// NO_COLOR and TERM in the environment.
bool isColored(Colors colors);

} // namespace Cli
