#pragma once

#include "corvane/inline/LinkBase.h"

namespace Ondo::Inline {

class CORVANE_EXPORT Link : public LinkBase {
public:
    Link(std::shared_ptr<OpenerStack> openers, std::shared_ptr<Block::LinkReferenceDefinition> definitions)
        : LinkBase(Kind::Link, u"[]", std::move(openers), std::move(definitions)) {}
    std::string_view type_name() const override { return "Link"; }
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;

protected:
    std::unique_ptr<LinkBaseNode> makeNodeForSubclass(std::int64_t start, std::int64_t end, std::int64_t line,
                                                      std::int64_t lines) override;
};

class CORVANE_EXPORT LinkNode : public LinkBaseNode {
public:
    LinkNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines,
             LabeledConnections& index)
        : LinkBaseNode(ONDO_LINK_NODE, offset, end, line, lines, index) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
};

} // namespace Ondo::Inline
