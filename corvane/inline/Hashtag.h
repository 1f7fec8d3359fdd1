#pragma once

#include <string>
#include <vector>

#include "corvane/tree/InlineRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Inline {

/// A tag: «#work/notes», or «#two words/next#», which may hold spaces.
class CORVANE_EXPORT Hashtag : public InlineRule {
public:
    Hashtag() : InlineRule(u"#", NodeState::None) {}
    std::string_view type_name() const override { return "Hashtag"; }
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;
};

class CORVANE_EXPORT HashtagNode : public Node {
public:
    std::vector<std::u16string> segments; ///< decoded and normalised; empty ones are left out

    HashtagNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_HASHTAG_NODE, offset, end, line, 0) {}
    /// The tag's canonical name.
    std::u16string encodedSegments() const;
    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Inline
