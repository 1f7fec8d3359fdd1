#pragma once

#include <cstdint>

namespace Ondo {

/// What a node is. The rows, with name, class and category, stand in NodeTypes.def.
enum NodeType : std::uint16_t {
#define X(number, enumerator, name, class, category) enumerator = number,
#include "corvane/tree/NodeTypes.def"
#undef X
};

inline constexpr std::uint16_t nodeTypeCount = 145;

} // namespace Ondo
