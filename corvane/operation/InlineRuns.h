#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "corvane/tree/Node.h"
#include "corvane/tree/Range.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

// Runs: inline constructs with a marker at each end, as commands open and close them.

inline std::int64_t sizeOf(std::u16string_view text) {
    return static_cast<std::int64_t>(text.size());
}
bool isTextAt(const Ondo::Tree& tree, std::int64_t offset, std::u16string_view text);

/// Up to an ancestor, or to no node when it is null.
Ondo::Node::Iterator climbedTo(Ondo::Node::Iterator at, const Ondo::Node* ancestor);
/// The child of a run that a leaf lies in.
Ondo::Node::Iterator childOf(const Ondo::Node::Iterator& run, Ondo::Node::Iterator leaf);

/// The first and the last child of a run. Both assert that it is a marker.
Ondo::Range openingMarker(const Ondo::Node::Iterator& run);
Ondo::Range closingMarker(const Ondo::Node::Iterator& run);
bool isUnderscore(const Ondo::Tree& tree, const Ondo::Range& marker);
/// The text to write where a run is opened or closed once more: never underscores, which don't nest.
std::u16string markerText(const Ondo::Tree& tree, const Ondo::Range& marker);

/// Where the first text of a run begins, behind all markers that open there.
std::int64_t behindLeadingMarkers(const Ondo::Node::Iterator& run);
/// Where the last text of a run ends, before all markers that close there.
std::int64_t beforeTrailingMarkers(const Ondo::Node::Iterator& run);

} // namespace CVN::Operation
