#include "corvane/tree/Node.h"

#include <utility>

#include "corvane/scan/Assert.h"
#include "corvane/tree/DocumentNode.h"
#include "corvane/tree/NodeArena.h"

namespace Ondo {

namespace {

constexpr const char16_t* names[nodeTypeCount] = {
#define X(number, enumerator, name, class, category) u"" name,
#include "corvane/tree/NodeTypes.def"
#undef X
};

/// The names of types that share one are one string, whether or not the linker merges equal literals.
constexpr const char16_t* sharedName(std::uint16_t type) {
    if (nodeCategories[type] == Node::Category::Marker && type != ONDO_FOLD_MARKER_NODE)
        return names[ONDO_ATX_HEADING_OPEN_MARKER_NODE];
    if (nodeCategories[type] == Node::Category::Attribute) return names[ONDO_FENCED_CODE_INFO_ATTRIBUTE_NODE];
    return names[type];
}

/// Slots of an arena lie at multiples of 16; what lies 8 behind one is the heap's. So a node need not say
/// where its memory goes back to.
constexpr std::size_t heapOffset = 8;

template <void (*FreeSlot)(void*)>
void giveBack(Node* node) {
    auto* const memory = reinterpret_cast<std::byte*>(node);
    if (reinterpret_cast<std::uintptr_t>(memory) % NodeArena::granularity == 0) return FreeSlot(memory);
    Node::instanceCount.fetch_sub(1, std::memory_order_relaxed);
    ::operator delete(memory - heapOffset);
}

FirstLevelIndex& indexOf(const Node* document) {
    return static_cast<const DocumentNode*>(document)->index;
}

bool isDocument(const Node* node) {
    return node->type == ONDO_DOCUMENT_NODE;
}

} // namespace

constinit std::atomic<std::int64_t> Node::instanceCount = 0;

const char16_t* nodeName(std::uint16_t type) {
    return sharedName(type);
}

void* Node::operator new(std::size_t size) {
    if (void* const slot = NodeArena::allocate(size)) return slot;
    instanceCount.fetch_add(1, std::memory_order_relaxed);
    return static_cast<std::byte*>(::operator new(size + heapOffset)) + heapOffset;
}

void Node::operator delete(Node* node, std::destroying_delete_t) {
    node->~Node();
    giveBack<NodeArena::freeRoot>(node);
}

Node::~Node() {
    // Children of a child are queued behind it, so that the depth of the tree costs no stack.
    for (Node* child = firstChild; child;) {
        if (child->firstChild) {
            child->lastChild->nextSibling = child->nextSibling;
            child->nextSibling = child->firstChild;
            child->firstChild = nullptr;
        }
        Node* const next = child->nextSibling;
        child->~Node();
        giveBack<NodeArena::free>(child);
        child = next;
    }
}

std::u16string Node::toIndentedTree() const {
    std::u16string out = name();
    if (folded) out += u"{folded}";
    return out;
}

void Node::childrenToHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    for (const Node* child = firstChild; child; child = child->nextSibling) {
        child->toHtml(out, markdown, offset);
        offset += child->charCount;
    }
}

void Node::appendValue(std::u16string&, std::u16string_view) const {}

bool Node::hasEqualData(const Node&) const {
    return true;
}

std::int64_t Node::startOffset() const {
    std::int64_t offset = 0;
    const Node* node = this;
    for (; node->parent && !isDocument(node->parent); node = node->parent)
        for (const Node* before = node->previousSibling; before; before = before->previousSibling)
            offset += before->charCount;
    return node->parent ? offset + indexOf(node->parent).positionOf(node).offset : offset;
}

std::int64_t Node::startLine() const {
    std::int64_t line = 0;
    const Node* node = this;
    for (; node->parent && !isDocument(node->parent); node = node->parent)
        for (const Node* before = node->previousSibling; before; before = before->previousSibling)
            line += before->lineCount;
    return node->parent ? line + indexOf(node->parent).positionOf(node).line : line;
}

std::int64_t Node::treeLevel() const {
    std::int64_t level = 0;
    for (const Node* node = parent; node; node = node->parent)
        ++level;
    return level;
}

std::u16string_view Node::expensiveSubstring(std::u16string_view markdown) const {
    return markdown.substr(static_cast<std::size_t>(startOffset()), static_cast<std::size_t>(charCount));
}

Node* Node::nodeAtRelativeOffset(std::int64_t offset, LevelSetting level) {
    CORVANE_ASSERT(offset >= 0, "Node");
    Node* node = this;
    while (true) {
        CORVANE_ASSERT(offset <= node->charCount, "Node");
        if (!node->firstChild) return node;
        const bool isOnEdge = offset == 0 || offset == node->charCount;
        if (isOnEdge && level == LevelSetting::Highest) return node;
        if (isOnEdge && level == LevelSetting::FirstLevel && !isDocument(node)) return node;
        if (isDocument(node)) {
            const FirstLevelIndex::Position position = indexOf(node).find(offset);
            offset -= position.offset;
            node = position.node;
            continue;
        }
        node = node->firstChild;
        for (; node->nextSibling && node->charCount <= offset; node = node->nextSibling)
            offset -= node->charCount;
    }
}

bool Node::hasAncestorOfType(std::uint16_t wanted) const {
    return hasAncestorWhere([wanted](const Node* node) { return node->type == wanted; });
}

Node* Node::lastNodeOfSubtree() {
    Node* node = this;
    while (node->lastChild)
        node = node->lastChild;
    return node;
}

Node* Node::nextInSequence() const {
    return firstChild ? firstChild : nextInSequenceSkippingSubtree();
}

Node* Node::nextInSequenceSkippingSubtree() const {
    const Node* node = this;
    while (node && !node->nextSibling)
        node = node->parent;
    return node ? node->nextSibling : nullptr;
}

Node* Node::previousInSequence() const {
    return previousSibling ? previousSibling->lastNodeOfSubtree() : parent;
}

Node* Node::parentBlock() const {
    return ancestorWhere([](const Node* node) { return node->isBlock(); }, LevelSetting::Leaf);
}

Node* Node::firstLevelAncestor() {
    Node* node = this;
    while (node->parent && node->parent->parent)
        node = node->parent;
    return node;
}

Node* Node::firstMarker() {
    const Node* end = nextInSequenceSkippingSubtree();
    for (Node* node = this; node != end; node = node->nextInSequence())
        if (node->isMarker() && node->maker == this) return node;
    return nullptr;
}

Node* Node::nextMarker() const {
    if (!isMarker() || !maker) return nullptr;
    const Node* end = maker->nextInSequenceSkippingSubtree();
    for (Node* node = nextInSequence(); node && node != end; node = node->nextInSequence())
        if (node->isMarker() && node->maker == maker) return node;
    return nullptr;
}

Node* Node::firstAttribute() const {
    return childWhere([](const Node* node) { return node->category == Category::Attribute; });
}

Node* Node::nextAttribute() const {
    Node* node = nextSibling;
    while (node && node->category != Category::Attribute)
        node = node->nextSibling;
    return node;
}

Node* Node::beginningOfLine() {
    Node* node = this;
    for (Node* before = node->previousInSequence();
         before && before->category != Category::LineEnding && !isDocument(before);
         before = node->previousInSequence())
        node = before;
    return node;
}

Node* Node::endOfLine() {
    Node* node = this;
    while (node->category != Category::LineEnding) {
        Node* const next = node->nextInSequence();
        if (!next) break;
        node = next;
    }
    return node;
}

void Node::invalidateIndex() {
    indexOf(this).invalidate();
}

void Node::unhook() {
    (previousSibling ? previousSibling->nextSibling : parent->firstChild) = nextSibling;
    (nextSibling ? nextSibling->previousSibling : parent->lastChild) = previousSibling;
    parent = previousSibling = nextSibling = nullptr;
}

std::unique_ptr<Node> Node::unlinkSubtree() {
    CORVANE_ASSERT(this->parent, "Node");
    if (isDocument(parent)) indexOf(parent).invalidate();
    unhook();
    return std::unique_ptr<Node>(this);
}

void Node::moveAllChildrenTo(Node* node) {
    CORVANE_ASSERT(node, "Node");
    CORVANE_ASSERT(this->firstChild, "Node");
    for (const Node* changed : {this, node})
        if (isDocument(changed)) indexOf(changed).invalidate();
    node->firstChild = firstChild;
    node->lastChild = lastChild;
    for (Node* child = firstChild; child; child = child->nextSibling)
        child->parent = node;
    firstChild = lastChild = nullptr;
}

Node::Iterator Node::begin() {
    return Iterator(this);
}

Node::Iterator Node::end() {
    Iterator iterator(this);
    iterator.nextInSequenceSkippingSubtree();
    return iterator;
}

} // namespace Ondo
