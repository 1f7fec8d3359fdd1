#include "FolderLock.h"

#include <cerrno>
#include <chrono>
#include <thread>

#include <sys/file.h>

#include "VaultNote.h"

namespace Cli {

// Another run holds it for less than a millisecond. But somebody may have started this one under a lock of
// the whole folder, which would be waited for forever.
FolderLock::FolderLock(const Descriptor& folder) : folder_(folder) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + std::chrono::seconds(5);
    while (flock(folder_.number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) return;
        if (Clock::now() > end) throw Unusable("another program has locked its folder");
        std::this_thread::sleep_for(std::chrono::microseconds(500));
    }
}

FolderLock::~FolderLock() {
    flock(folder_.number(), LOCK_UN);
}

} // namespace Cli
