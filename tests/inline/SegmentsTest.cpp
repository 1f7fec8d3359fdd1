#include "corvane/inline/Segments.h"

#include <gtest/gtest.h>

namespace Ondo {

namespace {

using Strings = std::vector<std::u16string>;

TEST(Segments, EncodeAndDecode) {
    struct Case {
        Strings segments;
        std::u16string_view path;
    };
    const Case cases[] = {
        {{}, u""},
        {{u"a"}, u"a"},
        {{u"a", u"b c"}, u"a/b c"},
        {{u"a", u""}, u"a/"},
        {{u"", u"a"}, u"/a"},
        {{u"a/b", u"\\"}, u"a\\/b/\\\\"},
        {{u"\\/", u"\\a"}, u"\\\\\\//\\\\a"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Segments::encode(c.segments), c.path);
        EXPECT_EQ(Segments::decode(c.path), c.segments);
        EXPECT_EQ(Segments::segmentCount(c.path), static_cast<std::int64_t>(c.segments.size()));
    }
    EXPECT_EQ(Segments::decode(u"\\a/b\\"), (Strings{u"\\a", u"b\\"})) << "backslashes that escape nothing";
}

TEST(Segments, EncodePrefix) {
    const Strings segments{u"a", u"b/", u"c"};
    const std::u16string_view prefixes[] = {u"", u"", u"a", u"a/b\\/", u"a/b\\//c"};
    for (std::int64_t count = -1; count <= 3; ++count)
        EXPECT_EQ(Segments::encodePrefix(segments, count), prefixes[count + 1]);
}

TEST(SegmentsDeathTest, EncodePrefixNeedsAsManySegments) {
    EXPECT_DEATH(Segments::encodePrefix({u"a"}, 2), "source Segments");
}

TEST(Segments, IsPrefix) {
    struct Case {
        std::u16string_view prefix;
        std::u16string_view path;
        bool isPrefix;
    };
    const Case cases[] = {
        {u"a", u"A/b", true},
        {u"Work", u"work/notes", true},
        {u"a/b", u"a/b", true},
        {u"a", u"ab", false},
        {u"a/b", u"a", false},
        {u"a", u"a\\/b", false},
        {u"STRASSE", u"straße/a", true},
        {u"", u"a", false},
        {u"", u"", true},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Segments::isPrefix(c.prefix, c.path), c.isPrefix)
            << testing::PrintToString(c.prefix) << " of " << testing::PrintToString(c.path);
}

TEST(Segments, ReplacePrefix) {
    EXPECT_EQ(Segments::replacePrefix(u"A/b\\/c/d", u"a", u"x/y"), u"x/y/b\\/c/d");
    EXPECT_EQ(Segments::replacePrefix(u"a/b", u"a/b", u"x"), u"x");
    EXPECT_EQ(Segments::replacePrefix(u"a/b", u"a", u""), u"b");
    EXPECT_EQ(Segments::replacePrefix(u"a", u"a/b/c", u"x"), u"x") << "more than there are";
}

TEST(Segments, NormalizeSegment) {
    EXPECT_EQ(Segments::normalizeSegment(u" \t\v\na b\r "), u"a b");
    EXPECT_EQ(Segments::normalizeSegment(u"\u00A0a"), u"\u00A0a");
}

} // namespace

} // namespace Ondo
