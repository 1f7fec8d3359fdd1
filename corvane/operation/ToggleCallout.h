#pragma once

#include <cstdint>
#include <vector>

#include "corvane/operation/Operation.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Range.h"

namespace CVN::Operation {

/// Puts the blocks from one line to another in a quote with the label of a callout, labels the quote that
/// both stand in, or takes quote and label away when that has this label already. A label stands in front of
/// the text of a paragraph; other blocks get it on a line of its own above them.
///
/// The lines are line nodes, but items for lists; they mean nothing in an empty note. An empty list where the
/// lines lie in a table, code, HTML or front matter.
std::vector<Result> toggledCallout(const Ondo::Tree& tree, BlockToggles style,
                                   const Ondo::Node::Iterator& firstLine,
                                   const Ondo::Node::Iterator& lastLine, std::int64_t offset,
                                   const Ondo::Range& selection);

} // namespace CVN::Operation
