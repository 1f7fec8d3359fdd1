#pragma once

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Common.h"
#include "corvane/tree/LabeledConnections.h"

namespace Ondo::Block {

/// «[^label]: text»: a footnote, whose text is the rest of that line and never more. The rule owns the index
/// of these labels.
class CORVANE_EXPORT FootnoteDefinition : public BlockRule {
public:
    LabeledConnections labeledConnections{u"footnotes"};

    FootnoteDefinition() : BlockRule(u"[") {}
    std::string_view type_name() const override { return "FootnoteDefinition"; }
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;
};

class CORVANE_EXPORT FootnoteDefinitionNode : public LabeledNode {
public:
    LabeledConnections* labeledConnections = nullptr; ///< once the label is known; outlives the node

    FootnoteDefinitionNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines)
        : LabeledNode(ONDO_FOOTNOTE_DEFINITION_NODE, offset, end, line, lines, nullptr, {}) {}
    ~FootnoteDefinitionNode() override;
    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

/// The inline text of a footnote.
class CORVANE_EXPORT FootnoteDefinitionContentNode : public Node {
public:
    FootnoteDefinitionContentNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_FOOTNOTE_DEFINITION_CONTENT_NODE, offset, end, line, 0) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
};

} // namespace Ondo::Block
