#include "corvane/operation/OperationMoveLines.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::Range;
using Ondo::RuleConfig;
using Ondo::Tree;
using Ondo::Test::applied;
using Ondo::Test::CommandCase;
using Ondo::Test::Drawn;
using Ondo::Test::expectEach;
using Ondo::Test::RandomNote;
using Ondo::Test::visible;

const MoveLines up(MoveLinesDirection::Up);
const MoveLines down(MoveLinesDirection::Down);

/// With the comment that folds in the place of `▸`.
std::u16string withFolds(std::u16string_view drawing) {
    std::u16string text;
    for (const char16_t unit : drawing)
        unit == u'▸' ? text += u" <!-- {\"fold\":true} -->" : text += unit;
    return text;
}

void expectFolds(const MoveLines& move, const std::vector<CommandCase>& cases,
                 RuleConfig::RuleSet rules = RuleConfig::Extended) {
    for (const CommandCase& each : cases) {
        const std::u16string before = withFolds(each.before);
        const std::u16string after = withFolds(each.after);
        expectEach(move, {{before, after}}, rules);
    }
}

TEST(MoveLines, MovesLinesAsText) {
    for (const RuleConfig::RuleSet rules : Ondo::Test::allRuleSets) {
        expectEach(up,
                   {
                       {u"‸", u""},
                       {u"a‸", u""},
                       {u"‸a\nb", u""},
                       {u"a\nb‸\nc", u"b‸\na\nc"},
                       {u"a\n⟦b\n⟧c", u"⟦b\n⟧a\nc"},
                       {u"a\nb⟦c\nd⟧e\nf", u"b⟦c\nd⟧e\na\nf"},
                       {u"a\n\n‸\nb", u"a\n‸\n\nb"},
                       {u"a 😀\r\nשל⟦ום\r\n⟧", u"של⟦ום\r\n⟧a 😀\r\n"},
                       {u"> - a\n>   - [x] ‸b\n> c", u">   - [x] ‸b\n> - a\n> c"},
                       {u"```\na\n‸b\n```", u"```\n‸b\na\n```"},
                       {u"a\n‸```\nb\n```", u"‸```\na\nb\n```"},
                       // The line ending at the end changes sides.
                       {u"a\nb\n‸c", u"a\n‸c\nb"},
                       {u"a\r\nb‸", u"b‸\r\na"},
                       {u"a\r⟦b⟧", u"⟦b⟧\ra"},
                       {u"a\n‸", u"‸\na"},
                   },
                   rules);
        expectEach(down,
                   {
                       {u"‸", u""},
                       {u"a\n‸b", u""},
                       {u"a\n‸b\n", u""},
                       {u"a\n‸", u""},
                       {u"‸a\nb\n", u"b\n‸a\n"},
                       {u"⟦a\nb⟧\nc\n\nd", u"c\n⟦a\nb⟧\n\nd"},
                       {u"⟦a\n⟧b", u"b\n⟦a⟧"},
                       {u"‸\r\na", u"a\r\n‸"},
                       {u"- [ ] a‸\n- b\n", u"- b\n- [ ] a‸\n"},
                   },
                   rules);
    }
}

/// A lone carriage return doesn't take the line feed of an empty line.
TEST(MoveLines, KeepsLoneCarriageReturnsApart) {
    expectEach(up, {
                       {u"\na‸\r", u"a‸\r\n\n"},
                       {u"a\rb\n‸\nc", u"a\r\n‸\nb\nc"},
                       {u"a\r‸b\n\nc", u"‸b\na\r\n\nc"},
                   });
    expectEach(down, {{u"\n‸\na\r", u"\na\r\n‸\n"}});
}

TEST(MoveLines, GivesTheFirstItemTheNumberOfItsList) {
    expectEach(up, {
                       {u"1. a\n2. ‸b\n3. c", u"1. ‸b\n1. a\n3. c"},
                       {u"9) a\n10) b‸\n", u"9) b‸\n9) a\n"},
                       {u"10. a\n1‸. b", u"10‸. b\n10. a"},
                       {u"> 3. a\n> ⟦4. b⟧", u"> ⟦3. b⟧\n> 3. a"},
                       {u"x\n\n1. a\n2. ‸b", u"x\n\n1. ‸b\n1. a"},
                       // Not the first one, not the start of its list, no list in common.
                       {u"1. a\n2. b\n3. ‸c", u"1. a\n3. ‸c\n2. b"},
                       {u"1. a\n   c\n2. ‸b", u"1. a\n2. ‸b\n   c"},
                       {u"1. a\n2) ‸b", u"2) ‸b\n1. a"},
                       {u"5. a\n   7. ‸b", u"   7. ‸b\n5. a"},
                       {u"x\n\n2. ‸b", u"x\n2. ‸b\n"},
                   });
    expectEach(down, {
                         {u"1. ‸a\n10. b\n", u"1. b\n1. ‸a\n"},
                         {u"⟦3. a\n4. b⟧\n5. c", u"3. c\n⟦3. a\n4. b⟧"},
                     });
}

TEST(MoveLines, PassesTablesAndKeepsTheirRows) {
    expectEach(up, {
                       {u"x\n‸| a |\n|---|\n| b |", u""},
                       {u"x\n| a |\n‸|---|\n| b |", u""},
                       {u"x\n| a |\n|---|\n| b‸ |", u""},
                       {u"x\n| a |\n|---|\n⟦| b |\n| c |⟧", u""},
                       {u"| a |\n|---|\n| b |\n| c‸ |", u"| a |\n|---|\n| c‸ |\n| b |"},
                       {u"| a |\n|---|\n| b |\n⟦| c |\nx⟧", u""},
                       {u"y\n⟦x\n| a |⟧\n|---|", u""},
                       {u"y\n⟦x\n⟧| a |\n|---|", u"⟦x\n⟧y\n| a |\n|---|"},
                       {u"x\n⟦| a |\n|---|\n| b |\n⟧y", u"⟦| a |\n|---|\n| b |\n⟧x\ny"},
                       {u"| a |\n|---|\n| b |\nx‸\n", u"x‸\n| a |\n|---|\n| b |\n"},
                       {u"| a |\n|---|\n‸", u"‸\n| a |\n|---|"},
                       // It would become a row of the table above, or the two tables one.
                       {u"| a |\n|---|\n\n‸| b |", u""},
                       {u"| a |\n|---|\n\n‸   | b", u""},
                       {u"| a |\n|---|\n\n‸    | b", u"| a |\n|---|\n‸    | b\n"},
                       {u"| a |\n|---|\n\n\t| b‸\n", u"| a |\n|---|\n\t| b‸\n\n"},
                       {u"| a |\n|---|\n‸\n| b |\n|---|", u""},
                   });
    expectEach(down, {
                         {u"| a |\n|---|\n‸| b |\r\n| c |", u"| a |\n|---|\n| c |\r\n‸| b |"},
                         {u"| a |\n|---|\n‸| b |\nx", u""},
                         {u"‸x\n| a |\n|---|\n| b |", u"| a |\n|---|\n| b |\n‸x"},
                         {u"⟦| a |\n|---|⟧\n\nx", u"\n⟦| a |\n|---|⟧\nx"},
                     });
    expectEach(up, {{u"| a |\n|---|\n\n\t| b‸ |", u""}}, RuleConfig::Simplified);
    // There the lines are text.
    expectEach(up, {{u"x\n‸| a |\n|---|", u"‸| a |\nx\n|---|"}}, RuleConfig::Commonmark);
}

TEST(MoveLines, KeepsFrontMatterTogether) {
    expectEach(up, {
                       {u"---\na: b\nc: ‸d\n---\ne", u"---\nc: ‸d\na: b\n---\ne"},
                       {u"---\na‸: b\n---\ne", u""},
                       {u"---\na: b\n‸---\ne", u""},
                       {u"---\na: b\n---\n‸e", u""},
                       {u"---\na: b\n---\n‸", u""},
                       {u"a\n---‸\nb: c\n---\nd", u""},
                       {u"...\r\n⟦---⟧", u""},
                       {u"a\n---‸\nb: c\n --- \n....", u"---‸\na\nb: c\n --- \n...."},
                       {u"---\na: b\n---\ne\n⟦f⟧", u"---\na: b\n---\n⟦f⟧\ne"},
                       {u"---\n---\n\n‸e", u"---\n---\n‸e\n"},
                   });
    expectEach(down, {
                         {u"‸---\na: b\n---\ne", u""},
                         {u"‸a\n---\nb: c\n---\n", u""},
                         {u"---\na: b‸\n---\ne", u""},
                         {u"---\na: b\n---‸\ne", u""},
                         {u"⟦---\na: b\n---\n⟧e", u""},
                         {u"---\na: b\n⟦c: d\n---\ne⟧\nf", u""},
                     });
}

TEST(MoveLines, MovesFoldedSectionsWhole) {
    const std::vector<CommandCase> cases = {
        {u"# ‸f▸\na\n\nb\n# g\n", u"# g\n# ‸f▸\na\n\nb\n"},
        {u"# f▸\na\n\nb‸\n# g\n", u"# g\n# f▸\na\n\nb‸\n"},
        {u"⟦x\n# f⟧▸\na\n# g", u"# g\n⟦x\n# f⟧▸\na"},
        {u"- ‸f▸\n  - a\n    b\n- c\n", u"- c\n- ‸f▸\n  - a\n    b\n"},
        {u"> 1. f‸▸\n>    - a\n> 2. c", u"> 1. c\n> 1. f‸▸\n>    - a"},
        {u"- x‸\n- f▸\n  - a\n- c", u"- f▸\n  - a\n- x‸\n- c"},
        {u"# ‸f▸\na\n# g▸\nb\n# h", u"# g▸\nb\n# ‸f▸\na\n# h"},
    };
    expectFolds(down, cases);
    for (const CommandCase& each : cases)
        if (each.before.find(u"1.") == std::u16string_view::npos)
            expectFolds(up, {{each.after, each.before}});
    expectFolds(up, {{u"# h\n‸# f▸\na", u"‸# f▸\na\n# h"}}, RuleConfig::Simplified);
    // In the plain dialect the comment is one like any other.
    expectFolds(down, {{u"# ‸f▸\na\nb", u"a\n# ‸f▸\nb"}}, RuleConfig::Commonmark);
}

/// What comes behind a section may belong to it.
TEST(MoveLines, PassesFoldedSectionsWhole) {
    expectFolds(down, {
                          {u"‸x\n# f▸\na\n# g\nb", u"# f▸\na\n‸x\n# g\nb"},
                          {u"⟦x\n⟧# f▸\na\n## g▸\nb", u"# f▸\na\n## g▸\nb\n⟦x⟧"},
                          {u"‸x\n\n- f▸\n  - a", u"\n‸x\n- f▸\n  - a"},
                          {u"‸x\n- f▸\n  - a\n- b", u"- f▸\n  - a\n‸x\n- b"},
                          {u"# ‸f▸\na\n# g\nb\n\nc\n# h", u"# g\n# ‸f▸\na\nb\n\nc\n# h"},
                          {u"# f▸\na\n# ‸g\nb\n# h\n", u"# f▸\na\nb\n# ‸g\n# h\n"},
                          {u"## ‸f▸\na\n# g▸\nb\n", u"# g▸\nb\n## ‸f▸\na\n"},
                      });
    expectFolds(up, {
                        {u"# f▸\na\n# g\n‸x\nb", u"# f▸\na\n‸x\n# g\nb"},
                        {u"# f▸\na\n\n# ‸g\nb", u"# ‸g\n# f▸\na\n\nb"},
                        {u"# h\nx\n# ‸f▸\na\n# g", u"# h\n# ‸f▸\na\nx\n# g"},
                        {u"# f▸\na\r\n‸", u"‸\r\n# f▸\na"},
                        {u"- f▸\n  - a\n- g\n  ‸b", u"- f▸\n  - a\n  ‸b\n- g"},
                        {u"> 1. f▸\n>    - a\n> 2. ‸b", u"> 1. ‸b\n> 1. f▸\n>    - a"},
                    });
}

/// Range and selection need not be the same.
TEST(MoveLines, CarriesTheSelectionAlong) {
    const std::u16string text = u"a\nb\nc\nd";
    const Tree tree(text);
    struct Case {
        Range range, selection;
        std::u16string_view after;
    };
    for (const Case& each : {Case{{4, 0}, {0, 1}, u"⟦a⟧\nc\nb\nd"}, Case{{4, 0}, {2, 1}, u"a\nc\n⟦b⟧\nd"},
                             Case{{4, 0}, {6, 1}, u"a\nc\nb\n⟦d⟧"}, Case{{4, 0}, {7, 0}, u"a\nc\nb\nd‸"}})
        EXPECT_EQ(
            visible(applied(Drawn(text, each.selection), up.run(tree, each.range.offset, each.range.length,
                                                                each.selection.offset, each.selection.length))
                        .drawing()),
            visible(each.after));
}

// What holds for all notes

using Lines = std::vector<std::u16string>;

/// Without their endings; behind a final ending there is one more.
Lines linesOf(std::u16string_view text) {
    Lines lines(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') continue;
        if (text[i] == u'\n' || text[i] == u'\r')
            lines.emplace_back();
        else
            lines.back() += text[i];
    }
    return lines;
}

Lines sorted(Lines lines) {
    std::sort(lines.begin(), lines.end());
    return lines;
}

std::u16string withoutDigits(std::u16string text) {
    const auto isDigit = [](char16_t unit) { return unit >= u'0' && unit <= u'9'; };
    text.erase(std::remove_if(text.begin(), text.end(), isDigit), text.end());
    return text;
}

/// An item may have got another number.
Lines linesWithoutNumbers(std::u16string_view text) {
    Lines lines = linesOf(text);
    std::transform(lines.begin(), lines.end(), lines.begin(), withoutDigits);
    return sorted(lines);
}

std::u16string selected(const Drawn& note) {
    return note.text.substr(static_cast<std::size_t>(note.selection.offset),
                            static_cast<std::size_t>(note.selection.length));
}

std::vector<Result> moved(const MoveLines& move, const Tree& tree, const Range& range) {
    return move.run(tree, range.offset, range.length, range.offset, range.length);
}

TEST(MoveLines, KeepsLinesAndSelectedText) {
    for (std::uint64_t seed = 0; seed < 3000; ++seed) {
        RandomNote random(seed);
        const std::u16string text = random.note(12);
        const Tree tree(text, Ondo::Test::allRuleSets[seed % 3]);
        const Drawn before(text, random.range(tree.length()));
        const auto results = moved(seed % 2 ? up : down, tree, before.selection);
        if (results.empty()) continue;
        const Drawn after = applied(before, results);
        ASSERT_EQ(linesWithoutNumbers(text), linesWithoutNumbers(after.text))
            << visible(before.drawing()) << "\nto " << visible(after.drawing());
        std::u16string wanted = withoutDigits(selected(before));
        const std::u16string got = withoutDigits(selected(after));
        if (after.selection.end() == static_cast<std::int64_t>(after.text.size()))
            wanted.resize(std::max(got.size(), wanted.find_last_not_of(u"\r\n") + 1));
        ASSERT_EQ(visible(wanted), visible(got)) << visible(before.drawing());
    }
}

/// Blocks that keep their meaning wherever they are put between lines.
constexpr std::u16string_view blocks[] = {u"a\n",
                                          u"\n",
                                          u"b 😀\n",
                                          u"- x\n",
                                          u"- y\n  - z\n",
                                          u"> q\n",
                                          u"> - e\n",
                                          u"# h\n",
                                          u"## i\n",
                                          u"# f▸\nk\n\n",
                                          u"## g▸\n- l\n",
                                          u"- m▸\n  - n\n",
                                          u"> - o▸\n>   - p\n",
                                          u"\n| a | b |\n|---|---|\n| c | d |\n| e | f |\n| g | h |\n"};

std::u16string noteOfBlocks(RandomNote& random) {
    std::u16string text = random.below(4) == 0 ? u"---\nr: s\nt: u\n---\n" : u"";
    for (std::size_t i = 1 + random.below(9); i > 0; --i)
        text += withFolds(blocks[random.below(std::size(blocks))]);
    if (random.below(3) == 0) text.pop_back();
    return text;
}

/// The lines, but for blank ones, in nodes that satisfy.
template <class P>
Lines linesIn(const Tree& tree, P predicate) {
    Lines found;
    for (auto at = tree.root->begin(); at.node; at.nextInSequence())
        if (predicate(at.node) && !predicate(at->parent))
            for (const std::u16string& line : linesOf(tree.markdownIn({at.offset, at->charCount})))
                if (!line.empty()) found.push_back(line);
    return sorted(found);
}

auto isOfType(std::uint16_t type) {
    return [type](const Ondo::Node* node) { return node && node->type == type; };
}

std::int64_t foldsOf(const Tree& tree) {
    std::int64_t count = 0;
    for (auto at = tree.root->begin(); at.node; at.nextInSequence())
        count += at->type == Ondo::ONDO_FOLD_MARKER_NODE ? 1 : 0;
    return count;
}

bool isFolded(const Ondo::Node* node) {
    return node && node->folded;
}

/// How many lines do not show, blank ones among them.
std::int64_t hiddenLinesOf(const Tree& tree) {
    std::int64_t count = 0;
    for (auto at = tree.root->begin(); at.node; at.nextInSequence())
        count += isFolded(at.node) && !isFolded(at->parent) ? at->lineCount : 0;
    return count;
}

TEST(MoveLines, KeepsFoldsTablesAndFrontMatterAndCanBeUndone) {
    for (std::uint64_t seed = 0; seed < 4000; ++seed) {
        RandomNote random(seed);
        const std::u16string text = noteOfBlocks(random);
        const Tree tree(text, seed % 4 ? RuleConfig::Extended : RuleConfig::Simplified);
        const Drawn before(text, random.range(tree.length()));
        const auto results = moved(seed % 2 ? up : down, tree, before.selection);
        if (results.empty()) continue;
        const Drawn after = applied(before, results);
        const Tree moveTree(after.text, tree.ruleSet);
        const std::string message = visible(before.drawing()) + "\nto " + visible(after.drawing());
        for (const std::uint16_t type : {Ondo::ONDO_TABLE_NODE, Ondo::ONDO_YAML_NODE})
            ASSERT_EQ(linesIn(tree, isOfType(type)), linesIn(moveTree, isOfType(type))) << message;
        // A head with nothing below it is no fold, and may become one.
        if (foldsOf(tree) != foldsOf(moveTree)) continue;
        const Lines hidden = linesIn(tree, isFolded);
        const Lines moveHidden = linesIn(moveTree, isFolded);
        ASSERT_TRUE(std::includes(moveHidden.begin(), moveHidden.end(), hidden.begin(), hidden.end()))
            << message;
        // Lines that joined a section move with it. The empty line behind a final ending counts for none yet.
        if (hidden != moveHidden || hiddenLinesOf(tree) != hiddenLinesOf(moveTree)) continue;
        const bool losesBlank = linesOf(text).back() != u"" && linesOf(after.text).back() == u"";
        if (losesBlank || before.selection.offset == tree.length()) continue;
        const auto back = moved(seed % 2 ? down : up, moveTree, after.selection);
        if (back.empty() && seed % 2) continue; // at the end of the text only the way up is open
        ASSERT_EQ(visible(applied(after, back).text), visible(text)) << message;
    }
}

} // namespace
} // namespace CVN::Operation
