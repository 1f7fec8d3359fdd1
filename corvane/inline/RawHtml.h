#pragma once

#include <array>
#include <string>

#include "corvane/tree/InlineRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Inline {

/// Tags, comments, processing instructions, declarations and CDATA sections, as CommonMark 0.31.2 has them.
class CORVANE_EXPORT RawHtml : public InlineRule {
public:
    RawHtml() : InlineRule(u"<") {}
    std::string_view type_name() const override { return "RawHtml"; }
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;
    void beforeParseNode(InlineParserNode& parser) override;

    static constexpr std::size_t markupKinds = 4;

private:
    bool matchMarkup(GoLines& go);

    /// By kind: from here on no end of it follows in the node, so that nobody needs to look again.
    std::array<std::int64_t, markupKinds> endless_{};
};

class CORVANE_EXPORT RawHtmlNode : public Node {
public:
    std::u16string text; ///< the source, without the prefixes of containers

    RawHtmlNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines)
        : Node(ONDO_RAW_HTML_NODE, offset, end, line, lines) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Inline
