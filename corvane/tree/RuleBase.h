#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/scan/Export.h"
#include "corvane/tree/Range.h"

namespace Ondo {

class Node;
struct ReparseRanges;

/// A rule knows the syntax of one construct. A rule configuration makes one object of each, with a small
/// record of booleans, and files it under the characters that can open the construct.
///
/// Rules keep no state from one parse to the next, but for the label indexes of the definition rules.
class CORVANE_EXPORT RuleBase {
public:
    /// Lets the rules that come and go on this thread be counted together, when it ends: a tree has dozens,
    /// and threads wait for one another at the counter.
    class CORVANE_EXPORT Batch {
    public:
        Batch();
        ~Batch();
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

    private:
        std::int64_t* outer_;
        std::int64_t count_ = 0;
    };

    /// Rules alive in the process, for finding leaks, on whichever threads they were made and deleted. Exact
    /// but for open batches.
    static std::atomic<std::int64_t> instanceCount;

    /// The characters that may start a match, all below 128; empty: the rule is tried at every position.
    const std::u16string triggers;

    explicit RuleBase(std::u16string_view triggers);
    virtual ~RuleBase();
    RuleBase(const RuleBase&) = delete;
    RuleBase& operator=(const RuleBase&) = delete;

    /// The class name without namespace: by it rules are found and removed.
    virtual std::string_view type_name() const = 0;
    /// Called when a parse or reparse has been patched into the tree.
    virtual void afterParseAll(ReparseRanges ranges);
    /// May add to the ranges that the caller has to restyle.
    virtual void expandRedrawRanges(std::vector<Range>& ranges, Node* root);
};

} // namespace Ondo
