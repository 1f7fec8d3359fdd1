#pragma once

#include <cstdint>
#include <string>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"

namespace CVN::Operation {

// What indentation is made of, for the commands that write it.

/// The blanks for an indentation of `width` columns. With the style Tabs, and a width above 0, a tab for each
/// list item from the node up to the document instead; the node may be null.
std::u16string indentationString(std::int64_t width, const Ondo::Node* node, IndentStyle style);

/// The length of an item's marker without a task's box: "- [ ] " has 2. The node is a list item.
std::int64_t markerIndentWidth(Ondo::Node* item);

/// Puts "[ ]" in the place of each "[x]" and "[X]".
std::u16string withUncheckedTasks(std::u16string text);

} // namespace CVN::Operation
