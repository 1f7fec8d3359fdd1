#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "corvane/operation/LineWalk.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

// Walks in a table. The children of a row are its pipes and what stands between them; between adjacent pipes,
// in an empty cell, there is nothing, so columns are told by pipes. The row of N columns has N + 1 of them:
// the pipe of column C, counted from 0, opens its cell, and the next one closes it.
//
// Iterators without a node mean that there is none.

inline bool isDelimiterRow(const Ondo::Node* node) {
    return isOfType(node, Ondo::ONDO_TABLE_DELIMITER_ROW_NODE);
}

/// From a leaf up to the child of a row that holds it, or to none outside tables.
void toRowChild(Ondo::Node::Iterator& at);

/// From a child of a row to the nearest pipe before it or behind it in the row.
void toPreviousPipe(Ondo::Node::Iterator& at);
void toNextPipe(Ondo::Node::Iterator& at);

/// From a row to its first or last pipe.
void toFirstPipe(Ondo::Node::Iterator& row);
void toLastPipe(Ondo::Node::Iterator& row);

/// From a header or data row to the one above or below, past the delimiter row.
void toPreviousTextRow(Ondo::Node::Iterator& row);
void toNextTextRow(Ondo::Node::Iterator& row);

/// Where the row's first pipe starts: behind its indentation.
std::int64_t rowStart(Ondo::Node::Iterator row);
/// Where the row's line ending starts, or would.
std::int64_t rowEnd(const Ondo::Node::Iterator& row);
/// Empty for the last line of a text that doesn't end in one.
std::u16string lineEndingOf(const Ondo::Tree& tree, const Ondo::Node::Iterator& row);

/// Whether a row, given by its text, would be the delimiter row below another one.
bool readsAsDelimiterRow(std::u16string_view row);

/// Whether a line that starts at an offset begins as a row does: with a pipe that does not stand so far in
/// that it would be indented code.
bool beginsAsRow(const Ondo::Tree& tree, std::int64_t line);

/// Whether a line outside containers, given by its line node, would be a row below the delimiter row of so
/// many columns.
bool isRowOf(const Ondo::Tree& tree, const Ondo::Node::Iterator& line, std::int64_t columns);

} // namespace CVN::Operation
