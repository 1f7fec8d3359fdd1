#pragma once

#include <string>

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Block {

/// Code by an indentation of four columns. Task items hold none: text pushed far to the right of their box
/// stays a paragraph.
class CORVANE_EXPORT IndentedCode : public BlockRule {
public:
    IndentedCode() : BlockRule(u"") {}
    std::string_view type_name() const override { return "IndentedCode"; }
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;
};

class CORVANE_EXPORT IndentedCodeNode : public Node {
public:
    std::u16string code;

    IndentedCodeNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_INDENTED_CODE_NODE, offset, end, line, 1) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Block
