#pragma once

#include <string>
#include <vector>

#include "corvane/tree/InlineRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Inline {

/// «[[title]]», «[[title/header]]», «[[title|alias]]», on one line. Whether there is such a note is nobody's
/// business here.
class CORVANE_EXPORT Wikilink : public InlineRule {
public:
    /// In table cells, where a pipe can only stand escaped, an escaped one separates the alias.
    bool escapedPipeIsSeparator = false;

    Wikilink() : InlineRule(u"[", NodeState::None) {}
    std::string_view type_name() const override { return "Wikilink"; }
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;
};

class CORVANE_EXPORT WikilinkNode : public Node {
public:
    std::vector<std::u16string> segments; ///< title, and header; an empty title only before a header
    std::u16string alias;                 ///< trimmed; empty when there is none

    WikilinkNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_WIKILINK_NODE, offset, end, line, 0) {}
    std::u16string encodedSegments() const;
    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Inline
