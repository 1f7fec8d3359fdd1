#pragma once

#include <string>
#include <vector>

#include "corvane/tree/Tree.h"

/// What the tree keeps current by bookkeeping, counted again from nothing. All return the first difference
/// in words, and an empty string when there is none.

namespace Ondo::Test {

/// The label indexes hold the labelled nodes of the tree, in document order and with their offsets, and each
/// node's connections are the nodes of the other side with its label.
std::string labelsDiffer(const Tree& tree);

/// The blocks that open folds hide are those with the flag.
std::string foldsDiffer(const Tree& tree);

/// An edit that took `before` to `after`: the code units behind and before it that lie outside the redraw
/// ranges have the leaves that they had, below the same ancestors.
std::string missesRedraw(const Tree& before, const Tree& after, const Range& replaced, std::int64_t inserted,
                         const std::vector<Range>& redraw);

} // namespace Ondo::Test
