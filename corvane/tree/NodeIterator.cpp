#include "corvane/tree/NodeIterator.h"

#include "corvane/scan/Assert.h"
#include "corvane/tree/DocumentNode.h"

namespace Ondo {

namespace {

using Category = Node::Category;

bool isDocument(const Node* node) {
    return node->type == ONDO_DOCUMENT_NODE;
}

bool isMarkerOfBlock(const Node* node) {
    return node->isMarker() && node->maker && node->maker->isBlock();
}

/// The leaf that starts where the subtree of `node` ends.
const Node* leafBehind(const Node* node) {
    const Node* leaf = node->nextInSequenceSkippingSubtree();
    while (leaf && leaf->firstChild)
        leaf = leaf->firstChild;
    return leaf;
}

} // namespace

NodeIterator::NodeIterator(std::u16string_view markdown, Node* at) : markdown_{markdown}, root_(at) {
    while (root_ && root_->parent)
        root_ = root_->parent;
    moveTo(Node::Iterator(at));
}

Node::Iterator NodeIterator::position() const {
    Node::Iterator at;
    at.offset = nodeOffset;
    at.line = line;
    at.level = level;
    at.node = node;
    return at;
}

void NodeIterator::moveTo(const Node::Iterator& at) {
    node = at.node;
    nodeOffset = markdownOffset_ = at.offset;
    line = at.line;
    level = at.level;
}

void NodeIterator::move(void (Node::Iterator::*step)()) {
    if (!node) return;
    Node::Iterator at = position();
    (at.*step)();
    moveTo(at);
}

std::u16string_view NodeIterator::markdownForNode() const {
    if (!node) return {};
    return markdown_.units.substr(static_cast<std::size_t>(nodeOffset),
                                  static_cast<std::size_t>(node->charCount));
}

std::u16string_view NodeIterator::markdownBetween(const NodeIterator& other) const {
    if (other.markdownOffset_ <= markdownOffset_) return {};
    return markdown_.units.substr(static_cast<std::size_t>(markdownOffset_),
                                  static_cast<std::size_t>(other.markdownOffset_ - markdownOffset_));
}

bool NodeIterator::isAtEndOfDocument() const {
    return !node && root_ && nodeOffset == markdown_.size() && markdownOffset_ == markdown_.size() &&
           line == root_->lineCount && level == 1;
}

bool NodeIterator::isBeforeOrEqual(const NodeIterator& other) const {
    if (markdownOffset_ != other.markdownOffset_) return markdownOffset_ < other.markdownOffset_;
    return level <= other.level && other.node;
}

bool NodeIterator::isContaining(const NodeIterator& other) const {
    if (!node || !other.node) return false;
    return other.markdownOffset_ >= nodeOffset && other.markdownOffset_ <= end() && other.level >= level;
}

// Steps through the tree

NodeIterator& NodeIterator::operator++() {
    nextInSequence();
    return *this;
}

NodeIterator NodeIterator::operator++(int) {
    const NodeIterator before = *this;
    nextInSequence();
    return before;
}

void NodeIterator::nextInSequence() {
    if (node && node->firstChild)
        firstChild();
    else
        nextInSequenceSkippingSubtree();
}

void NodeIterator::nextInSequenceSkippingSubtree() {
    if (!node) return;
    move(&Node::Iterator::nextInSequenceSkippingSubtree);
    if (!node) endOfDocument();
}

void NodeIterator::previousInSequence() {
    if (isAtEndOfDocument()) {
        root();
        lastNodeOfSubtree();
    } else {
        move(&Node::Iterator::previousInSequence);
    }
}

void NodeIterator::parent() {
    if (isAtEndOfDocument())
        root();
    else
        move(&Node::Iterator::parent);
}

void NodeIterator::firstMarker() {
    if (node) stepTo(node->firstMarker());
}

void NodeIterator::nextMarker() {
    if (node) stepTo(node->nextMarker());
}

/// To a node that follows in document order, or to none.
void NodeIterator::stepTo(const Node* following) {
    if (!following) return nullify();
    while (node != following)
        nextInSequence();
    startOfNode();
}

void NodeIterator::climbTo(const Node* ancestor) {
    if (!ancestor) return nullify();
    while (node != ancestor)
        parent();
    startOfNode();
}

void NodeIterator::root() {
    nullify();
    node = root_;
}

void NodeIterator::nullify() {
    moveTo(Node::Iterator());
}

// Places in the text

void NodeIterator::startOfDocument() {
    root();
    firstChild();
}

void NodeIterator::endOfDocument() {
    node = nullptr;
    nodeOffset = markdownOffset_ = markdown_.size();
    line = root_ ? root_->lineCount : 0;
    level = 1;
}

void NodeIterator::startOfNode() {
    if (node) markdownOffset_ = nodeOffset;
}

void NodeIterator::endOfNode() {
    if (node) markdownOffset_ = end();
}

void NodeIterator::nextByOffset(std::int64_t deltaOffset) {
    CORVANE_ASSERT(deltaOffset >= 0, "NodeIterator");
    CORVANE_ASSERT(deltaOffset <= markdown_.size() - markdownOffset_, "NodeIterator");
    const std::int64_t target = markdownOffset_ + deltaOffset;
    if (deltaOffset == 0) {
        if (node && isDocument(node)) nextInSequence();
    } else if (target == markdown_.size()) {
        endOfDocument();
    } else {
        while (node && stepTowards(target)) {
        }
    }
    markdownOffset_ = target;
}

/// False when the node at the target, or the leaf that holds it, is reached.
bool NodeIterator::stepTowards(std::int64_t target) {
    if (nodeOffset >= target) return false;
    if (target < end()) {
        if (!node->firstChild) return false;
        if (isDocument(node))
            jumpToFirstLevel(target);
        else
            firstChild();
    } else if (level == 1 && isDocument(root_) && target < root_->charCount) {
        jumpToFirstLevel(target);
    } else if (target == end() && !node->nextInSequenceSkippingSubtree()) {
        lastNodeOfSubtree();
        return false;
    } else {
        nextInSequenceSkippingSubtree();
    }
    return true;
}

/// Saves the walk over the blocks of a long note.
void NodeIterator::jumpToFirstLevel(std::int64_t offset) {
    const FirstLevelIndex::Position found = static_cast<DocumentNode*>(root_)->index.find(offset);
    node = found.node;
    nodeOffset = markdownOffset_ = found.offset;
    line = found.line;
    level = 1;
}

void NodeIterator::firstLevelWithSameNodeOffset() {
    if (!node) return;
    if (node == root_) {
        nextInSequence();
        return;
    }
    while (isAtStartOfNode() && !node->previousSibling && node->parent != root_)
        parent();
}

void NodeIterator::leafWithSameNodeOffset() {
    while (isAtStartOfNode() && node->firstChild)
        firstChild();
}

void NodeIterator::endOfPreviousInSequenceWithSameOffset() {
    if (!isAtEndOfDocument() && !isAtStartOfNode()) return;
    if (markdownOffset_ == 0) return; // nothing stands before
    if (node) firstLevelWithSameNodeOffset();
    previousInSequence();
    endOfNode();
}

void NodeIterator::startOfNextInSequenceWithSameOffset() {
    if (!isAtEndOfNode()) return;
    nextInSequenceSkippingSubtree();
    leafWithSameNodeOffset();
}

// Blocks and lines

/// A caret behind the last character of the document belongs to that line, unless the line is ended.
void NodeIterator::stepBackFromEnd() {
    if (!isAtEndOfDocument() || !root_->firstChild) return;
    if (root_->lastNodeOfSubtree()->category != Category::LineEnding) previousInSequence();
}

void NodeIterator::firstLevelBlock() {
    stepBackFromEnd();
    if (!node) return;
    if (node == root_) return startOfDocument();
    while (node->parent != root_)
        parent();
    startOfNode();
}

void NodeIterator::leafBlock() {
    stepBackFromEnd();
    if (!root_ || !root_->firstChild) return endOfDocument();
    if (!node) return;
    while (node->category <= Category::ContainerBlock && node->firstChild)
        firstChild();
    while (node->parent && node->parent->category > Category::ContainerBlock)
        parent();
    startOfNode();
}

bool NodeIterator::isBlockPrefix() const {
    if (isMarkerOfBlock(node)) return true;
    if (node->category != Category::Space) return false;
    const Node* const behind = leafBehind(node);
    return behind && isMarkerOfBlock(behind);
}

void NodeIterator::nextAfterBlockMarkers() {
    leafWithSameNodeOffset();
    while (node && isBlockPrefix()) {
        nextInSequenceSkippingSubtree();
        leafWithSameNodeOffset();
    }
    startOfNode();
}

void NodeIterator::nextIfSpace() {
    leafWithSameNodeOffset();
    if (!node) return;
    if (node->category == Category::Space) nextInSequence();
    startOfNode();
}

void NodeIterator::previousIfSpace() {
    stepBackFromEnd();
    if (!node) return;
    const Node* const before = node->previousInSequence();
    if (before && before->category == Category::Space)
        previousInSequence();
    else if (node->category == Category::Space)
        startOfNode();
}

void NodeIterator::startOfLine() {
    if (node && node == root_) return startOfDocument();
    stepBackFromEnd();
    if (!node) return;
    for (const Node* before = node->previousInSequence();
         before && !isDocument(before) && before->category != Category::LineEnding;
         before = node->previousInSequence())
        previousInSequence();
    startOfNode();
}

void NodeIterator::endOfLine() {
    if (isAtEndOfNode()) startOfNextInSequenceWithSameOffset();
    while (node && node->category != Category::LineEnding)
        nextInSequence();
    startOfNode();
}

void NodeIterator::endOfLineBeforeLineBreak() {
    endOfLine();
    if (node) endOfPreviousInSequenceWithSameOffset();
}

bool NodeIterator::hasAncestorOfType(std::uint16_t type) const {
    return node && node->hasAncestorOfType(type);
}

bool NodeIterator::hasAncestorOfTypeInclusive(std::uint16_t type) const {
    return node && (node->type == type || node->hasAncestorOfType(type));
}

} // namespace Ondo
