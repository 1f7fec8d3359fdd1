#pragma once

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Block {

/// A line of three or more "*", "-" or "_". One marker holds the whole run, blanks between included.
class CORVANE_EXPORT ThematicBreak : public BlockRule {
public:
    /// Some runs are no breaks, since they are what empty emphasis looks like while it is typed.
    bool rejectsEmphasisLookalikes = false;

    ThematicBreak() : BlockRule(u"-_*") {}
    std::string_view type_name() const override { return "ThematicBreak"; }
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;
};

class CORVANE_EXPORT ThematicBreakNode : public Node {
public:
    ThematicBreakNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_THEMATIC_BREAK_NODE, offset, end, line, 1) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
};

} // namespace Ondo::Block
