#pragma once

#include <string>

#include "corvane/tree/InlineRule.h"
#include "corvane/tree/ParserBase.h"

namespace Ondo {

/// The second pass: scans the content of the finished blocks, tries the inline rules filed under each
/// character, and fills what no node covers with text.
class CORVANE_EXPORT InlineParserNode : public ParserBase {
public:
    InlineParserNode(std::u16string_view text, Lines& lines, const InlineRuleMap& inlineRules,
                     const InlineRuleMap& attributeRules);

    /// Parses the inline blocks in the subtree of a block and fills it with text. Asserts that it is a block.
    void parseBlock(Node* blockNode);
    /// Scans the content of one node with `rules`.
    void parseNode(Node* node, const InlineRuleMap& rules);
    void parseNode(Node* node) { parseNode(node, inlineRules_); }
    /// Scans the text of an attribute (escapes, entities) and fills it with text.
    void parseAttribute(Node* attribute);
    /// The value of a parsed attribute, with escapes and entities resolved.
    static std::u16string attributeString(std::u16string_view view, const Node* attribute);
    /// Tells all rules that the range is taken by a construct with an opaque interior.
    void claimRange(std::int64_t start, std::int64_t end);
    /// Fills the gaps between the children of `top`, at all depths.
    static void addTextNodes(Node* top);

private:
    void parseInlineBlocks(Node* blockNode);
    bool matchRules(Node* node, GoLines& cursor, const InlineRuleMap& rules);
    void offerLineEnding(Node* node, const GoLines& cursor, const InlineRuleMap& rules);

    const InlineRuleMap& inlineRules_;
    const InlineRuleMap& attributeRules_;
};

} // namespace Ondo
