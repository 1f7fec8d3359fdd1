#include <gtest/gtest.h>

#include <map>
#include <set>

#include "corvane/tree/Node.h"

namespace Ondo::Test {
namespace {

using Category = Node::Category;

struct Row {
    int number;
    NodeType type;
    std::string_view enumerator;
    std::u16string_view name;
    std::string_view className;
    Category category;
};

constexpr Row rows[] = {
#define X(number, enumerator, name, class, category)                                                         \
    {number, enumerator, #enumerator, u"" name, #class, Category::category},
#include "corvane/tree/NodeTypes.def"
#undef X
};

bool endsWith(std::string_view text, std::string_view end) {
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

TEST(NodeType, RowsHaveNoGapAndMarkersAndAttributesAreNamedSo) {
    ASSERT_EQ(std::size(rows), 145U);
    std::map<std::u16string_view, const char16_t*> names;
    for (int i = 0; i < nodeTypeCount; ++i) {
        const Row& row = rows[i];
        SCOPED_TRACE(row.enumerator);
        EXPECT_EQ(row.number, i);
        EXPECT_EQ(nodeCategory(row.type), row.category);
        EXPECT_EQ(nodeName(row.type), row.name);
        const bool isMarker = endsWith(row.enumerator, "_MARKER_NODE");
        const bool isAttribute = endsWith(row.enumerator, "_ATTRIBUTE_NODE");
        const bool isPlainMarker = isMarker && row.type != ONDO_FOLD_MARKER_NODE;
        EXPECT_EQ(row.category == Category::Marker, isMarker);
        EXPECT_EQ(row.category == Category::Attribute, isAttribute);
        EXPECT_EQ(row.name == u"marker", isPlainMarker);
        EXPECT_EQ(row.className == "Inline::MarkerNode", isPlainMarker);
        EXPECT_EQ(row.name == u"attribute", isAttribute);
        EXPECT_EQ(row.className == "Inline::AttributeNode", isAttribute);
        // A name is one string for all the types that have it; only these two are shared.
        const auto [found, isNew] = names.emplace(row.name, nodeName(row.type));
        EXPECT_EQ(found->second, nodeName(row.type));
        EXPECT_TRUE(isNew || isPlainMarker || isAttribute);
    }
    EXPECT_EQ(names.count(u"fold_marker"), 1U);
}

TEST(NodeType, PinnedNumbers) {
    const std::pair<int, NodeType> pinned[] = {{0, ONDO_DOCUMENT_NODE},
                                               {14, ONDO_FENCED_CODE_CLOSE_MARKER_NODE},
                                               {20, ONDO_FOOTNOTE_DEFINITION_CONTENT_NODE},
                                               {33, ONDO_LINK_REFERENCE_DEFINITION_TITLE_CLOSE_MARKER_NODE},
                                               {35, ONDO_LIST_ITEM_NODE},
                                               {59, ONDO_CODE_SPAN_NODE},
                                               {79, ONDO_HASHTAG_SEGMENT_ATTRIBUTE_NODE},
                                               {99, ONDO_IMAGE_PAREN_CLOSE_MARKER_NODE},
                                               {102, ONDO_LINK_TEXT_ATTRIBUTE_NODE},
                                               {126, ONDO_URL_NODE},
                                               {135, ONDO_FOLD_MARKER_NODE},
                                               {144, ONDO_MATH_BLOCK_CLOSE_MARKER_NODE}};
    for (const auto& [number, type] : pinned)
        EXPECT_EQ(type, number);
    std::map<Category, std::set<int>> blocks;
    for (const Row& row : rows)
        blocks[row.category].insert(row.number);
    EXPECT_EQ(blocks[Category::ContainerBlock], (std::set{8, 34, 35, 40}));
    EXPECT_EQ(blocks[Category::LeafBlock], (std::set{7, 10, 15, 21, 22, 23, 43, 44, 45, 47, 49, 141}));
    EXPECT_EQ(blocks[Category::InlineBlock], (std::set{4, 37, 38, 136}));
}

} // namespace
} // namespace Ondo::Test
