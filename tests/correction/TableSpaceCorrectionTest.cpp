#include "corvane/correction/TableSpaceCorrection.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

using namespace Ondo;
using namespace Ondo::Test;
using CVN::Correction::TableSpaceCorrection;

namespace {

constexpr std::u16string_view head = u"| a | b |\n|---|:-:|\n";

/// With "·" for a no-break space.
std::u16string withNbsp(std::u16string_view drawing) {
    std::u16string text(drawing);
    for (char16_t& unit : text)
        if (unit == u'·') unit = CVN::Correction::nbsp;
    return text;
}

std::u16string inRow(std::u16string_view row) {
    return row.empty() ? std::u16string() : std::u16string(head) + withNbsp(row);
}

TEST(TableSpaceCorrection, Rows) {
    struct {
        std::u16string_view before;
        std::u16string_view typed;
        std::u16string_view after;
    } const cases[] = {
        // held at the end of the text
        {u"| x‸ |  |", u" ", u"| x·‸ |  |"},
        {u"| x·‸ |  |", u" ", u"| x··‸ |  |"},
        {u"| x‸|  |", u" ", u"| x·‸ |  |"},
        {u"| x⟦yz⟧ |  |", u"  ", u"| x··‸ |  |"},
        {u"| x‸ y |  |", u" ", u""},
        {u"| x ‸ |  |", u" ", u""},
        {u"| ‸ |  |", u" ", u""},
        // released by text
        {u"| x·‸ |  |", u"y", u"| x y‸ |  |"},
        {u"| x··‸ |  |\n", u"😀", u"| x  😀‸ |  |\n"},
        {u"| x·‸|  |", u"y", u"| x y‸ |  |"},
        {u"| x··‸ |  |", u"|", u"| x  |‸ |  |"},
        {u"| x·‸|  |", u"| y", u"| x | y‸|  |"},
        {u"| x·‸ |  |", u"y|", u""},
        {u"| 10·‸km |  |", u"y", u""}, // the user's own
        {u"| x ·y‸ |  |", u"z", u""},
        // beside pipes
        {u"||‸|", u"y", u"|| y‸ |"},
        {u"|‸x | z |", u"y", u"| y‸x | z |"},
        {u"| x‸|z |", u"y", u"| xy‸ |z |"},
        {u"|‸ | z |", u"y", u"| y‸ | z |"},
        {u"| x |⟦ z ⟧|", u"שלום", u"| x | שלום‸ |"},
        {u"| x‸| z |", u"\\", u"| x\\‸ | z |"}, // doesn't escape the pipe
        {u"| x\\|‸| z |", u"y", u"| x\\|y‸ | z |"},
        {u"|‸x | z |", u" ", u""},
        {u"| x‸y | z |", u"v", u""},
        // beyond a cell
        {u"‸| x | z |", u"y", u""},
        {u"| x | z |‸", u"y", u""},
        {u"| x⟦ | ⟧z |", u"y", u""},
        {u"| x‸| z |", u"|", u""},
        {u"| x‸| z |", u"\n", u""},
        {u"| x⟦y⟧| z |", u"", u""},
    };
    for (const auto& each : cases)
        EXPECT_EQ(visible(afterCorrection(TableSpaceCorrection(), inRow(each.before), each.typed)),
                  visible(inRow(each.after)))
            << "behind " << visible(each.before);
}

TEST(TableSpaceCorrection, HeaderRowsButNotDelimiterRows) {
    const TableSpaceCorrection correction;
    EXPECT_EQ(afterCorrection(correction, u"| a‸ |\r\n|--|\r\n", u" "), withNbsp(u"| a·‸ |\r\n|--|\r\n"));
    EXPECT_EQ(afterCorrection(correction, u"| a |\n|--‸|", u"-"), u"");
    EXPECT_EQ(afterCorrection(correction, u"| a‸ |\n", u" "), u"");
    EXPECT_EQ(afterCorrection(correction, u"| a‸ |\n|--|\n", u" ", RuleConfig::Commonmark), u"");
}

TEST(TableSpaceCorrection, SplitTrim) {
    const auto parts = TableSpaceCorrection::splitTrim(u" \t x y\u00A0  ");
    EXPECT_EQ(parts.leading, u" \t ");
    EXPECT_EQ(parts.text, u"x y\u00A0");
    EXPECT_EQ(parts.trailing, u"  ");
    EXPECT_EQ(TableSpaceCorrection::splitTrim(u"  ").leading, u"  ");
    EXPECT_TRUE(TableSpaceCorrection::splitTrim(u"").text.empty());
}

} // namespace
