#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <random>
#include <string>

#include "corvane/tree/Tree.h"

/// Where keystrokes go that are measured.

namespace Ondo::Bench {

/// `head` and a note of the size that the benchmark's argument says. Notes of all sizes have the same text in
/// their midst, so that only what is around it differs.
std::u16string noteToTypeIn(benchmark::State& state, const char16_t* head);

/// The middle of the paragraph of first level nearest behind `offset`, or of the first one of the note.
std::int64_t paragraphBehind(const Tree& tree, std::int64_t offset);

/// Paragraphs picked at random within 4,000 code units of the middle: a person at work on a page.
class MiddleOfNote {
    std::mt19937_64 random_{1};

public:
    std::int64_t operator()(const Tree& tree) {
        const std::int64_t from = tree.length() / 2 - 4000;
        return paragraphBehind(tree, from + static_cast<std::int64_t>(random_() % 8000));
    }
};

} // namespace Ondo::Bench
