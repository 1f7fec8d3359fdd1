#pragma once

#include <cstdint>

#include "corvane/block/Table.h"

/// The number by which clients know the alignment of a table's column: 4 natural, 0 left, 2 right, 1 center.
constexpr std::int64_t alignmentNumber(Ondo::Block::TableNode::ColumnAlignment alignment) {
    constexpr std::int64_t numbers[] = {4, 0, 2, 1};
    return numbers[static_cast<std::size_t>(alignment)];
}
