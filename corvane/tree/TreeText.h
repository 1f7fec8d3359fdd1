#pragma once

#include <string>
#include <string_view>

#include "corvane/tree/Node.h"

/// Renderings of a tree, for inspection.

namespace Ondo::Util {

/// `markdown` is the whole text that the tree of `node` was parsed from.
CORVANE_EXPORT std::u16string toHtml(const Node* node, std::u16string_view markdown);
/// One line a node, two spaces a level; nodes without children show their text, escaped.
CORVANE_EXPORT std::u16string toIndentedTree(Node* node, std::u16string_view markdown);

} // namespace Ondo::Util
