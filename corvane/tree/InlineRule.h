#pragma once

#include "corvane/scan/GoLines.h"
#include "corvane/tree/RuleBase.h"

namespace Ondo {

class InlineParserNode;

/// The rule of an inline construct.
///
/// match() gets a copy of the cursor, which it moves as it likes, and answers with the position at which the
/// scan goes on, or -1 for no match. A match makes progress, and its nodes are in the tree when it returns.
/// A letter among the triggers counts only where no letter stands before it. State of the scan of one node is
/// reset in beforeParseNode().
class CORVANE_EXPORT InlineRule : public RuleBase {
public:
    /// Whether something is kept from one position of a node to another, so that the calls below are wanted.
    enum class NodeState { None, Kept };

    const bool keepsNodeState;

    explicit InlineRule(std::u16string_view triggers_, NodeState state = NodeState::Kept)
        : RuleBase(triggers_), keepsNodeState(state == NodeState::Kept) {}

    virtual std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) = 0;
    virtual void beforeParseNode(InlineParserNode& parser);
    /// Delimiters are paired here, after the scan.
    virtual void afterParseNode(InlineParserNode& parser, Node* node);
    /// Another rule has taken the range: pending state inside it is dropped.
    virtual void clearRange(InlineParserNode& parser, std::int64_t start, std::int64_t end);
};

} // namespace Ondo
