#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include <sys/stat.h>

#include "VaultFolder.h"

namespace Cli {

/// What tells whether a file is still the one that was read. Times are in nanoseconds.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    std::int64_t modified = 0;
    std::int64_t changed = 0;
    mode_t mode = 0;
    uid_t owner = 0;
    gid_t group = 0;
    std::uint64_t names = 0; ///< hard links

    bool operator==(const FileStamp& other) const = default;
};

/// A note as it is on disk.
struct VaultNote {
    std::u16string text; ///< without the byte order mark
    bool hasMark = false;
    FileStamp stamp;
};

/// A note is to be skipped. what() is the reason.
class Unusable : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// These throw Unusable, and can be called on several threads at once.

/// Refuses what is not a regular file, symbolic links on the way to it from the folder of the notes, and text
/// that is not UTF-8.
VaultNote readVaultNote(const VaultFile& file);

/// Refuses a note that its permissions, or those of its folder, protect from writing. Refused is also one of
/// several names of a file: only that one would get the new text.
void requireWritable(const VaultFile& file, const VaultNote& note);

/// Puts another text in the note's place, with its byte order mark, owner, permissions and extended
/// attributes.
///
/// The text is written to a hidden file beside the note and flushed to the disk, which then changes places
/// with the note, or is renamed over it where files can't do so: at every moment the note is the old one or
/// the new one. Refused when the note is no longer what was read, down to its bytes, and when anything fails;
/// then the note is as it was, and the hidden file gone, unless the reason says that it was changed: then
/// only the removal of the old text or the flush of the folder failed. What other programs save at that very
/// moment is kept too, if need be in a hidden file that the reason names.
void replaceVaultNote(const VaultFile& file, const VaultNote& asRead, std::u16string_view text);

/// The bytes of a text in a file. Throws Unusable for a text that UTF-8 can't hold.
std::string bytesOf(std::u16string_view text, bool hasMark);

} // namespace Cli
