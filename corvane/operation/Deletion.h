#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "corvane/operation/Operation.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

// What the two deletion keys share. Each of their answers is an empty list or one result that leaves a caret.

/// Takes out `length` units at an offset, with the caret there.
std::vector<Result> deletion(std::int64_t offset, std::int64_t length);
/// Takes out the node.
std::vector<Result> deletion(const Ondo::Node::Iterator& at);
/// Changes no text: consumes the key, with the caret at an offset.
std::vector<Result> caretOnly(std::int64_t offset);
/// Takes out the whole table around a node, but for the line ending of its last row, which is left as "\n".
/// The node lies in a table.
std::vector<Result> tableRemoval(Ondo::Node::Iterator at);

/// The node itself or, for a text, what the text is the content of.
void toConstruct(Ondo::Node::Iterator& at);

/// The line of the caret one level of indentation further out.
std::vector<Result> outdented(const Ondo::Tree& tree, std::int64_t caret, IndentStyle style);

inline bool isInType(const Ondo::Node* node, std::uint16_t type) {
    return node->type == type || node->hasAncestorOfType(type);
}

/// What answers for the node beside the caret: the row of its type, or nothing. That node is a leaf or what a
/// text is the content of. So a table has no row: what stands at its start is a pipe or a blank.
template <class Handler>
struct DeletionRow {
    std::uint16_t type;
    Handler handler;
};

template <class Handler, std::size_t count>
Handler handlerOf(const DeletionRow<Handler> (&rows)[count], std::uint16_t type) {
    for (const DeletionRow<Handler>& row : rows)
        if (row.type == type) return row.handler;
    return nullptr;
}

} // namespace CVN::Operation
