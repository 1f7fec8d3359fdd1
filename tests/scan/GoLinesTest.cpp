#include "corvane/scan/GoLines.h"

#include <gtest/gtest.h>

#include <string>

namespace Ondo {
namespace {

/// Four lines of a quote, with indentation, trailing blanks, an empty line and a lazy one; capitals are
/// content. Offsets: 2 "A", 5 LF, 6 ">", 9 "C", 10 CR LF, 12 ">", 13 LF, 14 "D".
constexpr std::u16string_view text = u"> AB \n>  C\r\n>\nD";
constexpr std::int64_t prefixes[] = {2, 8, 13, 14};
constexpr std::int64_t none = Go::NoPos;

Lines quoteLines() {
    Lines lines(text);
    for (std::int64_t i = 0; i < lines.size(); ++i)
        lines[i].setLeading(prefixes[i], text);
    return lines;
}

/// All that the cursor sees from where it stands, lines separated by "|".
std::u16string readAll(GoLines cursor) {
    std::u16string seen;
    while (true) {
        const std::int64_t from = cursor.pos();
        const std::int64_t line = cursor.currentLine();
        seen += cursor.substring(from, cursor.nextWhile(Go::always));
        cursor.nextWhileLineEnding(1);
        if (cursor.currentLine() == line) return seen;
        seen += u'|';
    }
}

TEST(GoLines, SeesTheContentOfLinesOnly) {
    const Lines lines = quoteLines();
    EXPECT_EQ(readAll(GoLines(text, lines, 0, 3)), u"AB|C||D");
    EXPECT_EQ(readAll(GoLines(text, lines, 1, 1)), u"C");
    EXPECT_EQ(readAll(GoLines(text, lines, 0, 3, 3, 14)), u"B|C||");
    EXPECT_EQ(readAll(GoLines(text, lines, 0, 3, none, 3)), u"A");
}

TEST(GoLines, StepsStayInTheLine) {
    const Lines lines = quoteLines();
    GoLines cursor(text, lines, 0, 3);
    EXPECT_EQ(cursor.pos(), 2);
    EXPECT_FALSE(cursor.isPrevious(Go::always));
    EXPECT_EQ(cursor.nextWhile(Go::always), 4);
    EXPECT_EQ(cursor.nextMatch(Go::always, 1, 1), none);
}

TEST(GoLines, LineEndingsAreCrossedOnlyAtTheEndOfContent) {
    const Lines lines = quoteLines();
    GoLines cursor(text, lines, 0, 3);
    EXPECT_EQ(cursor.nextWhileLineEnding(), 2) << "not at the end";
    cursor.nextWhile(Go::always);
    EXPECT_EQ(GoLines(cursor).nextWhileLineEnding(0), 4);
    EXPECT_EQ(cursor.nextWhileLineEnding(), 9);
    EXPECT_EQ(cursor.minPos(), 9);
    EXPECT_EQ(cursor.maxPos(), 10);
    cursor.nextWhile(Go::always);
    EXPECT_EQ(GoLines(cursor).nextWhileLineEnding(1), 13) << "the empty line";
    EXPECT_EQ(cursor.nextWhileLineEnding(), 14) << "over the empty line";
    EXPECT_EQ(cursor.currentLine(), 3);
    cursor.nextWhile(Go::always);
    EXPECT_EQ(cursor.nextWhileLineEnding(), 15) << "the last line";
    cursor.setPos(none);
    EXPECT_EQ(cursor.nextWhileLineEnding(), none);
}

/// For each offset from -1 on: the line that the cursor comes to stand in, or "." when the jump fails.
std::string jumps(const GoLines& start) {
    std::string result;
    for (std::int64_t offset = -1; offset <= static_cast<std::int64_t>(text.size()) + 1; ++offset) {
        GoLines cursor = start;
        const std::int64_t pos = cursor.to(offset).pos();
        EXPECT_TRUE(pos == offset || pos == none);
        result += pos == none ? "." : std::to_string(cursor.currentLine());
    }
    return result;
}

TEST(GoLines, JumpsIntoContentOnly) {
    const Lines lines = quoteLines();
    const struct {
        std::int64_t firstLine, lastLine, minOffset, maxOffset;
        const char* expected; ///< the character for -1, then one for each code unit of the text, then two
    } cases[] = {
        //                       > AB ~>  C~~>~D
        {0, 3, none, none, "...000....11..233."},
        {1, 2, none, none, "..........11..2..."},
        {0, 3, 3, 14, "....00....11..23.."},
        {0, 3, 4, 9, ".....0....1......."},
    };
    for (const auto& c : cases) {
        GoLines cursor(text, lines, c.firstLine, c.lastLine, c.minOffset, c.maxOffset);
        EXPECT_EQ(jumps(cursor), c.expected);
        // The line that the cursor comes from makes no difference, nor does a failure before.
        cursor.nextWhile(Go::always);
        cursor.nextWhileLineEnding();
        EXPECT_EQ(jumps(cursor), c.expected);
        cursor.setPos(none);
        EXPECT_EQ(jumps(cursor), c.expected);
    }
}

TEST(GoLines, JumpsSetTheBounds) {
    const Lines lines = quoteLines();
    GoLines cursor(text, lines, 0, 3, 3, 9);
    EXPECT_EQ(cursor.to(9).pos(), 9);
    EXPECT_EQ(cursor.minPos(), 9);
    EXPECT_EQ(cursor.maxPos(), 9);
    EXPECT_EQ(cursor.nextWhileLineEnding(), 9) << "the upper limit";
    EXPECT_EQ(cursor.to(4).pos(), 4);
    EXPECT_EQ(cursor.minPos(), 3);
    EXPECT_EQ(cursor.previousWhile(Go::always), 3);
}

} // namespace
} // namespace Ondo
