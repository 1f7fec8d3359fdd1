#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "corvane/scan/Lines.h"

namespace Ondo::Block {

/// The lines that a container rewrote, to be given back where they turn out not to be its own.
class SavedLines {
public:
    explicit SavedLines(Lines& lines) : lines_(lines) {}

    /// Keeps the line as it is now.
    void save(std::int64_t line) { saved_.emplace_back(line, lines_[line]); }
    /// Restores the saved lines from `first` on.
    void restoreFrom(std::int64_t first) {
        for (; !saved_.empty() && saved_.back().first >= first; saved_.pop_back())
            lines_[saved_.back().first] = saved_.back().second;
    }

private:
    Lines& lines_;
    std::vector<std::pair<std::int64_t, Lines::Line>> saved_; ///< in order
};

} // namespace Ondo::Block
