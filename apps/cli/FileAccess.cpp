#include "FileAccess.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>

namespace Cli {

namespace {

/// Nobody has longer notes, and a file may say that it is longer than the memory.
constexpr std::int64_t maxSize = std::int64_t{1} << 30;

std::int64_t nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

FileStamp stampFrom(const struct stat& status) {
#if defined(__APPLE__)
    const std::int64_t modified = nanoseconds(status.st_mtimespec);
    const std::int64_t changed = nanoseconds(status.st_ctimespec);
#else
    const std::int64_t modified = nanoseconds(status.st_mtim);
    const std::int64_t changed = nanoseconds(status.st_ctim);
#endif
    return {static_cast<std::uint64_t>(status.st_dev),
            static_cast<std::uint64_t>(status.st_ino),
            std::int64_t{status.st_size},
            modified,
            changed,
            status.st_mode,
            status.st_uid,
            status.st_gid,
            static_cast<std::uint64_t>(status.st_nlink)};
}

/// The next piece of a file, behind the bytes; false at the end.
bool readMore(int file, std::string& bytes, std::size_t size) {
    const std::size_t start = bytes.size();
    bytes.resize(start + size);
    ssize_t got = 0;
    do {
        got = ::read(file, bytes.data() + start, size);
    } while (got < 0 && errno == EINTR);
    if (got < 0) refuse("it can't be read");
    bytes.resize(start + static_cast<std::size_t>(got));
    return got > 0;
}

void requireRegular(const FileStamp& stamp) {
    if (S_ISLNK(stamp.mode)) throw Unusable("it is a symbolic link");
    if (!S_ISREG(stamp.mode)) throw Unusable("it is not a regular file");
}

} // namespace

void refuse(const std::string& what) {
    const int error = errno;
    throw Unusable(what + ": " + std::generic_category().message(error));
}

std::string leafOf(const VaultFile& file) {
    return file.name.substr(file.name.rfind('/') + 1);
}

Descriptor openFolderOf(const VaultFile& file) {
    const std::string path = *file.folder + "/" + file.name;
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
    Descriptor folder(open(path.substr(0, path.size() - file.name.size()).c_str(), flags));
    std::size_t start = 0;
    for (std::size_t end = 0; folder.isOpen(); start = end + 1) {
        end = file.name.find('/', start);
        if (end == std::string::npos) return folder;
        const std::string part = file.name.substr(start, end - start);
        folder = Descriptor(openat(folder.number(), part.c_str(), flags | O_NOFOLLOW));
    }
    refuse("its folder can't be opened");
}

Descriptor openNote(const Descriptor& folder, const std::string& leaf) {
    // Only to open a pipe or a device does something to it already; without O_NONBLOCK it may be waited for.
    requireRegular(stampOf(folder, leaf));
    Descriptor file(
        openat(folder.number(), leaf.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.isOpen()) refuse("it can't be opened");
    requireRegular(stampOf(file));
    return file;
}

FileStamp stampOf(const Descriptor& file) {
    struct stat status = {};
    if (fstat(file.number(), &status) != 0) refuse("it can't be looked at");
    return stampFrom(status);
}

FileStamp stampOf(const Descriptor& folder, const std::string& leaf) {
    const std::optional<FileStamp> stamp = findStamp(folder, leaf);
    if (!stamp) refuse("it can't be looked at");
    return *stamp;
}

std::optional<FileStamp> findStamp(const Descriptor& folder, const std::string& leaf) {
    struct stat status = {};
    if (fstatat(folder.number(), leaf.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) return std::nullopt;
    return stampFrom(status);
}

std::string readStamped(const Descriptor& file, const FileStamp& stamp) {
    if (stamp.size > maxSize) throw Unusable("it is larger than a gigabyte");
    std::string bytes;
    const auto size = static_cast<std::size_t>(stamp.size);
    bytes.reserve(size + 1);
    while (bytes.size() <= size && readMore(file.number(), bytes, size + 1 - bytes.size())) {
    }
    if (bytes.size() != size || !(stampOf(file) == stamp)) throw Unusable(changedMeanwhile);
    return bytes;
}

} // namespace Cli
