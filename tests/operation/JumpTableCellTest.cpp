#include "corvane/operation/OperationJumpTableCell.h"

#include <cstddef>
#include <iterator>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

using namespace Ondo;
using namespace Ondo::Test;
using CVN::Operation::JumpTableCell;
using CVN::Operation::JumpTableCellDirection;

namespace {

const JumpTableCell next(JumpTableCellDirection::Next);
const JumpTableCell previous(JumpTableCellDirection::Previous);

TEST(JumpTableCell, Next) {
    expectEach(next, {
                         {u"| ‸a | b |\n|---|---|", u"| a | ⟦b⟧ |\n|---|---|"},
                         {u"| a‸ | b |\n|---|---|", u"| a | ⟦b⟧ |\n|---|---|"},
                         {u"| a ‸| b |\n|---|---|", u"| a | ⟦b⟧ |\n|---|---|"},
                         {u"|‸ a | b |\n|---|---|", u"| a | ⟦b⟧ |\n|---|---|"},
                         {u"|⟦ a ⟧| b |\n|---|---|", u"| a | ⟦b⟧ |\n|---|---|"},
                         {u"| a b | *‸c* d |\n|-|-|\n| e | f |", u"| a b | *c* d |\n|-|-|\n| ⟦e⟧ | f |"},
                         // over the delimiter row, and to a row that is indented
                         {u"| ‸a |\r\n|-|\r\n  |b| \r\n", u"| a |\r\n|-|\r\n  |⟦b⟧| \r\n"},
                         {u"|a|b‸|\n|-|-|\n", u"|a|b‸|\n|-|-|\n"},
                         {u"|a|\n|-|\n| ⟦x⟧y |\n", u"|a|\n|-|\n| ⟦x⟧y |\n"},
                         // empty and blank cells
                         {u"|‸||\n|-|-|", u"||‸|\n|-|-|"},
                         {u"|a‸|  | c |\n|-|-|-|", u"|a|‸  | c |\n|-|-|-|"},
                         {u"|a|‸|\n|-|-|\n||b|", u"|a||\n|-|-|\n|‸|b|"},
                         {u"| ‸a | x \\| 😀 |\n|-|-|", u"| a | ⟦x \\| 😀⟧ |\n|-|-|"},
                         {u"| ‸a |\tשלום |\n|-|-|", u"| a |\t⟦שלום⟧ |\n|-|-|"},
                     });
}

TEST(JumpTableCell, Previous) {
    expectEach(previous, {
                             {u"| a | ‸b |\n|---|---|", u"| ⟦a⟧ | b |\n|---|---|"},
                             {u"| a |‸ b |\n|---|---|", u"| ⟦a⟧ | b |\n|---|---|"},
                             {u"| a | b ‸|\n|---|---|", u"| ⟦a⟧ | b |\n|---|---|"},
                             {u"| ‸a | b |\n|---|---|", u"| ‸a | b |\n|---|---|"},
                             {u"|a|b|\n|-|-|\n|c‸|d|", u"|a|⟦b⟧|\n|-|-|\n|c|d|"},
                             {u"|a| |\t\n|-|-|\n | ⟦c⟧ |d|", u"|a|‸ |\t\n|-|-|\n | c |d|"},
                             {u"|a||\n|-|-|\n|‸||", u"|a|‸|\n|-|-|\n|||"},
                             {u"|‸||\n|-|-|", u"|‸||\n|-|-|"},
                             {u"|||‸|\n|-|-|-|", u"||‸||\n|-|-|-|"},
                         });
}

TEST(JumpTableCell, LeavesTheKeyAlone) {
    for (const JumpTableCell* each : {&next, &previous})
        expectEach(*each, {
                              {u"‸", u""},
                              {u"te‸xt", u""},
                              {u"‸| a |\n|---|\n", u""},
                              {u" ‸| a |\n|---|\n", u""},
                              {u"| a |‸\n|---|\n", u""},
                              {u"| a | ‸\n|---|\n", u""},
                              {u"| a |\n|-‸--|\n", u""},
                              {u"| a |\n|---‸|\n", u""},
                              {u"| a |\n|---|\n| b |‸", u""},
                              {u"| a |\n|---|\n| b |\n‸", u""},
                              {u"| ⟦a | b⟧ |\n|---|---|", u""},
                              {u"| a | ⟦b |\n⟧|---|---|", u""},
                              {u"> | ‸a |\n> |---|", u""},
                          });
    expectEach(next, {{u"| ‸a | b |\n|---|---|", u""}}, RuleConfig::Commonmark);
    expectEach(next, {{u"| ‸a | b |\n|---|---|", u"| a | ⟦b⟧ |\n|---|---|"}}, RuleConfig::Simplified);
}

TEST(JumpTableCell, VisitsEveryCellAndComesBack) {
    const Tree tree(u"para\n| a |  || d |\n|:-|-|-|-|\n  |`e`|f|g||  \n|||||\n| h || i\\| | *j* |\nend");
    const std::u16string_view contents[] = {u"a", u"", u"", u"d", u"`e`", u"f", u"g",    u"",
                                            u"",  u"", u"", u"",  u"h",   u"",  u"i\\|", u"*j*"};
    const auto jump = [&tree](const JumpTableCell& key, const Range& from) {
        const auto results = key.run(tree, from.offset, from.length, from.offset, from.length);
        return results.size() == 1 ? Range{results[0].selectionOffset, results[0].selectionLength} : Range{};
    };
    const std::size_t last = std::size(contents) - 1;
    Range at{7, 1};
    for (std::size_t i = 0; i < last; at = jump(next, at), ++i)
        EXPECT_EQ(visible(tree.markdownIn(at)), visible(contents[i])) << i;
    EXPECT_EQ(jump(next, at), at);
    for (std::size_t i = last; i > 0; at = jump(previous, at), --i)
        EXPECT_EQ(visible(tree.markdownIn(at)), visible(contents[i])) << i;
    EXPECT_EQ(at, (Range{7, 1}));
    EXPECT_EQ(jump(previous, at), at);
}

} // namespace
