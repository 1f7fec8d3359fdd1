#include "corvane/tree/RuleBase.h"

#include <utility>

#include "corvane/tree/ReparseRanges.h"

namespace Ondo {

namespace {

constinit thread_local std::int64_t* batch = nullptr;

void count(std::int64_t change) {
    if (batch)
        *batch += change;
    else if (change != 0)
        RuleBase::instanceCount.fetch_add(change, std::memory_order_relaxed);
}

} // namespace

constinit std::atomic<std::int64_t> RuleBase::instanceCount = 0;

RuleBase::Batch::Batch() : outer_(std::exchange(batch, &count_)) {}

RuleBase::Batch::~Batch() {
    batch = outer_;
    count(count_);
}

RuleBase::RuleBase(std::u16string_view triggers_) : triggers(triggers_) {
    count(1);
}

RuleBase::~RuleBase() {
    count(-1);
}

void RuleBase::afterParseAll(ReparseRanges) {}

void RuleBase::expandRedrawRanges(std::vector<Range>&, Node*) {}

} // namespace Ondo
