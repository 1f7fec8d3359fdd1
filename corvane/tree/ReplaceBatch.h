#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "corvane/tree/SyncRanges.h"

namespace Ondo {

class Tree;

/// A list of edits, each in the text that the ones before it left, to be merged into fewer.
class CORVANE_EXPORT ReplaceBatch {
public:
    void add(Range range, std::u16string replacement) { edits_.push_back({range, std::move(replacement)}); }
    void clear() { edits_.clear(); }
    bool empty() const { return edits_.empty(); }
    const std::vector<Replacement>& edits() const { return edits_; }

    /// Merges runs of neighbouring edits, typed forward or backward with at most `maxGap` unchanged units
    /// between them. Applied to the text of `tree` one after the other, the result gives exactly what the
    /// edits give. An edit outside the text is the standard library's out-of-range failure.
    std::vector<Replacement> merge(const Tree& tree, std::int64_t maxGap) const;

private:
    std::vector<Replacement> edits_;
};

} // namespace Ondo
