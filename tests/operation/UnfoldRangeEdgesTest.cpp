#include <gtest/gtest.h>

#include <algorithm>

#include "corvane/inline/FoldMarker.h"
#include "corvane/operation/OperationUnfoldRangeEdges.h"
#include "tests/operation/FoldDrawing.h"
#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::Node;
using Ondo::Range;
using Ondo::RuleConfig;
using Ondo::Tree;
using Ondo::Inline::FoldMarkerNode;
using Ondo::Test::allRuleSets;
using Ondo::Test::Drawn;
using Ondo::Test::expectFolds;
using Ondo::Test::RandomNote;

const OperationUnfoldRangeEdges unfold;

TEST(UnfoldRangeEdges, OpensWhatHidesACaret) {
    expectFolds(unfold, {
                            {u"# a▸\nb‸\n", u"# a\nb‸\n"},
                            {u"# a▸\r\n\r\nb‸\r\n", u"# a\r\n\r\nb‸\r\n"},
                            {u"# a▸\n‸b\n", u"# a\n‸b\n"},
                            {u"# a▸\n## b▸\nc‸\n", u"# a\n## b\nc‸\n"},
                            {u"# a▸\n## b‸▸\nc\n", u"# a\n## b‸▸\nc\n"},
                            {u"# a▸\nb‸\n# c▸\nd\n", u"# a\nb‸\n# c▸\nd\n"},
                            {u"# a▸\n## b▸\nc\n## d\ne‸\n", u"# a\n## b▸\nc\n## d\ne‸\n"},
                            {u"# a▸\n> - b▸\n>   - c▸\n>\n>     d‸\n", u"# a\n> - b\n>   - c\n>\n>     d‸\n"},
                            {u"- a▸\n  - b‸\n- c▸\n  - d\n", u"- a\n  - b‸\n- c▸\n  - d\n"},
                            {u"# a▸▸▸\n\U0001F534‸\n", u"# a\n\U0001F534‸\n"},
                            {u"# a▸\n\nb‸", u"# a\n\nb‸"},
                            // On the head's own line, outside, and behind the last line ending it shows.
                            {u"# a‸▸\nb\n", u""},
                            {u"# a▸‸\nb\n", u""},
                            {u"# a▸\nb\n‸# c\n", u""},
                            {u"# a▸\nb\n‸", u""},
                            {u"# a\nb‸\n", u""},
                            {u"‸", u""},
                        });
    expectFolds(unfold, {{u"# a▸\nb‸\n", u""}}, RuleConfig::Commonmark);
    expectFolds(unfold, {{u"# a▸\nb‸\n", u"# a\nb‸\n"}}, RuleConfig::Simplified);
}

TEST(UnfoldRangeEdges, OpensWhatHidesEitherEdge) {
    expectFolds(unfold, {
                            {u"# a▸\nb⟦b⟧b\n", u"# a\nb⟦b⟧b\n"},
                            {u"# a▸\nb⟦\n# c▸\nd\n# e▸\n⟧f\n", u"# a\nb⟦\n# c▸\nd\n# e\n⟧f\n"},
                            {u"# a▸\nb⟦\n# c▸\n⟧d\n", u"# a\nb⟦\n# c\n⟧d\n"},
                            {u"# a▸\n## b▸\nc⟦\n## d▸\n⟧e\n", u"# a\n## b\nc⟦\n## d\n⟧e\n"},
                            {u"⟦# a▸\nb⟧\n", u"⟦# a\nb⟧\n"},
                            {u"# a▸⟦\nb\n⟧# c\n", u""},
                            {u"⟦x\n# a▸\nb\n⟧# c▸\nd\n", u""},
                            {u"⟦x\n# a▸\nb\n⟧", u"⟦x\n# a\nb\n⟧"},
                        });
}

/// The places behind the markers of all folds that hide an offset, from the last to the first.
std::vector<std::int64_t> foldsOver(const Tree& tree, const Range& edges) {
    std::vector<std::int64_t> ends;
    for (Node* node = tree.root.get(); node; node = node->nextInSequence()) {
        if (!node->isBlock() || !node->parent || !FoldMarkerNode::isContentHeadFolded(node)) continue;
        const std::int64_t start = node->endOffset();
        const std::int64_t end = FoldMarkerNode::foldableTailFromContentHead(node)->endOffset();
        const auto hides = [&](std::int64_t edge) {
            return start <= edge && (edge < end || (edge == tree.length() && end == tree.length()));
        };
        if (hides(edges.offset) || hides(edges.end())) ends.push_back(start - node->lastChild->charCount);
    }
    std::reverse(ends.begin(), ends.end());
    return ends;
}

TEST(UnfoldRangeEdges, OpensTheFoldsOverTheEdgesAndNoOthers) {
    std::int64_t folds = 0;
    for (std::uint64_t seed = 0; seed < 3000; ++seed) {
        RandomNote random(seed);
        std::u16string text = random.note(20);
        for (std::size_t at; random.below(2) && (at = text.find(u"\n#")) != std::u16string::npos;)
            text.insert(at + 1, u"# f " + Ondo::Test::withComments(u"▸") + u"\n");
        const auto length = static_cast<std::int64_t>(text.size());
        const Drawn note(text, random.range(length));
        const Tree tree(text, allRuleSets[1 + seed % 2]);
        const Range& edges = note.selection;
        if (edges.offset == length) continue;

        const auto results = unfold.run(tree, edges.offset, edges.length, edges.offset, edges.length);
        std::vector<std::int64_t> opened;
        for (const Result& each : results)
            opened.push_back(each.replaceEnd());
        SCOPED_TRACE(Ondo::Test::visible(note.drawing()));
        EXPECT_EQ(opened, foldsOver(tree, edges));
        folds += static_cast<std::int64_t>(results.size());
        if (results.empty()) continue;
        const Drawn behind = applied(note, results);
        EXPECT_TRUE(foldsOver(Tree(behind.text, tree.ruleSet), behind.selection).empty());
    }
    EXPECT_GT(folds, 150);
}

} // namespace
} // namespace CVN::Operation
