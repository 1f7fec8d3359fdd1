#pragma once

#include <memory>

#include "corvane/block/FootnoteDefinition.h"
#include "corvane/tree/Common.h"
#include "corvane/tree/InlineRule.h"

namespace Ondo::Inline {

/// «[^label]», with or without a definition.
class CORVANE_EXPORT FootnoteReference : public InlineRule {
public:
    explicit FootnoteReference(std::shared_ptr<Block::FootnoteDefinition> definitions)
        : InlineRule(u"[", NodeState::None), definitions_(std::move(definitions)) {}
    std::string_view type_name() const override { return "FootnoteReference"; }
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;

private:
    std::shared_ptr<Block::FootnoteDefinition> definitions_;
};

class CORVANE_EXPORT FootnoteReferenceNode : public LabeledNode {
public:
    LabeledConnections* labeledConnections = nullptr; ///< once the label is known; outlives the node

    FootnoteReferenceNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines)
        : LabeledNode(ONDO_FOOTNOTE_REFERENCE_NODE, offset, end, line, lines, nullptr, {}) {}
    ~FootnoteReferenceNode() override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Inline
