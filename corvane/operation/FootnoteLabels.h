#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/LabeledConnections.h"

namespace CVN::Operation {

// What the commands on footnotes share. Offsets count UTF-16 code units.

/// The index of footnotes; null under a rule set without them.
CORVANE_EXPORT const Ondo::LabeledConnections* footnotesOf(const Ondo::Tree& tree);

/// Whether a label is a number: ASCII digits, and at least one.
CORVANE_EXPORT bool isNumericLabel(std::u16string_view label);

/// Where a node of an ancestor's subtree starts. The ancestor's offset is known, and it is no document.
inline std::int64_t offsetIn(std::int64_t ancestorOffset, const Ondo::Node* ancestor,
                             const Ondo::Node* node) {
    return ancestorOffset + node->offsetWhenParsed - ancestor->offsetWhenParsed;
}
inline std::int64_t offsetIn(const Ondo::LabelEntry& entry, const Ondo::Node* node) {
    return offsetIn(entry.offset, entry.node, node);
}

/// What makes a definition's label no number and, as before, nothing that is referred to, when it goes in
/// before the label's closing marker: a question mark, or as many as that takes.
CORVANE_EXPORT std::u16string unusedMark(const Ondo::LabeledConnections& footnotes,
                                         const Ondo::LabeledNode* definition);

/// Another tree, of a text of its own, with the rules of a tree.
CORVANE_EXPORT Ondo::Tree trialParse(const Ondo::Tree& tree, std::u16string_view text);

} // namespace CVN::Operation
