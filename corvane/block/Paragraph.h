#pragma once

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Block {

/// What is left when no other rule wants a line. It takes in the lines that follow, up to a blank one or one
/// that a terminating rule takes.
class CORVANE_EXPORT Paragraph : public BlockRule {
public:
    Paragraph() : BlockRule(u"") {}
    std::string_view type_name() const override { return "Paragraph"; }
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;
};

class CORVANE_EXPORT ParagraphNode : public Node {
public:
    bool hasLazyLines = false; ///< some line lacks the marker of a container

    ParagraphNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines)
        : Node(ONDO_PARAGRAPH_NODE, offset, end, line, lines) {}
    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Block
