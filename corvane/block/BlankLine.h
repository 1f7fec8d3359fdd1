#pragma once

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Block {

/// A line of nothing but spaces and tabs: one node a line.
class CORVANE_EXPORT BlankLine : public BlockRule {
public:
    BlankLine() : BlockRule(u"") {}
    std::string_view type_name() const override { return "BlankLine"; }
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;
};

class CORVANE_EXPORT BlankLineNode : public Node {
public:
    BlankLineNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_BLANK_LINE_NODE, offset, end, line, 1) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
};

} // namespace Ondo::Block
