#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "corvane/scan/Export.h"

/// Tells how long stretches of work took, one behind the other.
class CORVANE_EXPORT CVNTimeLogger {
public:
    using Clock = std::chrono::steady_clock;

    /// Where the lines go: the host's log. Null, as it starts, drops them. There is one for the
    /// whole process, to be set before any thread logs.
    static void (*sink)(std::u16string_view line);

    Clock::time_point initialTime;
    Clock::time_point lastChunkTime;

    /// Both times are now.
    CVNTimeLogger();
    /// "TEXT in Nms", where N has six decimals: the time since `lastChunkTime`.
    std::u16string line(std::u16string_view text) const;
    /// Tells `sink` the line. The next stretch begins behind that.
    void log(std::u16string_view text);
};
