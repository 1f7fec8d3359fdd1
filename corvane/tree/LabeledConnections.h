#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "corvane/tree/Common.h"
#include "corvane/tree/Range.h"

namespace Ondo {

/// A labelled node and where it starts.
struct LabelEntry {
    std::int64_t offset; ///< absolute; 0 for a node that has only just been added
    LabeledNode* node;
};

/// The nodes with one label, for LabeledConnections.
struct LabelGroup {
    struct Side {
        std::vector<LabeledNode*> nodes;      ///< in no order; each knows its place
        std::size_t countBefore = 0;          ///< when the last edit ended
        mutable LabeledNode* first = nullptr; ///< in document order; null as long as nobody asked
    };

    Side definitions;
    Side references;
    const std::u16string* label = nullptr; ///< the key in the index
    bool isTouched = false;                ///< by the edit under way
};

/// The index of one kind of label: definitions and references, which definition a label means, and which
/// nodes changed their meaning through an edit elsewhere.
///
/// Nodes add themselves when they are parsed and remove themselves when they are destroyed, in any order;
/// the index owns none. Each edit ends with mergeJustAdded(), when the new nodes stand in the tree. Until
/// then the nodes that an edit takes away can still be there beside those that it brings.
///
/// Adding and removing take constant time. Nodes are kept by label, and no offsets: an edit costs nothing
/// for the labels that it leaves alone, and nothing for what stands behind it.
class CORVANE_EXPORT LabeledConnections {
public:
    using Entry = LabelEntry;

    explicit LabeledConnections(std::u16string name_) : name(std::move(name_)) {}
    LabeledConnections(const LabeledConnections&) = delete;
    LabeledConnections& operator=(const LabeledConnections&) = delete;

    /// The node's label is final from here on, and the node is in no other index.
    void addDefinition(LabeledNode* node);
    void addReference(LabeledNode* node);
    /// Nothing happens for a node that was never added.
    void removeDefinition(LabeledNode* node) { remove(node, justAddedDefinitions); }
    void removeReference(LabeledNode* node) { remove(node, justAddedReferences); }

    /// Ends an edit. What was added since the last call belongs to the document now, at `startOffset` plus
    /// its offsetWhenParsed, and changedNodes are told. That the text from `newRange` on has moved by `delta`
    /// is no work here. Asserts that each added node has an entry.
    void mergeJustAdded(std::int64_t startOffset, const Range& newRange, std::int64_t delta);

    /// The first entry in the document with that label, normalised here; null when there is none. It is good
    /// until the next lookup or edit. During an edit it can be any entry with the label: the order is known
    /// only when the new nodes stand in the tree.
    const Entry* lookupFirstDefinition(std::u16string_view label) const;
    const Entry* lookupFirstReference(std::u16string_view label) const;

    /// Whether a reference with that label, normalised, resolves in the parse under way.
    bool isDefined(const std::u16string& label) const;
    /// Whether the parse under way is one of the whole text: then only what it brings counts as defined,
    /// while the nodes that it replaces are still there.
    void setParsesAll(bool parsesAll) { parsesAll_ = parsesAll; }

    /// All entries in document order, gathered and sorted at each call.
    std::vector<Entry> definitions() const;
    std::vector<Entry> references() const;

    /// Whether the edit under way makes a label defined that was not, or one undefined that was. Asked when
    /// what comes in has been added, and what goes, the siblings from `firstOld` to `lastOld`, is still
    /// there.
    bool changesDefinedLabels(const Node* firstOld, const Node* lastOld) const;

    void resetIndirectChangeTracking() { changedNodes.clear(); }

    std::u16string name;
    /// Since the last merge, in no order.
    std::vector<LabeledNode*> justAddedDefinitions;
    std::vector<LabeledNode*> justAddedReferences;
    /// Nodes that an edit left in place, but with another number of connections than before it. Told by
    /// mergeJustAdded(), in no order; each node once for an edit.
    std::vector<LabeledNode*> changedNodes;

private:
    using Nodes = std::vector<LabeledNode*>;

    void add(LabeledNode* node, bool isDefinition, Nodes& justAdded);
    void remove(LabeledNode* node, Nodes& justAdded);
    void touch(LabelGroup& group);
    void collectChangedNodes();
    void finishTouchedGroups();
    const Entry* lookupFirst(std::u16string_view label, LabelGroup::Side LabelGroup::*side) const;
    LabeledNode* first(const LabelGroup::Side& side) const;
    std::vector<Entry> sortedEntries(LabelGroup::Side LabelGroup::*side) const;

    std::unordered_map<std::u16string, LabelGroup> groups_;
    bool parsesAll_ = false;
    std::vector<LabelGroup*> touched_; ///< by the edit under way
    mutable Entry answer_{0, nullptr}; ///< to the last lookup
};

} // namespace Ondo
