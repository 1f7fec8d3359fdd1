#pragma once

#include "corvane/tree/FirstLevelIndex.h"
#include "corvane/tree/Node.h"

namespace Ondo::Block {

/// The root of a tree. Its children are the first-level blocks, the unit of reparsing.
class CORVANE_EXPORT DocumentNode : public Node {
public:
    DocumentNode(std::int64_t offset, std::int64_t end, std::int64_t lines)
        : Node(ONDO_DOCUMENT_NODE, offset, end, 0, lines) {}

    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;

    /// A rule would have taken in lines behind the text, had there been any: what follows a part of a
    /// document can change how it is parsed.
    bool looksBehindEnd = false;

    /// A cache: it changes with questions about a tree that does not change.
    mutable FirstLevelIndex index{this};
};

} // namespace Ondo::Block

namespace Ondo {
using Block::DocumentNode;
}
