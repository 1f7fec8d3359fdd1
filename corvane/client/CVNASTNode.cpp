#include "corvane/client/CVNASTNode.h"

#include <array>

#include "corvane/client/CVNAttributeName.h"
#include "corvane/client/ValueText.h"

namespace {

using Class = CVNASTNode::Class;

struct Row {
    Ondo::NodeType type;
    Class wrapper;
};
constexpr Row rows[] = {
    {Ondo::ONDO_ATX_HEADING_NODE, Class::ATXHeading},
    {Ondo::ONDO_SETEXT_HEADING_NODE, Class::SetextHeading},
    {Ondo::ONDO_BLOCK_QUOTE_NODE, Class::BlockQuote},
    {Ondo::ONDO_FENCED_CODE_NODE, Class::FencedCodeBlock},
    {Ondo::ONDO_FOOTNOTE_DEFINITION_NODE, Class::FootnoteDefinition},
    {Ondo::ONDO_LIST_NODE, Class::List},
    {Ondo::ONDO_LIST_ITEM_NODE, Class::ListItem},
    {Ondo::ONDO_TABLE_CELL_NODE, Class::TableCell},
    {Ondo::ONDO_ENTITY_NODE, Class::Entity},
    {Ondo::ONDO_IMAGE_NODE, Class::LinkAndImage},
    {Ondo::ONDO_LINK_NODE, Class::LinkAndImage},
    {Ondo::ONDO_RAW_HTML_NODE, Class::HTMLInline},
    {Ondo::ONDO_WIKILINK_NODE, Class::Wiki},
};

constexpr std::array<Class, Ondo::nodeTypeCount> classes = [] {
    std::array<Class, Ondo::nodeTypeCount> table{};
    for (const Row& row : rows)
        table[row.type] = row.wrapper;
    return table;
}();

/// By class.
constexpr std::u16string_view classNames[] = {
    u"CVNASTNode",           u"CVNASTATXHeadingNode",      u"CVNASTSetextHeadingNode",
    u"CVNASTBlockQuoteNode", u"CVNASTFencedCodeBlockNode", u"CVNASTFootnoteDefinitionNode",
    u"CVNASTListNode",       u"CVNASTListItemNode",        u"CVNASTTableCellNode",
    u"CVNASTEntityNode",     u"CVNASTLinkAndImageNode",    u"CVNASTHTMLInlineNode",
    u"CVNASTWikiNode"};

} // namespace

std::optional<CVNASTNode> CVNASTNode::nodeForASTNode(const Ondo::Node* node) {
    if (!node) return std::nullopt;
    return CVNASTNode(node);
}

CVNASTNode::Class CVNASTNode::nodeClass() const {
    return classes[node->type];
}

std::int64_t CVNASTNode::direction() const {
    switch (node->direction) {
    case Ondo::Direction::LeftToRight:
        return CVNDirectionLtrValue;
    case Ondo::Direction::RightToLeft:
        return CVNDirectionRtlValue;
    default:
        return CVNDirectionNaturalValue;
    }
}

std::u16string CVNASTNode::description() const {
    std::u16string text(classNames[static_cast<std::size_t>(nodeClass())]);
    text += u' ';
    text += typeAsString();
    return text + u' ' + CVN::ValueText::rangeString(range());
}
