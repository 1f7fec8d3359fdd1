#pragma once

#include "corvane/tree/InlineRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Inline {

/// Shows one sequence of characters as another, and leaves the text alone: "->" as an arrow.
class CORVANE_EXPORT Replace : public InlineRule {
public:
    const std::u16string pattern;
    const std::u16string replacement;

    /// The pattern is not empty.
    Replace(std::u16string_view pattern_, std::u16string_view replacement_)
        : InlineRule(pattern_.substr(0, 1)), pattern(pattern_), replacement(replacement_) {}
    std::string_view type_name() const override { return "Replace"; }
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;
};

class CORVANE_EXPORT ReplaceNode : public Node {
public:
    std::u16string pattern;
    std::u16string replacement;

    ReplaceNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::u16string pattern_,
                std::u16string replacement_)
        : Node(ONDO_REPLACE_NODE, offset, end, line, 0), pattern(std::move(pattern_)),
          replacement(std::move(replacement_)) {}
    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Inline
