#pragma once

#include <string>
#include <string_view>

#include "Descriptor.h"
#include "VaultNote.h"

namespace Cli {

/// A new file beside a note, under a name that begins with "." and that nothing had. Everything throws
/// Unusable when it fails.
///
/// By changing places, anything that another program saved as the note may come to lie under the hidden name.
/// So nothing is ever removed under it but the file that was made here, which goes in the end, and the note
/// that was read, for which holdsNote() is asked before. What else lies there stays, and kept() names it.
class HiddenFile {
public:
    /// In an open folder, which must outlive it; readable for the owner alone.
    explicit HiddenFile(const Descriptor& folder);
    HiddenFile(const HiddenFile&) = delete;
    HiddenFile& operator=(const HiddenFile&) = delete;
    ~HiddenFile();

    void write(std::string_view bytes);
    /// Takes over owner, permissions and extended attributes of an open file. Those that only the system sets
    /// may differ.
    void becomeLike(const Descriptor& file, const FileStamp& stamp);
    /// Returns when the disk has it all.
    void flush();
    /// Whether leases tell anything on this file system. Nothing can be written then.
    bool canLease();

    /// Lets what is under the hidden name and a file of the folder change places. False, with an error
    /// number, when that fails.
    bool exchangeWith(const std::string& leaf);
    /// Removes a file of the folder by taking its place, for file systems where files can't change places.
    void overwrite(const std::string& leaf);
    /// Whether the note that was read is under the hidden name now. False also when that can't be known.
    bool holdsNote(const FileStamp& asRead) const;
    /// Whether what is there now was not made here. False also when that can't be known.
    bool holdsOther() const;
    /// Removes the note that was read, when holdsNote() has found it under the hidden name.
    void removeNote();
    /// What to say of the file of another program under the hidden name, behind a reason; "" without one.
    std::string kept() const;

private:
    const Descriptor& folder_;
    std::string leaf_;
    Descriptor file_;
    FileStamp made_; ///< of the new file when it was empty

    bool isOwn(const FileStamp& stamp) const;
};

} // namespace Cli
