#include "apps/cli/OrderedWork.h"

#include <atomic>
#include <chrono>
#include <numeric>
#include <stdexcept>

#include <gtest/gtest.h>

namespace Cli {

namespace {

TEST(OrderedWork, ResultsComeInOrderHoweverLongEachTakes) {
    for (const std::size_t jobs : {0U, 1U, 2U, 7U})
        for (const std::size_t count : {0U, 1U, 6U, 500U}) {
            std::vector<std::size_t> results;
            const auto produce = [](std::size_t i) {
                if (i % 37 == 0) std::this_thread::sleep_for(std::chrono::milliseconds(1));
                return i;
            };
            workInOrder<std::size_t>(count, jobs, produce, [&](std::size_t i, std::size_t result) {
                EXPECT_EQ(i, result);
                results.push_back(result);
            });
            std::vector<std::size_t> expected(count);
            std::iota(expected.begin(), expected.end(), std::size_t{0});
            EXPECT_EQ(results, expected) << jobs << " jobs";
        }
}

TEST(OrderedWork, OnlyAFewResultsWait) {
    std::atomic<std::int64_t> alive = 0;
    std::atomic<std::int64_t> most = 0;
    struct Result {
        std::atomic<std::int64_t>* alive;
        bool isCounted = true;

        Result(std::atomic<std::int64_t>& count, std::atomic<std::int64_t>& peak) : alive(&count) {
            const std::int64_t now = ++count;
            if (now > peak) peak = now;
        }
        Result(Result&& other) noexcept
            : alive(other.alive), isCounted(std::exchange(other.isCounted, false)) {}
        Result& operator=(Result&& other) noexcept {
            std::swap(isCounted, other.isCounted);
            return *this;
        }
        ~Result() {
            if (isCounted) --*alive;
        }
    };
    workInOrder<Result>(
        2000, 4, [&](std::size_t) { return Result(alive, most); },
        [](std::size_t i, Result) {
            if (i % 100 == 0) std::this_thread::sleep_for(std::chrono::milliseconds(2));
        });
    EXPECT_LE(most, 100);
    EXPECT_EQ(alive, 0);
}

TEST(OrderedWork, AnExceptionOfEitherSideEndsTheWork) {
    for (const std::size_t jobs : {1U, 3U})
        for (const bool isOfWork : {false, true}) {
            std::atomic<std::size_t> begun = 0;
            std::size_t consumed = 0;
            const auto failAt50 = [](std::size_t i) {
                if (i == 50) throw std::runtime_error("at 50");
                return i;
            };
            const auto produce = [&](std::size_t i) {
                ++begun;
                return isOfWork ? failAt50(i) : i;
            };
            const auto consume = [&](std::size_t i, std::size_t) {
                if (!isOfWork) failAt50(i);
                ++consumed;
            };
            EXPECT_THROW(workInOrder<std::size_t>(100'000, jobs, produce, consume), std::runtime_error);
            EXPECT_LE(consumed, 50U);
            EXPECT_LT(begun, 200U);
        }
}

} // namespace

} // namespace Cli
