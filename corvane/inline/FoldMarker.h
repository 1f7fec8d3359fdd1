#pragma once

#include "corvane/tree/Node.h"

namespace Ondo::Inline {

/// The comment that marks a heading or list item as folded, and the questions about folds.
///
/// A content head is the block that carries the marker: a heading directly below the document, or the first
/// block of a list item. Its fold hides what follows: up to the next heading of the same or a higher rank, or
/// to the end of the item. Blocks that a fold hides have Node::folded set; the questions rely on it. No
/// pointer is owned; null means none.
class CORVANE_EXPORT FoldMarkerNode : public Node {
public:
    FoldMarkerNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines)
        : Node(ONDO_FOLD_MARKER_NODE, offset, end, line, lines) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;

    /// Whether the block may carry a marker: there is something behind it to fold.
    static bool isContentHeadOfFoldable(const Node* node);
    static bool isContentHeadFolded(const Node* node);
    static bool isFoldableHeadingOrListItem(const Node* node);
    /// The last block that a head's fold hides, or would hide.
    static Node* foldableTailFromContentHead(const Node* head);
    /// The block of `node` when it is a folded head; otherwise the nearest head whose fold hides it.
    static Node* foldedContentHead(Node* node);
    /// The nearest head whose fold hides the head, and the last one in that chain.
    static Node* previousFoldedContentHead(const Node* head);
    static Node* topmostFoldedContentHead(Node* node);
    /// The heading that holds a marker, or the list item around its block.
    static Node* foldNode(const Node* marker);

    /// The level of a heading of either kind; 0 for any other node.
    static std::int64_t headingLevel(const Node* node);
};

} // namespace Ondo::Inline
