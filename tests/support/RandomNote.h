#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>

#include "corvane/tree/Range.h"

namespace Ondo::Test {

/// Random notes and edits. They draw from every construct of the dialect, and are built to hit what is hard
/// to keep current: fences and HTML blocks that open and close, lists joined over blank lines, setext
/// underlines, lazy lines, definitions that come and go, folds, line endings of all kinds.
class RandomNote {
public:
    explicit RandomNote(std::uint64_t seed) : random_(seed) {}

    std::size_t below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }

    /// Of fewer lines than `lines`, or of as many; a line may be a short block.
    std::u16string note(std::size_t lines);

    /// A piece to insert: mostly syntax.
    std::u16string piece();

    /// What an edit may remove: mostly nothing or a few units.
    Range range(std::int64_t length) {
        const auto offset = static_cast<std::int64_t>(below(static_cast<std::size_t>(length) + 1));
        std::int64_t extent = 0;
        if (below(2) == 0) extent = static_cast<std::int64_t>(below(below(6) == 0 ? 60 : 4));
        return {offset, std::min(extent, length - offset)};
    }

    /// A stretch of a text, of `least` units to twice as many where there are as many, from the start of a
    /// line to the end of one.
    std::u16string slice(std::u16string_view text, std::size_t least);

private:
    std::u16string lineEnding();
    std::u16string line();
    std::u16string content();

    std::mt19937_64 random_;
};

/// A construct, or a part of one, of those that the notes draw from: the same for the same number.
std::u16string_view construct(std::size_t number);

} // namespace Ondo::Test
