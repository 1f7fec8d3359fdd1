#include "tests/support/BruteForce.h"

#include <algorithm>
#include <map>
#include <set>

#include "corvane/block/AtxHeading.h"
#include "corvane/block/SetextHeading.h"
#include "corvane/scan/Util.h"
#include "tests/support/Nodes.h"

namespace Ondo::Test {

namespace {

std::string describe(const Node& node, std::int64_t offset, const std::string& what) {
    return Util::utf8(node.toIndentedTree()) + " at " + std::to_string(offset) + ": " + what;
}

// Labels

bool isLabeled(const Node& node) {
    return node.type == ONDO_LINK_REFERENCE_DEFINITION_NODE || node.type == ONDO_FOOTNOTE_DEFINITION_NODE ||
           node.type == ONDO_LINK_NODE || node.type == ONDO_IMAGE_NODE ||
           node.type == ONDO_FOOTNOTE_REFERENCE_NODE;
}

using Side = std::vector<Placed>;

/// The nodes of some types, but for the links that have no label since their destination is their own.
Side side(const std::vector<Placed>& nodes, std::initializer_list<NodeType> types) {
    Side found;
    for (const Placed& placed : nodes) {
        if (std::find(types.begin(), types.end(), placed.node->type) == types.end()) continue;
        const bool isLink = placed.node->type == ONDO_LINK_NODE || placed.node->type == ONDO_IMAGE_NODE;
        if (isLink && static_cast<const LabeledNode*>(placed.node)->label.empty()) continue;
        found.push_back(placed);
    }
    return found;
}

std::map<std::u16string, std::int64_t> countLabels(const Side& nodes) {
    std::map<std::u16string, std::int64_t> counts;
    for (const Placed& placed : nodes)
        ++counts[static_cast<const LabeledNode*>(placed.node)->label];
    return counts;
}

std::string connectionsDiffer(const Side& nodes, const Side& others) {
    const auto counts = countLabels(others);
    for (const Placed& placed : nodes) {
        const auto* const node = static_cast<const LabeledNode*>(placed.node);
        const auto count = counts.find(node->label);
        if (node->connections() != (count == counts.end() ? 0 : count->second))
            return describe(*node, placed.offset, std::to_string(node->connections()) + " connections");
    }
    return {};
}

using Entry = LabeledConnections::Entry;

std::string entriesDiffer(const std::vector<Entry>& entries, const Side& nodes) {
    if (entries.size() != nodes.size())
        return std::to_string(entries.size()) + " entries for " + std::to_string(nodes.size()) + " nodes";
    auto placed = nodes.begin();
    for (const Entry& entry : entries) {
        if (entry.node != placed->node || entry.offset != placed->offset)
            return describe(*placed->node, placed->offset, "another entry stands in its place");
        ++placed;
    }
    return {};
}

/// The first node with a label is what a lookup finds.
template <class Lookup>
std::string lookupsDiffer(const Side& nodes, Lookup lookup) {
    std::set<std::u16string> seen;
    for (const Placed& placed : nodes) {
        const std::u16string& label = static_cast<const LabeledNode*>(placed.node)->label;
        if (!seen.insert(label).second) continue;
        const Entry* const found = lookup(label);
        if (!found || found->node != placed.node || found->offset != placed.offset)
            return describe(*placed.node, placed.offset, "a lookup finds another one");
    }
    return {};
}

std::string groupDiffers(const LabeledConnections& group, const Side& definitions, const Side& references) {
    if (!group.justAddedDefinitions.empty() || !group.justAddedReferences.empty())
        return "nodes wait to be merged";
    if (!group.changedNodes.empty()) return "changed nodes are left over";
    for (std::string difference :
         {entriesDiffer(group.definitions(), definitions), entriesDiffer(group.references(), references),
          connectionsDiffer(definitions, references), connectionsDiffer(references, definitions),
          lookupsDiffer(definitions, [&](const auto& label) { return group.lookupFirstDefinition(label); }),
          lookupsDiffer(references, [&](const auto& label) { return group.lookupFirstReference(label); })})
        if (!difference.empty()) return Util::utf8(group.name) + ": " + difference;
    return {};
}

// Folds

/// The level of a heading of either kind; 0 for another node.
std::int64_t headingLevel(const Node* node) {
    if (node && node->type == ONDO_ATX_HEADING_NODE)
        return static_cast<const Block::AtxHeadingNode*>(node)->level;
    if (node && node->type == ONDO_SETEXT_HEADING_NODE)
        return static_cast<const Block::SetextHeadingNode*>(node)->level;
    return 0;
}

const Node* nextWithText(const Node* node) {
    do
        node = node->nextSibling;
    while (node && node->type == ONDO_BLANK_LINE_NODE);
    return node;
}

bool isFirstInItem(const Node* node) {
    return node->parent && node->parent->type == ONDO_LIST_ITEM_NODE && node->parent->firstChild == node;
}

/// A block with a fold marker that counts.
bool isOpenFold(const Node* node) {
    const Node* const last = node->lastChild;
    if (!last || !last->previousSibling || last->previousSibling->type != ONDO_FOLD_MARKER_NODE) return false;
    const bool isTopHeading = node->type == ONDO_ATX_HEADING_NODE && node->parent->type == ONDO_DOCUMENT_NODE;
    if (!isTopHeading && (headingLevel(node) != 0 || !isFirstInItem(node))) return false;
    const Node* const behind = nextWithText(node);
    return behind &&
           !(isTopHeading && headingLevel(behind) != 0 && headingLevel(behind) <= headingLevel(node));
}

std::set<const Node*> hiddenBlocks(const std::vector<Placed>& nodes) {
    std::set<const Node*> hidden;
    for (const Placed& placed : nodes) {
        if (!placed.node->isBlock() || !isOpenFold(placed.node)) continue;
        const std::int64_t level = headingLevel(placed.node);
        for (const Node* at = placed.node->nextSibling; at; at = at->nextSibling) {
            if (level != 0 && headingLevel(at) != 0 && headingLevel(at) <= level) break;
            hidden.insert(at);
        }
    }
    return hidden;
}

// Redraw ranges

using Leaves = std::vector<std::pair<std::int64_t, const Node*>>;

Leaves leaves(const Tree& tree) {
    Leaves found;
    for (const Placed& placed : placedNodes(tree.root.get()))
        if (!placed.node->firstChild && placed.node->charCount > 0)
            found.emplace_back(placed.offset, placed.node);
    return found;
}

const Node* leafAt(const Leaves& leaves, std::int64_t offset) {
    const auto behind = std::upper_bound(leaves.begin(), leaves.end(), offset,
                                         [](std::int64_t at, const auto& leaf) { return at < leaf.first; });
    return std::prev(behind)->second;
}

bool looksTheSame(const Node& a, const Node& b) {
    if (a.type != b.type || a.charCount != b.charCount || a.direction != b.direction || a.folded != b.folded)
        return false;
    if (!a.hasEqualData(b)) return false;
    return !isLabeled(a) || static_cast<const LabeledNode&>(a).connections() ==
                                static_cast<const LabeledNode&>(b).connections();
}

/// Whether two leaves and their ancestors, up to the document, are equal.
bool haveEqualChains(const Node* a, const Node* b) {
    for (; a->parent && b->parent; a = a->parent, b = b->parent)
        if (a != b && !looksTheSame(*a, *b)) return false;
    return !a->parent && !b->parent;
}

bool isInside(const std::vector<Range>& ranges, std::int64_t offset) {
    return std::any_of(ranges.begin(), ranges.end(), [offset](const Range& range) {
        return range.offset <= offset && offset < range.end();
    });
}

} // namespace

std::string labelsDiffer(const Tree& tree) {
    const std::vector<Placed> nodes = placedNodes(tree.root.get());
    for (const LabeledConnections* group : tree.ruleConfig().connectionGroups) {
        const bool isOfLinks = group->name == u"link_references";
        const Side definitions =
            side(nodes, {isOfLinks ? ONDO_LINK_REFERENCE_DEFINITION_NODE : ONDO_FOOTNOTE_DEFINITION_NODE});
        const Side references = isOfLinks ? side(nodes, {ONDO_LINK_NODE, ONDO_IMAGE_NODE})
                                          : side(nodes, {ONDO_FOOTNOTE_REFERENCE_NODE});
        const std::string difference = groupDiffers(*group, definitions, references);
        if (!difference.empty()) return difference;
    }
    return {};
}

std::string foldsDiffer(const Tree& tree) {
    const std::vector<Placed> nodes = placedNodes(tree.root.get());
    const std::set<const Node*> hidden = hiddenBlocks(nodes);
    for (const Placed& placed : nodes)
        if (placed.node->folded != (hidden.count(placed.node) != 0))
            return describe(*placed.node, placed.offset, "fold flag is wrong");
    return {};
}

std::string missesRedraw(const Tree& before, const Tree& after, const Range& replaced, std::int64_t inserted,
                         const std::vector<Range>& redraw) {
    const std::int64_t delta = inserted - replaced.length;
    const Leaves old = leaves(before);
    for (const auto& [offset, leaf] : leaves(after)) {
        const Node* equal = nullptr;
        for (std::int64_t at = offset; at < offset + leaf->charCount; ++at) {
            if (isInside(redraw, at)) continue;
            if (at >= replaced.offset && at < replaced.offset + inserted)
                return describe(*leaf, at, "was inserted and is not redrawn");
            const Node* const was = leafAt(old, at < replaced.offset ? at : at - delta);
            if (was != equal && !haveEqualChains(leaf, was))
                return describe(*leaf, at, "changed and is not redrawn");
            equal = was;
        }
    }
    return {};
}

} // namespace Ondo::Test
