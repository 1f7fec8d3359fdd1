#pragma once

#include "corvane/tree/RuleBase.h"
#include "corvane/tree/RuleMap.h"
#include "corvane/tree/TextBuffer.h"

namespace Ondo {

class BlockParser;

/// The rule of a block construct.
///
/// match() consumes whole lines. With Parse it makes the construct's node, from the `start` of its first line
/// to the `next` of its last one, links below it, for each line, what stands in front of the content
/// (BlockParser::linkPrefix), its markers and the line ending, and hands it over with BlockParser::mergeNode,
/// last of all. Text is not linked: it fills the gaps later. With Check it only answers whether it would
/// match on `line`: it builds nothing and leaves the table of lines as it is. A rule looks at a line behind
/// its first only when BlockParser::hasLine() says that the container has it.
class CORVANE_EXPORT BlockRule : public RuleBase {
public:
    enum class ParseAction { Parse, Check };

    /// The rules that end this construct when they match a line.
    BlockRuleMap terminatingRules;

    using RuleBase::RuleBase;

    /// The number of lines consumed, none of them behind `lastLine`; 0 means no match.
    virtual std::int64_t match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                               ParseAction action) = 0;

    /// Whether an edit, of `length` units inserted at `offset` of `markdown`, changes blocks beyond those
    /// that were reparsed: `newRoot` replaces the first-level blocks from `startNode` to `endNode`.
    virtual bool needFullReparse(const TextBuffer& markdown, std::int64_t offset, std::int64_t length,
                                 Node* startNode, Node* endNode, Node* newRoot);

    /// Whether one of the terminating rules matches on `line`. `parent` is the rule's own parent.
    bool hasMatchingTerminatingRule(BlockParser& parser, std::int64_t line, std::int64_t lastLine,
                                    Node* parent);
};

} // namespace Ondo
