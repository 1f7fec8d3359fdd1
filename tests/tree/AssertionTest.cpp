// Broken invariants stop the process and name the condition, the function and the unit.

#include <gtest/gtest.h>

#include <functional>

#include "corvane/inline/FootnoteReference.h"
#include "corvane/tree/Common.h"
#include "corvane/tree/InlineParser.h"
#include "tests/support/Nodes.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

struct Case {
    std::string_view condition;
    const char* function; ///< or empty
    const char* source;
    std::function<void()> act;
};

void expectDeaths(std::initializer_list<Case> cases) {
    for (const Case& c : cases) {
        std::string pattern;
        for (const char character : c.condition)
            pattern += std::string_view("()|").find(character) == std::string_view::npos
                           ? std::string(1, character)
                           : std::string("\\") + character;
        EXPECT_DEATH(c.act(), "\\(" + pattern + "\\), function " + c.function + ".*source " + c.source);
    }
}

TEST(AssertionDeathTest, Tree) {
    const auto replace = [](Range range) { return [range] { Tree(u"abc").replace(range, u"x"); }; };
    const auto deferAfterDefer = [] {
        Tree tree(u"abc");
        tree.replaceDeferSync({0, 1}, u"x", false);
        tree.replaceDeferSync({0, 1}, u"y", true);
    };
    const auto removeUnsynced = [] {
        Tree tree(u"");
        tree.addRedrawRange({0, 0});
        tree.removeRuleByName("MathBlock");
    };
    const auto parseWithoutBlankLines = [] {
        Tree tree(u"");
        tree.removeRuleByName("BlankLine");
        tree.replace({0, 0}, u"\n");
    };
    const auto mergeStranger = [](bool isDefinition) {
        return [isDefinition] {
            Tree tree(u"[a]: /b");
            LabeledConnections& links = tree.getLabeledConnections(u"link_references");
            auto& justAdded = isDefinition ? links.justAddedDefinitions : links.justAddedReferences;
            Inline::FootnoteReferenceNode stranger(0, 1, 0, 0);
            justAdded.push_back(&stranger);
            links.mergeJustAdded(0, {0, 0}, 0);
        };
    };
    expectDeaths({
        {"range.offset >= 0", "replace", "Tree", replace({-1, 1})},
        {"range.length >= 0", "replace", "Tree", replace({1, -1})},
        {"range.offset . range.length <= markdown_.length()", "replace", "Tree", replace({2, 2})},
        {"range.offset . range.length <= markdown_.length()", "replace", "Tree", replace({4, 0})},
        {"isSynced()", "replaceDeferSync", "Tree", deferAfterDefer},
        {"isSynced()", "removeRuleByName", "Tree", removeUnsynced},
        {"markdown_.empty()", "removeRuleByName", "Tree", [] { Tree(u"a").removeRuleByName("MathBlock"); }},
        {"connection != ruleConfig_.connectionGroups.end()", "getLabeledConnections", "Tree",
         [] { Tree(u"").getLabeledConnections(u"no such group"); }},
        {"result != definitions.rend()", "mergeJustAdded", "LabeledConnections", mergeStranger(true)},
        {"result != references.rend()", "mergeJustAdded", "LabeledConnections", mergeStranger(false)},
        {"deltaOffset >= 0", "nextByOffset", "NodeIterator", [] { Tree(u"a").nodeIteratorAtOffset(-1); }},
        {"deltaOffset <= markdown_.size() - markdownOffset_", "nextByOffset", "NodeIterator",
         [] { Tree(u"a").nodeIteratorAtOffset(2); }},
        {"linesParsed != 0", "", "BlockParser", parseWithoutBlankLines},
        {"newRanges.size() > 0", "add", "SyncRanges",
         [] {
             SyncRanges().add({}, {{0, 0}, u""});
         }},
    });
}

/// A rule with a trigger that has no place in the table.
class Foreign : public BlockRule {
public:
    Foreign() : BlockRule(u"a\u0080") {}
    std::string_view type_name() const override { return "Foreign"; }
    std::int64_t match(BlockParser&, std::int64_t, std::int64_t, Node*, ParseAction) override { return 0; }
};

TEST(AssertionDeathTest, NodesAndRules) {
    const auto make = [](std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines) {
        return [=] { PlainNode(ONDO_TEXT_NODE, offset, end, line, lines); };
    };
    const Tree tree(u"abc");
    Node* const linked = tree.root->firstChild->firstChild;
    const auto parseText = [linked] {
        Lines lines(u"a");
        const InlineRuleMap none;
        InlineParserNode(u"a", lines, none, none).parseBlock(linked);
    };
    expectDeaths({
        {"offsetWhenParsed >= 0", "Node", "Node", make(-1, 1, 0, 0)},
        {"charCount >= 0", "Node", "Node", make(2, 1, 0, 0)},
        {"lineWhenParsed >= 0", "Node", "Node", make(0, 1, -1, 0)},
        {"lineCount >= 0", "Node", "Node", make(0, 1, 0, -1)},
        {"maker", "", "Common", [] { Inline::MarkerNode(ONDO_ESCAPE_MARKER_NODE, 0, 1, 0, nullptr); }},
        {"maker", "", "Common",
         [] { Inline::AttributeNode(ONDO_LINK_TEXT_ATTRIBUTE_NODE, 0, 1, 0, 0, nullptr); }},
        {"node->parent == nullptr", "linkSubtree", "Node",
         [=] { makeTree("p0-1")->linkSubtree(std::unique_ptr<Node>(linked)); }},
        {"nextSibling == nullptr || nextSibling->parent == parent", "linkSubtree", "Node",
         [=] { makeTree("p0-1")->linkSubtree(makeTree("t0-1"), linked); }},
        {"this->parent", "unlinkSubtree", "Node", [] { makeTree("p0-1").release()->unlinkSubtree(); }},
        {"this->firstChild", "moveAllChildrenTo", "Node",
         [=] { linked->moveAllChildrenTo(makeTree("p0-1").get()); }},
        {"node", "moveAllChildrenTo", "Node", [&] { tree.root->moveAllChildrenTo(nullptr); }},
        {"offset >= 0", "nodeAtRelativeOffset", "Node", [&] { tree.nodeAtOffset(-1, LevelSetting::Leaf); }},
        {"offset <= node->charCount", "nodeAtRelativeOffset", "Node",
         [&] { tree.nodeAtOffset(4, LevelSetting::Leaf); }},
        {"deltaOffset >= 0", "nextByOffset", "Node",
         [&] { tree.root->begin().nextByOffset(-1, LevelSetting::Leaf); }},
        {"trigger < mapSize", "addRule", "RuleMap",
         [] { BlockRuleMap().addRule(std::make_shared<Foreign>()); }},
        {"blockNode->isBlock()", "parseBlock", "InlineParser", parseText},
    });
}

} // namespace
} // namespace Ondo::Test
