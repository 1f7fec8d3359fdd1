#include "corvane/analysis/CVNTimeLogger.h"

#include <gtest/gtest.h>

#include "corvane/scan/Util.h"

namespace {

using Clock = CVNTimeLogger::Clock;

std::vector<std::string> lines;

struct TimeLogger : testing::Test {
    CVNTimeLogger logger;
    TimeLogger() {
        lines.clear();
        CVNTimeLogger::sink = [](std::u16string_view line) { lines.push_back(Ondo::Util::utf8(line)); };
    }
    ~TimeLogger() override { CVNTimeLogger::sink = nullptr; }
};

double millisecondsOf(const std::string& line) {
    return std::stod(line.substr(line.rfind(" in ") + 4));
}

TEST_F(TimeLogger, TellsEachStretch) {
    const Clock::time_point made = logger.initialTime;
    logger.lastChunkTime -= std::chrono::microseconds(12'000'050);
    logger.log(u"parsing in é");
    logger.log(u"");
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_TRUE(lines[0].starts_with("parsing in é in 12000.") && lines[0].ends_with("ms")) << lines[0];
    EXPECT_GE(millisecondsOf(lines[0]), 12000.05);
    EXPECT_LT(millisecondsOf(lines[1]), 12000.0) << "counted from the first call";
    for (const std::string& line : lines)
        EXPECT_EQ(line.size() - line.rfind('.'), std::string(".123456ms").size()) << line;
    EXPECT_EQ(logger.initialTime, made);
}

/// Six digits are what is left over, with zeros in front.
TEST_F(TimeLogger, KeepsLeadingZeros) {
    logger.lastChunkTime = Clock::now() - std::chrono::hours(1);
    const double milliseconds = millisecondsOf(Ondo::Util::utf8(logger.line(u"x")));
    EXPECT_GE(milliseconds, 3'600'000.0);
    EXPECT_LT(milliseconds, 3'600'100.0);
    logger.lastChunkTime = Clock::now() + std::chrono::hours(1);
    EXPECT_LT(millisecondsOf(Ondo::Util::utf8(logger.line(u"x"))), -3'599'000.0);
}

TEST_F(TimeLogger, NeedsNoSink) {
    CVNTimeLogger::sink = nullptr;
    const Clock::time_point before = logger.lastChunkTime -= std::chrono::hours(1);
    logger.log(u"x");
    EXPECT_GT(logger.lastChunkTime, before + std::chrono::minutes(59));
    EXPECT_TRUE(lines.empty());
}

} // namespace
