#pragma once

#include <string>

#include "Commands.h"
#include "corvane/client/CVNAST.h"

namespace Cli {

/// An empty note with the rule set that the options name.
CVNAST newNote(const Options& options);
/// The note that the options name, or standard input. Throws a Failure as readText() does.
CVNAST readNote(const Options& options);
/// The same with another file than that of the options.
CVNAST readNote(const Options& options, const std::optional<std::string>& file);
/// Its text.
std::u16string readNoteText(const Options& options);

} // namespace Cli
