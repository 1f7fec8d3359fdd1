#pragma once

#include <vector>

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/DocumentNode.h"
#include "corvane/tree/InlineParser.h"
#include "corvane/tree/ParserBase.h"

namespace Ondo {

/// The first pass: makes the tree of blocks, line by line.
///
/// There is no stack of open blocks: a rule consumes whole lines to its end, and a container rule calls
/// parseBlock() on its own lines, rewritten, with itself as parent.
class CORVANE_EXPORT BlockParser : public ParserBase {
public:
    /// How deep containers nest: behind this many, a quote's or list item's marker is text. The bound keeps
    /// hostile input from exhausting the stack.
    static constexpr std::size_t maximumContainerDepth = 256;

    BlockParser(std::u16string_view text, Lines& lines, const BlockRuleMap& blockRules,
                const InlineRuleMap& inlineRules, const InlineRuleMap& attributeRules);

    /// Parses the whole text and gives up the root.
    std::unique_ptr<Node> parseDocument();

    /// Parses lines as children of `parent`; returns how many lines were consumed. Stops at the empty entry
    /// behind the text, and at a lazy line that no open paragraph has taken.
    std::int64_t parseBlock(std::int64_t first, std::int64_t last, Node* parent);

    bool canNest() const { return frames_.size() <= maximumContainerDepth; }

    /// The block of `parent` that was merged or opened last; null when there is none. Only the innermost
    /// parent under parse is asked. Leaves of lines still to come may lie behind it.
    Node* lastBlock(const Node* parent) const;
    /// Tells that `node`, not yet merged, is what now stands last below the innermost parent.
    void openBlock(Node* node);
    /// Takes the last block out of the tree again.
    std::unique_ptr<Node> takeLastBlock(const Node* parent);

    /// As ParserBase::mergeNode, with a search that begins behind the last block.
    Node* mergeNode(Node* parent, std::unique_ptr<Node> node);

    InlineParserNode& inlineParser() { return inlineParser_; }

private:
    struct Frame {
        const Node* parent;
        Node* lastBlock; ///< merged or open
        Node* passed;    ///< a child of the parent that lies before all that comes
    };

    std::int64_t parseLine(std::int64_t line, std::int64_t last, Node* parent);

    const BlockRuleMap& blockRules_;
    InlineParserNode inlineParser_;
    std::unique_ptr<Node> root_;
    std::vector<Frame> frames_;
};

} // namespace Ondo
