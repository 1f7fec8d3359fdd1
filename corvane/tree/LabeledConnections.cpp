#include "corvane/tree/LabeledConnections.h"

#include <algorithm>
#include <iterator>

#include "corvane/scan/Assert.h"

namespace Ondo {

namespace {

using Entry = LabelEntry;
using Nodes = std::vector<LabeledNode*>;
using Side = LabelGroup::Side;

Side& sideOf(const LabeledNode* node) {
    LabelGroup& group = *node->place.group;
    return node->place.isDefinition ? group.definitions : group.references;
}

/// The last node takes the place of the one that goes.
void erase(Nodes& nodes, const LabeledNode* node, std::size_t LabelPlace::*place) {
    LabeledNode* const last = nodes.back();
    last->place.*place = node->place.*place;
    nodes[node->place.*place] = last;
    nodes.pop_back();
}

/// The entry of a node among those with its label, as a reverse iterator.
auto findEntry(const Nodes& nodes, const LabeledNode* node) {
    const std::size_t place = node->place.inGroup;
    if (place >= nodes.size() || nodes[place] != node) return nodes.rend();
    return std::make_reverse_iterator(nodes.begin() + static_cast<std::ptrdiff_t>(place) + 1);
}

const Nodes& nodesLike(const LabeledNode* node) {
    static const Nodes none;
    return node->place.group ? sideOf(node).nodes : none;
}

/// A first-level block comes from one parse as a whole, so that offsetWhenParsed is good inside it and only
/// the block has to be asked where it stands.
std::int64_t offsetOf(LabeledNode* node) {
    if (node->place.inJustAdded != LabelPlace::merged) return 0;
    const Node* const block = node->firstLevelAncestor();
    return block->startOffset() + node->offsetWhenParsed - block->offsetWhenParsed;
}

Entry entryOf(LabeledNode* node) {
    return {offsetOf(node), node};
}

bool isBefore(const Entry& a, const Entry& b) {
    return a.offset < b.offset;
}

void merge(LabeledNode* node, std::int64_t offset) {
    node->place.inJustAdded = LabelPlace::merged;
    LabeledNode*& first = sideOf(node).first;
    if (first && offset < offsetOf(first)) first = node;
}

bool isDefinition(const Node* node) {
    return node->type == ONDO_LINK_REFERENCE_DEFINITION_NODE || node->type == ONDO_FOOTNOTE_DEFINITION_NODE;
}

/// The next block that can be a definition: those stand only in containers.
const Node* nextBlock(const Node* block) {
    return block->category <= Node::Category::ContainerBlock ? block->nextInSequence()
                                                             : block->nextInSequenceSkippingSubtree();
}

} // namespace

std::int64_t LabeledNode::connections() const {
    if (!place.group) return 0;
    const Side& others = place.isDefinition ? place.group->references : place.group->definitions;
    return static_cast<std::int64_t>(others.nodes.size());
}

void LabeledConnections::addDefinition(LabeledNode* node) {
    add(node, true, justAddedDefinitions);
}

void LabeledConnections::addReference(LabeledNode* node) {
    add(node, false, justAddedReferences);
}

void LabeledConnections::add(LabeledNode* node, bool isDefinition, Nodes& justAdded) {
    const auto found = groups_.try_emplace(node->label).first;
    LabelGroup& group = found->second;
    group.label = &found->first;
    touch(group);
    Nodes& nodes = (isDefinition ? group.definitions : group.references).nodes;
    node->place = {&group, isDefinition, nodes.size(), justAdded.size()};
    nodes.push_back(node);
    justAdded.push_back(node);
}

void LabeledConnections::remove(LabeledNode* node, Nodes& justAdded) {
    if (!node->place.group) return;
    Side& side = sideOf(node);
    touch(*node->place.group);
    erase(side.nodes, node, &LabelPlace::inGroup);
    if (node->place.inJustAdded != LabelPlace::merged) erase(justAdded, node, &LabelPlace::inJustAdded);
    if (side.first == node) side.first = nullptr;
    if (!changedNodes.empty())
        changedNodes.erase(std::remove(changedNodes.begin(), changedNodes.end(), node), changedNodes.end());
    node->place = {};
}

void LabeledConnections::touch(LabelGroup& group) {
    if (group.isTouched) return;
    group.isTouched = true;
    touched_.push_back(&group);
}

void LabeledConnections::mergeJustAdded(std::int64_t startOffset, const Range&, std::int64_t) {
    collectChangedNodes();
    for (LabeledNode* node : justAddedDefinitions) {
        const Nodes& definitions = nodesLike(node);
        const auto result = findEntry(definitions, node);
        CORVANE_ASSERT(result != definitions.rend(), "LabeledConnections");
        merge(*result, startOffset + node->offsetWhenParsed);
    }
    for (LabeledNode* node : justAddedReferences) {
        const Nodes& references = nodesLike(node);
        const auto result = findEntry(references, node);
        CORVANE_ASSERT(result != references.rend(), "LabeledConnections");
        merge(*result, startOffset + node->offsetWhenParsed);
    }
    justAddedDefinitions.clear();
    justAddedReferences.clear();
    finishTouchedGroups();
}

/// Before the new nodes are merged: what was there already is what isn't just added.
void LabeledConnections::collectChangedNodes() {
    for (const LabelGroup* group : touched_) {
        const std::pair<const Side*, const Side*> sides[] = {{&group->definitions, &group->references},
                                                             {&group->references, &group->definitions}};
        for (const auto& [side, others] : sides) {
            if (others->nodes.size() == others->countBefore) continue;
            std::copy_if(
                side->nodes.begin(), side->nodes.end(), std::back_inserter(changedNodes),
                [](const LabeledNode* node) { return node->place.inJustAdded == LabelPlace::merged; });
        }
    }
}

void LabeledConnections::finishTouchedGroups() {
    for (LabelGroup* group : touched_) {
        group->isTouched = false;
        for (Side* side : {&group->definitions, &group->references})
            side->countBefore = side->nodes.size();
        if (group->definitions.nodes.empty() && group->references.nodes.empty())
            groups_.erase(groups_.find(*group->label));
    }
    touched_.clear();
}

const Entry* LabeledConnections::lookupFirstDefinition(std::u16string_view label) const {
    return lookupFirst(label, &LabelGroup::definitions);
}

const Entry* LabeledConnections::lookupFirstReference(std::u16string_view label) const {
    return lookupFirst(label, &LabelGroup::references);
}

const Entry* LabeledConnections::lookupFirst(std::u16string_view label, Side LabelGroup::*side) const {
    const auto found = groups_.find(LabeledNode::normalizeLabel(label));
    if (found == groups_.end() || (found->second.*side).nodes.empty()) return nullptr;
    answer_ = entryOf(first(found->second.*side));
    return &answer_;
}

/// Searched for once: as long as the first stays, only a node that comes in can go before it.
LabeledNode* LabeledConnections::first(const Side& side) const {
    if (side.first) return side.first;
    const bool isOrderKnown = justAddedDefinitions.empty() && justAddedReferences.empty();
    if (!isOrderKnown) return side.nodes.front();
    Entry least = entryOf(side.nodes.front());
    for (LabeledNode* node : side.nodes)
        least = std::min(least, entryOf(node), isBefore);
    return side.first = least.node;
}

std::vector<Entry> LabeledConnections::definitions() const {
    return sortedEntries(&LabelGroup::definitions);
}

std::vector<Entry> LabeledConnections::references() const {
    return sortedEntries(&LabelGroup::references);
}

std::vector<Entry> LabeledConnections::sortedEntries(Side LabelGroup::*side) const {
    std::vector<Entry> entries;
    for (const auto& [label, group] : groups_)
        for (LabeledNode* node : (group.*side).nodes)
            entries.push_back({node->offsetWhenParsed, node});
    // First roughly: what stands close together is found fast one behind the other.
    std::sort(entries.begin(), entries.end(), isBefore);
    for (Entry& entry : entries)
        entry.offset = offsetOf(entry.node);
    std::sort(entries.begin(), entries.end(), isBefore);
    return entries;
}

bool LabeledConnections::isDefined(const std::u16string& label) const {
    const auto found = groups_.find(label);
    if (found == groups_.end()) return false;
    const LabelGroup::Side& side = found->second.definitions;
    return side.nodes.size() > (parsesAll_ ? side.countBefore : 0);
}

bool LabeledConnections::changesDefinedLabels(const Node* firstOld, const Node* lastOld) const {
    for (const LabeledNode* node : justAddedDefinitions)
        if (node->place.group->definitions.countBefore == 0) return true;
    std::unordered_map<const LabelGroup*, std::size_t> going;
    const Node* const end = lastOld->nextInSequenceSkippingSubtree();
    for (const Node* block = firstOld; block != end; block = nextBlock(block)) {
        if (!isDefinition(block)) continue;
        const LabelGroup* const group = static_cast<const LabeledNode*>(block)->place.group;
        const auto found = group ? groups_.find(*group->label) : groups_.end();
        if (found == groups_.end() || &found->second != group) continue; // of the other index
        if (++going[group] == group->definitions.nodes.size()) return true;
    }
    return false;
}

} // namespace Ondo
