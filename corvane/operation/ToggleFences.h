#pragma once

#include <vector>

#include "corvane/operation/Operation.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Range.h"

namespace CVN::Operation {

/// Puts the lines of a range between fences, or takes the fences of the block away that holds the range. The
/// style is FencedCode or MathBlock.
///
/// The fences stand in the innermost item or quote that holds all the lines, and the text between them
/// doesn't end the block. An empty list where the lines lie in HTML, a table, front matter or code of the
/// other kind, and for math around a line that is "$$".
std::vector<Result> toggledFences(const Ondo::Tree& tree, BlockToggles style, const Ondo::Range& range,
                                  const Ondo::Range& selection);

/// Whether a leaf at the end of the text lies in code, math or HTML that what is typed behind it continues.
bool isInUnclosedBlock(const Ondo::Node* leaf);

} // namespace CVN::Operation
