#include "corvane/tree/Range.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/support/Print.h"

namespace Ondo::Test {
namespace {

/// A range, an edit that replaces `replaced` by `inserted` units, and the range mapped through it.
struct Case {
    const char* what;
    Range range;
    Range replaced;
    std::int64_t inserted;
    Range mapped;
};

std::u16string units(std::int64_t count) {
    return std::u16string(static_cast<std::size_t>(count), u'x');
}

using Mapping = Range (*)(Range, const Range&, std::u16string_view);

void expectMapped(Mapping map, std::initializer_list<Case> cases) {
    for (const Case& c : cases)
        EXPECT_EQ(show(map(c.range, c.replaced, units(c.inserted))), show(c.mapped)) << c.what;
}

TEST(Range, AfterReplace) {
    expectMapped(Range::rangeAsAfterReplace,
                 {
                     {"edit behind", {2, 3}, {7, 2}, 5, {2, 3}},
                     {"replacement right behind", {2, 3}, {5, 2}, 4, {2, 3}},
                     {"insertion at the end", {2, 3}, {5, 0}, 4, {2, 7}},
                     {"insertion at the start", {2, 3}, {2, 0}, 4, {2, 7}},
                     {"the whole replaced", {2, 3}, {2, 3}, 1, {2, 1}},
                     {"from inside to the end", {2, 3}, {4, 1}, 2, {2, 4}},
                     {"from inside beyond the end", {2, 3}, {4, 5}, 2, {2, 2}},
                     {"from the start beyond the end", {2, 3}, {2, 4}, 2, {2, 0}},
                     {"edit before", {6, 3}, {1, 2}, 5, {9, 3}},
                     {"from before into it", {6, 3}, {4, 3}, 5, {9, 2}},
                     {"from before to its end", {6, 3}, {4, 5}, 1, {5, 0}},
                     {"from before beyond its end", {6, 3}, {4, 6}, 1, {5, 0}},
                     {"an empty range in a replacement", {6, 0}, {4, 4}, 3, {7, 0}},
                 });
}

TEST(Range, BeforeReplace) {
    expectMapped(Range::rangeAsBeforeReplace,
                 {
                     {"edit behind", {2, 3}, {7, 2}, 5, {2, 3}},
                     {"replacement right behind", {2, 3}, {5, 2}, 4, {2, 3}},
                     {"deletion right behind", {2, 3}, {5, 2}, 0, {2, 5}},
                     {"the inserted text and no more", {3, 4}, {3, 2}, 4, {3, 2}},
                     {"the end inside the inserted text", {2, 3}, {3, 5}, 4, {2, 6}},
                     {"the start inside the inserted text", {5, 6}, {3, 5}, 4, {3, 9}},
                     {"inside the inserted text", {4, 2}, {3, 1}, 5, {3, 1}},
                     {"from the end of the inserted text", {7, 2}, {3, 1}, 4, {4, 2}},
                     {"edit before", {9, 3}, {1, 2}, 5, {6, 3}},
                     {"deletion right before", {4, 3}, {4, 2}, 0, {4, 5}},
                 });
}

TEST(Range, MapsThereAndBack) {
    std::mt19937_64 random(3);
    const auto below = [&random](std::uint64_t limit) { return static_cast<std::int64_t>(random() % limit); };
    for (int i = 0; i < 20000; ++i) {
        const Range range{below(12), below(8)};
        const Range replaced{below(12), below(6)};
        const std::u16string text = units(below(6));
        const std::int64_t delta = static_cast<std::int64_t>(text.size()) - replaced.length;
        const Range after = Range::rangeAsAfterReplace(range, replaced, text);
        const Range back = Range::rangeAsBeforeReplace(after, replaced, text);
        SCOPED_TRACE(show(range) + " through " + show(Replacement{replaced, text}));
        EXPECT_TRUE(after.length >= 0 && back.length >= 0);
        const bool isBefore = replaced.end() < range.offset;
        const bool isInside = replaced.offset >= range.offset && replaced.end() <= range.end();
        if (!isBefore && !isInside && replaced.offset <= range.end()) continue;
        EXPECT_EQ(show(after),
                  show(Range{range.offset + (isBefore ? delta : 0), range.length + (isInside ? delta : 0)}));
        EXPECT_EQ(show(back), show(range));
    }
    EXPECT_EQ(show(Range::unite({2, 3}, {7, 1})), "[2, 6]");
    EXPECT_EQ(show(Range::unite({3, 1}, {2, 9})), "[2, 9]");
}

} // namespace
} // namespace Ondo::Test
