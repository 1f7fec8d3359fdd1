// Node::Iterator: the steps that carry offset, line and level along.

#include "corvane/scan/Assert.h"
#include "corvane/tree/DocumentNode.h"
#include "corvane/tree/Node.h"

namespace Ondo {

Node::Iterator::Iterator(Node* at) {
    if (!at) return;
    offset = at->startOffset();
    line = at->startLine();
    level = at->treeLevel();
    node = at;
}

void Node::Iterator::nullify() {
    *this = Iterator();
}

/// Into a child that starts where the node starts.
void Node::Iterator::enter(Node* child) {
    node = child;
    ++level;
}

void Node::Iterator::leaf() {
    while (node->firstChild)
        enter(node->firstChild);
}

Node::Iterator& Node::Iterator::operator++() {
    nextInSequence();
    return *this;
}

Node::Iterator Node::Iterator::operator++(int) {
    Iterator before = *this;
    nextInSequence();
    return before;
}

void Node::Iterator::nextInSequence(bool blocksOnly) {
    if (!node) return;
    if (node->firstChild && (!blocksOnly || node->firstChild->isBlock()))
        enter(node->firstChild);
    else
        nextInSequenceSkippingSubtree();
}

void Node::Iterator::nextInSequenceSkippingSubtree() {
    if (!node) return;
    offset += node->charCount;
    line += node->lineCount;
    while (node && !node->nextSibling) {
        node = node->parent;
        --level;
    }
    if (node) node = node->nextSibling;
}

void Node::Iterator::previousInSequence() {
    if (!node) return;
    if (!node->previousSibling) return parent();
    previousSibling();
    lastNodeOfSubtree();
}

void Node::Iterator::stepBackToFirstSibling() {
    for (const Node* before = node->previousSibling; before; before = before->previousSibling) {
        offset -= before->charCount;
        line -= before->lineCount;
    }
}

void Node::Iterator::parent() {
    if (!node) return;
    if (level < 1) return nullify();
    if (level == 1)
        offset = line = 0;
    else
        stepBackToFirstSibling();
    node = node->parent;
    --level;
}

void Node::Iterator::firstChild() {
    if (!node) return;
    node = node->firstChild;
    ++level;
}

void Node::Iterator::lastChild() {
    if (!node) return;
    Node* const child = node->lastChild;
    if (child) {
        offset += node->charCount - child->charCount;
        line += node->lineCount - child->lineCount;
    }
    node = child;
    ++level;
}

void Node::Iterator::previousSibling() {
    if (!node) return;
    node = node->previousSibling;
    if (!node) return;
    offset -= node->charCount;
    line -= node->lineCount;
}

void Node::Iterator::nextSibling() {
    if (!node) return;
    offset += node->charCount;
    line += node->lineCount;
    node = node->nextSibling;
}

void Node::Iterator::lastNodeOfSubtree() {
    if (!node || !node->lastChild) return;
    const std::int64_t endOffset = offset + node->charCount;
    const std::int64_t lines = node->lineCount;
    const bool isBlock = node->isBlock();
    for (; node->lastChild; ++level)
        node = node->lastChild;
    offset = endOffset - node->charCount;
    line += lines - node->lineCount;
    // A block counts its last line whether or not that line is ended.
    if (isBlock && lines >= 1 && node->category != Category::LineEnding) --line;
}

void Node::Iterator::maker() {
    if (!node) return;
    Node* const wanted = node->maker;
    if (!wanted || wanted == node) return;
    while (node && node != wanted)
        parent();
}

void Node::Iterator::beginningOfLine() {
    if (!node) return;
    for (Node* before = node->previousInSequence();
         before && before->category != Category::LineEnding && before->category != Category::Document;
         before = node->previousInSequence())
        previousInSequence();
}

void Node::Iterator::endOfLine() {
    while (node && node->category != Category::LineEnding && node->nextInSequence())
        nextInSequence();
}

void Node::Iterator::nextByOffset(std::int64_t deltaOffset, LevelSetting setting) {
    CORVANE_ASSERT(deltaOffset >= 0, "Node");
    const std::int64_t target = offset + deltaOffset;
    while (node && offset <= target) {
        if (offset == target) {
            if (setting == LevelSetting::Leaf) leaf();
            if (setting == LevelSetting::FirstLevel && node->category == Category::Document &&
                node->firstChild)
                enter(node->firstChild);
            return;
        }
        if (target < end()) {
            if (!node->firstChild) return;
            if (node->type == ONDO_DOCUMENT_NODE) {
                const auto found = static_cast<DocumentNode*>(node)->index.find(target - offset);
                offset += found.offset;
                line += found.line;
                enter(found.node);
            } else {
                enter(node->firstChild);
            }
        } else if (target == end() && !node->nextInSequenceSkippingSubtree()) {
            return lastNodeOfSubtree();
        } else {
            nextInSequenceSkippingSubtree();
        }
    }
}

bool Node::Iterator::isBeforeOrEqual(const Iterator& other) const {
    return offset < other.offset || (offset == other.offset && level <= other.level && other.node);
}

bool Node::Iterator::isContaining(const Iterator& other) const {
    if (!node || !other.node) return false;
    return other.offset >= offset && other.offset <= end() && other.level >= level;
}

} // namespace Ondo
