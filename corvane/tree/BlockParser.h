#pragma once

#include <vector>

#include "corvane/scan/GoLines.h"
#include "corvane/tree/BlockRule.h"
#include "corvane/tree/DocumentNode.h"
#include "corvane/tree/InlineParser.h"
#include "corvane/tree/ParserBase.h"

namespace Ondo {

/// The first pass: makes the tree of blocks, line by line.
///
/// There is no stack of open blocks: a rule consumes whole lines to its end, and a container rule calls
/// parseBlock() on its own lines, rewritten, with itself as parent. A container rewrites a line only when its
/// content asks for it, so that no line is walked over by containers that end before it.
class CORVANE_EXPORT BlockParser : public ParserBase, public LineSource {
public:
    /// How deep containers nest: behind this many, a quote's or list item's marker is text. The bound keeps
    /// hostile input from exhausting the stack.
    static constexpr std::size_t maximumContainerDepth = 256;

    BlockParser(std::u16string_view text, Lines& lines, const BlockRuleMap& blockRules,
                const InlineRuleMap& inlineRules, const InlineRuleMap& attributeRules,
                bool isDocumentHead = true);

    /// Whether the text is the document's head, not a part from further on.
    bool isDocumentHead() const { return isDocumentHead_; }

    /// A rule found the end of the text where it wanted more lines.
    void noteLookBehindEnd();

    /// What a container rule does with its lines.
    class CORVANE_EXPORT Container {
    public:
        virtual ~Container() = default;
        /// Rewrites a further line for the content, or tells that the container ends before it. Called for
        /// each line behind the first, in order, once the containers around this one have the line.
        virtual bool takeLine(std::int64_t line) = 0;
    };

    /// Parses the whole text and gives up the root.
    std::unique_ptr<Node> parseDocument();

    /// Parses lines as children of `parent`; returns how many lines were consumed. Stops where `container`
    /// ends, at the empty entry behind the text, and at a lazy line that no open paragraph has taken.
    std::int64_t parseBlock(std::int64_t first, std::int64_t last, Node* parent,
                            Container* container = nullptr);

    /// Whether the innermost container under parse has the line, which may lie behind those asked for so far.
    /// To be asked before a rule looks at any line behind its first.
    bool hasLine(std::int64_t line) override { return hasLine(depth(), line); }
    /// The same for the container `depth` levels below the text; the text itself has all lines.
    bool hasLine(std::size_t depth, std::int64_t line);

    /// How many levels of parseBlock() are open, and how many up to that of `parent`.
    std::size_t depth() const { return frames_.size(); }
    std::size_t depthOf(const Node* parent) const;
    bool canNest(const Node* parent) const { return depthOf(parent) <= maximumContainerDepth; }

    /// Takes a container's prefix off a line: the indentation and a marker up to `end`, behind which the line
    /// now begins. They are linked by the block that the line ends up in.
    void takePrefix(std::int64_t line, NodeType type, std::int64_t end, Node* maker);
    /// Links what stands in front of the line's content: the prefixes of its containers, and the blanks from
    /// `leading` to `contentStart`, or to `end`.
    void linkPrefix(Node* node, std::int64_t line) { linkPrefix(node, line, lines[line].contentStart); }
    void linkPrefix(Node* node, std::int64_t line, std::int64_t end);

    /// Links what stands between `from` on one line and `to` on the same or a later one, where nothing but
    /// blanks, line endings and prefixes of containers lies between.
    void linkSpacing(Node* node, std::int64_t from, std::int64_t fromLine, std::int64_t to,
                     std::int64_t toLine);
    /// Links the ends and the prefixes of the lines that a span from `first` to `last` crosses.
    void linkCrossedLines(Node* node, std::int64_t first, std::int64_t last);

    /// The block of `parent` that was merged or opened last; null when there is none.
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
        Container* container;
        std::int64_t preparedLine; ///< the last line that the container has taken
        bool isEnded = false;      ///< the container ends behind it
        Node* lastBlock = nullptr; ///< merged or open
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
    bool isDocumentHead_;
    InlineParserNode inlineParser_;
    std::unique_ptr<Node> root_;
    std::vector<Frame> frames_;
    std::vector<PrefixPiece> pieces_;
    std::vector<std::int64_t> outward_; ///< scratch of linkPrefix
};

} // namespace Ondo
