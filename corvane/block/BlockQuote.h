#pragma once

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Block {

/// The container of lines behind ">".
class CORVANE_EXPORT BlockQuote : public BlockRule {
public:
    /// A line without ">" ends the quote, even below an open paragraph.
    bool noLazyContinuation = false;

    BlockQuote() : BlockRule(u">") {}
    std::string_view type_name() const override { return "BlockQuote"; }
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;
};

/// One marker a prefixed line, ">" and at most one space, with the quote as its maker; it lies in the block
/// that its line belongs to.
class CORVANE_EXPORT BlockQuoteNode : public Node {
public:
    BlockQuoteNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_BLOCK_QUOTE_NODE, offset, end, line, 1) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
};

} // namespace Ondo::Block
