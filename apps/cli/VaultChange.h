#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "PathChange.h"
#include "VaultRun.h"

namespace Cli {

/// What an action does to the text of each note. Both functions are called on several threads at once.
struct VaultChange {
    /// Whether the text could change at all: quick, and false only for what apply() leaves as it is.
    bool (*mayApply)(std::u16string_view text);
    PathChange path;
    std::function<std::u16string(std::u16string_view text)> apply; ///< makes that change where it can
    std::string absence;  ///< behind "no note", where none has the path
    std::string leftover; ///< why a note has it still, as a sentence
};

/// Changes the notes, or, if the options say so, prints the patch that would.
Outcome changeNotes(VaultRun& run, const VaultChange& change);

// The actions. Each throws a Failure for arguments that make no sense, before any note is read.

Outcome renameTag(VaultRun& run);
Outcome removeTag(VaultRun& run);
Outcome renameNote(VaultRun& run);

} // namespace Cli
