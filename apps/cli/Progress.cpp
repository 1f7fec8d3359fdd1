#include "Progress.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <utility>

#include <unistd.h>

namespace Cli {

namespace {

// In milliseconds. What is done at once needs no line, which would only flicker.
constexpr std::int64_t firstShow = 200;
constexpr std::int64_t untilNextShow = 100;

std::int64_t now() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

/// A line can be written over there.
bool isScreen(std::FILE* stream) {
    const char* const terminal = std::getenv("TERM");
    return isatty(fileno(stream)) != 0 && (!terminal || std::string_view(terminal) != "dumb");
}

} // namespace

Progress::Progress(std::string what)
    : what_(std::move(what)), isWanted_(isScreen(stderr)), nextShow_(now() + firstShow) {}

Progress::~Progress() {
    if (isShown_) std::fputs("\r\033[K", stderr);
}

void Progress::show(std::int64_t done, std::int64_t total) {
    if (!isWanted_) return;
    const std::int64_t time = now();
    if (time < nextShow_) return;
    nextShow_ = time + untilNextShow;
    isShown_ = true;
    const std::string line = "\r" + what_ + " " + std::to_string(done) + " of " + std::to_string(total);
    std::fputs(line.c_str(), stderr);
    std::fflush(stderr);
}

} // namespace Cli
