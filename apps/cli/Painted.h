#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "corvane/client/CVNAttributedString.h"

namespace Cli {

/// The runs that an editor shows which repaints only the ranges that its edits return, for finding those that
/// an edit left stale.
///
/// Offsets count UTF-16 code units. There is a gap at the last change, and what lies behind it is counted
/// from the end of the text, so that a change costs what lies between it and the one before.
class Painted {
public:
    /// A place at which something else is painted than a fresh annotation gives. A null value is none. The
    /// pointers are good until either side changes.
    struct Difference {
        CVNAttributeName key;
        std::int64_t offset;
        const CVNValue* painted;
        const CVNValue* fresh;
    };

    /// Takes the runs off a range, which must lie in the text, and moves those behind it. What takes the
    /// range's place has none.
    void replace(CVNRange range, std::int64_t insertedLength);
    /// The runs of a share of the text, from `location` on, in place of what is there.
    void paint(std::int64_t location, const CVNAttributedString& share);

    std::int64_t length() const { return length_; }
    /// The first place at which the runs are not those of an annotation of the whole text, which must have
    /// the same length. Runs of the keys in `skipped` are not compared.
    std::optional<Difference> differenceFrom(const CVNAttributedString& fresh,
                                             const std::vector<CVNAttributeName>& skipped = {}) const;

private:
    /// The runs of one key; equal ones may touch.
    struct Runs {
        std::vector<AttributeRun> before; ///< those that end before the gap, in order
        std::vector<AttributeRun>
            behind; ///< the others, mirrored: the last one first, counted from the text's end

        void moveGap(std::int64_t location, std::int64_t length);
        void eraseBefore(std::int64_t location);
        std::vector<AttributeRun> merged(std::int64_t length) const;
        const CVNValue* valueAt(std::int64_t offset, std::int64_t length) const;
    };

    std::array<Runs, CVNAttributeName::count> runs_;
    std::int64_t length_ = 0;
};

} // namespace Cli
