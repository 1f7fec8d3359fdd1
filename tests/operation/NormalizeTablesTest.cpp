#include "corvane/operation/OperationNormalizeTables.h"

#include <gtest/gtest.h>

#include "corvane/operation/LineWalk.h"
#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using namespace Ondo::Test;
using Ondo::RuleConfig;
using Ondo::Tree;

const NormalizeTables normalize;

TEST(NormalizeTables, LinesUpPipes) {
    for (const RuleConfig::RuleSet rules : {RuleConfig::Extended, RuleConfig::Simplified})
        expectEach(
            normalize,
            {
                {u"|a‸|bcdef|\n|-|-|\n|ghij||", u"| a‸    | bcdef |\n|------|-------|\n| ghij |       |"},
                {u"|  ‸a  | b |\r\n|---|--------|\r\n", u"| ‸a   | b   |\r\n|-----|-----|\r\n"},
                // by alignment; the colons stay at the ends
                {u"|‸a|b|c|d|\n|-|:-|-:|:-:|", u"| ‸a   | b   |   c |  d  |\n|-----|:----|----:|:---:|"},
                {u"|‸abcde|b|\n|:-:|-:|\n|ab|abcdef|",
                 u"| ‸abcde |      b |\n|:-----:|-------:|\n|  ab   | abcdef |"},
                {u"|‸a|\n|---------:|\n", u"|   ‸a |\n|----:|\n"},
                {u"|‸a|\n|:-------:|\n", u"|  ‸a  |\n|:---:|\n"},
                // blanks: tabs, around rows, in the delimiter row
                {u"  |\ta\t|  \n |  ---   | \n   |b‸|\n", u"| a   |\n|-----|\n| b‸   |\n"},
                {u"| \t |\n|-|\n| a‸ |", u"|     |\n|-----|\n| a‸   |"},
                // units, not glyphs
                {u"|😀‸|\n|-|\n|字字字字|", u"| 😀‸   |\n|------|\n| 字字字字 |"},
                {u"|שלום‸|\n|-:|\n|א|", u"| שלום‸ |\n|-----:|\n|    א |"},
                // what closes no cell
                {u"|a\\|b‸|\n|-|\n|c\\\\|\n|d/|e|", u"| a\\|b‸ |\n|------|\n| c\\\\  |\n| d/|e |"},
            },
            rules);
    expectEach(normalize, {{u"|a‸|\n|-|", u""}}, RuleConfig::Commonmark);
}

TEST(NormalizeTables, LongTextsStickOut) {
    const std::u16string text(100, u'x');
    const std::u16string blanks(56, u' ');
    const std::u16string dashes(62, u'-');
    expectEach(normalize,
               {{u"|" + text + u"‸|b|\n|-|-|\n|c|d|",
                 u"| " + text + u"‸ | b   |\n|" + dashes + u"|-----|\n| c    " + blanks + u"| d   |"}});
    expectEach(normalize,
               {{u"|‸" + text + u"|\n|:-:|", u"| ‸" + text + u" |\n|:" + dashes.substr(2) + u":|"}});
}

TEST(NormalizeTables, LeavesWhatIsNoTable) {
    expectEach(normalize, {
                              {u"‸", u""},
                              {u"a‸\n\n|b|\n|-|", u""},
                              {u"| a‸   |\n|-----|\n", u""},
                              {u"> |a‸|\n> |-|", u""},
                              {u"- |a‸|\n  |-|", u""},
                              {u"|a‸|\n|-|-|", u""},
                              // a row too short ends the table
                              {u"|a|‸b|\n|-|-|\n|c|", u"| a   | ‸b   |\n|-----|-----|\n|c|"},
                          });
}

TEST(NormalizeTables, LooksAtTheTablesOfTheRange) {
    const std::u16string table = u"|a|\n|-|\n";
    const std::u16string normal = u"| a   |\n|-----|\n";
    expectEach(normalize, {
                              {table + u"\n|⟦b|\n|-|\n\n|c⟧|\n|-|\n\n" + table,
                               table + u"\n| ⟦b   |\n|-----|\n\n| c⟧   |\n|-----|\n\n" + table},
                              {table + u"x⟦\n\ny⟧\n" + table, u""},
                              {u"⟦x\n" + table + u"y⟧\n" + table, u"⟦x\n" + normal + u"y⟧\n" + table},
                              {table + u"|⟦b|\n\nz⟧", u"| a   |\n|-----|\n| ⟦b   |\n\nz⟧"},
                          });
}

TEST(NormalizeTables, KeepsTheCaretWithTheText) {
    expectEach(normalize, {
                              // behind and before the text
                              {u"|a |b‸|\n|-|-|", u"| a   | b‸   |\n|-----|-----|"},
                              {u"|a  ‸ |b|\n|-|-|", u"| a‸   | b   |\n|-----|-----|"},
                              {u"|a   ‸|b|\n|-|-|", u"| a‸   | b   |\n|-----|-----|"},
                              {u"|‸   a|b|\n|-|-|", u"| ‸a   | b   |\n|-----|-----|"},
                              {u"| ‸  a|b|\n|-|-:|", u"| ‸a   |   b |\n|-----|----:|"},
                              {u"|a|‸   b|\n|-|-:|", u"| a   |   ‸b |\n|-----|----:|"},
                              // without text
                              {u"|‸|\n|-|\n|a|", u"| ‸    |\n|-----|\n| a   |"},
                              {u"|‸|\n|-:|\n|a|", u"|    ‸ |\n|----:|\n|   a |"},
                              {u"|‸|\n|:-:|\n|abcd|", u"|   ‸   |\n|:----:|\n| abcd |"},
                              {u"|   ‸|\n|-|\n|a|", u"| ‸    |\n|-----|\n| a   |"},
                              {u"|        ‸ |\n|-:|\n|a|", u"|    ‸ |\n|----:|\n|   a |"},
                              {u"| ⟦  ⟧ |\n|:-:|\n|a|", u"|  ‸   |\n|:---:|\n|  a  |"},
                              // the cell needs nothing, another one does
                              {u"|    ‸ |\n|-----|\n|a|", u"| ‸    |\n|-----|\n| a   |"},
                              {u"|a|    ‸ |\n|-----|-----|", u"| a   | ‸    |\n|-----|-----|"},
                              // outside the cells
                              {u"‸|a|\n|-|", u"‸| a   |\n|-----|"},
                              {u"|a| ‸ \n|-|", u"| a   |‸\n|-----|"},
                              {u" ‸ |a|\n|-|", u"‸| a   |\n|-----|"},
                              {u"|a|\n|-|‸", u"| a   |\n|-----|‸"},
                              // selections
                              {u"|⟦a⟧|\n|-|", u"| ⟦a⟧   |\n|-----|"},
                              {u"|⟦a|b⟧|\n|-|-|", u"| ⟦a   | b⟧   |\n|-----|-----|"},
                              {u"|a⟦|b⟧|\n|-|-|", u"| a⟦   | b⟧   |\n|-----|-----|"},
                              {u"⟦|a|\n|-|⟧", u"⟦| a   |\n|-----|⟧"},
                          });
}

TEST(NormalizeTables, AssertsWhatARowHolds) {
    const auto normalizeWith = [](std::int64_t offset, auto spoil) {
        const Tree tree(u"|a|\n|-|");
        spoil(tree.nodeAtOffset(offset, Ondo::LevelSetting::Leaf));
        normalize.run(tree, 0, 0, 0, 0);
    };
    EXPECT_DEATH(normalizeWith(5, [](Ondo::Node* dash) { dash->charCount = 0; }),
                 "\\(delimiterNode->charCount >= 1\\), function normalizeTableNode, "
                 "source OperationNormalizeTables");
    EXPECT_DEATH(normalizeWith(1,
                               [](Ondo::Node* text) {
                                   Ondo::Node* const cell = text->parent;
                                   cell->parent->link(text->unlinkSubtree(), cell);
                               }),
                 "\\(cellNode->type == ONDO_TABLE_CELL_NODE\\), function normalizeTableNode, "
                 "source OperationNormalizeTables");
}

/// The tree of all cells, without their blanks.
std::u16string cellsOf(const Tree& tree) {
    std::u16string cells;
    for (const Ondo::Node* node = tree.root.get(); node; node = node->nextInSequence()) {
        if (node->type == Ondo::ONDO_SPACE_NODE &&
            (isTableRow(node->parent) || node->parent->type == Ondo::ONDO_TABLE_CELL_NODE))
            continue;
        const bool hasText = node->type != Ondo::ONDO_TABLE_DELIMITER_MARKER_NODE && node->isLeafKind();
        if (node->type == Ondo::ONDO_TABLE_CELL_NODE && node->firstChild->type == Ondo::ONDO_SPACE_NODE &&
            node->firstChild == node->lastChild)
            continue;
        cells += node->toIndentedTree();
        if (hasText) cells.append(u"«").append(tree.markdownForNode(node)).append(u"»");
        cells += u'\n';
    }
    return cells;
}

TEST(NormalizeTables, KeepsContentAndIsDoneAfterOnce) {
    for (std::uint64_t seed = 0; seed < 1000; ++seed) {
        RandomNote random(seed);
        std::u16string note = random.note(6) + u"\n\n";
        for (std::size_t row = 0, rows = 2 + random.below(4); row < rows; ++row) {
            for (std::size_t column = 0; column < 2; ++column) {
                note += std::u16string(random.below(3), u' ') + u"|" + std::u16string(random.below(3), u' ');
                if (row == 1) note += random.below(2) ? u":-" : u"--";
                for (std::size_t pieces = row == 1 ? 0 : random.below(4); pieces > 0; --pieces)
                    note += construct(random.below(1000));
            }
            note += u"|\n";
        }
        note += random.note(3);
        const RuleConfig::RuleSet rules = allRuleSets[seed % 3];
        const Tree tree(note, rules);
        const auto length = static_cast<std::int64_t>(note.size());
        const Drawn once = applied({note, {0, 0}}, normalize.run(tree, 0, length, 0, 0));
        const Tree normal(once.text, rules);
        ASSERT_EQ(visible(cellsOf(normal)), visible(cellsOf(tree))) << visible(note);
        ASSERT_TRUE(normalize.run(normal, 0, normal.length(), 0, 0).empty()) << visible(note);
    }
}

} // namespace
} // namespace CVN::Operation
