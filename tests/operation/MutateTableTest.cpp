#include "corvane/operation/OperationMutateTable.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "corvane/block/Table.h"
#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

using namespace Ondo;
using namespace Ondo::Test;
using CVN::Operation::MutateTable;
using Action = CVN::Operation::MutateTableAction;

namespace {

void expect(Action action, const std::vector<CommandCase>& cases) {
    expectEach(MutateTable(action), cases);
}

TEST(MutateTable, AddRow) {
    expect(Action::AddRowAbove, {
                                    {u"| a |\n|-|\n| b‸ |\n", u"| a |\n|-|\n|‸|\n| b |\n"},
                                    {u"|a|b|\n|-|-|\n|c|d‸|\n", u"|a|b|\n|-|-|\n||‸|\n|c|d|\n"},
                                    {u"|a|b|\n|-|-|\n  |c|d|‸ ", u"|a|b|\n|-|-|\n||‸|\n  |c|d| "},
                                    // a new header
                                    {u"| ‸a |\n|:-|\n| b |\n", u"|‸|\n|:-|\n| a |\n| b |\n"},
                                    {u"p\n|a|⟦b⟧|\n|-|-|\n\nq", u"p\n||‸|\n|-|-|\n|a|b|\n\nq"},
                                    {u"|a‸|\n|-|", u"|‸|\n|-|\n|a|"},
                                    {u"|a‸|\r\n|-|", u"|‸|\n|-|\r\n|a|"},
                                    {u"|a‸|\r|-|\n\nq", u"|‸|\n|-|\n|a|\n\nq"},
                                });
    expect(Action::AddRowBelow, {
                                    {u"| a‸ |\n|-|\n| b |\n", u"| a |\n|-|\n|‸|\n| b |\n"},
                                    {u"|a|b‸|\n|-|-|", u"|a|b|\n|-|-|\n||‸|"},
                                    {u"|a|b|\n|-|-|\n|c|‸d|\nq", u"|a|b|\n|-|-|\n|c|d|\n||‸|\nq"},
                                    {u"|a|b|\n|-|-|\n|c‸|d|", u"|a|b|\n|-|-|\n|c|d|\n|‸||"},
                                    {u"|a|\r\n|-|\r\n|c|‸\r\n", u"|a|\r\n|-|\r\n|c|\r\n|‸|\n"},
                                });
}

TEST(MutateTable, DeleteRow) {
    expect(Action::DeleteRow,
           {
               {u"|a|b|\n|-|-|\n|c|‸d|\n|e|f|\n|g|h|", u"|a|b|\n|-|-|\n|e|‸f|\n|g|h|"},
               {u"|a|b|\n|-|-|\n|c|d|\n|e|‸f|\n", u"|a|b|\n|-|-|\n|c|‸d|\n"},
               {u"|a|b|\n|-|-|\n|c|‸d|\nq", u"|a|‸b|\n|-|-|\nq"},
               {u"|a|b|\n|-|-|\n|c|‸d|", u"|a|‸b|\n|-|-|"},
               {u"|a|\r\n|-|\r\n|b| \r\n |‸c| ", u"|a|\r\n|-|\r\n|‸b| "},
               {u"|a|\n|-|\n|b|\n‸", u""}, // below the table
               // the next one becomes the header
               {u"# t\n|a|‸b|\n|-|:-|\n|c|d|\n|e|f|\n", u"# t\n|c|‸d|\n|-|:-|\n|e|f|\n"},
               {u"|a|‸b|\n|-|:-|\n|c|d|", u"|c|‸d|\n|-|:-|"},
               {u"- x\n\n|‸a|\n|-|\n   |c|\n", u"- x\n\n|‸c|\n|-|\n"}, // not into the item
               {u"|a|‸b|\n|-|:-|\n", u""},
               {u"|p|\n|‸a|\n|-|\n|-|\n", u""}, // would be the delimiter row of the line above
               {u"    |p|\n|‸a|\n|-|\n|-|\n", u"    |p|\n|‸-|\n|-|\n"},
               {u"- x\n  |p|\n|‸a|\n|-|\n|-|\n", u"- x\n  |p|\n|‸-|\n|-|\n"},
               {u"- x\n|p|\n|‸a|\n|-|\n|-|\n", u""},
               {u"|p|\n|‸a|\n|-|\n| -: |\t\n", u""},
               {u"|p|q|\n|‸a|b|\n|-|-|\n|-||\n", u"|p|q|\n|‸-||\n|-|-|\n"},
               // the carriage return and the line feed of two lines make no single ending
               {u"|a|\r|-|\r|‸b|\n\nq", u"|‸a|\r|-|\n\nq"},
           });
}

TEST(MutateTable, MoveRow) {
    expect(Action::MoveRowUp, {
                                  {u"|a|\n|-|\n| b |\n|c‸|\n", u"|a|\n|-|\n|‸c|\n| b |\n"},
                                  {u"|a|x|\n|-|-|\n|b|y‸|\n\nq", u"|b|‸y|\n|-|-|\n|a|x|\n\nq"},
                                  {u"|a|\n|-|\n|b|\n| c 😀 ‸|", u"|a|\n|-|\n|‸ c 😀 |\n|b|"},
                                  {u"|a|\r\n|-|\r\n  |b‸|", u"|‸b|\r\n|-|\r\n  |a|"},
                                  {u"|‸a|\n|-|\n|b|\n", u""},
                                  {u"|p|\n|a|\n|-|\n|‸-|\n", u""},
                              });
    expect(Action::MoveRowDown,
           {
               {u"|a|x|\n|-|-|\n|b|‸y|\n| cc |z|\n", u"|a|x|\n|-|-|\n| cc |z|\n|b|‸y|\n"},
               {u"|a|‸x|\n|-|-|\n|bb|y|\n", u"|bb|y|\n|-|-|\n|a|‸x|\n"},
               {u"|a|\n|-|\n| b‸ |\n|c|", u"|a|\n|-|\n|c|\n|‸ b |"},
               {u"|a|\n|-|\n|‸b|\n\n", u""},
               {u"|a|\n|-|\n|‸b|\n|c|d|\n", u""},
           });
}

TEST(MutateTable, AddAndDeleteColumn) {
    expect(Action::AddColumnBefore,
           {
               {u"| a‸ | b |\n|:-:|-|\n|c||\n", u"|‸| a | b |\n|-|:-:|-|\n||c||\n"},
               {u"| a | b |\n|---|---|\n| c | d‸ |", u"| a || b |\n|---|-|---|\n| c |‸| d |"},
               {u"q\n\n‸|a|\n|-|\n", u"q\n\n|‸|a|\n|-|-|\n"},
           });
    expect(Action::AddColumnAfter,
           {
               {u"| a‸ | b |\n|:-:|-|\n|c||\n", u"| a |‸| b |\n|:-:|-|-|\n|c|||\n"},
               {u"|a|b|\n| - | - |\n|c|‸|  ", u"|a|b||\n| - | - |-|\n|c||‸|  "},
               {u"|a|‸\n|-|\n", u"|a|‸|\n|-|-|\n"},
               // a row that was one too long
               {u"|‸a|\n|-|\n|b|c|\n", u"|a|‸|\n|-|-|\n|b|c|\n"},
               // tables that would run together
               {u"|a|b|\n|-|-|\n|‸c|\n|-|\n", u""},
               {u"|‸a|\n|-|\n|b|c|\n|d|e|\n|-|-|\n", u""},
               {u"|‸a|\n|-|\n\t|b|c|\n|d|e|\n|-|-|\n", u"|a|‸|\n|-|-|\n\t|b|c|\n|d|e|\n|-|-|\n"},
           });
    expect(Action::DeleteColumn, {
                                     {u"| a‸ | b |\n|-|:-|\n|c|d|", u"|‸ b |\n|:-|\n|d|"},
                                     {u"| a | b |\n|-|:-|\n|c|‸d| \n", u"| a |\n|-|\n|‸c| \n"},
                                     {u"|a|b|c|\n|-|-| - |\n|d|x\\|‸y|f|\n", u"|a|c|\n|-| - |\n|d|‸f|\n"},
                                     {u"|a‸|\n|-|\n|b|\n", u""},
                                     {u"|a‸|b|\n|-|-|\n|c|\n|-|\n", u""},
                                     {u"|p|\n|a‸|-|\n|-|-|\n", u""},
                                 });
}

TEST(MutateTable, MoveColumn) {
    expect(Action::MoveColumnLeft, {
                                       {u"|a| b‸ |\n|-| :-: |\n|c||\n", u"|‸ b |a|\n| :-: |-|\n||c|\n"},
                                       {u"|a|b|c|\n|-|-|-:|\n|d|e|f|‸", u"|a|c|b|\n|-|-:|-|\n|d|‸f|e|"},
                                       {u"|‸a|b|\n|-|-|", u""},
                                   });
    expect(Action::MoveColumnRight, {
                                        {u"|a‸| b |\n|-|:-:|\n|c||\n", u"| b |‸a|\n|:-:|-|\n||c|\n"},
                                        {u"|a|b|c|\n|-|-|-|\n|d‸|ee|f|", u"|b|a|c|\n|-|-|-|\n|ee|‸d|f|"},
                                        {u"|a|‸b|\n|-|-|", u""},
                                    });
}

TEST(MutateTable, Align) {
    expect(Action::AlignNone, {{u"|a|b‸|\n|-| :---: |", u"|a|b‸|\n|-| - |"}});
    expect(Action::AlignLeft, {{u"|a|\n|-|\n|⟦b⟧|", u"|a|\n|:-|\n|⟦b⟧|"}});
    expect(Action::AlignCenter, {{u"|a‸|\n|---|", u"|a‸|\n|:-:|"}});
    expect(Action::AlignRight, {{u"|⟦a|\n|---|\n|⟧b|c|", u"|⟦a|\n|-:|\n|⟧b|c|"}});
}

// Whatever the table and the caret

/// What a table says, apart from its layout.
struct Grid {
    std::vector<int> alignments;
    std::vector<std::vector<std::u16string>> rows; ///< without the delimiter row
    bool operator==(const Grid&) const = default;
};

struct Place {
    std::size_t row;
    std::size_t column;
    bool operator==(const Place&) const = default;
};

/// The first table of a text.
struct Found {
    Grid grid;
    std::u16string before;                          ///< the text before it
    std::u16string text;                            ///< its own
    std::u16string behind;                          ///< the text behind it
    std::size_t tables;                             ///< of the text
    std::vector<std::vector<std::int64_t>> pipes{}; ///< of each row of the grid
    std::vector<std::int64_t> ends{};               ///< the last offset in each row of the grid
};

std::optional<Found> tableIn(const Tree& tree) {
    Node* const document = tree.nodeAtOffset(0, LevelSetting::Highest);
    Node* const table = document->childWhere([](Node* node) { return node->type == ONDO_TABLE_NODE; });
    if (!table) return {};
    const std::u16string text(tree.markdown());
    const auto slice = [&text](std::int64_t from, std::int64_t to) {
        return text.substr(static_cast<std::size_t>(from), static_cast<std::size_t>(to - from));
    };
    Found found{{},
                slice(0, table->startOffset()),
                slice(table->startOffset(), table->endOffset()),
                slice(table->endOffset(), tree.length()),
                0};
    for (const Node* node = table; node; node = node->nextSibling)
        found.tables += node->type == ONDO_TABLE_NODE ? 1 : 0;
    for (const auto alignment : static_cast<Block::TableNode*>(table)->alignments)
        found.grid.alignments.push_back(static_cast<int>(alignment));
    for (Node* row = table->firstChild; row; row = row->nextSibling) {
        if (row->type == ONDO_TABLE_DELIMITER_ROW_NODE) continue;
        auto& pipes = found.pipes.emplace_back();
        auto& cells = found.grid.rows.emplace_back();
        for (Node* node = row->firstChild; node; node = node->nextSibling)
            if (node->type == ONDO_TABLE_PIPE_MARKER_NODE) pipes.push_back(node->startOffset());
        for (std::size_t i = 0; i + 1 < pipes.size(); ++i)
            cells.push_back(slice(pipes[i] + 1, pipes[i + 1]));
        const bool endsLine = row->lastChild->type == ONDO_LINE_ENDING_NODE;
        found.ends.push_back(row->endOffset() - (endsLine ? 1 : 0));
    }
    return found;
}

/// The lines below it that came to fit a table's columns: it has them beyond the grid.
std::size_t joinedRows(const Found& table, const Grid& grid) {
    return table.grid.rows.size() - std::min(grid.rows.size(), table.grid.rows.size());
}

/// Whether one has become the other, with nothing else lost but plain lines that joined it.
bool isStill(const Found& before, const std::optional<Found>& now, Grid grid) {
    if (!now || now->tables != before.tables || now->before != before.before) return false;
    if (!std::u16string_view(before.behind).ends_with(now->behind)) return false;
    const auto joined = static_cast<std::ptrdiff_t>(joinedRows(*now, grid));
    if ((joined == 0) != (now->behind == before.behind)) return false;
    grid.rows.insert(grid.rows.end(), now->grid.rows.end() - joined, now->grid.rows.end());
    return now->grid == grid;
}

/// Where a caret is; nothing in a delimiter row, in indentation and outside.
std::optional<Place> placeOf(const Found& table, std::int64_t caret) {
    for (std::size_t row = 0; row < table.ends.size(); ++row) {
        const auto& pipes = table.pipes[row];
        if (caret < pipes.front() || caret > table.ends[row]) continue;
        std::size_t column = 0;
        while (column + 2 < pipes.size() && caret > pipes[column + 1])
            ++column;
        return Place{row, column};
    }
    return {};
}

/// Does to a grid and a place what the action is to do to a table; false when there is nothing to do.
bool mutate(Action action, Grid& grid, Place& at) {
    const auto column = static_cast<std::ptrdiff_t>(at.column);
    const auto row = static_cast<std::ptrdiff_t>(at.row);
    const auto eachRow = [&grid](auto change) {
        change(grid.alignments, 0);
        for (auto& cells : grid.rows)
            change(cells, std::u16string());
    };
    const auto insertColumn = [&](std::ptrdiff_t to) {
        eachRow([to](auto& cells, auto empty) { cells.insert(cells.begin() + to, empty); });
        at.column = static_cast<std::size_t>(to);
        return true;
    };
    const auto insertRow = [&](std::ptrdiff_t to) {
        grid.rows.insert(grid.rows.begin() + to, std::vector<std::u16string>(grid.alignments.size()));
        at.row = static_cast<std::size_t>(to);
        return true;
    };
    const auto swapRows = [&](std::size_t other) {
        if (other >= grid.rows.size()) return false;
        std::swap(grid.rows[at.row], grid.rows[other]);
        at.row = other;
        return true;
    };
    const auto swapColumns = [&](std::size_t other) {
        if (other >= grid.alignments.size()) return false;
        eachRow([&](auto& cells, auto) { std::swap(cells[at.column], cells[other]); });
        at.column = other;
        return true;
    };
    switch (action) {
    case Action::AddRowAbove:
        return insertRow(row);
    case Action::AddRowBelow:
        return insertRow(row + 1);
    case Action::MoveRowUp:
        return swapRows(at.row - 1);
    case Action::MoveRowDown:
        return swapRows(at.row + 1);
    case Action::AddColumnBefore:
        return insertColumn(column);
    case Action::AddColumnAfter:
        return insertColumn(column + 1);
    case Action::MoveColumnLeft:
        return swapColumns(at.column - 1);
    case Action::MoveColumnRight:
        return swapColumns(at.column + 1);
    case Action::DeleteRow:
        if (grid.rows.size() == 1) return false;
        grid.rows.erase(grid.rows.begin() + row);
        at.row = std::min(at.row, grid.rows.size() - 1);
        return true;
    case Action::DeleteColumn:
        if (grid.alignments.size() == 1) return false;
        eachRow([column](auto& cells, auto) { cells.erase(cells.begin() + column); });
        at.column = std::min(at.column, grid.alignments.size() - 1);
        return true;
    default:
        break;
    }
    constexpr int alignments[] = {0, 1, 3, 2};
    grid.alignments[at.column] = alignments[static_cast<int>(action) - static_cast<int>(Action::AlignNone)];
    return true;
}

Drawn after(Action action, const Drawn& note, RuleConfig::RuleSet rules) {
    const Tree tree(note.text, rules);
    const std::int64_t caret = note.selection.offset;
    return applied(note, MutateTable(action).run(tree, caret, 0, caret, 0));
}

/// Whether the table, changed by itself and put back, isn't the same among the lines around it any more.
bool runsIntoOthers(Action action, const Found& table, std::int64_t caret, const Grid& grid,
                    RuleConfig::RuleSet rules) {
    const auto alone = after(action, {table.text, {caret - std::ssize(table.before), 0}}, rules);
    // A carriage return at its end must not become one ending with a line feed below.
    const bool joinsEndings = alone.text.back() == u'\r' && table.behind.starts_with(u'\n');
    const std::u16string text = alone.text + (joinsEndings ? u"\n" : u"");
    return !isStill(table, tableIn(Tree(table.before + text + table.behind, rules)), grid);
}

std::u16string table(RandomNote& random) {
    constexpr std::u16string_view cells[] = {u"",      u"",          u" ",     u"   ",    u" a ",   u"b",
                                             u" x\\|", u" *i* ",     u" `c` ", u" 😀 ",    u"a/b",   u"a/|b",
                                             u"שלום ", u"[[g\\|h]]", u" - ",   u"[a](b)", u"\tc\t", u"\\\\"};
    constexpr std::u16string_view delimiters[] = {u"-", u" --- ", u":-", u" :-: ", u"---:"};
    constexpr std::u16string_view before[] = {u"",
                                              u"",
                                              u"# h\n",
                                              u"para\n",
                                              u"- x\n",
                                              u"> q\r\n\r\n",
                                              u"```\n```\n",
                                              u"|p|\n",
                                              u"para\n   |p|q|\n",
                                              u"    |p|\n",
                                              u"\t|p|q|\n",
                                              u"para\n \t|p|\n",
                                              u"- x\n  |p|\n",
                                              u"- x\n |p|q|\n"};
    constexpr std::u16string_view behind[] = {u"",
                                              u"\n",
                                              u"para\n",
                                              u"\n\r\n> |x|\n> |-|\n",
                                              u"- x\n",
                                              u"|x|\n",
                                              u"   |x|y|\n|z|\n",
                                              u"    |x|y|\n|z|\n",
                                              u"|x|\n|-|\n",
                                              u"|x|y|\n|-|-|\n",
                                              u"|w|v|\n|x|y|z|\n|-|-|-|\n",
                                              u"\t|w|v|\n|x|y|\n|-|-|\n"};
    constexpr std::u16string_view endings[] = {u"\n", u"\r\n", u"\r"};
    const auto any = [&random](const auto& list) { return list[random.below(std::size(list))]; };
    const std::size_t columns = 1 + random.below(4);
    const std::size_t rows = 2 + random.below(4);
    const std::u16string_view ending = any(endings);
    const bool isMixed = random.below(4) == 0;
    std::u16string text(any(before));
    for (std::size_t row = 0; row < rows; ++row) {
        text.append(random.below(3) == 0 ? random.below(4) : 0, u' ');
        text += u'|';
        for (std::size_t i = 0; i < columns; ++i)
            text.append(row == 1 ? any(delimiters) : any(cells)).append(1, u'|');
        text.append(random.below(4) == 0 ? 1 + random.below(2) : 0, u' ');
        if (row + 1 < rows || random.below(3) > 0) text += isMixed ? any(endings) : ending;
    }
    return text.back() == u'\n' || text.back() == u'\r' ? text.append(any(behind)) : text;
}

struct {
    Action there;
    Action back;
} const undone[] = {
    {Action::AddRowBelow, Action::DeleteRow},          {Action::MoveRowUp, Action::MoveRowDown},
    {Action::MoveRowDown, Action::MoveRowUp},          {Action::AddColumnBefore, Action::DeleteColumn},
    {Action::AddColumnAfter, Action::DeleteColumn},    {Action::MoveColumnLeft, Action::MoveColumnRight},
    {Action::MoveColumnRight, Action::MoveColumnLeft},
};

TEST(MutateTable, KeepsTheTableATable) {
    RandomNote random(66);
    for (int round = 0; round < 300; ++round) {
        const std::u16string text = table(random);
        const RuleConfig::RuleSet rules = round % 3 ? RuleConfig::Extended : RuleConfig::Simplified;
        const auto before = tableIn(Tree(text, rules));
        if (!before) continue;
        const auto action = static_cast<Action>(random.below(14));
        for (std::int64_t caret = 0; caret <= std::ssize(text); ++caret) {
            if (before->tables > 1 && caret >= std::ssize(before->before + before->text)) break;
            const Drawn note(text, {caret, 0});
            SCOPED_TRACE(visible(note.drawing()) + " " + std::to_string(static_cast<int>(action)));
            const Drawn changed = after(action, note, rules);
            auto place = placeOf(*before, caret);
            Grid grid = before->grid;
            if (!place || !mutate(action, grid, *place) ||
                runsIntoOthers(action, *before, caret, grid, rules)) {
                EXPECT_EQ(visible(changed.drawing()), visible(note.drawing()));
                continue;
            }
            const auto table = tableIn(Tree(changed.text, rules));
            ASSERT_TRUE(isStill(*before, table, grid)) << visible(changed.drawing());
            EXPECT_TRUE(placeOf(*table, changed.selection.offset) == place) << visible(changed.drawing());
            if (action >= Action::AlignNone) continue;
            EXPECT_EQ(changed.selection.offset, table->pipes[place->row][place->column] + 1);
            for (const auto& [there, back] : undone)
                if (action == there && joinedRows(*table, grid) == 0) {
                    EXPECT_EQ(visible(after(back, changed, rules).text), visible(text));
                }
        }
    }
}

} // namespace
