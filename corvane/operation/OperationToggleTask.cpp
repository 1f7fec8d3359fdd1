#include "corvane/operation/OperationToggleTask.h"

#include <algorithm>

#include "corvane/block/List.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

namespace {

using Ondo::Node;
using Ondo::Block::ListItemNode;

/// Bullet and blank stay as they are written.
constexpr std::int64_t bulletLength = 2;

const ListItemNode* taskOf(const Node* item) {
    const auto* const task = isListItem(item) ? static_cast<const ListItemNode*>(item) : nullptr;
    return task && task->isTask() ? task : nullptr;
}

bool isTaskMarker(const Node* node) {
    return isOfType(node, Ondo::ONDO_LIST_ITEM_MARKER_NODE) && taskOf(node->maker);
}

/// From an item to its marker.
Node::Iterator markerOf(Node::Iterator item) {
    const Node* const maker = item.node;
    item.firstChild();
    while (item.node && !(item->type == Ondo::ONDO_LIST_ITEM_MARKER_NODE && item->maker == maker))
        item.nextInSequence();
    return item;
}

/// The markers of the tasks around a leaf, outermost first.
std::vector<Node::Iterator> markersAround(const Node::Iterator& leaf) {
    std::vector<Node::Iterator> markers;
    for (Node::Iterator at = leaf; at.node; at.parent())
        if (taskOf(at.node)) markers.push_back(markerOf(at));
    std::reverse(markers.begin(), markers.end());
    return markers;
}

} // namespace

std::vector<Result> ToggleTask::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                    std::int64_t selectionOffset, std::int64_t selectionLength) const {
    std::vector<Node::Iterator> markers = taskMarkers(tree, offset, length);
    std::vector<Result> results;
    for (auto marker = markers.rbegin(); marker != markers.rend(); ++marker)
        toggleTaskForListItem(*marker, results, selectionOffset, selectionLength);
    return results;
}

Node::Iterator ToggleTask::closestNodeForOffset(const Ondo::Tree& tree, std::int64_t offset) {
    const Node::Iterator leaf = leafAt(tree, offset);
    if (isOfType(leaf.node, Ondo::ONDO_LIST_ITEM_MARKER_NODE)) return leaf;
    Node::Iterator item = leaf;
    while (item.node && !isListItem(item.node))
        item.parent();
    return taskOf(item.node) ? markerOf(item) : leaf;
}

std::vector<Node::Iterator> ToggleTask::taskMarkers(const Ondo::Tree& tree, std::int64_t offset,
                                                    std::int64_t length) {
    if (length == 0) {
        if (offset == tree.length() && isLineStart(tree, offset)) return {};
        const Node::Iterator closest = closestNodeForOffset(tree, offset);
        return isTaskMarker(closest.node) ? std::vector{closest} : std::vector<Node::Iterator>();
    }
    const Node::Iterator first = leafAt(tree, offset);
    // A task that began before the range counts when text of its own comes up in it.
    const std::vector<Node::Iterator> around = markersAround(first);
    std::vector<bool> isTouched(around.size());
    std::vector<Node::Iterator> inside;
    const Node* parent = nullptr;
    for (Node::Iterator leaf = first; leaf.node && leaf.offset < offset + length; toNextLeaf(leaf)) {
        if (isTaskMarker(leaf.node)) inside.push_back(leaf);
        if (leaf->parent == parent) continue;
        parent = leaf->parent;
        if (isBlank(parent) || isBlank(leaf.node)) continue;
        const Node* const item = selfOrAncestor(parent, Ondo::ONDO_LIST_ITEM_NODE);
        for (std::size_t i = 0; i < around.size(); ++i)
            if (around[i]->maker == item && around[i].offset < first.offset) isTouched[i] = true;
    }
    std::vector<Node::Iterator> markers;
    for (std::size_t i = 0; i < around.size(); ++i)
        if (isTouched[i]) markers.push_back(around[i]);
    markers.insert(markers.end(), inside.begin(), inside.end());
    return markers;
}

void ToggleTask::toggleTaskForListItem(const Node::Iterator& marker, std::vector<Result>& results,
                                       std::int64_t selectionOffset, std::int64_t selectionLength) const {
    const bool isDone = taskOf(marker->maker)->taskType == Ondo::Block::List::TaskType::done;
    const bool becomesDone = type_ == ToggleTaskType::Toggle ? !isDone : type_ == ToggleTaskType::Check;
    Result::addToList(results, marker.offset + bulletLength, marker->charCount - bulletLength,
                      becomesDone ? u"[x] " : u"[ ] ", selectionOffset, selectionLength);
}

} // namespace CVN::Operation
