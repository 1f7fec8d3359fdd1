#pragma once

#include <cstdint>
#include <string>

#include "corvane/tree/BlockParser.h"

/// What fenced code and math blocks share: lines held verbatim between two fences.

namespace Ondo::Block {

/// The node types of a fenced construct, and the fence that opened it.
struct Fence {
    NodeType contentType;
    NodeType closeType;
    char16_t character;
    std::int64_t leastLength;   ///< of a closing fence
    std::int64_t longestLength; ///< of a closing fence
};

/// Reads the lines behind the opening fence on `line` into `node`: content lines into one attribute, and as
/// `code` with the fence's indentation taken off, then the closing fence. Sets the node's length and line
/// count, and returns the latter. An unclosed fence runs to `lastLine`, or to a lazy line.
std::int64_t parseFencedLines(BlockParser& parser, Node* node, const Fence& fence, std::u16string& code,
                              std::int64_t line, std::int64_t lastLine, const Node* parent);

/// Whether `node` is a fenced block without a closing fence.
bool isOpenFence(const Node* node, NodeType type, NodeType closeType);

/// Whether a reparsed stretch newly ends in an open fence, which swallows all text behind it.
bool opensFence(const Node* newRoot, const Node* endNode, NodeType type, NodeType closeType);

} // namespace Ondo::Block
