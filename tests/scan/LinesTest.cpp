#include "corvane/scan/Lines.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace Ondo {
namespace {

/// Start, content start, content end, end and next of each line.
using Table = std::vector<std::array<std::int64_t, 5>>;

Table tableOf(std::u16string_view text) {
    const Lines lines(text);
    Table table;
    for (std::int64_t i = 0; i < lines.size(); ++i) {
        const Lines::Line& line = lines[i];
        EXPECT_EQ(line.leading, line.start);
        EXPECT_EQ(line.baseIndentation, 0);
        EXPECT_FALSE(line.lazy);
        table.push_back({line.start, line.contentStart, line.contentEnd, line.end, line.next});
    }
    return table;
}

TEST(Lines, OfATextAreTabulated) {
    const struct {
        const char16_t* text;
        Table expected;
    } cases[] = {
        {u"", {{0, 0, 0, 0, 0}}},
        {u"a", {{0, 0, 1, 1, 1}}},
        {u"a\n", {{0, 0, 1, 1, 2}, {2, 2, 2, 2, 2}}},
        {u"\n", {{0, 0, 0, 0, 1}, {1, 1, 1, 1, 1}}},
        {u"\r\r", {{0, 0, 0, 0, 1}, {1, 1, 1, 1, 2}, {2, 2, 2, 2, 2}}},
        {u"\r\n\r\n", {{0, 0, 0, 0, 2}, {2, 2, 2, 2, 4}, {4, 4, 4, 4, 4}}},
        {u"a\rb\r\nc\n\rd",
         {{0, 0, 1, 1, 2}, {2, 2, 3, 3, 5}, {5, 5, 6, 6, 7}, {7, 7, 7, 7, 8}, {8, 8, 9, 9, 9}}},
        {u" \t a b\t ", {{0, 3, 6, 8, 8}}},
        {u"a \t\r\n b", {{0, 0, 1, 3, 5}, {5, 6, 7, 7, 7}}},
        {u" \t", {{0, 2, 2, 2, 2}}},
        {u"  \n ", {{0, 2, 2, 2, 3}, {3, 4, 4, 4, 4}}},
        // Blank are spaces and tabs only, and only LF and CR end a line.
        {u"\f\v\u00A0\u2003\u0085\u2028\u2029", {{0, 0, 7, 7, 7}}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(tableOf(c.text), c.expected) << testing::PrintToString(std::u16string(c.text));
}

TEST(Lines, AViewEndsWhereItEnds) {
    const Lines lines(std::u16string_view(u"a\r\nb").substr(0, 2));
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0].next, 2) << "the LF is out of sight";
}

TEST(Lines, EndsAreFoundAtAnyDistance) {
    for (const char16_t filler : {u'a', u'\t', u'\x0E', u'\x0C', u'\u0A0D', u'\u8000', u'\uFFFF'}) {
        for (const std::u16string ending : {u"\n", u"\r", u"\r\n"}) {
            for (std::size_t length = 0; length < 13; ++length) {
                const std::u16string line(length, filler);
                const Lines lines(line + ending + line);
                ASSERT_EQ(lines.size(), 2);
                EXPECT_EQ(lines[0].end, static_cast<std::int64_t>(length));
                EXPECT_EQ(lines[0].next, static_cast<std::int64_t>(length + ending.size()));
                EXPECT_EQ(lines[1].end, lines[0].next + lines[0].end);
            }
        }
    }
}

TEST(Lines, ColumnsHaveTabStopsAtEveryFour) {
    const struct {
        const char16_t* text;
        std::int64_t offset, start, column;
    } cases[] = {
        {u"abc", 2, 0, 2},        {u"abc", 3, 1, 2},   {u"\t\tx", 1, 0, 4},
        {u"\t\tx", 2, 0, 8},      {u"a\tx", 2, 0, 4},  {u"abc\tx", 4, 0, 4},
        {u"abcd\tx", 5, 0, 8},    {u"ab\tx", 3, 1, 4}, // counted from another column 0
        {u"\U0001F600", 2, 0, 2},                      // code units
        {u"abc", 0, 0, 0},        {u"abc", 1, 2, 0},   {u"abc", 9, 9, 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Lines::Line::indentationAtOffsetRelativeToStart(c.offset, c.start, c.text), c.column)
            << testing::PrintToString(std::u16string(c.text)) << " " << c.offset;
    EXPECT_THROW(Lines::Line::indentationAtOffsetRelativeToStart(4, 0, u"abc"), std::out_of_range);
}

/// The second line, ">\t  b \t", of a text; its columns are those of the line.
constexpr std::u16string_view quote = u"\n>\t  b \t\nc";

TEST(Lines, SetLeadingMovesTheContentBehindAPrefix) {
    Lines lines(quote);
    Lines::Line& line = lines[1];
    EXPECT_EQ(line.contentStart, 1);
    line.setLeading(2, quote);
    line.setBaseIndentation(2);
    EXPECT_EQ(line.start, 1);
    EXPECT_EQ(line.leading, 2);
    EXPECT_EQ(line.contentStart, 5);
    EXPECT_EQ(line.contentEnd, 6);
    EXPECT_EQ(line.indentationAtOffset(5, quote), 6);
    EXPECT_EQ(line.indentationAtOffset(3, quote), 4);
    EXPECT_EQ(line.localIndentationAtOffset(3, quote), 2);
    EXPECT_EQ(line.localIndentationAtOffset(5, quote), 4);
    EXPECT_EQ(line.localIndentation(), 4);
    line.setLeading(6, quote);
    EXPECT_EQ(line.contentStart, 8) << "stops at the end of the line";
    EXPECT_EQ(line.contentEnd, 8) << "is raised";
    EXPECT_EQ(line.indentationAtOffset(line.contentStart, quote), 12);
    line.setLeading(1, quote);
    EXPECT_EQ(line.contentStart, 1);
    EXPECT_EQ(line.contentEnd, 8) << "is never lowered again";
    EXPECT_EQ(line.localIndentation(), -2);
}

TEST(Lines, IndentationAfterNextTab) {
    const struct {
        const char16_t* text;
        std::int64_t leading, indentation;
        std::optional<std::int64_t> column;
    } cases[] = {
        {u"\ta", 0, 0, 4},
        {u"\ta", 0, 3, 4},
        {u"\ta", 0, 4, std::nullopt},
        {u"\t\ta", 0, 4, 8},
        {u"  \ta", 0, 0, 4},
        {u"     a", 0, 0, std::nullopt},
        {u"     \ta", 0, 4, 8},
        {u"    \t", 0, 2, 8},
        {u"a\tb", 0, 0, std::nullopt}, // behind the content
        {u">\t\tb", 1, 2, 4},          // columns count from the start of the line
        {u">\t\tb", 1, 4, 8},
        {u"", 0, 0, std::nullopt},
    };
    for (const auto& c : cases) {
        const std::u16string text = c.text;
        Lines lines(text);
        lines[0].setLeading(c.leading, text);
        EXPECT_EQ(lines[0].indentationAfterNextTab(c.indentation, text), c.column)
            << testing::PrintToString(text) << " " << c.indentation;
    }
    Lines lines(u"\ta");
    EXPECT_THROW(lines[0].indentationAfterNextTab(9, u""), std::out_of_range);
}

} // namespace
} // namespace Ondo
