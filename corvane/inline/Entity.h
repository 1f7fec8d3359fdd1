#pragma once

#include "corvane/tree/InlineRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Inline {

/// A character by its name or number: "&amp;", "&#38;", "&#x26;".
class CORVANE_EXPORT Entity : public InlineRule {
public:
    struct EntityInfo {
        std::u16string_view name;
        std::uint32_t firstCodepoint;
        std::uint32_t secondCodepoint; ///< 0 when the name stands for one code point
    };

    /// The named references of HTML, in the ASCII order of their published names, 2,231 of them. Each name
    /// has lost its last character: the semicolon, or, where the list has the name without one, a letter. So
    /// both "AM" and "AMP" are there, some names stand twice, and the order has descents.
    static constexpr std::int64_t entityCount = 2231;
    /// Asserts that `index` is one of the table.
    static EntityInfo entityAt(std::int64_t index);
    /// The first code point in the low and the second in the high 32 bits; 0 for no such name.
    ///
    /// The search halves the table as if it had no descents, so that a few names, like "eta", are not found.
    static std::uint64_t entityToCodepoint(std::u16string_view name);

    Entity() : InlineRule(u"&", NodeState::None) {}
    std::string_view type_name() const override { return "Entity"; }
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;

private:
    struct Row {
        std::uint32_t firstCodepoint;
        std::uint16_t secondCodepoint;
        std::uint16_t nameStart; ///< in `names`; the name ends where that of the next row starts
    };
    static const Row rows[entityCount + 1]; ///< the last one only ends a name
    static const char16_t names[];
};

class CORVANE_EXPORT EntityNode : public Node {
public:
    std::uint32_t firstCodepoint;  ///< as it is written, valid or not
    std::uint32_t secondCodepoint; ///< 0 for none

    EntityNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::uint64_t codepoints)
        : Node(ONDO_ENTITY_NODE, offset, end, line, 0),
          firstCodepoint(static_cast<std::uint32_t>(codepoints)),
          secondCodepoint(static_cast<std::uint32_t>(codepoints >> 32)) {}

    /// Neither 0 nor a surrogate, and not beyond Unicode.
    static bool isValidEntityCodepoint(std::uint32_t value);
    /// What the reader sees: U+FFFD for an invalid code point.
    std::u16string toString() const;

    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    void appendValue(std::u16string& out, std::u16string_view markdown) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Inline
