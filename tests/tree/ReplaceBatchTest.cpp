#include "corvane/tree/ReplaceBatch.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/Print.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

std::u16string applied(std::u16string text, const std::vector<Replacement>& edits) {
    for (const Replacement& edit : edits)
        text.replace(static_cast<std::size_t>(edit.range.offset), static_cast<std::size_t>(edit.range.length),
                     edit.replacement);
    return text;
}

std::vector<Replacement> merged(const std::vector<Replacement>& edits, const Tree& tree,
                                std::int64_t maxGap) {
    ReplaceBatch batch;
    for (const Replacement& edit : edits)
        batch.add(edit.range, edit.replacement);
    return batch.merge(tree, maxGap);
}

TEST(ReplaceBatch, Cases) {
    const std::u16string text = u"0123456789";
    const struct {
        const char* what;
        std::vector<Replacement> edits;
        const char* merged; ///< with at most 2 units between
    } cases[] = {
        {"nothing", {}, ""},
        {"typed forward, over a selection", {{{2, 3}, u"a"}, {{3, 0}, u"b"}, {{4, 0}, u"c"}}, "[2, 3]abc"},
        {"backspaces", {{{5, 1}, u""}, {{4, 1}, u""}, {{3, 1}, u""}}, "[3, 3]"},
        {"forward deletions", {{{3, 1}, u""}, {{3, 1}, u""}, {{3, 1}, u""}}, "[3, 3]"},
        {"forward over a gap", {{{1, 0}, u"a"}, {{4, 0}, u"b"}}, "[1, 2]a12b"},
        {"forward over gaps, with deletions", {{{1, 2}, u""}, {{2, 1}, u"XY"}, {{5, 1}, u""}}, "[1, 6]3XY5"},
        {"forward beyond the gap", {{{1, 0}, u"a"}, {{5, 0}, u"b"}}, "[1, 0]a [5, 0]b"},
        {"backward over gaps", {{{8, 1}, u"x"}, {{6, 0}, u"y"}, {{3, 1}, u""}}, "[3, 6]45y67x"},
        {"backward beyond the gap", {{{7, 1}, u"x"}, {{3, 1}, u"y"}}, "[7, 1]x [3, 1]y"},
        {"a run does not turn back", {{{5, 0}, u"a"}, {{6, 0}, u"b"}, {{4, 1}, u""}}, "[5, 0]ab [4, 1]"},
        {"a run does not turn forward", {{{5, 0}, u"a"}, {{5, 0}, u"b"}, {{7, 0}, u"c"}}, "[5, 0]ba [7, 0]c"},
        {"nothing joins what overlaps a run",
         {{{2, 0}, u"abc"}, {{3, 1}, u"X"}, {{4, 0}, u"Y"}},
         "[2, 0]abc [3, 1]X [4, 0]Y"},
        {"a gap in text that an earlier run made",
         {{{0, 4}, u"wxyz"}, {{8, 0}, u"8"}, {{1, 1}, u"-"}, {{4, 0}, u"+"}},
         "[0, 4]wxyz [8, 0]8 [1, 3]-yz+"},
    };
    const Tree tree(text);
    for (const auto& c : cases) {
        const auto result = merged(c.edits, tree, 2);
        EXPECT_EQ(show(result), c.merged) << c.what;
        EXPECT_EQ(applied(text, result), applied(text, c.edits)) << c.what;
    }
    ReplaceBatch typed;
    for (std::int64_t i = 0; i < 200; ++i)
        typed.add({5 + i, 0}, u"x");
    EXPECT_EQ(show(typed.merge(tree, 0)), "[5, 0]" + std::string(200, 'x'));
    const auto readOutside = [&tree]() noexcept { merged({{{0, 0}, u"a"}, {{12, 0}, u"b"}}, tree, 20); };
    EXPECT_DEATH(readOutside(), "string_view::at");
}

TEST(ReplaceBatch, MergedEditsGiveWhatTheEditsGive) {
    const std::u16string text = u"0123456789abcdefghijklmnopqrst";
    const Tree tree(text);
    std::size_t edits = 0;
    std::size_t replacements = 0;
    for (std::uint64_t seed = 0; seed < 6000; ++seed) {
        RandomNote random(seed);
        std::u16string current = text;
        std::vector<Replacement> made;
        std::int64_t at = 0;
        for (std::size_t count = 1 + random.below(9); count > 0; --count) {
            const auto length = static_cast<std::int64_t>(current.size());
            // Mostly near the last one, as typing is.
            at += static_cast<std::int64_t>(random.below(random.below(5) == 0 ? 40 : 9)) - 4;
            at = std::clamp<std::int64_t>(at, 0, length);
            const auto replaced = std::min(static_cast<std::int64_t>(random.below(4)), length - at);
            made.push_back(
                {{at, replaced}, std::u16string(random.below(4), static_cast<char16_t>(u'A' + count))});
            current = applied(current, {made.back()});
        }
        const auto maxGap = static_cast<std::int64_t>(random.below(5));
        const auto result = merged(made, tree, maxGap);
        ASSERT_EQ(applied(text, result), current)
            << "seed " << seed << ", gap " << maxGap << ": " << show(made) << " became " << show(result);
        edits += made.size();
        replacements += result.size();
    }
    EXPECT_LT(replacements * 4, edits * 3) << "hardly anything merges";
}

} // namespace
} // namespace Ondo::Test
