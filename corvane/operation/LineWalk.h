#pragma once

#include <cstdint>
#include <string_view>

#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

// Lines and their prefixes, as operations walk them. A line stands for itself as its line node: the highest
// node below the document that starts where the line does. Iterators without a node mean that there is none.

/// The leaf that starts at an offset or holds it; at the end of the text the last leaf.
Ondo::Node::Iterator leafAt(const Ondo::Tree& tree, std::int64_t offset);

/// The line node of an offset. At the end of a text that ends in a line ending it is that of the line before.
Ondo::Node::Iterator lineAt(const Ondo::Tree& tree, std::int64_t offset);

/// From a line node to that of the line before; to the document when there is none.
void toPreviousLine(Ondo::Node::Iterator& line);

/// From a line node to that of the line behind; to none at the end of the text.
void toNextLine(Ondo::Node::Iterator& line);

/// From a node down to the leaf that starts where it does.
void toFirstLeaf(Ondo::Node::Iterator& at);

/// From a leaf to the next one and the one before; to none when there isn't one.
void toNextLeaf(Ondo::Node::Iterator& leaf);
void toPreviousLeaf(Ondo::Node::Iterator& leaf);

/// Whether a line starts at the offset.
bool isLineStart(const Ondo::Tree& tree, std::int64_t offset);

// Text. Operations read it in small pieces: Tree::markdown() moves all that stands behind the last edit.

/// The code unit at an offset; 0 outside the text.
char16_t unitAt(const Ondo::Tree& tree, std::int64_t offset);
/// What makes an empty line of its own when it goes in where a line starts: behind a lone carriage return a
/// line feed only completes that line's ending.
std::u16string_view emptyLineAt(const Ondo::Tree& tree, std::int64_t lineStart);
/// Good until the next piece of text is read.
std::u16string_view textOf(const Ondo::Tree& tree, const Ondo::Node::Iterator& at);

// What a node is

inline bool isOfType(const Ondo::Node* node, std::uint16_t type) {
    return node && node->type == type;
}
inline bool isBlank(const Ondo::Node* node) {
    return isOfType(node, Ondo::ONDO_BLANK_LINE_NODE);
}
inline bool isLineEnding(const Ondo::Node* node) {
    return isOfType(node, Ondo::ONDO_LINE_ENDING_NODE);
}
inline bool isListItem(const Ondo::Node* node) {
    return isOfType(node, Ondo::ONDO_LIST_ITEM_NODE);
}
inline bool isBlockQuote(const Ondo::Node* node) {
    return isOfType(node, Ondo::ONDO_BLOCK_QUOTE_NODE);
}
/// A list item or block quote: what gives its lines a prefix.
inline bool isContainer(const Ondo::Node* node) {
    return isListItem(node) || isBlockQuote(node);
}
/// The marker of a list item or block quote.
bool isContainerMarker(const Ondo::Node* node);
/// A marker that a block made: "#", ">", a fence, a pipe.
bool isBlockMarker(const Ondo::Node* node);
/// A marker that an inline made.
bool isInlineMarker(const Ondo::Node* node);
/// The node itself or its nearest ancestor of the type; null when there is none.
const Ondo::Node* selfOrAncestor(const Ondo::Node* node, std::uint16_t type);

/// A block or span of code or math, or front matter: text in which nothing but itself is meant.
bool isVerbatim(const Ondo::Node* node);
/// Whether the node stands in such a one, or is one.
bool isInVerbatim(const Ondo::Node* node);
/// A header, delimiter or data row of a table, and a pipe of one.
bool isTableRow(const Ondo::Node* node);
inline bool isTablePipe(const Ondo::Node* node) {
    return isOfType(node, Ondo::ONDO_TABLE_PIPE_MARKER_NODE);
}

/// Whether the dialect is the simplified one, in which a line needs its own marker to belong to a container.
bool isSimplified(const Ondo::Tree& tree);

} // namespace CVN::Operation
