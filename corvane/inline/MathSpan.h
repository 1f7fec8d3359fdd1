#pragma once

#include "corvane/tree/InlineRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Inline {

/// Math between single dollar signs in a line. What stands around the signs tells them from a currency's.
class CORVANE_EXPORT MathSpan : public InlineRule {
public:
    MathSpan() : InlineRule(u"$") {}
    std::string_view type_name() const override { return "MathSpan"; }
    void beforeParseNode(InlineParserNode& parser) override;
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;

private:
    std::int64_t toClosingMarker(Go& go);

    // Openers before this offset find no closing marker, as the last one that was tried. Whether a "$" can
    // close does not hang on the opener.
    std::int64_t failingEnd_ = Go::NoPos;
};

class CORVANE_EXPORT MathSpanNode : public Node {
public:
    std::u16string text; ///< between the markers, as it stands

    MathSpanNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::u16string text_)
        : Node(ONDO_MATH_SPAN_NODE, offset, end, line, 0), text(std::move(text_)) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Inline
