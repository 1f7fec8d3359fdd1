#include "corvane/operation/OperationInsertFootnote.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "corvane/operation/LineWalk.h"
#include "corvane/operation/OperationInsertFootnoteDefinition.h"
#include "corvane/operation/OperationRenumberFootnotes.h"
#include "corvane/tree/LabeledConnections.h"
#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::RuleConfig;
using Ondo::Tree;
using Ondo::Test::Drawn;
using Ondo::Test::expectEach;
using Ondo::Test::visible;

const InsertFootnote insert(u"n");
const InsertFootnoteDefinition define(u"n");

/// A command and the renumbering behind it, as hosts run them.
class Numbered : public Operation {
public:
    explicit Numbered(const Operation& first) : first_(first) {}
    std::vector<Result> run(const Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override {
        std::vector<Result> results = first_.run(tree, offset, length, selectionOffset, selectionLength);
        if (results.empty()) return {};
        const Drawn made = Ondo::Test::applied(
            Drawn(std::u16string(tree.markdownIn({0, tree.length()})), {selectionOffset, selectionLength}),
            results);
        const Ondo::Range& at = made.selection;
        for (const Result& each :
             RenumberFootnotes().run(Tree(made.text, tree.ruleSet), 0, 0, at.offset, at.length))
            results.push_back(each);
        return results;
    }

private:
    const Operation& first_;
};

const Numbered numbered(insert);

TEST(InsertFootnote, WritesAPlaceholder) {
    expectEach(insert, {
                           {u"a‸", u"a[^0123456789]\n\n[^0123456789]: ⟦n⟧\n"},
                           {u"a⟦b⟧c\n", u"ab[^0123456789]c\n\n[^0123456789]: ⟦n⟧\n"},
                       });
    expectEach(insert, {{u"a‸", u""}, {u"[^a]‸", u""}}, RuleConfig::Commonmark);
    expectEach(InsertFootnote(u""), {{u"a‸", u"a[^0123456789]\n\n[^0123456789]: ‸\n"}});
}

TEST(InsertFootnote, AtTheEndOfTheNote) {
    expectEach(numbered, {
                             {u"‸", u"[^1]\n\n[^1]: ⟦n⟧\n"},
                             {u"a\n‸", u"a\n[^1]\n\n[^1]: ⟦n⟧\n"},
                             {u"a\n\n‸", u"a\n\n[^1]\n\n[^1]: ⟦n⟧\n"},
                             {u"a‸\n\n", u"a[^1]\n\n[^1]: ⟦n⟧\n"},
                             {u"a‸b\r\n", u"a[^1]b\r\n\n[^1]: ⟦n⟧\n"},
                             {u"a‸b\r", u"a[^1]b\r\n\n[^1]: ⟦n⟧\n"},
                             {u"a‸\n\n- b", u"a[^1]\n\n- b\n\n[^1]: ⟦n⟧\n"},
                             {u"> a‸\n> b", u"> a[^1]\n> b\n\n[^1]: ⟦n⟧\n"},
                             {u"a‸\n\n```\nb\n```", u"a[^1]\n\n```\nb\n```\n\n[^1]: ⟦n⟧\n"},
                             {u"a‸\n\n<div>\n", u"a[^1]\n\n<div>\n\n[^1]: ⟦n⟧\n"},
                             // What is left open would take the definition in.
                             {u"a‸\n\n```\nb", u""},
                             {u"a‸\n\n<!--\n\n", u""},
                         });
    // A line feed alone would only complete the ending of the line.
    const Tree tree(u"ab\r");
    EXPECT_EQ(insert.run(tree, 1, 0, 1, 0).front().replacementString, u"\n\n[^0123456789]: n\n");
}

TEST(InsertFootnote, AmongOthers) {
    expectEach(
        numbered,
        {
            {u"a[^1] b‸ c[^2]\n\n[^1]: x\n[^2]: y\n", u"a[^1] b[^2] c[^3]\n\n[^1]: x\n[^2]: ⟦n⟧\n[^3]: y\n"},
            {u"a‸ b[^1]\n\n[^1]: x", u"a[^1] b[^2]\n\n[^1]: ⟦n⟧\n[^2]: x"},
            {u"a[^1] b‸\n\n[^1]: x", u"a[^1] b[^2]\n\n[^1]: x\n[^2]: ⟦n⟧\n"},
            {u"a[^w] b‸\n\n[^w]: x\n\nc\n", u"a[^w] b[^1]\n\n[^w]: x\n[^1]: ⟦n⟧\n\nc\n"},
            // Those that nothing refers to, that stand before it or in a container.
            {u"a‸\n\n[^w]: x\n\nc\n", u"a[^1]\n\n[^w]: x\n[^1]: ⟦n⟧\n\nc\n"},
            {u"[^1]: x\n\na[^1] b‸\n", u"[^1]: x\n\na[^1] b[^2]\n\n[^2]: ⟦n⟧\n"},
            {u"a‸ b[^1]\n\n> [^1]: x\n", u"a[^1] b[^2]\n\n> [^2]: x\n\n[^1]: ⟦n⟧\n"},
            {u"a[^1]‸\n\n[^1]: b [^2]\n[^2]: y\n", u"a[^1][^2]\n\n[^1]: b [^3]\n[^2]: ⟦n⟧\n[^3]: y\n"},
        });
}

TEST(InsertFootnote, MovesBehindWhatIsOne) {
    const std::u16string end = u"\n\n[^1]: ⟦n⟧\n";
    const std::u16string_view rows[][2] = {
        {u"[a‸b](c) d", u"[ab](c)[^1] d"},
        {u"‸[a](c) d", u"[^1][a](c) d"},
        {u"x [*a‸*](c) d", u"x [*a*](c)[^1] d"},
        {u"`a‸b` c", u"`ab`[^1] c"},
        {u"[[a‸b|c]] d", u"[[ab|c]][^1] d"},
        {u"a \\‸* b", u"a \\*[^1] b"},
        {u"#a‸b c", u"#ab[^1] c"},
        {u"*‸*a** b", u"**[^1]a** b"},
        {u"**a‸** b", u"**a[^1]** b"},
        {u"**a‸**b", u"**a**[^1]b"},
        {u"a *‸b* c", u"a *[^1]b* c"},
        {u"a*‸b*c", u"a[^1]*b*c"},
        {u"a  ‸\nb", u"a[^1]  \nb"},
        {u"a\\‸\nb", u"a[^1]\\\nb"},
        {u"see [npm‸\nfund](u) now", u"see [npm\nfund](u)[^1] now"},
        {u"> ![a‸\n> b](u) c", u"> ![a\n> b](u)[^1] c"},
        {u"`a‸\nb` c", u"`a\nb`[^1] c"},
        // Only as far out as it takes, and back from the start.
        {u"x *a **b‸**c* d", u"x *a **b**[^1]c* d"},
        {u"~~x **a*b‸*c** d~~", u"~~x **a*b*[^1]c** d~~"},
        {u"x**‸Long bold phrase** end", u"x[^1]**Long bold phrase** end"},
        {u"x *y**‸a** b* c", u"x *y[^1]**a** b* c"},
        {u"x***‸a* b** c", u"x[^1]***a* b** c"},
        {u"# T‸ ##", u"# T[^1] ##"},
        {u"a ‸#b# http://c.d", u"a [^1]#b# http://c.d"},
        // What can be folded stands behind.
        {u"# A‸ <!-- {\"fold\":true} -->\n\nb", u"# A[^1] <!-- {\"fold\":true} -->\n\nb"},
        {u"- a‸ <!-- {\"fold\":true} -->\n  - b", u"- a[^1] <!-- {\"fold\":true} -->\n  - b"},
        {u"a‸\n# A <!-- {\"fold\":true} -->\n\n\nb", u"a[^1]\n# A <!-- {\"fold\":true} -->\n\n\nb"},
        {u"a‸\n# A <!-- {\"fold\":true} -->", u"a[^1]\n# A <!-- {\"fold\":true} -->"},
        {u"- [ ] a‸", u"- [ ] a[^1]"},
        {u"- ‸", u"- [^1]"},
        {u">‸", u">[^1]"},
        {u"| a‸ |\n|---|", u"| a[^1] |\n|---|"},
        {u"|‸|\n|-|", u"|[^1]|\n|-|"},
        {u"\u05D0‸\u05D1 😀", u"\u05D0[^1]\u05D1 😀"},
        {u"a\n‸\nb", u"a\n[^1]\nb"},
    };
    for (const auto& [before, after] : rows)
        expectEach(numbered, {{before, std::u16string(after) + end}});
    // Into a pair and a line ending no caret of a person gets.
    const Tree tree(u"😀\r\nb");
    EXPECT_EQ(insert.run(tree, 1, 0, 0, 0).back().replaceOffset, 2);
    EXPECT_EQ(insert.run(tree, 3, 0, 0, 0).back().replaceOffset, 2);
}

TEST(InsertFootnote, HasNoPlaceInTheMakingOfBlocks) {
    for (const std::u16string_view note : {u"```\na‸\n```",
                                           u"    a‸",
                                           u"$$\na‸\n$$",
                                           u"<div>‸\n",
                                           u"---\na: ‸b\n---\n",
                                           u"[^a]: b‸\n",
                                           u"[a]: /u‸",
                                           u"**‸*",
                                           u"‸# a",
                                           u"#‸ a",
                                           u"‸  # a",
                                           u"# a #‸#",
                                           u"# a <!-- {\"fold\":true} -->‸\n\nb",
                                           u"http://a.b‸ c",
                                           u"# a ##‸",
                                           u"‸- a",
                                           u"-‸ a",
                                           u"‸> a",
                                           u"‸>",
                                           u"1‸. a",
                                           u"‸| a |\n|---|",
                                           u"| a |‸\n|---|",
                                           u"| a |\n|-‸-|",
                                           u"| a |\n|---|‸\n| b |",
                                           u"a\n‸=",
                                           u"‸: a",
                                           u"<div>\n‸\na",
                                           u"a\n\n‸\n[^a]: b",
                                           u"a\n\n‸\n    b",
                                           u"‸\n---",
                                           u"[a]:\n‸\nb"})
        expectEach(insert, {{note, u""}});
}

TEST(InsertFootnoteDefinition, OfAReference) {
    expectEach(define, {
                           {u"a ‸[^note]", u"a [^note]\n\n[^note]: ⟦n⟧\n"},
                           {u"a [^no‸te] b\n", u"a [^note] b\n\n[^note]: ⟦n⟧\n"},
                           {u"a [^1]‸", u"a [^1]\n\n[^1]: ⟦n⟧\n"},
                           {u"[^1] [^‸2] [^3]\n\n[^1]: x\n[^3]: y\n",
                            u"[^1] [^2] [^3]\n\n[^1]: x\n[^2]: ⟦n⟧\n[^3]: y\n"},
                           {u"| [^‸a\\|b] |\n|---|\n", u"| [^a\\|b] |\n|---|\n\n[^a\\|b]: ⟦n⟧\n"},
                           {u"> [^‸a\n> b]\n", u"> [^a\n> b]\n\n[^a b]: ⟦n⟧\n"},
                           {u"[^a]: x [^‸b] y", u"[^a]: x [^b] y\n[^b]: ⟦n⟧\n"},
                           {u"[^a]: x [^‸b]", u"[^a]: x [^b]\n\n[^b]: ⟦n⟧\n"},
                           {u"[^‸A]\n\n> [^a]: x", u""},
                           {u"[^a] ‸b", u""},
                           {u"[^a]: ‸b", u""},
                           {u"`[^‸a]`", u""},
                           {u"‸", u""},
                       });
}

constexpr std::uint16_t formlessNodes[] = {
    Ondo::ONDO_TEXT_NODE,      Ondo::ONDO_SPACE_NODE, Ondo::ONDO_LINE_ENDING_NODE, Ondo::ONDO_BLANK_LINE_NODE,
    Ondo::ONDO_PARAGRAPH_NODE, Ondo::ONDO_LIST_NODE,  Ondo::ONDO_TABLE_CELL_NODE,
};
/// Where no text goes, whatever it would do.
constexpr std::uint16_t closedNodes[] = {
    Ondo::ONDO_FOOTNOTE_DEFINITION_NODE,
    Ondo::ONDO_HTML_BLOCK_NODE,
    Ondo::ONDO_LINK_REFERENCE_DEFINITION_NODE,
    Ondo::ONDO_THEMATIC_BREAK_NODE,
    Ondo::ONDO_ATX_HEADING_OPEN_MARKER_NODE,
    Ondo::ONDO_LIST_ITEM_MARKER_NODE,
    Ondo::ONDO_BLOCK_QUOTE_MARKER_NODE,
    Ondo::ONDO_TABLE_PIPE_MARKER_NODE,
    Ondo::ONDO_CALLOUT_MARKER_NODE,
    // It goes behind these, if anywhere.
    Ondo::ONDO_URL_NODE,
    Ondo::ONDO_EMAIL_NODE,
    Ondo::ONDO_HASHTAG_NODE,
};

template <std::size_t N>
bool isOneOf(const std::uint16_t (&types)[N], const Ondo::Node* node) {
    return std::find(std::begin(types), std::end(types), node->type) != std::end(types);
}

bool isClosed(const Tree& tree, std::int64_t offset) {
    const Ondo::Node::Iterator leaf = leafAt(tree, offset);
    const Ondo::Node* node = leaf.node;
    const bool isInPair = (unitAt(tree, offset) & 0xFC00) == 0xDC00;
    if (isInVerbatim(node) || isInPair || (isLineEnding(node) && leaf.offset < offset)) return true;
    while (node && !isOneOf(closedNodes, node))
        node = node->parent;
    return node;
}

/// What a reference may join, split or begin, as any word would, is left out, and both parts of the footnote.
std::u16string forms(const Tree& tree, const Ondo::Node* reference, const Ondo::Node* definition,
                     std::vector<std::int64_t>* starts = nullptr) {
    std::u16string out;
    std::int64_t leftOut = 0;
    Ondo::Node::Iterator at = tree.root->begin();
    while (at.node) {
        if (at.node == reference || at.node == definition) {
            leftOut += at->charCount;
            at.nextInSequenceSkippingSubtree();
            continue;
        }
        if (!isOneOf(formlessNodes, at.node)) {
            out += static_cast<char16_t>(u'!' + at->type);
            if (starts) starts->push_back(at.offset - leftOut);
        }
        at.nextInSequence();
    }
    return out;
}

/// Whether a text is the same with the reference in it as without.
bool isSameBut(const Tree& made, const Ondo::Node* reference, const Tree& tree) {
    std::vector<std::int64_t> before, after;
    return forms(made, reference, nullptr, &after) == forms(tree, nullptr, nullptr, &before) &&
           before == after;
}

/// A heading can be folded once something follows it: then a comment that was HTML folds it.
std::u16string foldable(std::u16string forms) {
    std::replace(forms.begin(), forms.end(), static_cast<char16_t>(u'!' + Ondo::ONDO_RAW_HTML_NODE),
                 static_cast<char16_t>(u'!' + Ondo::ONDO_FOLD_MARKER_NODE));
    return forms;
}

TEST(InsertFootnote, AddsAFootnoteAndNothingElse) {
    constexpr std::u16string_view label = u"0123456789";
    int answers = 0;
    for (std::uint64_t seed = 0; seed < 3000; ++seed) {
        Ondo::Test::RandomNote random(seed);
        const std::u16string text = random.note(8);
        const Tree tree(text, seed % 2 ? RuleConfig::Extended : RuleConfig::Simplified);
        const Ondo::Range at = random.range(tree.length());
        const std::vector<Result> results = insert.run(tree, at.offset, at.length, at.offset, at.length);
        if (results.empty()) continue;
        ++answers;
        const Drawn after = Ondo::Test::applied(Drawn(text, at), results);
        const Tree made(after.text, tree.ruleSet);
        const Ondo::LabeledConnections& footnotes = made.getLabeledConnections(u"footnotes");
        const auto* definition = footnotes.lookupFirstDefinition(label);
        ASSERT_TRUE(definition) << visible(after.drawing());
        const Ondo::LabeledNode* const node = definition->node;
        EXPECT_EQ(after.selection.end() + 1, definition->offset + node->charCount);
        const auto* reference = footnotes.lookupFirstReference(label);
        ASSERT_TRUE(reference && node->connections() == 1) << visible(after.drawing());
        EXPECT_EQ(foldable(forms(made, reference->node, node)), foldable(forms(tree, nullptr, nullptr)))
            << visible(after.drawing());
    }
    EXPECT_GT(answers, 1500);
}

TEST(InsertFootnote, RefusesNothingThatPlainTextAllows) {
    constexpr std::u16string_view reference = u"[^0123456789]";
    int answers = 0;
    for (std::uint64_t seed = 0; seed < 2000; ++seed) {
        Ondo::Test::RandomNote random(seed);
        const std::u16string text = random.note(8);
        const Tree tree(text, seed % 2 ? RuleConfig::Extended : RuleConfig::Simplified);
        if (text.empty()) continue;
        const std::int64_t at = random.range(tree.length()).offset;
        if (isClosed(tree, at) ||
            InsertFootnoteDefinition::insertDefinition(tree, at, reference, u"").empty())
            continue;
        std::u16string plain = text;
        plain.insert(static_cast<std::size_t>(at), reference);
        const Tree made(plain, tree.ruleSet);
        const auto* entry = made.getLabeledConnections(u"footnotes").lookupFirstReference(u"0123456789");
        if (!entry || entry->offset != at || !isSameBut(made, entry->node, tree)) continue;
        ++answers;
        EXPECT_FALSE(insert.run(tree, at, 0, at, 0).empty()) << visible(Drawn(text, {at, 0}).drawing());
    }
    EXPECT_GT(answers, 400);
}

/// What its host switched off means nothing, there as here.
TEST(InsertFootnote, KnowsTheRulesOfTheNote) {
    Tree tree(u"");
    tree.removeRuleByName("MathSpan");
    tree.replaceAll(u"$a b$ c");
    EXPECT_EQ(insert.run(tree, 2, 0, 2, 0).back().replaceOffset, 2);
}

} // namespace
} // namespace CVN::Operation
