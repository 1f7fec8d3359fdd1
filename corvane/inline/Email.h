#pragma once

#include <string>

#include "corvane/inline/AddressSyntax.h"
#include "corvane/tree/InlineRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Inline {

/// E-mail addresses in running text, found from the last "." of the domain.
class CORVANE_EXPORT Email : public InlineRule {
public:
    Email() : InlineRule(u".") {}
    std::string_view type_name() const override { return "Email"; }
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;
    void beforeParseNode(InlineParserNode& parser) override;

private:
    /// In front of the last "@" of the node that was asked for.
    struct LocalPart {
        std::int64_t at = Go::NoPos;
        std::int64_t start = Go::NoPos; ///< NoPos when there is none
    };
    std::int64_t startOfLocalPart(const Go& go);

    AddressSyntax::DomainChain chain_; ///< in front of the last dot of the node
    LocalPart local_;
};

class CORVANE_EXPORT EmailNode : public Node {
public:
    std::u16string address;

    EmailNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_EMAIL_NODE, offset, end, line, 0) {}
    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Inline
