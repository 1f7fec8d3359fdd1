#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace Cli {

/// Numbered pieces of work on their way from the threads that do them to the one that wants their results in
/// order.
template <class Result>
class OrderedResults {
public:
    /// No piece is begun while `window` are ahead of the next result.
    OrderedResults(std::size_t count, std::size_t window) : count_(count), slots_(window) {}

    /// What a thread does until there is no more work.
    template <class Produce>
    void work(Produce& produce) {
        while (const std::optional<std::size_t> piece = begin()) {
            try {
                put(*piece, produce(*piece));
            } catch (...) {
                end(std::current_exception());
            }
        }
    }

    /// Waits for the result of the next piece. Throws what a piece ended with.
    Result next() {
        std::unique_lock lock(mutex_);
        std::optional<Result>& slot = slots_[next_ % slots_.size()];
        moved_.wait(lock, [&] { return slot || error_; });
        if (error_) std::rethrow_exception(error_);
        Result result = std::move(*slot);
        slot.reset();
        ++next_;
        moved_.notify_all();
        return result;
    }

    /// No more pieces are begun.
    void end(std::exception_ptr error = nullptr) {
        const std::lock_guard lock(mutex_);
        isEnded_ = true;
        if (!error_) error_ = std::move(error);
        moved_.notify_all();
    }

private:
    std::mutex mutex_;
    std::condition_variable moved_;
    const std::size_t count_;
    std::vector<std::optional<Result>> slots_; ///< of the pieces from `next_` on, around
    std::size_t begun_ = 0;
    std::size_t next_ = 0;
    bool isEnded_ = false;
    std::exception_ptr error_;

    std::optional<std::size_t> begin() {
        std::unique_lock lock(mutex_);
        moved_.wait(lock, [&] { return isEnded_ || begun_ == count_ || begun_ - next_ < slots_.size(); });
        if (isEnded_ || begun_ == count_) return std::nullopt;
        return begun_++;
    }

    void put(std::size_t piece, Result result) {
        const std::lock_guard lock(mutex_);
        slots_[piece % slots_.size()] = std::move(result);
        moved_.notify_all();
    }
};

/// Threads that share in one work. They are waited for in the end.
template <class Result>
class Workers {
public:
    explicit Workers(OrderedResults<Result>& results) : results_(results) {}
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;
    ~Workers() {
        results_.end();
        for (std::thread& thread : threads_)
            thread.join();
    }

    /// As many threads as the system gives, if that is one at least.
    template <class Produce>
    void start(std::size_t jobs, Produce& produce) {
        threads_.reserve(jobs);
        try {
            while (threads_.size() < jobs)
                threads_.emplace_back([this, &produce] { results_.work(produce); });
        } catch (const std::system_error&) {
            if (threads_.empty()) throw;
        }
    }

private:
    OrderedResults<Result>& results_;
    std::vector<std::thread> threads_;
};

/// Calls `produce(i)`, which gives a Result, for each i below `count` on `jobs` threads, and `consume(i,
/// result)` on this one in the order of i. Only a few results wait, however many there are. An exception of
/// either ends the work and comes out. One job is done on this thread.
template <class Result, class Produce, class Consume>
void workInOrder(std::size_t count, std::size_t jobs, Produce produce, Consume consume) {
    constexpr std::size_t resultsOfAThread = 16;
    if (jobs <= 1) {
        for (std::size_t i = 0; i < count; ++i)
            consume(i, produce(i));
        return;
    }
    OrderedResults<Result> results(count, jobs * resultsOfAThread);
    Workers<Result> workers(results);
    workers.start(std::min(jobs, std::max<std::size_t>(count, 1)), produce);
    for (std::size_t i = 0; i < count; ++i)
        consume(i, results.next());
}

} // namespace Cli
