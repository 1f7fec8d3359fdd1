#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "corvane/operation/InlineStyle.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

/// A stretch of text that takes a pair of markers of its own: what a range holds of a line or of a table's
/// cell, without the prefix of the line, its ending and the whitespace at both ends. Lines are one stretch
/// where an inline construct runs across them that begins or ends in the range, or takes part in the command.
/// It is never empty, and starts and ends outside of blocks of code.
struct InlineSpan {
    Ondo::Node::Iterator first; ///< the leaf that holds the first code unit
    Ondo::Node::Iterator last;  ///< the leaf that holds the last one
    std::int64_t offset;
    std::int64_t end;
    Ondo::Range part;    ///< what the range holds of the lines or the cell, with all that the span is without
    Ondo::Range loose{}; ///< the markers at its edges that make no run; of length 0 when there are none
};

/// The spans of a range, from the last to the first.
std::vector<InlineSpan> inlineSpans(const Ondo::Tree& tree, const Ondo::Range& range, InlineToggles style);

/// What fills the space between two runs of the style, as a span, if it is just the range, though it be
/// blank.
std::optional<InlineSpan> spanBetweenRuns(const Ondo::Tree& tree, const Ondo::Range& range,
                                          InlineToggles style);

/// Moves the edges off whitespace and the syntax of blocks; false when nothing is left.
bool trimSpan(const Ondo::Tree& tree, InlineSpan& span);

/// Moves edges that stand on one marker of another inline construct, so that a pair around the span does not
/// cross it: over to the marker's partner if nothing else lies between, otherwise off the marker. False when
/// nothing is left.
bool uncrossSpan(const Ondo::Tree& tree, InlineSpan& span, InlineToggles style);

/// The leaf that holds an offset of the text, by steps from another one.
Ondo::Node::Iterator leafFrom(Ondo::Node::Iterator leaf, std::int64_t offset);

/// Over whitespace, and over what a line begins and ends with in the middle of a construct. The leaf is one
/// near the offset.
std::int64_t behindBlanks(const Ondo::Tree& tree, Ondo::Node::Iterator leaf, std::int64_t offset);
std::int64_t beforeBlanks(const Ondo::Tree& tree, Ondo::Node::Iterator leaf, std::int64_t offset);

/// The node of a leaf and its ancestors that holds the offset inside, away from its edges, and must not be
/// cut there by a range; of several the outermost. An iterator without a node when there is none.
Ondo::Node::Iterator nodeCutAt(const Ondo::Tree& tree, std::int64_t offset, const Ondo::Range& range,
                               InlineToggles style);

/// The range with its edges moved out of the nodes that they would cut.
Ondo::Range withoutCuts(const Ondo::Tree& tree, Ondo::Range range, InlineToggles style);

} // namespace CVN::Operation
