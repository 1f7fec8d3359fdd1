#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "corvane/tree/Common.h"
#include "corvane/tree/Range.h"

namespace Ondo {

/// The index of one kind of label: definitions and references in document order, which definition a label
/// means, and which nodes changed their meaning through an edit elsewhere.
///
/// Nodes add themselves when they are parsed and remove themselves when they are destroyed; the index owns
/// none. Offsets are right after mergeJustAdded(), which follows every edit.
class CORVANE_EXPORT LabeledConnections {
public:
    struct Entry {
        std::int64_t offset; ///< 0 for a node that has only just been added
        LabeledNode* node;
    };

    explicit LabeledConnections(std::u16string name_) : name(std::move(name_)) {}

    void addDefinition(LabeledNode* node) { add(definitions, justAddedDefinitions, references, node); }
    void addReference(LabeledNode* node) { add(references, justAddedReferences, definitions, node); }
    void removeDefinition(LabeledNode* node) { remove(definitions, justAddedDefinitions, references, node); }
    void removeReference(LabeledNode* node) { remove(references, justAddedReferences, definitions, node); }

    /// Sets the offsets of the nodes added since the last call, which count from `startOffset`, moves those
    /// at or behind `newRange` by `delta`, and sorts. Asserts that each added node has an entry.
    void mergeJustAdded(std::int64_t startOffset, const Range& newRange, std::int64_t delta);

    /// The first entry in the document with that label, normalised here; null when there is none.
    const Entry* lookupFirstDefinition(std::u16string_view label) const {
        return lookupFirst(definitions, label);
    }
    const Entry* lookupFirstReference(std::u16string_view label) const {
        return lookupFirst(references, label);
    }

    void resetIndirectChangeTracking() { changedNodes.clear(); }

    std::u16string name;
    std::vector<Entry> definitions;
    std::vector<Entry> references;
    std::vector<LabeledNode*> justAddedDefinitions;
    std::vector<LabeledNode*> justAddedReferences;
    /// Nodes whose number of connections changed since the last reset.
    std::set<LabeledNode*> changedNodes;

private:
    using Entries = std::vector<Entry>;
    using Nodes = std::vector<LabeledNode*>;

    void add(Entries& side, Nodes& justAdded, const Entries& others, LabeledNode* node);
    void remove(Entries& side, Nodes& justAdded, const Entries& others, LabeledNode* node);
    static const Entry* lookupFirst(const Entries& entries, std::u16string_view label);
};

} // namespace Ondo
