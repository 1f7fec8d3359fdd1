#include "corvane/tree/TextBuffer.h"

#include <gtest/gtest.h>

#include <random>

namespace Ondo::Test {
namespace {

TEST(TextBuffer, EqualsAStringThroughRandomEdits) {
    std::mt19937_64 random(5);
    const auto below = [&random](std::int64_t limit) {
        return static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(limit));
    };
    std::u16string expected = u"the text at first";
    TextBuffer buffer(expected);
    const auto randomRange = [&](std::int64_t most) {
        const std::int64_t offset = below(buffer.size() + 1);
        return Range{offset, std::min(below(most), buffer.size() - offset)};
    };
    const auto part = [&expected](const Range& range) {
        return expected.substr(static_cast<std::size_t>(range.offset),
                               static_cast<std::size_t>(range.length));
    };
    for (int edit = 0; edit < 20000; ++edit) {
        const Range range = randomRange(expected.size() > 2000 ? 400 : 4);
        const Range own = randomRange(90);
        std::u16string replacement(static_cast<std::size_t>(below(edit % 50 == 0 ? 300 : 4)),
                                   static_cast<char16_t>(u'a' + edit % 26));
        // Every fifth is a view of the text itself.
        if (edit % 5 == 0) replacement = part(own);
        buffer.replace(range, edit % 5 == 0 ? buffer.slice(own.offset, own.length) : replacement);
        expected.replace(static_cast<std::size_t>(range.offset), static_cast<std::size_t>(range.length),
                         replacement);
        ASSERT_EQ(buffer.size(), static_cast<std::int64_t>(expected.size())) << edit;
        ASSERT_EQ(buffer.empty(), expected.empty());
        const Range read = randomRange(3000);
        ASSERT_EQ(buffer.slice(read.offset, read.length), part(read)) << edit;
        for (std::int64_t at = read.offset; at < read.end(); at += 7)
            ASSERT_EQ(buffer[at], expected[static_cast<std::size_t>(at)]) << edit;
    }
    EXPECT_EQ(buffer.all(), expected);
    TextBuffer copy = buffer;
    copy.replace({0, copy.size()}, u"");
    EXPECT_EQ(copy.all(), u"");
    EXPECT_EQ(buffer.all(), expected);
}

TEST(TextBuffer, IsEmptyBehindAMove) {
    TextBuffer from(u"abcdef");
    from.replace({2, 2}, u""); // leaves a gap
    TextBuffer to(std::move(from));
    EXPECT_EQ(to.all(), u"abef");
    EXPECT_EQ(from.size(), 0);
    EXPECT_EQ(from.all(), u"");
    from.replace({0, 0}, u"x");
    to = std::move(from);
    EXPECT_EQ(to.all(), u"x");
    EXPECT_EQ(from.size(), 0);
}

} // namespace
} // namespace Ondo::Test
