#pragma once

#include "Descriptor.h"

namespace Cli {

/// Keeps other runs of the command from putting files in place in a folder meanwhile, and the other threads
/// of this one. Nothing is locked where the file system has no such locks: what must not get lost may not
/// depend on it.
class FolderLock {
public:
    /// Waits a few seconds at most, and throws Unusable then. The folder must outlive it, and no other lock
    /// may be on this descriptor.
    explicit FolderLock(const Descriptor& folder);
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock();

private:
    const Descriptor& folder_;
};

} // namespace Cli
