#pragma once

#include <cstdint>

#include "corvane/scan/Export.h"

namespace Ondo {

/// What a node is. The rows, with name, class and category, stand in NodeTypes.def.
enum NodeType : std::uint16_t {
#define X(number, enumerator, name, class, category) enumerator = number,
#include "corvane/tree/NodeTypes.def"
#undef X
};

inline constexpr std::uint16_t nodeTypeCount = 145;

/// In an order that is relied on: blocks up to InlineBlock, leaves of the tree from Marker on.
enum class NodeCategory : std::uint8_t {
    Document,
    ContainerBlock, ///< holds blocks
    LeafBlock,      ///< has no inline parsing of its own
    InlineBlock,    ///< its content is parsed for inlines
    Inline,
    Attribute, ///< a run of text that carries a value of its construct
    Marker,    ///< syntax characters
    Space,
    LineEnding,
    Text
};

inline constexpr NodeCategory nodeCategories[nodeTypeCount] = {
#define X(number, enumerator, name, class, category) NodeCategory::category,
#include "corvane/tree/NodeTypes.def"
#undef X
};

constexpr NodeCategory nodeCategory(std::uint16_t type) {
    return nodeCategories[type];
}

/// The name of a type's nodes, static and NUL-terminated; compared by address.
CORVANE_EXPORT const char16_t* nodeName(std::uint16_t type);

/// Whether nodes of the type hold code, which goes left to right whatever stands around it.
constexpr bool isCodeType(std::uint16_t type) {
    return type == ONDO_FENCED_CODE_NODE || type == ONDO_HTML_BLOCK_NODE || type == ONDO_INDENTED_CODE_NODE ||
           type == ONDO_YAML_NODE || type == ONDO_CODE_SPAN_NODE || type == ONDO_RAW_HTML_NODE ||
           type == ONDO_MATH_SPAN_NODE || type == ONDO_MATH_BLOCK_NODE;
}

} // namespace Ondo
