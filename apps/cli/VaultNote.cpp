#include "VaultNote.h"

#include <cerrno>

#include <fcntl.h>

#include "FileAccess.h"
#include "FolderLock.h"
#include "HiddenFile.h"
#include "Input.h"
#include "ReadLease.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool isWritable(const Descriptor& folder, const std::string& leaf) {
    return faccessat(folder.number(), leaf.c_str(), W_OK, AT_EACCESS) == 0;
}

/// The note that stands there now is the one that was read: by its stamp, and by its bytes, since the clock
/// of a file system may stand still for some milliseconds.
void requireUnchanged(const Descriptor& file, const VaultNote& asRead, std::string_view bytes) {
    if (!(stampOf(file) == asRead.stamp) || readStamped(file, asRead.stamp) != bytes)
        throw Unusable(changedMeanwhile);
}

/// Nothing is lost of what others write at this very moment: whoever has the note open keeps us off, and what
/// was saved between the last look and the exchange of the files is found under the hidden name. It gets its
/// place back, and if somebody has saved once more by then, the note is the later of the two.
void putInPlace(HiddenFile& hidden, const Descriptor& folder, const std::string& leaf,
                const VaultNote& asRead, std::string_view bytes) {
    const FolderLock lock(folder);
    const Descriptor note = openNote(folder, leaf);
    const ReadLease lease(note);
    if (lease.isRefused() && hidden.canLease()) throw Unusable("another program has it open for writing");
    requireUnchanged(note, asRead, bytes);
    if (!hidden.exchangeWith(leaf)) {
        const bool isUnknown = errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;
        return isUnknown ? hidden.overwrite(leaf) : refuse("it can't be replaced");
    }
    if (hidden.holdsNote(asRead.stamp) && !lease.isAwaited()) return hidden.removeNote();
    if (hidden.exchangeWith(leaf) && hidden.holdsOther()) hidden.exchangeWith(leaf);
    throw Unusable(changedMeanwhile + hidden.kept());
}

/// The note has its new text by now.
void flushFolder(const Descriptor& folder) {
    if (fsync(folder.number()) != 0 && errno != EINVAL)
        refuse("it was changed, but may not be on the disk yet");
}

} // namespace

VaultNote readVaultNote(const VaultFile& file) {
    const Descriptor stream = openNote(openFolderOf(file), leafOf(file));
    const FileStamp stamp = stampOf(stream);
    const std::string bytes = readStamped(stream, stamp);
    const std::int64_t invalid = invalidUtf8(bytes);
    if (invalid >= 0) throw Unusable("invalid UTF-8 at byte offset " + std::to_string(invalid));
    const bool hasMark = bytes.rfind(byteOrderMark, 0) == 0;
    const std::string_view text = std::string_view(bytes).substr(hasMark ? byteOrderMark.size() : 0);
    return {Ondo::Util::utf16(text), hasMark, stamp};
}

void requireWritable(const VaultFile& file, const VaultNote& note) {
    // For the superuser everything is writable.
    constexpr mode_t anybody = S_IWUSR | S_IWGRP | S_IWOTH;
    const Descriptor folder = openFolderOf(file);
    if ((note.stamp.mode & anybody) == 0 || !isWritable(folder, leafOf(file)))
        throw Unusable("it is read-only");
    if (note.stamp.names > 1) throw Unusable("it has several names (hard links)");
    if (!isWritable(folder, ".")) throw Unusable("its folder is read-only");
}

void replaceVaultNote(const VaultFile& file, const VaultNote& asRead, std::u16string_view text) {
    requireWritable(file, asRead);
    const std::string before = bytesOf(asRead.text, asRead.hasMark);
    const std::string after = bytesOf(text, asRead.hasMark);
    const std::string leaf = leafOf(file);
    const Descriptor folder = openFolderOf(file);
    HiddenFile hidden(folder);
    hidden.write(after);
    hidden.becomeLike(openNote(folder, leaf), asRead.stamp);
    hidden.flush();
    putInPlace(hidden, folder, leaf, asRead, before);
    flushFolder(folder);
}

std::string bytesOf(std::u16string_view text, bool hasMark) {
    std::string bytes(hasMark ? byteOrderMark : "");
    bytes += Ondo::Util::utf8(text);
    const std::string_view written = std::string_view(bytes).substr(hasMark ? byteOrderMark.size() : 0);
    if (Ondo::Util::utf16(written) != text) throw Unusable("its text does not fit into UTF-8");
    return bytes;
}

} // namespace Cli
