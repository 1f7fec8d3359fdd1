#pragma once

#include <ctime>

namespace Ondo::Bench {

/// Seconds of processor time of this thread: what else runs on the machine counts less than by the wall
/// clock.
inline double cpuSeconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

} // namespace Ondo::Bench
