#pragma once

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Block {

/// A paragraph that an underline of "=" or "-" turns into a heading.
class CORVANE_EXPORT SetextHeading : public BlockRule {
public:
    /// An underline of one "-" does not count: it is what a list item looks like while it is typed.
    bool rejectsSingleDash = false;

    SetextHeading() : BlockRule(u"-=") {}
    std::string_view type_name() const override { return "SetextHeading"; }
    /// Consumes the underline only: the paragraph's lines were consumed before.
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;
};

class CORVANE_EXPORT SetextHeadingNode : public Node {
public:
    std::int64_t level; ///< 1 for "=", 2 for "-"

    SetextHeadingNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines,
                      std::int64_t level_)
        : Node(ONDO_SETEXT_HEADING_NODE, offset, end, line, lines), level(level_) {}
    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Block
