#pragma once

#include <string_view>

#include "corvane/tree/Node.h"

/// The writing direction of blocks, so that an editor can lay out mixed text.
///
/// A block goes the way of its first strong character; a block without one inherits from the text before it,
/// so that an empty line in right-to-left text stays right to left. Code goes left to right and hands on what
/// stood before it. Only first-level blocks, table cells and code carry a direction.

namespace Ondo {

/// The direction of the first strong character (Unicode classes L, R, AL) among the texts below `node` that
/// a reader sees, or None. Reads at `offsetWhenParsed`: on a tree straight after its parse only.
CORVANE_EXPORT Direction writingDirectionOfContent(std::u16string_view markdown, const Node* node);

/// Sets the direction of the nodes of a fresh first-level block. `current` is what the text before it hands
/// on; the result is what the block hands on.
CORVANE_EXPORT Direction setBlockDirection(std::u16string_view markdown, Node* block, Direction current);

/// Sets the direction of all nodes of a fresh tree. `seed` is what the text before it hands on.
CORVANE_EXPORT void setWritingDirection(std::u16string_view markdown, Node* root, Direction seed);

/// What a first-level block, or the beginning of the document (null), hands on to the block behind it.
CORVANE_EXPORT Direction directionBehind(const Node* block);

/// Carries a change of what is handed on to the blocks from `block` on that only inherit, up to the first
/// that has a direction of its own or stays as it is. Returns the last block changed, or null.
CORVANE_EXPORT Node* inheritDirection(Node* block, Direction current);

} // namespace Ondo
