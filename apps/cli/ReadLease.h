#pragma once

#include "Descriptor.h"

namespace Cli {

/// Tells whether other programs write to a file, where the system can tell: while it is held, nobody has the
/// file open for writing, and who wants to waits.
class ReadLease {
public:
    /// On a file that is open for reading only, which must outlive it.
    explicit ReadLease(const Descriptor& file);
    ReadLease(const ReadLease&) = delete;
    ReadLease& operator=(const ReadLease&) = delete;
    ~ReadLease();

    bool isHeld() const { return isHeld_; }
    /// It is not held, since somebody has the file open for writing; but some file systems say so of all
    /// files.
    bool isRefused() const { return isRefused_; }
    /// It is held, and somebody waits.
    bool isAwaited() const;

private:
    const Descriptor& file_;
    bool isHeld_ = false;
    bool isRefused_ = false;
};

} // namespace Cli
