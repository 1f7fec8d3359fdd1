#include "ReadLease.h"

#include <cerrno>

#include <fcntl.h>

namespace Cli {

#if defined(F_SETLEASE)

ReadLease::ReadLease(const Descriptor& file)
    : file_(file), isHeld_(fcntl(file.number(), F_SETLEASE, F_RDLCK) == 0),
      isRefused_(!isHeld_ && errno == EAGAIN) {}

ReadLease::~ReadLease() {
    if (isHeld_) fcntl(file_.number(), F_SETLEASE, F_UNLCK);
}

bool ReadLease::isAwaited() const {
    return isHeld_ && fcntl(file_.number(), F_GETLEASE) != F_RDLCK;
}

#else

ReadLease::ReadLease(const Descriptor& file) : file_(file) {}

ReadLease::~ReadLease() = default;

bool ReadLease::isAwaited() const {
    return false;
}

#endif

} // namespace Cli
