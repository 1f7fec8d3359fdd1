#pragma once

#include "corvane/tree/InlineRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Inline {

/// A backslash takes its meaning from the ASCII punctuation character behind it.
class CORVANE_EXPORT BackslashEscape : public InlineRule {
public:
    BackslashEscape() : InlineRule(u"\\", NodeState::None) {}
    std::string_view type_name() const override { return "BackslashEscape"; }
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;

    /// Whether an odd run of backslashes stands before the cursor. False at the end of the range and for a
    /// cursor that has failed.
    static bool isNextCharacterEscaped(Go go);
};

/// Two code units, of which the first is a marker.
class CORVANE_EXPORT BackslashEscapeNode : public Node {
public:
    BackslashEscapeNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_ESCAPE_NODE, offset, end, line, 0) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    void appendValue(std::u16string& out, std::u16string_view markdown) const override;
};

} // namespace Ondo::Inline
