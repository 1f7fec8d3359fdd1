#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "corvane/operation/Operation.h"
#include "corvane/tree/Node.h"

namespace CVN::Operation {

// What inline styles are made of, and which nodes take none.

std::u16string_view startMarkerOf(InlineToggles style);
std::u16string_view endMarkerOf(InlineToggles style);

/// The style that a node shows. Highlights are told apart by their colour.
std::optional<InlineToggles> toggleTypeOfNode(const Ondo::Node* node);

/// Whether the node shows exactly the style.
bool isNodeOfToggleType(const Ondo::Node* node, InlineToggles style);
/// As isNodeOfToggleType(), but highlights of all colours are one category: one takes the place of another.
bool isNodeOfToggleCategory(const Ondo::Node* node, InlineToggles style);
/// The node itself or its nearest ancestor of the type or category; null when there is none, or no node.
const Ondo::Node* toggleTypeNode(const Ondo::Node* node, InlineToggles style);
const Ondo::Node* toggleCategoryNode(const Ondo::Node* node, InlineToggles style);

/// Code, math, HTML blocks and front matter show their text as it is: the node itself or its nearest ancestor
/// of these; null when there is none.
const Ondo::Node* ignoredTypeNode(const Ondo::Node* node);
/// Whether a node is an inline of that kind: a span of code or math.
bool isIgnoredInline(const Ondo::Node* node);

/// Whether a marker inside the node would break it: tags, addresses, images, entities.
bool isIndivisible(const Ondo::Node* node);

/// Whether the leaf stands in syntax of a block that no pair of markers may be written into: the delimiter
/// row of a table, a link reference definition, a label.
bool isInBlockSyntax(const Ondo::Node* leaf);

/// Whether text in the brackets of a link is what the reader sees and nothing else. In «[label]» it is also
/// what the definition is found by.
bool hasFreeText(const Ondo::Node* link);

inline bool isOpeningMarker(const Ondo::Node* leaf) {
    return leaf->maker && leaf->maker->firstChild == leaf;
}
inline bool isClosingMarker(const Ondo::Node* leaf) {
    return leaf->maker && leaf->maker->lastChild == leaf;
}

} // namespace CVN::Operation
