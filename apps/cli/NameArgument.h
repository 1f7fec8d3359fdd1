#pragma once

#include <string>

namespace Cli {

// Names on the command line, which `what` calls. All throw a Failure for one that would have to be altered.

/// The name of a tag, encoded, written as in notes or without its markers: "work/now", "#two words#".
std::u16string tagArgument(const std::string& what, const std::string& word);
/// The same for a tag that is to be written, which can't be too long or have empty parts.
std::u16string newTagArgument(const std::string& what, const std::string& word);

/// The title of a note, as people read it; a plain one may stand in "[[...]]".
std::u16string titleArgument(const std::string& what, const std::string& word);
/// The same for one that is to be written, which can't hold tabs and their like.
std::u16string newTitleArgument(const std::string& what, const std::string& word);

} // namespace Cli
