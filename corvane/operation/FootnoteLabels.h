#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

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

/// What makes the labels of definitions no numbers and, as before, nothing that is referred to, when it goes
/// in before the closing marker of the label: a question mark, or as many as that takes. Each label is worked
/// out once. The index must stay alive and the same.
class CORVANE_EXPORT UnusedMarks {
public:
    explicit UnusedMarks(const Ondo::LabeledConnections& footnotes) : footnotes_(footnotes) {}

    const std::u16string& operator()(const std::u16string& label);

private:
    const Ondo::LabeledConnections& footnotes_;
    std::unordered_map<std::u16string, std::u16string> marks_; ///< by label
};

} // namespace CVN::Operation
