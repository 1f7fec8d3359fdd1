#pragma once

#include <string>

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Block {

/// Math between two lines of exactly "$$".
class CORVANE_EXPORT MathBlock : public BlockRule {
public:
    MathBlock() : BlockRule(u"$") {}
    std::string_view type_name() const override { return "MathBlock"; }
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;
    bool needFullReparse(const TextBuffer& markdown, std::int64_t offset, std::int64_t length,
                         Node* startNode, Node* endNode, Node* newRoot) override;
};

class CORVANE_EXPORT MathBlockNode : public Node {
public:
    char16_t fenceCharacter = u'$';
    std::u16string code; ///< the lines between the fences, as for FencedCodeNode

    MathBlockNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_MATH_BLOCK_NODE, offset, end, line, 1) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Block
