// Commands and corrections as the façade offers them: the methods, the tables of names, and what becomes of
// results.

#include "corvane/client/CVNTextOperation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "corvane/client/CVNAST.h"
#include "corvane/correction/Correction.h"
#include "corvane/operation/OperationToggleBlockStyle.h"
#include "corvane/operation/OperationToggleInlineStyle.h"
#include "corvane/scan/Util.h"
#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

using namespace CVN::Operation;

using Results = CVNTextOperation::Results;

std::vector<Result> toCore(const Results& results) {
    std::vector<Result> core;
    for (const CVNASTOperationResult& each : results)
        core.emplace_back(each.replacementRange.location, each.replacementRange.length,
                          each.replacementString, each.proposedSelection.location,
                          each.proposedSelection.length);
    return core;
}

/// What `act` makes of a drawn note and its caret or selection; empty when it has no opinion. The note must
/// become what a plain text does.
template <class Act>
std::u16string after(std::u16string_view drawing, Act act) {
    const Drawn before(drawing);
    CVNAST note = CVNAST::fromMarkdown(before.text);
    const Results results = act(note, CVNRange::of(before.selection));
    if (results.empty()) return {};
    const Drawn expected = applied(before, toCore(results));
    note.applyTextOperationResults(results);
    EXPECT_EQ(visible(note.markdown()), visible(expected.text));
    return expected.drawing();
}

// The tables

CVNTextArgument number(std::int64_t number) {
    return {number, {}};
}

CVNTextArgument text(std::u16string_view text) {
    return {0, text};
}

TEST(TextOperation, CommandsAreThoseOfTheMethodsInAFixedOrder) {
    const struct {
        const char* name;
        /// Null for what hosts make themselves.
        Results (*call)(const CVNAST& note, CVNRange at);
        CVNTextArguments arguments;
        std::u16string_view before;
        std::u16string_view after;
    } cases[] = {
        {"indent",
         [](const CVNAST& note, CVNRange at) { return note.indent(at, at); },
         {},
         u"- a\n- b‸\n",
         u"- a\n  - b‸\n"},
        {"outdent",
         [](const CVNAST& note, CVNRange at) { return note.outdent(at, at); },
         {},
         u"- a\n  - b‸\n",
         u"- a\n- b‸\n"},
        {"toggleInlineStyle",
         [](const CVNAST& note, CVNRange at) { return note.toggleInlineStyle(at, at, 1); },
         {number(1)},
         u"a ⟦b⟧\n",
         u"a *⟦b⟧*\n"},
        {"toggleBlockStyle",
         [](const CVNAST& note, CVNRange at) { return note.toggleBlockStyle(at, at, 1); },
         {number(1)},
         u"a‸\n",
         u"## a‸\n"},
        {"insertNewlineInRange",
         [](const CVNAST& note, CVNRange at) { return note.insertNewlineInRange(at, at); },
         {},
         u"- a‸\n",
         u"- a\n- ‸\n"},
        {"normalizeIndentationInRange",
         [](const CVNAST& note, CVNRange at) { return note.normalizeIndentationInRange(at, at); },
         {},
         u"⟦- a\n   - b⟧\n",
         u"⟦- a\n  - b⟧\n"},
        {"deletePrevious",
         [](const CVNAST& note, CVNRange at) { return note.deletePrevious(at, at); },
         {},
         u"## ‸a\n",
         u"‸a\n"},
        {"deleteNext",
         [](const CVNAST& note, CVNRange at) { return note.deleteNext(at, at); },
         {},
         u"‸## a\n",
         u"‸# a\n"},
        {"toggleTask",
         [](const CVNAST& note, CVNRange at) { return note.toggleTask(at, at, 2); },
         {number(2)},
         u"- [x] a‸\n",
         u"- [ ] a‸\n"},
        {"normalizeCalloutInRange",
         [](const CVNAST& note, CVNRange at) { return note.normalizeCalloutInRange(at, at); },
         {},
         u"> [!note]‸\n",
         u"\n> [!note]‸\n"},
        {"renumberOrderedListInRange",
         [](const CVNAST& note, CVNRange at) { return note.renumberOrderedListInRange(at, at); },
         {},
         u"1. a\n3. b‸\n",
         u"1. a\n2. b‸\n"},
        {"removeStrayMetaCommentInRange",
         [](const CVNAST& note, CVNRange at) { return note.removeStrayMetaCommentInRange(at, at); },
         {},
         u"⟦a <!-- {\"fold\":true} --> b⟧\n",
         u"⟦a  b⟧\n"},
        {"addTagToTop",
         [](const CVNAST& note, CVNRange at) { return note.addTagToTop(u"x", at); },
         {text(u"x")},
         u"# a‸\nb\n",
         u"# a‸\n#x\nb\n"},
        {"addTagToBottom",
         [](const CVNAST& note, CVNRange at) { return note.addTagToBottom(u"x y", at); },
         {text(u"x y")},
         u"‸a\n",
         u"‸a\n\n#x y#\n"},
        {"removeTag",
         [](const CVNAST& note, CVNRange at) { return note.removeTag(u"x", at); },
         {text(u"x")},
         u"a #x b‸\n",
         u"a b‸\n"},
        {"renameTag",
         [](const CVNAST& note, CVNRange at) { return note.renameTag(u"x", u"y", at); },
         {text(u"x"), text(u"y")},
         u"‸a #x #x/z\n",
         u"‸a #y #y/z\n"},
        {"escapeTag",
         [](const CVNAST& note, CVNRange at) { return note.escapeTag(u"x", at); },
         {text(u"x")},
         u"‸a #x\n",
         u"‸a \\#x\n"},
        {"appendText",
         [](const CVNAST& note, CVNRange at) { return note.appendText(u"t", at); },
         {text(u"t")},
         u"‸a\n\nb\n\n#x\n",
         u"‸a\n\nb\nt\n\n#x\n"},
        {"appendTextExact",
         [](const CVNAST& note, CVNRange at) { return note.appendTextExact(u"t", at); },
         {text(u"t")},
         u"‸a\n",
         u"‸a\nt"},
        {"prependText",
         [](const CVNAST& note, CVNRange at) { return note.prependText(u"t", at); },
         {text(u"t")},
         u"# a‸\nb\n",
         u"# a‸\nt\nb\n"},
        {"updateWikiLinks",
         [](const CVNAST& note, CVNRange at) { return note.updateWikiLinks(u"x", u"y", true, at); },
         {text(u"x"), text(u"y"), number(1)},
         u"‸[[x]]\n[[x]]\n",
         u"‸[[x]]\n[[y]]\n"},
        {"updateLinksURL",
         [](const CVNAST& note, CVNRange at) { return note.updateLinksURL(u"x y.png", u"z.png", at); },
         {text(u"x y.png"), text(u"z.png")},
         u"‸[a](x%20y.png)\n",
         u"‸[a](z.png)\n"},
        {"removeLinkWithURL",
         [](const CVNAST& note, CVNRange at) { return note.removeLinkWithURL(u"x.png", at); },
         {text(u"x.png")},
         u"‸a ![b](x.png)\n",
         u"‸a \n"},
        {"insertThematicBreak",
         [](const CVNAST& note, CVNRange at) { return note.insertThematicBreak(at, at); },
         {},
         u"a\n\n‸\n",
         u"a\n\n- - -‸\n"},
        {"insertTable",
         [](const CVNAST& note, CVNRange at) { return note.insertTable(at, at); },
         {},
         u"‸\n",
         u"| ‸  |   |\n|---|---|\n|   |   |\n"},
        {"toggleFoldInRange",
         [](const CVNAST& note, CVNRange at) { return note.toggleFoldInRange(at, at); },
         {},
         u"# a\n‸b\n",
         u"# a‸<!-- {\"fold\":true} -->\nb\n"},
        {"foldAllHeadingSelectionRange",
         [](const CVNAST& note, CVNRange at) { return note.foldAllHeadingSelectionRange(at); },
         {},
         u"‸a\n\n# b\nc\n",
         u"‸a\n\n# b<!-- {\"fold\":true} -->\nc\n"},
        {"unfoldAllHeadingSelectionRange",
         [](const CVNAST& note, CVNRange at) { return note.unfoldAllHeadingSelectionRange(at); },
         {},
         u"‸# a<!-- {\"fold\":true} -->\nb\n",
         u"‸# a\nb\n"},
        {"unfoldAtRangeEdges",
         [](const CVNAST& note, CVNRange at) { return note.unfoldAtRangeEdges(at, at); },
         {},
         u"# a<!-- {\"fold\":true} -->\nb‸c\n",
         u"# a\nb‸c\n"},
        {"escapePipesInRange",
         [](const CVNAST& note, CVNRange at) { return note.escapePipesInRange(at, at); },
         {},
         u"⟦a|b⟧|\n",
         u"⟦a\\|b⟧|\n"},
        {"insertFootnoteWithDefinitionText",
         [](const CVNAST& note, CVNRange at) { return note.insertFootnoteWithDefinitionText(u"t", at, at); },
         {text(u"t")},
         u"a‸\n",
         u"a[^0123456789]\n\n[^0123456789]: ⟦t⟧\n"},
        {"insertFootnoteDefinitionWithText",
         [](const CVNAST& note, CVNRange at) { return note.insertFootnoteDefinitionWithText(u"t", at, at); },
         {text(u"t")},
         u"a[^‸x]\n",
         u"a[^x]\n\n[^x]: ⟦t⟧\n"},
        {"renameUnusedFootnoteDefinitionsIn",
         [](const CVNAST& note, CVNRange at) { return note.renameUnusedFootnoteDefinitionsIn(at, at); },
         {},
         u"‸[^3]: a\n",
         u"‸[^3?]: a\n"},
        {"renumberFootnotesIn",
         [](const CVNAST& note, CVNRange at) { return note.renumberFootnotesIn(at, at); },
         {},
         u"‸a[^7]\n\n[^7]: b\n",
         u"‸a[^1]\n\n[^1]: b\n"},
        {"reorderFootnoteDefinitionsIn",
         [](const CVNAST& note, CVNRange at) { return note.reorderFootnoteDefinitionsIn(at, at); },
         {},
         u"[^2]: a‸\n[^1]: b\n",
         u"[^1]: b\n[^2]: a‸\n"},
        {"moveLinesUpIn",
         [](const CVNAST& note, CVNRange at) { return note.moveLinesUpIn(at, at); },
         {},
         u"a\nb‸\n",
         u"b‸\na\n"},
        {"moveLinesDownIn",
         [](const CVNAST& note, CVNRange at) { return note.moveLinesDownIn(at, at); },
         {},
         u"a‸\nb\n",
         u"b\na‸\n"},
        {"selectAllTextIn",
         [](const CVNAST& note, CVNRange at) { return note.selectAllTextIn(at, at); },
         {},
         u"a‸b\n",
         u"⟦ab\n⟧"},
        {"mutateTable", nullptr, {number(1)}, u"| a |\n|---|\n| b‸ |\n", u"| a |\n|---|\n| b |\n|‸|\n"},
        {"jumpTableCell", nullptr, {number(0)}, u"| a‸ | b |\n|---|---|\n", u"| a | ⟦b⟧ |\n|---|---|\n"},
        {"normalizeTables", nullptr, {}, u"|a‸|\n|-|\n", u"| a‸   |\n|-----|\n"},
    };
    std::size_t index = 0;
    for (const CVNTextOperation& row : CVNTextOperation::all()) {
        ASSERT_LT(index, std::size(cases));
        const auto& expected = cases[index];
        EXPECT_STREQ(row.name, expected.name);
        EXPECT_EQ(static_cast<std::size_t>(row.number), index++);
        EXPECT_EQ(CVNTextOperation::named(expected.name), &row);
        if (expected.call) {
            EXPECT_EQ(visible(after(expected.before, expected.call)), visible(expected.after)) << row.name;
        }
        const auto byRow = [&](const CVNAST& note, CVNRange at) {
            return row.run(note, row.ignoresRange ? CVNRange{7, 7} : at, at, expected.arguments);
        };
        EXPECT_EQ(visible(after(expected.before, byRow)), visible(expected.after)) << row.name;
    }
    EXPECT_EQ(index, std::size(cases));
    EXPECT_EQ(CVNTextOperation::named("Indent"), nullptr);
    EXPECT_EQ(CVNTextOperation::named("calloutCorrectionIn"), nullptr);
}

TEST(TextOperation, CorrectionsAreThoseOfTheMethodsInAFixedOrder) {
    const struct {
        const char* name;
        Results (*call)(const CVNAST& note, CVNRange at, std::u16string_view text, CVNRange selection);
        std::u16string_view before;
        std::u16string_view text;
        std::u16string_view after;
    } cases[] = {
        {"fencedCodeCorrectionIn",
         [](const CVNAST& note, CVNRange at, std::u16string_view text, CVNRange selection) {
             return note.fencedCodeCorrectionIn(at, text, selection);
         },
         u"```‸\na\n```\n", u"`", u"````‸\na\n````\n"},
        {"listItemSpaceCorrectionIn",
         [](const CVNAST& note, CVNRange at, std::u16string_view text, CVNRange selection) {
             return note.listItemSpaceCorrectionIn(at, text, selection);
         },
         u"- ‸a\n", u" b", u"- b‸a\n"},
        {"calloutCorrectionIn",
         [](const CVNAST& note, CVNRange at, std::u16string_view text, CVNRange selection) {
             return note.calloutCorrectionIn(at, text, selection);
         },
         u"> [!note]‸\n> a\n", u"x", u"> [!note] x‸\n> a\n"},
        {"mathBlockCorrectionIn",
         [](const CVNAST& note, CVNRange at, std::u16string_view text, CVNRange selection) {
             return note.mathBlockCorrectionIn(at, text, selection);
         },
         u"$‸\n", u"$", u"\\$$‸\n"},
        {"tableSpaceCorrectionIn",
         [](const CVNAST& note, CVNRange at, std::u16string_view text, CVNRange selection) {
             return note.tableSpaceCorrectionIn(at, text, selection);
         },
         u"| a |\n|---|\n|‸|\n", u"x", u"| a |\n|---|\n| x‸ |\n"},
        {"pasteCorrectionIn",
         [](const CVNAST& note, CVNRange at, std::u16string_view text, CVNRange selection) {
             return note.pasteCorrectionIn(at, text, selection);
         },
         u"> a‸ b\n", u"word\nx", u"> a word\n> x‸ b\n"},
        {"selectionCorrectionIn",
         [](const CVNAST& note, CVNRange at, std::u16string_view text, CVNRange selection) {
             return note.selectionCorrectionIn(at, text, selection);
         },
         u"‸", u"", u""},
        {"invalidCharacterCorrectionIn",
         [](const CVNAST& note, CVNRange at, std::u16string_view text, CVNRange selection) {
             return note.invalidCharacterCorrectionIn(at, text, selection);
         },
         u"a‸\n", u"b\r\nc", u"ab\nc‸\n"},
        {"deleteWhitespaceCorrectionIn",
         [](const CVNAST& note, CVNRange at, std::u16string_view text, CVNRange selection) {
             return note.deleteWhitespaceCorrectionIn(at, text, selection);
         },
         u"one ⟦two⟧ three\n", u"", u"one ‸three\n"},
    };
    std::size_t number = 0;
    for (const CVNTextCorrection& row : CVNTextCorrection::all()) {
        ASSERT_LT(number, std::size(cases));
        const auto& expected = cases[number];
        EXPECT_STREQ(row.name, expected.name);
        EXPECT_EQ(static_cast<std::size_t>(row.number), number++);
        EXPECT_EQ(CVNTextCorrection::named(expected.name), &row);
        for (const auto call : {expected.call, row.run}) {
            const auto typed = [&](const CVNAST& note, CVNRange at) {
                const auto length = static_cast<std::int64_t>(expected.text.size());
                return call(note, at, expected.text, {at.location + length, 0});
            };
            EXPECT_EQ(visible(after(expected.before, typed)), visible(expected.after)) << row.name;
        }
    }
    EXPECT_EQ(number, std::size(cases));
    EXPECT_EQ(CVNTextCorrection::named(""), nullptr);
}

TEST(TextOperation, SelectionsAreCorrectedByMethodAndRow) {
    const CVNAST note = CVNAST::fromMarkdown(u"a **b** c");
    const Results expected{{{0, 0}, u"", {0, 7}}};
    EXPECT_EQ(note.selectionCorrectionIn({0, 1}, {}, {0, 5}), expected);
    const CVNTextCorrection& row = *CVNTextCorrection::named("selectionCorrectionIn");
    EXPECT_EQ(row.run(note, {0, 1}, {}, {0, 5}), expected);
    EXPECT_EQ(row.run(note, {0, 1}, u"typed", {0, 5}), Results());
    for (const CVNTextCorrection& each : CVNTextCorrection::all())
        EXPECT_EQ(each.isOfSelection, &each == &row);
}

/// What tells arguments apart: names in capitals, none behind the last.
TEST(TextOperation, RowsTellWhatTheyTake) {
    for (const CVNTextOperation& row : CVNTextOperation::all()) {
        EXPECT_TRUE(std::string_view(row.about).ends_with('.')) << row.name;
        bool isBehindLast = false;
        for (const CVNTextParameter& parameter : row.parameters) {
            isBehindLast = isBehindLast || parameter.kind == CVNTextParameter::Kind::None;
            EXPECT_EQ(parameter.name == nullptr, isBehindLast) << row.name;
        }
    }
}

// Styles

TEST(TextOperation, NumbersOfInlineStyles) {
    const std::pair<std::int64_t, std::u16string_view> cases[] = {
        {-1, u"**⟦a⟧**"},        {0, u"**⟦a⟧**"},         {1, u"*⟦a⟧*"},           {2, u"~~⟦a⟧~~"},
        {3, u"~⟦a⟧~"},           {4, u"==⟦a⟧=="},         {5, u"==🔴⟦a⟧=="},        {6, u"==🔵⟦a⟧=="},
        {7, u"==🟢⟦a⟧=="}, {8, u"==🟡⟦a⟧=="}, {9, u"==🟣⟦a⟧=="}, {10, u"`⟦a⟧`"},
        {11, u"$⟦a⟧$"},          {12, u"**⟦a⟧**"},        {1ll << 32, u"**⟦a⟧**"},
    };
    for (const auto& [style, expected] : cases)
        EXPECT_EQ(visible(after(u"⟦a⟧",
                                [&, number = style](const CVNAST& note, CVNRange at) {
                                    return note.toggleInlineStyle(at, at, number);
                                })),
                  visible(expected))
            << style;
}

TEST(TextOperation, NumbersOfBlockStyles) {
    const CVNAST note = CVNAST::fromMarkdown(u"a\n");
    constexpr CVNRange at{1, 0};
    std::vector<Results> seen;
    for (std::int64_t style = -1; style <= 18; ++style) {
        const bool isStyle = style >= 1 && style <= 17;
        const ToggleBlockStyle expected(isStyle ? static_cast<BlockToggles>(style) : BlockToggles::Heading1);
        const Results results = note.toggleBlockStyle(at, at, style);
        EXPECT_EQ(results, note.resultForTextOperation(expected, at, at)) << style;
        if (std::find(seen.begin(), seen.end(), results) == seen.end()) seen.push_back(results);
    }
    // A callout of no kind is a note.
    EXPECT_EQ(seen.size(), 17u);
}

TEST(TextOperation, NewlineFirstTriesToLeaveInlines) {
    const struct {
        std::u16string_view before;
        std::u16string_view after;
    } cases[] = {
        {u"- **a‸** b\n", u"- **a**‸ b\n"},
        {u"- **a**‸b\n", u"- **a**\n- ‸b\n"},
        {u"- `a‸`\n", u"- `a`‸\n"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(visible(after(each.before, [](const CVNAST& note,
                                                CVNRange at) { return note.insertNewlineInRange(at, at); })),
                  visible(each.after))
            << visible(each.before);
}

// What hosts make, and results

/// Answers with what it was asked, the number of calls in the length of the list.
class Echo : public CVN::Operation::Operation, public CVN::Correction::Correction {
public:
    std::vector<Result> run(const Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override {
        return {{offset, length, std::u16string(tree.markdown()), selectionOffset, selectionLength}};
    }
    std::vector<Result> run(const Tree&, std::int64_t offset, std::int64_t length,
                            std::u16string_view replacement, std::int64_t selectionOffset,
                            std::int64_t selectionLength) const override {
        return {{offset, length, std::u16string(replacement), selectionOffset, selectionLength},
                {0, 0, u"", selectionLength, selectionOffset}};
    }
};

TEST(TextOperation, RunsWhatAHostMakes) {
    const CVNAST note = CVNAST::fromMarkdown(u"note");
    const CVNASTOperationResult asked{{1, 2}, u"note", {3, 4}};
    EXPECT_EQ(note.resultForTextOperation(Echo(), {1, 2}, {3, 4}), Results{asked});
    const Results corrected{{{1, 2}, u"typed", {3, 4}}, {{0, 0}, u"", {4, 3}}};
    EXPECT_EQ(note.resultForTextCorrection(Echo(), {1, 2}, u"typed", {3, 4}), corrected);
    EXPECT_EQ(Util::utf8(asked.description()), "CVNASTOperationResult rep {1, 2} with note select {3, 4}");
}

/// The ranges of each list count in what the results before it left.
TEST(TextOperation, AppliesResultsInTheirOrder) {
    const struct {
        Results results;
        std::u16string_view expected;
    } cases[] = {
        {{{{2, 0}, u"**", {}}, {{0, 0}, u"**", {}}}, u"**ab**\n\ncd\n"},
        {{{{0, 0}, u"> ", {}}, {{6, 0}, u"- ", {}}}, u"> ab\n\n- cd\n"},
        {{{{0, 4}, u"", {}}, {{0, 2}, u"```\n", {}}, {{4, 0}, u"x", {}}}, u"```\nx\n"},
        {{{{0, 7}, u"", {}}}, u""},
        {{{{3, 0}, u"", {}}}, u"ab\n\ncd\n"},
    };
    for (const auto& each : cases) {
        CVNAST note = CVNAST::fromMarkdown(u"ab\n\ncd\n");
        const CVNRange restyle = note.applyTextOperationResults(each.results);
        EXPECT_EQ(visible(note.markdown()), visible(each.expected));
        EXPECT_EQ(differenceFromFreshParse(*note.ast), "");
        EXPECT_TRUE(restyle.isFound() && restyle.end() <= note.markdownLength()) << visible(each.expected);
        EXPECT_EQ(note.applyTextOperationResults({}), CVNRange::notFound());
        EXPECT_EQ(visible(note.markdown()), visible(each.expected));
    }
}

} // namespace
} // namespace Ondo::Test
