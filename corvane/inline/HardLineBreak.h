#pragma once

#include "corvane/tree/InlineRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Inline {

/// A backslash, or two spaces, at the end of a line that is not the last of its block.
class CORVANE_EXPORT HardLineBreak : public InlineRule {
public:
    HardLineBreak() : InlineRule(u"\n", NodeState::None) {}
    std::string_view type_name() const override { return "HardLineBreak"; }
    /// The cursor stands at the end of a line's content.
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;
};

/// A marker and the line ending. Of more than two spaces only the last two are in it.
class CORVANE_EXPORT HardLineBreakNode : public Node {
public:
    HardLineBreakNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_HARD_LINE_BREAK_NODE, offset, end, line, 1) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
};

} // namespace Ondo::Inline
