#pragma once

#include <cstdint>
#include <string>

namespace Cli {

/// One line about the progress of something long, on standard error, written over again and again. Shows only
/// when that is a terminal that can do so, and not before a moment has gone by.
class Progress {
public:
    explicit Progress(std::string what);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    /// Takes the line away.
    ~Progress();

    /// Cheap enough for every step.
    void show(std::int64_t done, std::int64_t total);

private:
    std::string what_;
    bool isWanted_;
    bool isShown_ = false;
    std::int64_t nextShow_; ///< in milliseconds of the steady clock
};

} // namespace Cli
