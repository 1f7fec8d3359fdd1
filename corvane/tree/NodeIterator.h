#pragma once

#include <cstdint>
#include <string_view>

#include "corvane/tree/Node.h"

namespace Ondo {

/// A cursor in a finished tree and its text: a node, and a position in the text that can lie inside the node
/// or at its end.
///
/// A plain value: it owns nothing, moves in place, and is stale after the next edit. `node` is null in two
/// states: at the end of the document, which is a place where a caret may stand and from which the cursor can
/// step back, and after a search without a result, when all positions are 0. A step to a parent, child,
/// sibling or maker that there isn't leaves `node` null as Node::Iterator does. On a null node moves do
/// nothing, but for those that say something about the end of the document.
///
/// Moves set the position to the start of the node they arrive at, unless they say otherwise. They cost the
/// distance walked; only the constructor walks to the root.
class CORVANE_EXPORT NodeIterator {
public:
    Node* node = nullptr;
    std::int64_t nodeOffset = 0; ///< absolute start of the node
    std::int64_t line = 0;       ///< its start line
    std::int64_t level = 0;      ///< its depth, 0 for the document

    /// At the start of the node, in the tree that `markdown` was parsed to.
    NodeIterator(std::u16string_view markdown, Node* at);

    Node* get() const { return node; }
    Node& operator*() const { return *node; }
    Node* operator->() const { return node; }
    std::int64_t markdownOffset() const { return markdownOffset_; }
    std::u16string_view markdown() const { return markdown_.units; }
    /// Empty for no node. A start beyond the text is the standard library's out-of-range failure.
    std::u16string_view markdownForNode() const;
    /// The text from this position to the other's; empty when the other lies before.
    std::u16string_view markdownBetween(const NodeIterator& other) const;

    bool isAtStartOfNode() const { return node && markdownOffset_ == nodeOffset; }
    bool isAtEndOfNode() const { return node && markdownOffset_ == end(); }
    bool isAtEndOfDocument() const;
    bool isBeforeOrEqual(const NodeIterator& other) const;
    /// The other's position lies in this node, both edges included, and its node not on a higher level.
    bool isContaining(const NodeIterator& other) const;

    // Steps through the tree

    NodeIterator& operator++();
    NodeIterator operator++(int);
    /// Document order. Behind the last node comes the end of the document.
    void nextInSequence();
    void nextInSequenceSkippingSubtree();
    /// From the end of the document to its last node.
    void previousInSequence();
    void lastNodeOfSubtree() { move(&Node::Iterator::lastNodeOfSubtree); }
    /// From the end of the document to the root.
    void parent();
    void firstChild() { move(&Node::Iterator::firstChild); }
    void lastChild() { move(&Node::Iterator::lastChild); }
    void previousSibling() { move(&Node::Iterator::previousSibling); }
    void nextSibling() { move(&Node::Iterator::nextSibling); }
    /// Climbs to the maker; no move when there is none.
    void maker() { move(&Node::Iterator::maker); }
    /// The first marker of this node, and the next one of this marker's maker; nullified when there is none.
    void firstMarker();
    void nextMarker();
    void root();
    void nullify();

    // Places in the text

    void startOfDocument();
    void endOfDocument();
    void startOfNode();
    /// The position goes to the end, the node stays.
    void endOfNode();
    /// Moves the position forward, to the highest node that starts there or the leaf that holds it. Asserts
    /// that it stays in the text.
    void nextByOffset(std::int64_t deltaOffset);
    /// From the start of a node to the highest node below the document that starts there.
    void firstLevelWithSameNodeOffset();
    /// From the start of a node down to the leaf that starts there.
    void leafWithSameNodeOffset();
    /// From the start of a node, or the end of the document, to the leaf that ends there: the position stays.
    void endOfPreviousInSequenceWithSameOffset();
    /// From the end of a node to the leaf that starts there.
    void startOfNextInSequenceWithSameOffset();

    // Blocks and lines. At the end of a document without a final line ending these start from the last node.

    void firstLevelBlock();
    /// The innermost block that is no container; in the prefix of a container, the leaf.
    void leafBlock();
    /// Over the markers of blocks, and the blanks between them, to the first other leaf.
    void nextAfterBlockMarkers();
    void nextIfSpace();
    /// Onto the space before this node, or to the start of the space that the position lies in.
    void previousIfSpace();
    void startOfLine();
    /// To the line ending, or to the end of the document.
    void endOfLine();
    /// To the end of what stands before the line ending; on an empty line the position stays.
    void endOfLineBeforeLineBreak();

    // Ancestors, by Node::ancestorWhere(). The cursor moves onto what it finds, and is nullified when there
    // is none. The inclusive forms look at the node itself as the first; `root...` takes the highest,
    // `leaf...` the nearest.

    template <class P>
    void ancestorWhere(P predicate, LevelSetting setting) {
        climbTo(node ? node->ancestorWhere(predicate, setting) : nullptr);
    }
    template <class P>
    void ancestorWhereInclusive(P predicate, LevelSetting setting) {
        climbTo(findInclusive(predicate, setting));
    }
    template <class P>
    void rootAncestorWhere(P predicate) {
        ancestorWhere(predicate, LevelSetting::Highest);
    }
    template <class P>
    void rootAncestorWhereInclusive(P predicate) {
        ancestorWhereInclusive(predicate, LevelSetting::Highest);
    }
    template <class P>
    void leafAncestorWhere(P predicate) {
        ancestorWhere(predicate, LevelSetting::Leaf);
    }
    template <class P>
    void leafAncestorWhereInclusive(P predicate) {
        ancestorWhereInclusive(predicate, LevelSetting::Leaf);
    }
    template <class P>
    bool hasAncestorWhere(P predicate) const {
        return node && node->hasAncestorWhere(predicate);
    }
    template <class P>
    bool hasAncestorWhereInclusive(P predicate) const {
        return node && (predicate(node) || node->hasAncestorWhere(predicate));
    }
    bool hasAncestorOfType(std::uint16_t type) const;
    bool hasAncestorOfTypeInclusive(std::uint16_t type) const;

private:
    /// The text with its length in the type of the offsets.
    struct Text {
        std::u16string_view units;
        std::int64_t size() const { return static_cast<std::int64_t>(units.size()); }
    };

    template <class P>
    Node* findInclusive(P predicate, LevelSetting setting) const {
        Node* const own = node && predicate(node) ? node : nullptr;
        const bool isFirstLevel = own && (!own->parent || own->parent == root_);
        if (own && (setting == LevelSetting::Leaf || (setting == LevelSetting::FirstLevel && isFirstLevel)))
            return own;
        Node* const above = node ? node->ancestorWhere(predicate, setting) : nullptr;
        return above ? above : own;
    }

    std::int64_t end() const { return nodeOffset + node->charCount; }
    Node::Iterator position() const;
    void moveTo(const Node::Iterator& at);
    void move(void (Node::Iterator::*step)());
    void climbTo(const Node* ancestor);
    void stepTo(const Node* following);
    void jumpToFirstLevel(std::int64_t offset);
    bool stepTowards(std::int64_t target);
    void stepBackFromEnd();
    bool isBlockPrefix() const;

    Text markdown_;
    Node* root_ = nullptr;
    std::int64_t markdownOffset_ = 0;
};

} // namespace Ondo
