#pragma once

#include "corvane/tree/Node.h"
#include "corvane/tree/Range.h"

namespace Ondo {

/// What an edit replaces: first-level blocks of the live tree by first-level blocks of a fresh one.
///
/// The old iterators hold positions in the document before the edit, the new ones in the fragment that was
/// parsed. A null `newStart` means that nothing comes in.
struct CORVANE_EXPORT ReparseRanges {
    Node::Iterator oldStart;
    Node::Iterator oldEnd;
    Node::Iterator newStart;
    Node::Iterator newEnd;

    /// Leaves out the blocks at both ends that came out as they were, so that their nodes stay alive; at
    /// least one remains on each side.
    ///
    /// Both regions begin and end at the same text, so that a block which lies wholly outside `replaced` has
    /// the same text as its counterpart exactly when it has the same length. Nodes before the edit must also
    /// be of the same types: what a block may hold can hang on what follows it. With `comparesAll` so must
    /// those behind it, for an edit that changes what labels mean.
    static void shrink(ReparseRanges& ranges, const Range& replaced, bool comparesAll = false);
    /// Moves the new blocks in, destroys the old ones and corrects the counts up to the root.
    static void replaceNodes(ReparseRanges& ranges);
    /// What to restyle, once the nodes are replaced.
    static Range redrawRange(const ReparseRanges& ranges);
    /// Whether two containers differ in nothing but their children: for shrinking into containers.
    static bool isContainerBlockEquivalent(const Node::Iterator& a, const Node::Iterator& b);
};

} // namespace Ondo
