#include "Progress.h"

#include <chrono>
#include <cstdio>
#include <utility>

#include <unistd.h>

namespace Cli {

Progress::Progress(std::string what) : what_(std::move(what)), isShown_(isatty(fileno(stderr)) != 0) {}

Progress::~Progress() {
    if (nextShow_ > 0) std::fputs("\r\033[K", stderr);
}

void Progress::show(std::int64_t done, std::int64_t total) {
    using namespace std::chrono;
    if (!isShown_) return;
    const std::int64_t now = duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    if (now < nextShow_) return;
    nextShow_ = now + 100;
    const std::string line = "\r" + what_ + " " + std::to_string(done) + " of " + std::to_string(total);
    std::fputs(line.c_str(), stderr);
    std::fflush(stderr);
}

} // namespace Cli
