#pragma once

#include <optional>
#include <string>

#include "Descriptor.h"
#include "VaultNote.h"

/// The ways to files that the notes of a folder are read and replaced by. All throw Unusable.
namespace Cli {

inline constexpr const char* changedMeanwhile = "it was changed meanwhile";

/// Throws Unusable with the words, and what the error number says.
[[noreturn]] void refuse(const std::string& what);

/// The last part of a note's name.
std::string leafOf(const VaultFile& file);

/// The folder that a note lies in. No symbolic link below the folder of all notes is followed.
Descriptor openFolderOf(const VaultFile& file);

/// A regular file in an open folder, for reading.
Descriptor openNote(const Descriptor& folder, const std::string& leaf);

FileStamp stampOf(const Descriptor& file);
/// Of whatever has that name in an open folder, be it a symbolic link.
FileStamp stampOf(const Descriptor& folder, const std::string& leaf);
/// The same; null, with an error number, when it can't be looked at.
std::optional<FileStamp> findStamp(const Descriptor& folder, const std::string& leaf);

/// All bytes of a file that has that stamp, and has it still in the end.
std::string readStamped(const Descriptor& file, const FileStamp& stamp);

} // namespace Cli
