#pragma once

#include <string>

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Block {

/// Raw HTML that stands as a block, by the seven conditions of CommonMark 0.31.2. The block names are those
/// of its sixth condition but for «meta» and «source».
class CORVANE_EXPORT HtmlBlock : public BlockRule {
public:
    HtmlBlock() : BlockRule(u"<") {}
    std::string_view type_name() const override { return "HtmlBlock"; }
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;
};

class CORVANE_EXPORT HtmlBlockNode : public Node {
public:
    std::u16string html; ///< the lines without the prefixes of containers, line endings included

    HtmlBlockNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines)
        : Node(ONDO_HTML_BLOCK_NODE, offset, end, line, lines) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Block
