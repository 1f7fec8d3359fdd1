#include "corvane/analysis/CVNTimeLogger.h"

#include "corvane/scan/Util.h"

namespace {

constexpr std::int64_t nanosecondsPerMillisecond = 1'000'000;

/// With six decimals, which nanoseconds fill exactly.
std::u16string inMilliseconds(std::int64_t nanoseconds) {
    const std::int64_t distance = nanoseconds < 0 ? -nanoseconds : nanoseconds;
    const std::u16string decimals = Ondo::Util::toString(distance % nanosecondsPerMillisecond);
    std::u16string text = nanoseconds < 0 ? u"-" : u"";
    text += Ondo::Util::toString(distance / nanosecondsPerMillisecond);
    text += u'.';
    text.append(6 - decimals.size(), u'0');
    return text += decimals;
}

} // namespace

void (*CVNTimeLogger::sink)(std::u16string_view line) = nullptr;

CVNTimeLogger::CVNTimeLogger() : initialTime(Clock::now()), lastChunkTime(initialTime) {}

std::u16string CVNTimeLogger::line(std::u16string_view text) const {
    const auto passed = std::chrono::duration_cast<std::chrono::nanoseconds>(Clock::now() - lastChunkTime);
    return std::u16string(text) + u" in " + inMilliseconds(passed.count()) + u"ms";
}

void CVNTimeLogger::log(std::u16string_view text) {
    if (sink) sink(line(text));
    lastChunkTime = Clock::now();
}
