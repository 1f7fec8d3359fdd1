#pragma once

#include <cstdint>
#include <string_view>

#include "corvane/tree/Tree.h"

/// A text pasted directly behind the marker of a list item, and the markers that it brings along.

namespace CVN::Correction {

/// Whether the offset is directly behind the marker of an item.
bool isBehindItemMarker(const Ondo::Tree& tree, std::int64_t offset);

/// The units of all list markers, with their boxes of tasks, at the start of a text; 0 for none.
std::int64_t lengthOfItemMarkers(std::u16string_view text);

/// Whether a paste there brings markers and nothing else: the only thing wanted, so it goes in as it is.
bool isOnlyItemMarkers(const Ondo::Tree& tree, std::int64_t offset, std::u16string_view text);

} // namespace CVN::Correction
