#pragma once

#include <string>

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Block {

/// Code between fences of backticks or tildes.
class CORVANE_EXPORT FencedCode : public BlockRule {
public:
    FencedCode() : BlockRule(u"`~") {}
    std::string_view type_name() const override { return "FencedCode"; }
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;
    bool needFullReparse(const TextBuffer& markdown, std::int64_t offset, std::int64_t length,
                         Node* startNode, Node* endNode, Node* newRoot) override;
};

class CORVANE_EXPORT FencedCodeNode : public Node {
public:
    char16_t fenceCharacter;
    std::u16string language; ///< the first word of `info`
    std::u16string info;     ///< the decoded info string
    std::u16string code;     ///< without container prefixes and the fence's indentation

    FencedCodeNode(std::int64_t offset, std::int64_t end, std::int64_t line, char16_t fence)
        : Node(ONDO_FENCED_CODE_NODE, offset, end, line, 1), fenceCharacter(fence) {}
    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Block
