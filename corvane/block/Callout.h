#pragma once

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Range.h"

namespace Ondo::Block {

enum class CalloutTypes : std::uint32_t { Note, Tip, Important, Warning, Caution };

/// "[!NOTE] title" on the first line of a quote makes the quote a callout.
class CORVANE_EXPORT Callout : public BlockRule {
public:
    Callout() : BlockRule(u"[") {}
    std::string_view type_name() const override { return "Callout"; }
    std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                       ParseAction action) override;
};

class CORVANE_EXPORT CalloutHeadNode : public Node {
public:
    CalloutTypes calloutType;

    CalloutHeadNode(std::int64_t offset, std::int64_t end, std::int64_t line, CalloutTypes type_)
        : Node(ONDO_CALLOUT_HEAD_NODE, offset, end, line, 1), calloutType(type_) {}

    /// The word in capitals; empty for a value that is no type.
    std::u16string_view calloutTypeString() const;
    /// The title in the document; empty when there is none.
    Range titleRange() const { return titleRangeFrom(startOffset()); }
    /// The same, for who knows where the head starts, or counts from elsewhere.
    Range titleRangeFrom(std::int64_t headOffset) const;
    /// The title in `markdown`, the whole document.
    std::u16string_view title(std::u16string_view markdown) const;

    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Block
