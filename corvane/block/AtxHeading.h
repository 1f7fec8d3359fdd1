#pragma once

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Block {

/// "# heading", with an optional closing run.
class CORVANE_EXPORT AtxHeading : public BlockRule {
public:
    /// The opening run must be followed by a blank even at the end of the line.
    bool requiresSpaceAtLineEnd = false;

    AtxHeading() : BlockRule(u"#") {}
    std::string_view type_name() const override { return "AtxHeading"; }
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;
};

class CORVANE_EXPORT AtxHeadingNode : public Node {
public:
    std::int64_t level;      ///< 1 to 6
    bool isFoldable = false; ///< there is something to fold below it; kept current by the folding rule

    AtxHeadingNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t level_)
        : Node(ONDO_ATX_HEADING_NODE, offset, end, line, 1), level(level_) {}
    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Block
