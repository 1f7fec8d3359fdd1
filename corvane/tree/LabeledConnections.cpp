#include "corvane/tree/LabeledConnections.h"

#include <algorithm>

#include "corvane/scan/Assert.h"

namespace Ondo {

namespace {

using Entry = LabeledConnections::Entry;

void shift(std::vector<Entry>& entries, std::int64_t from, std::int64_t delta) {
    for (Entry& entry : entries)
        if (entry.offset >= from) entry.offset += delta;
}

void sort(std::vector<Entry>& entries) {
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry& a, const Entry& b) { return a.offset < b.offset; });
}

template <class Entries>
auto findFromBack(Entries& entries, const LabeledNode* node) {
    return std::find_if(entries.rbegin(), entries.rend(),
                        [node](const Entry& entry) { return entry.node == node; });
}

} // namespace

void LabeledConnections::add(Entries& side, Nodes& justAdded, const Entries& others, LabeledNode* node) {
    side.push_back({0, node});
    justAdded.push_back(node);
    node->connections = 0;
    for (const Entry& other : others) {
        if (other.node->label != node->label) continue;
        ++node->connections;
        ++other.node->connections;
        changedNodes.insert(other.node);
    }
}

void LabeledConnections::remove(Entries& side, Nodes& justAdded, const Entries& others, LabeledNode* node) {
    const auto entry = findFromBack(side, node);
    if (entry != side.rend()) side.erase(std::next(entry).base());
    justAdded.erase(std::remove(justAdded.begin(), justAdded.end(), node), justAdded.end());
    changedNodes.erase(node);
    for (const Entry& other : others) {
        if (other.node->label != node->label) continue;
        --other.node->connections;
        changedNodes.insert(other.node);
    }
}

void LabeledConnections::mergeJustAdded(std::int64_t startOffset, const Range& newRange, std::int64_t delta) {
    shift(definitions, newRange.offset, delta);
    shift(references, newRange.offset, delta);
    for (const LabeledNode* node : justAddedDefinitions) {
        const auto result = findFromBack(definitions, node);
        CORVANE_ASSERT(result != definitions.rend(), "LabeledConnections");
        result->offset = startOffset + node->offsetWhenParsed;
    }
    for (const LabeledNode* node : justAddedReferences) {
        const auto result = findFromBack(references, node);
        CORVANE_ASSERT(result != references.rend(), "LabeledConnections");
        result->offset = startOffset + node->offsetWhenParsed;
    }
    justAddedDefinitions.clear();
    justAddedReferences.clear();
    sort(definitions);
    sort(references);
}

const LabeledConnections::Entry* LabeledConnections::lookupFirst(const Entries& entries,
                                                                 std::u16string_view label) {
    const std::u16string wanted = LabeledNode::normalizeLabel(label);
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&wanted](const Entry& entry) { return entry.node->label == wanted; });
    return found == entries.end() ? nullptr : &*found;
}

} // namespace Ondo
