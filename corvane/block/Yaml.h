#pragma once

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Block {

/// Front matter: lines between "---" and "---" or "..." at the very start of a note, kept as they stand.
class CORVANE_EXPORT Yaml : public BlockRule {
public:
    Yaml() : BlockRule(u"-") {}
    std::string_view type_name() const override { return "Yaml"; }
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;
    bool needFullReparse(const TextBuffer& markdown, std::int64_t offset, std::int64_t length,
                         Node* startNode, Node* endNode, Node* newRoot) override;
};

class CORVANE_EXPORT YamlNode : public Node {
public:
    YamlNode(std::int64_t end, std::int64_t lines) : Node(ONDO_YAML_NODE, 0, end, 0, lines) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
};

} // namespace Ondo::Block
