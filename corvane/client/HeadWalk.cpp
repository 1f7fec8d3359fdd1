#include "corvane/client/HeadWalk.h"

namespace {

using Ondo::Node;

bool isAncestor(const Node* ancestor, const Node* node) {
    while (node && node != ancestor)
        node = node->parent;
    return node != nullptr;
}

bool isPassable(const Node* node, const Node* block) {
    if (node->category == Node::Category::Space) return true;
    return node->isMarker() && node->maker != block && isAncestor(node->maker, block);
}

} // namespace

void HeadWalk::walk(const Node* block) {
    while (next_ && passed_ < block->charCount) {
        if (next_->isBlock())
            next_ = next_->firstChild;
        else if (isPassable(next_, block))
            pass();
        else
            break;
    }
}

void HeadWalk::pass() {
    lastSpace_ = next_->category == Node::Category::Space ? next_->charCount : 0;
    passed_ += next_->charCount;
    next_ = next_->nextInSequence();
}
