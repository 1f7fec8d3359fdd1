#pragma once

#include <string>

#include "corvane/inline/AddressSyntax.h"
#include "corvane/tree/InlineRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Inline {

/// URLs in running text, with a protocol or with a domain that is known for one. They are found from the ":"
/// or the last "." of the domain, so that the node begins before the parser's position.
class CORVANE_EXPORT Url : public InlineRule {
public:
    Url() : InlineRule(u".:") {}
    std::string_view type_name() const override { return "Url"; }
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;
    void beforeParseNode(InlineParserNode& parser) override;

private:
    std::int64_t matchWithProtocol(InlineParserNode& parser, Node* node, const GoLines& colon);
    std::int64_t matchWithoutProtocol(InlineParserNode& parser, Node* node, const GoLines& dot);

    AddressSyntax::DomainChain chain_; ///< in front of the last dot of the node
    AddressSyntax::LastPath path_;
};

class CORVANE_EXPORT UrlNode : public Node {
public:
    std::u16string url; ///< with escapes and entities resolved

    UrlNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_URL_NODE, offset, end, line, 0) {}
    std::u16string toIndentedTree() const override;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Inline
