#pragma once

#include <cstdint>

#include "corvane/operation/Operation.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Range.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

/// What a command of inline style applies to at a caret that stands within a leaf or at its start: the node
/// that must not be cut there, else the word. An apostrophe inside a word belongs to it; a marker ends it. Of
/// length 0 when the caret stands in no word.
Ondo::Range wordAround(const Ondo::Tree& tree, const Ondo::Node::Iterator& leaf, std::int64_t offset,
                       InlineToggles style);

} // namespace CVN::Operation
