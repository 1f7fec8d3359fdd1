#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "corvane/scan/Lines.h"

namespace Ondo::Block {

/// What a container changed in the table of lines, to be undone for the lines that turn out not to be its
/// own. A line is changed at most once, in order. Runs of lines with the same change take no more than one
/// record.
class LineChanges {
public:
    explicit LineChanges(Lines& lines) : lines_(lines) {}

    /// Keeps the whole line as it is, before any change.
    void save(std::int64_t line) { saved_.emplace_back(line, lines_[line]); }
    /// Raises the base indentation of a line behind the container's first.
    void shift(std::int64_t line, std::int64_t columns) {
        lines_[line].setBaseIndentation(lines_[line].baseIndentation + columns);
        record(line, Run::Shifted, columns);
    }
    void markLazy(std::int64_t line) {
        if (lines_[line].lazy) return;
        lines_[line].lazy = true;
        record(line, Run::MadeLazy, 0);
    }

    /// Undoes what was done to the lines from `first` on.
    void undoFrom(std::int64_t first) {
        for (; !saved_.empty() && saved_.back().first >= first; saved_.pop_back())
            lines_[saved_.back().first] = saved_.back().second;
        for (; !runs_.empty() && runs_.back().last >= first; runs_.pop_back())
            for (std::int64_t line = std::max(runs_.back().first, first); line <= runs_.back().last; ++line)
                undo(line, runs_.back());
    }

private:
    struct Run {
        enum Kind { Shifted, MadeLazy } kind;
        std::int64_t columns;
        std::int64_t first;
        std::int64_t last;
    };

    void record(std::int64_t line, Run::Kind kind, std::int64_t columns) {
        const bool continues = !runs_.empty() && runs_.back().last == line - 1 && runs_.back().kind == kind &&
                               runs_.back().columns == columns;
        if (continues)
            runs_.back().last = line;
        else
            runs_.push_back({kind, columns, line, line});
    }
    void undo(std::int64_t line, const Run& run) {
        if (run.kind == Run::MadeLazy)
            lines_[line].lazy = false;
        else
            lines_[line].setBaseIndentation(lines_[line].baseIndentation - run.columns);
    }

    Lines& lines_;
    std::vector<std::pair<std::int64_t, Lines::Line>> saved_;
    std::vector<Run> runs_;
};

} // namespace Ondo::Block
