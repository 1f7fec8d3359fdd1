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

    /// Takes a container's prefix off a line: the indentation and a marker up to `end`, behind which the line
    /// now begins. They are linked by the block that the line ends up in.
    void takePrefix(std::int64_t line, NodeType type, std::int64_t end, Node* maker);
    /// Links what stands in front of the line's content: the prefixes of its containers, and the blanks from
    /// `leading` to `contentStart`, or to `end`.
    void linkPrefix(Node* node, std::int64_t line) { linkPrefix(node, line, lines[line].contentStart); }
    void linkPrefix(Node* node, std::int64_t line, std::int64_t end);

    /// The block of `parent` that was merged or opened last; null when there is none. Only the innermost
    /// parent under parse is asked.
    Node* lastBlock(const Node* parent) const;
    /// Tells that `node`, not yet merged, is what now stands last below the innermost parent.
    void openBlock(Node* node);
    /// Takes the last block out of the tree again.
    std::unique_ptr<Node> takeLastBlock(const Node* parent);

    /// As ParserBase::mergeNode, with a search that begins behind the last child: blocks come in order.
    Node* mergeNode(Node* parent, std::unique_ptr<Node> node);

    InlineParserNode& inlineParser() { return inlineParser_; }

private:
    struct Frame {
        const Node* parent;
        Node* lastBlock; ///< merged or open
    };

    /// The prefix of one container on one line. The pieces of a line are a list from the innermost outward,
    /// so that restoring a line drops what was taken off it since.
    struct PrefixPiece {
        NodeType type;
        std::int64_t start; ///< of the blanks in front of the marker
        std::int64_t markerStart;
        std::int64_t end;
        Node* maker;
        std::int64_t outer;
    };

    std::int64_t parseLine(std::int64_t line, std::int64_t last, Node* parent);

    const BlockRuleMap& blockRules_;
    InlineParserNode inlineParser_;
    std::unique_ptr<Node> root_;
    std::vector<Frame> frames_;
    std::vector<PrefixPiece> pieces_;
    std::vector<std::int64_t> outward_; ///< scratch of linkPrefix
};

} // namespace Ondo
