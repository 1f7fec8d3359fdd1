#pragma once

#include <memory>
#include <string>
#include <utility>

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
    /// Lays a node over what the parse has made so far, as Node::mergeSubtreeOnParsedOffsets below `node`,
    /// which is the node under parse. Null when it crosses a node that is there: then it is gone. Nodes come
    /// roughly in text order, so the search begins at the one merged last.
    Node* mergeInline(Node* node, std::unique_ptr<Node> subtree);
    template <class T>
    T* merge(Node* node, std::unique_ptr<T> subtree) {
        return static_cast<T*>(mergeInline(node, std::move(subtree)));
    }
    /// The child of `node`, the node under parse, that covers the offset, or null. The search begins at the
    /// one merged last, so that searches in text order cost no more than one walk.
    Node* childAt(const Node* node, std::int64_t offset) const;
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
    Node* merged_ = nullptr; ///< the child of the node under parse that was merged last
};

} // namespace Ondo
