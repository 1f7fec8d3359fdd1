#pragma once

#include "corvane/tree/InlineRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Inline {

/// A colour value, for a swatch: "#rrggbb", "rgb(...)", "hsl(...)". Numbers are not tested for their range.
class CORVANE_EXPORT Color : public InlineRule {
public:
    Color() : InlineRule(u"#rhRH", NodeState::None) {}
    std::string_view type_name() const override { return "Color"; }
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;
};

/// The form with "#" has that as its marker; the others have no children of their own.
class CORVANE_EXPORT ColorNode : public Node {
public:
    ColorNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_COLOR_NODE, offset, end, line, 0) {}
    /// Deliberately no more than the second code unit.
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
};

} // namespace Ondo::Inline
