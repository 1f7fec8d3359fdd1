#include "HiddenFile.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <optional>
#include <vector>

#include <fcntl.h>
#if defined(__linux__)
#include <sys/xattr.h>
#endif

#include "FileAccess.h"
#include "ReadLease.h"

namespace Cli {

namespace {

std::string freshName() {
    static std::atomic<unsigned> count = 0;
    return ".corvane-" + std::to_string(getpid()) + "-" + std::to_string(count++) + ".tmp";
}

#if defined(__linux__)

constexpr const char* accessList = "system.posix_acl_access";

/// Whether an attribute is the user's: the others are the system's own affair.
bool isUsers(const std::string& name) {
    return name.rfind("user.", 0) == 0 || name == accessList;
}

std::vector<std::string> attributeNames(int file) {
    std::vector<std::string> names;
    std::string list;
    for (ssize_t size = flistxattr(file, nullptr, 0); size > 0; size = flistxattr(file, nullptr, 0)) {
        list.resize(static_cast<std::size_t>(size));
        const ssize_t got = flistxattr(file, list.data(), list.size());
        if (got < 0) continue; // grown meanwhile
        list.resize(static_cast<std::size_t>(got));
        break;
    }
    for (std::size_t at = 0; at < list.size(); at += names.back().size() + 1)
        names.emplace_back(list.c_str() + at);
    return names;
}

bool copyAttribute(int from, int to, const std::string& name) {
    const ssize_t size = fgetxattr(from, name.c_str(), nullptr, 0);
    if (size < 0) return false;
    std::string value(static_cast<std::size_t>(size), '\0');
    const ssize_t got = fgetxattr(from, name.c_str(), value.data(), value.size());
    return got == size && fsetxattr(to, name.c_str(), value.data(), value.size(), 0) == 0;
}

void copyAttributes(int from, int to) {
    fremovexattr(to, accessList); // a folder may give new files one
    for (const std::string& name : attributeNames(from))
        if (!copyAttribute(from, to, name) && isUsers(name)) refuse("its extended attributes can't be kept");
}

#else

void copyAttributes(int, int) {}

#endif

} // namespace

HiddenFile::HiddenFile(const Descriptor& folder) : folder_(folder), file_(-1) {
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    do {
        leaf_ = freshName();
        file_ = Descriptor(openat(folder_.number(), leaf_.c_str(), flags, S_IRUSR | S_IWUSR));
    } while (!file_.isOpen() && errno == EEXIST);
    if (!file_.isOpen()) refuse("no file can be made beside it");
    made_ = stampOf(file_);
}

HiddenFile::~HiddenFile() {
    const std::optional<FileStamp> held = findStamp(folder_, leaf_);
    if (held && isOwn(*held)) unlinkat(folder_.number(), leaf_.c_str(), 0);
}

void HiddenFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file_.number(), bytes.data(), bytes.size());
        if (written > 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
        else if (written == 0 || errno != EINTR)
            refuse("the new text can't be written");
    }
}

void HiddenFile::becomeLike(const Descriptor& file, const FileStamp& stamp) {
    const auto isAlike = [&] {
        const FileStamp own = stampOf(file_);
        return own.owner == stamp.owner && own.group == stamp.group && own.mode == stamp.mode;
    };
    if (!isAlike() && fchown(file_.number(), stamp.owner, stamp.group) != 0 && errno != EPERM)
        refuse("its owner can't be kept");
    copyAttributes(file.number(), file_.number());
    // Not by the answer of the calls: some file systems have permissions that can't be set, and are right.
    if (!isAlike()) fchmod(file_.number(), stamp.mode & 07777);
    if (!isAlike()) refuse("its owner or its permissions can't be kept");
}

void HiddenFile::flush() {
    if (fsync(file_.number()) != 0) refuse("the new text can't be flushed to the disk");
}

bool HiddenFile::canLease() {
    file_ = openNote(folder_, leaf_); // nobody may have it open for writing
    return ReadLease(file_).isHeld();
}

bool HiddenFile::exchangeWith(const std::string& leaf) {
#if defined(RENAME_EXCHANGE)
    const int folder = folder_.number();
    return renameat2(folder, leaf_.c_str(), folder, leaf.c_str(), RENAME_EXCHANGE) == 0;
#else
    static_cast<void>(leaf);
    errno = ENOSYS;
    return false;
#endif
}

void HiddenFile::overwrite(const std::string& leaf) {
    if (renameat(folder_.number(), leaf_.c_str(), folder_.number(), leaf.c_str()) != 0)
        refuse("it can't be replaced");
}

bool HiddenFile::holdsNote(const FileStamp& asRead) const {
    std::optional<FileStamp> held = findStamp(folder_, leaf_);
    if (held) held->changed = asRead.changed; // changing places is a change of its own
    return held == asRead;
}

bool HiddenFile::holdsOther() const {
    const std::optional<FileStamp> held = findStamp(folder_, leaf_);
    return held && !isOwn(*held);
}

void HiddenFile::removeNote() {
    if (unlinkat(folder_.number(), leaf_.c_str(), 0) != 0)
        refuse("it was changed, but its old text is left in " + leaf_);
}

std::string HiddenFile::kept() const {
    const std::optional<FileStamp> held = findStamp(folder_, leaf_);
    const bool isNone = held ? isOwn(*held) : errno == ENOENT;
    return isNone ? "" : "; what another program wrote is in " + leaf_;
}

bool HiddenFile::isOwn(const FileStamp& stamp) const {
    return stamp.device == made_.device && stamp.inode == made_.inode;
}

} // namespace Cli
