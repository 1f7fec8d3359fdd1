#pragma once

#include <string>

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Common.h"
#include "corvane/tree/LabeledConnections.h"

namespace Ondo::Block {

/// «[label]: destination "title"»: what links and images of that label point to. The rule owns the index of
/// these labels, which its nodes enter when they are parsed and leave when they are destroyed.
class CORVANE_EXPORT LinkReferenceDefinition : public BlockRule {
public:
    LabeledConnections labeledConnections{u"link_references"};

    LinkReferenceDefinition() : BlockRule(u"[") {}
    std::string_view type_name() const override { return "LinkReferenceDefinition"; }
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;
};

class CORVANE_EXPORT LinkReferenceDefinitionNode : public LabeledNode {
public:
    std::u16string url;                               ///< the destination, decoded
    std::u16string title;                             ///< decoded; may be empty
    LabeledConnections* labeledConnections = nullptr; ///< once the label is known; outlives the node

    LinkReferenceDefinitionNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines)
        : LabeledNode(ONDO_LINK_REFERENCE_DEFINITION_NODE, offset, end, line, lines, nullptr, {}) {}
    ~LinkReferenceDefinitionNode() override;
    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Block
