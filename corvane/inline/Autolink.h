#pragma once

#include <string>

#include "corvane/tree/InlineRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Inline {

/// «<scheme:...>» and «<address@domain>», as CommonMark 0.31.2 has them.
class CORVANE_EXPORT Autolink : public InlineRule {
public:
    Autolink() : InlineRule(u"<", NodeState::None) {}
    std::string_view type_name() const override { return "Autolink"; }
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;
};

class CORVANE_EXPORT AutolinkNode : public Node {
public:
    std::u16string destination; ///< what stands between the brackets, with "mailto:" before an address

    AutolinkNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_AUTOLINK_NODE, offset, end, line, 0) {}
    /// An e-mail address without "mailto:", which only the destination has.
    bool isAddress() const { return static_cast<std::int64_t>(destination.size()) > charCount - 2; }

    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Inline
