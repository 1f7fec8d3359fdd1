#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <utility>

#include "corvane/scan/Assert.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/NodeType.h"

namespace Ondo {

/// Which of several nodes that touch an offset is wanted.
enum class LevelSetting { Highest, Leaf, FirstLevel };

/// The writing direction of a block; the inherited ones come from the text before it.
enum class Direction : std::uint8_t {
    None,
    LeftToRight,
    RightToLeft,
    InheritedLeftToRight,
    InheritedRightToLeft
};

/// A node of the tree that tiles the document: every code unit belongs to exactly one leaf.
///
/// A node stores how long it is, in UTF-16 code units and in lines, never where it stands: positions are
/// sums over what lies before, so that an edit touches only the nodes around it. Walks that need positions
/// use Node::Iterator, which carries them along.
///
/// A node owns its children. All pointers to nodes, and all cursors, go stale with the next edit, but for
/// the first-level blocks that the edit left alone.
class CORVANE_EXPORT Node {
public:
    using Category = NodeCategory;
    class Iterator;

    /// Nodes alive in the process, for finding leaks, on whichever threads they were made and deleted. Exact
    /// whenever no tree is at work and none holds nodes of another: the nodes of an arena are counted when
    /// its scope ends, those of a deleted subtree when its root goes. What lies on the stack is not counted.
    static std::atomic<std::int64_t> instanceCount;

    const std::uint16_t type;
    const Category category;
    Direction direction;
    bool folded = false;
    bool startsIndexRun = false; ///< bookkeeping of FirstLevelIndex
    /// Of a first-level block: the level of the outermost heading whose fold hides it; bookkeeping of folds.
    std::uint8_t foldLevel = 0;
    /// Absolute offset at the time of the parse. Means something only during that parse and among nodes of
    /// it.
    std::int64_t offsetWhenParsed;
    std::int64_t charCount;
    std::int64_t lineWhenParsed; ///< as stale as offsetWhenParsed
    std::int64_t lineCount;      ///< line endings in the text of the node; a block of n lines has n
    Node* parent = nullptr;
    Node* firstChild = nullptr;
    Node* lastChild = nullptr;
    Node* previousSibling = nullptr;
    Node* nextSibling = nullptr;
    Node* maker; ///< of a marker or attribute: its construct, which need not be the parent. Not owned.

    /// With the category that the table of types gives. Asserts that offset, length, line and line count are
    /// not negative.
    Node(NodeType type_, std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lineCount_,
         Node* maker_ = nullptr)
        : type(type_), category(nodeCategory(type_)),
          direction(isCodeType(type_) ? Direction::LeftToRight : Direction::None), offsetWhenParsed(offset),
          charCount(end - offset), lineWhenParsed(line), lineCount(lineCount_), maker(maker_) {
        CORVANE_ASSERT(offsetWhenParsed >= 0, "Node");
        CORVANE_ASSERT(charCount >= 0, "Node");
        CORVANE_ASSERT(lineWhenParsed >= 0, "Node");
        CORVANE_ASSERT(lineCount >= 0, "Node");
    }
    /// Deletes the subtree, without recursion.
    virtual ~Node();
    static void* operator new(std::size_t size);
    static void operator delete(Node* node, std::destroying_delete_t);
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;

    /// The name of the node's type, static and NUL-terminated.
    const char16_t* name() const { return nodeName(type); }

    /// The node's line of the indented tree: its name, and what the class adds.
    virtual std::u16string toIndentedTree() const;
    /// Appends the node's HTML. `markdown` is the whole text, `offset` where this node starts in it.
    virtual void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const = 0;
    void childrenToHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const;

    /// Appends what the node contributes to the value of an attribute that holds it; nothing by default.
    virtual void appendValue(std::u16string& out, std::u16string_view markdown) const;

    /// Whether a node of the same class has the same values of its own; true for a class without any.
    virtual bool hasEqualData(const Node& other) const;

    bool isBlock() const { return category <= Category::InlineBlock; }
    /// Code goes left to right whatever stands around it, from the construction of its node on.
    bool isCode() const { return isCodeType(type); }
    bool isMarker() const { return category == Category::Marker; }
    /// A leaf by its kind: syntax characters, blanks, line endings and text never have children.
    bool isLeafKind() const { return category >= Category::Marker; }
    std::int64_t endWhenParsed() const { return offsetWhenParsed + charCount; }

    // Position, computed. These walk over the siblings before the node and its ancestors: for single
    // questions, not for loops.

    std::int64_t startOffset() const;
    std::int64_t endOffset() const { return startOffset() + charCount; }
    std::int64_t startLine() const;
    /// The number of ancestors.
    std::int64_t treeLevel() const;
    /// The node's text in `markdown`, the whole document. A start beyond it is the standard library's
    /// out-of-range failure; the length is clamped.
    std::u16string_view expensiveSubstring(std::u16string_view markdown) const;

    // Navigation. A null pointer means that there is no such node.

    /// The node at an offset counted from this node's start. Inside a child all settings reach a leaf; on an
    /// edge Highest stays, FirstLevel stays below the document, and Leaf goes on into the child that starts
    /// there, or into the last one. Asserts that the offset lies within the node.
    Node* nodeAtRelativeOffset(std::int64_t offset, LevelSetting level);

    /// The nearest (Leaf) or highest (Highest) ancestor that satisfies; FirstLevel is Highest, but stops at
    /// a satisfying node directly below the document. Never the node itself.
    template <class P>
    Node* ancestorWhere(P predicate, LevelSetting level) const {
        Node* found = nullptr;
        for (Node* node = parent; node; node = node->parent) {
            if (!predicate(node)) continue;
            found = node;
            if (level == LevelSetting::Leaf) break;
            if (level == LevelSetting::FirstLevel &&
                (!node->parent || node->parent->type == ONDO_DOCUMENT_NODE))
                break;
        }
        return found;
    }
    template <class P>
    bool hasAncestorWhere(P predicate) const {
        return ancestorWhere(predicate, LevelSetting::Leaf) != nullptr;
    }
    bool hasAncestorOfType(std::uint16_t wanted) const;
    template <class P>
    Node* childWhere(P predicate) const {
        Node* child = firstChild;
        while (child && !predicate(child))
            child = child->nextSibling;
        return child;
    }
    template <class P>
    bool hasChildWhere(P predicate) const {
        return childWhere(predicate) != nullptr;
    }
    /// Depth first, in document order, without the node itself.
    template <class P>
    Node* descendantWhere(P predicate) const {
        const Node* end = nextInSequenceSkippingSubtree();
        for (Node* node = nextInSequence(); node && node != end; node = node->nextInSequence())
            if (predicate(node)) return node;
        return nullptr;
    }
    template <class P>
    bool hasDescendantWhere(P predicate) const {
        return descendantWhere(predicate) != nullptr;
    }

    /// The node itself when it has no children.
    Node* lastNodeOfSubtree();
    /// The next node in document order.
    Node* nextInSequence() const;
    Node* nextInSequenceSkippingSubtree() const;
    Node* previousInSequence() const;
    /// The nearest ancestor that is a block.
    Node* parentBlock() const;
    /// The ancestor, or the node itself, that stands directly below the root.
    Node* firstLevelAncestor();
    /// The first marker, in this node and its subtree, whose maker is this node.
    Node* firstMarker();
    /// For a marker: the following marker of the same maker.
    Node* nextMarker() const;
    /// The first direct child that is an attribute, and the next sibling that is one.
    Node* firstAttribute() const;
    Node* nextAttribute() const;
    /// The first node on the node's line.
    Node* beginningOfLine();
    /// The line ending of the node's line; at the end of the document the last node.
    Node* endOfLine();

    Iterator begin();
    /// At the node behind the subtree; at the end of the document an iterator without a node.
    Iterator end();

    // Structure. No counts change: the callers see to the lengths.

    /// Inserts `node` before `nextSibling`, or as the last child. Asserts that it has no parent, and that
    /// `nextSibling` is a child of this node. Returns it.
    Node* linkSubtree(std::unique_ptr<Node> node, Node* nextSibling_ = nullptr);
    template <class T>
    T* link(std::unique_ptr<T> node, Node* before = nullptr) {
        return static_cast<T*>(linkSubtree(std::move(node), before));
    }
    /// Asserts that there is a parent.
    std::unique_ptr<Node> unlinkSubtree();
    /// Hands the whole child list to the childless `node`. Asserts both `node` and a first child.
    void moveAllChildrenTo(Node* node);

    /// Lays a node over what is there, by offsetWhenParsed: nodes of the same parse that lie inside its range
    /// move into it, or are dropped where it already has a node of its own. Returns the node, or null when it
    /// crosses an existing one: then the tree is as before and the node is gone.
    ///
    /// `passed` saves the search: a child of this node that ends at or before the new range.
    Node* mergeSubtreeOnParsedOffsets(std::unique_ptr<Node> subtree, Node* passed = nullptr);

private:
    void invalidateIndex();
    void unhook();
};

/// A position in the tree that carries offset, line and level along, so that a step costs an addition.
///
/// A plain value, stale after the next edit. It moves in place; an operation that finds no node leaves
/// `node` null.
class CORVANE_EXPORT Node::Iterator {
public:
    std::int64_t offset = 0; ///< absolute start of the node
    std::int64_t line = 0;   ///< its start line
    std::int64_t level = 0;  ///< its depth, 0 for the root
    Node* node = nullptr;

    Iterator() = default;
    /// Computes the position by walking to the root; a null node gives the null iterator.
    explicit Iterator(Node* at);

    Node* get() const { return node; }
    Node& operator*() const { return *node; }
    Node* operator->() const { return node; }
    bool isEqual(const Iterator& other) const { return node == other.node; }
    std::int64_t end() const { return offset + (node ? node->charCount : 0); }

    Iterator& operator++();
    Iterator operator++(int);
    void nextInSequence(bool blocksOnly = false);
    /// At the end of the tree `node` becomes null; offset and line stand at the end of the last node.
    void nextInSequenceSkippingSubtree();
    void previousInSequence();
    void parent();
    void firstChild();
    void lastChild();
    void previousSibling();
    void nextSibling();
    void lastNodeOfSubtree();
    /// Climbs to the maker; no move when there is none.
    void maker();
    void beginningOfLine();
    void endOfLine();
    /// Forward to `offset + deltaOffset`. Asserts `deltaOffset >= 0`.
    void nextByOffset(std::int64_t deltaOffset, LevelSetting setting);

    Iterator properClone() const { return *this; }
    bool isBeforeOrEqual(const Iterator& other) const;
    /// The other's start lies in this node, both edges included, and not on a higher level.
    bool isContaining(const Iterator& other) const;

private:
    void enter(Node* child);
    void stepBackToFirstSibling();
    void leaf();
    void nullify();
};

namespace Detail {

/// Apart from the class, so that the names of its members don't hide those of the assertion.
inline void linkSubtree(Node* parent, Node* node, Node* nextSibling) {
    CORVANE_ASSERT(node->parent == nullptr, "Node");
    CORVANE_ASSERT(nextSibling == nullptr || nextSibling->parent == parent, "Node");
    Node* const previous = nextSibling ? nextSibling->previousSibling : parent->lastChild;
    node->parent = parent;
    node->previousSibling = previous;
    node->nextSibling = nextSibling;
    (previous ? previous->nextSibling : parent->firstChild) = node;
    (nextSibling ? nextSibling->previousSibling : parent->lastChild) = node;
}

} // namespace Detail

inline Node* Node::linkSubtree(std::unique_ptr<Node> node, Node* nextSibling_) {
    if (category == Category::Document) invalidateIndex();
    Detail::linkSubtree(this, node.get(), nextSibling_);
    return node.release();
}

} // namespace Ondo
