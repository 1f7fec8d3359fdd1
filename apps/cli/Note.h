#pragma once

#include "Commands.h"
#include "corvane/client/CVNAST.h"

namespace Cli {

/// An empty note with the rule set that the options name.
CVNAST newNote(const Options& options);
/// The note that the options name. Throws a Failure as readText() does.
CVNAST readNote(const Options& options);

} // namespace Cli
