#include <gtest/gtest.h>

#include <optional>

#include "corvane/block/Callout.h"
#include "corvane/block/FencedCode.h"
#include "corvane/block/List.h"
#include "tests/support/TreeCheck.h"

// What the nodes and rules of blocks answer besides tree and HTML.

namespace Ondo::Block {
namespace {

using Test::visible;

template <class T>
T* find(const Tree& tree, NodeType type) {
    return static_cast<T*>(
        tree.root->descendantWhere([type](const Node* node) { return node->type == type; }));
}

TEST(Callout, HeadTypeAndTitle) {
    const struct {
        const char16_t* text;
        std::optional<CalloutTypes> type;
        const char16_t* title;
    } cases[] = {
        {u"> [!WARNING] Mind the gap\n> b", CalloutTypes::Warning, u"Mind the gap"},
        {u">[!Caution]\tx", CalloutTypes::Caution, u"x"},
        {u"> [!note]", CalloutTypes::Note, u""},
        {u"> [!note] \t\n> b", CalloutTypes::Note, u""},
        {u">    [!TIP] a", CalloutTypes::Tip, u"a"},
        {u"> > [!TIP] a", CalloutTypes::Tip, u"a"},
        {u"- > [!IMPORTANT] [!TIP]", CalloutTypes::Important, u"[!TIP]"},
        {u"> [!TIP]x", std::nullopt, u""},
        {u"> [!notes]", std::nullopt, u""},
        {u"> [! note]", std::nullopt, u""},
        {u"> [!note", std::nullopt, u""},
        {u"> [note]", std::nullopt, u""},
        {u"> [!]", std::nullopt, u""},
        {u">     [!NOTE]", std::nullopt, u""},
        {u"> a\n> [!NOTE]", std::nullopt, u""}, // only on the first line of a quote
        {u"> # a\n> [!NOTE]", std::nullopt, u""},
        {u">\n> [!NOTE]", std::nullopt, u""},
        {u"> - [!NOTE]", std::nullopt, u""},
        {u"[!NOTE]", std::nullopt, u""},
    };
    for (const auto set : {RuleConfig::Extended, RuleConfig::Simplified}) {
        for (const auto& c : cases) {
            Tree tree(c.text, set);
            const auto* const head = find<CalloutHeadNode>(tree, ONDO_CALLOUT_HEAD_NODE);
            ASSERT_EQ(head != nullptr, c.type.has_value()) << visible(c.text);
            if (!head) continue;
            EXPECT_EQ(head->calloutType, *c.type);
            EXPECT_EQ(head->title(tree.markdown()), c.title);
            EXPECT_EQ(head->titleRange().length == 0, head->title(tree.markdown()).empty());
            tree.replace({0, 0}, u"a\n\n# b\n\n");
            const auto* const moved = find<CalloutHeadNode>(tree, ONDO_CALLOUT_HEAD_NODE);
            EXPECT_EQ(moved->title(tree.markdown()), c.title);
        }
    }
}

TEST(List, MatchMarker) {
    using Type = List::MarkerType;
    const struct {
        const char16_t* text;
        Type type;
        std::int64_t end;
        Type typeWithBlank; ///< when the marker needs a blank
    } cases[] = {
        {u"* a", Type::unordered_asterisk, 2, Type::unordered_asterisk},
        {u"-  a", Type::unordered_dash, 2, Type::unordered_dash},
        {u"+\ta", Type::unordered_plus, 1, Type::unordered_plus},
        {u"-", Type::unordered_dash, 1, Type::none},
        {u"1.", Type::ordered_dot, 2, Type::none},
        {u"- ", Type::unordered_dash, 2, Type::unordered_dash},
        {u"123456789) ", Type::ordered_parenthesis, 11, Type::ordered_parenthesis},
        {u"1234567890. ", Type::none, 0, Type::none},
        {u"-a", Type::none, 0, Type::none},
        {u"1.a", Type::none, 0, Type::none},
        {u"1", Type::none, 0, Type::none},
        {u"1 . ", Type::none, 0, Type::none},
        {u"1.) ", Type::none, 0, Type::none},
        {u". ", Type::none, 0, Type::none},
        {u" - ", Type::none, 0, Type::none},
        {u"", Type::none, 0, Type::none},
    };
    for (const auto& c : cases) {
        Go cursor(c.text);
        EXPECT_EQ(List::matchMarker(cursor, false), c.type) << visible(c.text);
        EXPECT_EQ(cursor.pos(), c.end) << visible(c.text);
        Go other(c.text);
        EXPECT_EQ(List::matchMarker(other, true), c.typeWithBlank) << visible(c.text);
    }
}

TEST(List, MatchTask) {
    using Type = List::TaskType;
    const struct {
        const char16_t* text;
        Type type;
        std::int64_t end;
    } cases[] = {
        {u"[ ] a", Type::todo, 4},          {u"[x] ", Type::done, 4},
        {u"[X]  a", Type::done, 4},         {u"[ ]", Type::none, Go::NoPos},
        {u"[ ]\ta", Type::none, Go::NoPos}, {u"[] a", Type::none, Go::NoPos},
        {u"[  ] a", Type::none, Go::NoPos}, {u"[y] a", Type::none, Go::NoPos},
        {u" [ ] a", Type::none, Go::NoPos},
    };
    for (const auto& c : cases) {
        Go cursor(c.text);
        EXPECT_EQ(List::matchTask(cursor), c.type) << visible(c.text);
        EXPECT_EQ(cursor.pos(), c.end) << visible(c.text);
    }
}

TEST(List, TheTreeTellsAMarker) {
    const ListNode list(0, 0, 0, List::MarkerType::none);
    EXPECT_DEATH(list.toIndentedTree(), "false.*List");
}

/// A block with a first marker and no next one is open.
TEST(Fence, MarkersAndContent) {
    const struct {
        const char16_t* text;
        bool isClosed;
        std::int64_t contentLines; ///< with their endings; -1 without content
    } cases[] = {
        {u"~~~\na\n~~~", true, 1},        {u"~~~", false, -1},          {u"~~~\na\n~~", false, 1},
        {u"> ~~~\n> ~~~\n> a", true, -1}, {u"> ~~~\n> a\nb", false, 1}, {u"- ~~~\n\n\n  ~~~\n- a", true, 2},
        {u"- ~~~\n  a\n- ~~~", false, 1},
    };
    for (const auto& c : cases) {
        const Tree tree(c.text, RuleConfig::Extended);
        auto* const fence = find<FencedCodeNode>(tree, ONDO_FENCED_CODE_NODE);
        ASSERT_TRUE(fence->firstMarker()) << visible(c.text);
        EXPECT_EQ(fence->firstMarker()->type, ONDO_FENCED_CODE_OPEN_MARKER_NODE);
        EXPECT_EQ(fence->firstMarker()->nextMarker() != nullptr, c.isClosed) << visible(c.text);
        const Node* const content = fence->firstAttribute();
        EXPECT_EQ(content ? content->lineCount : -1, c.contentLines) << visible(c.text);
    }
}

} // namespace
} // namespace Ondo::Block
