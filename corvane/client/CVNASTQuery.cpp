#include "corvane/client/CVNASTQuery.h"

#include <limits>

#include "corvane/analysis/TreeSummary.h"
#include "corvane/client/CVNAST.h"
#include "corvane/inline/FoldMarker.h"
#include "corvane/scan/Util.h"

using Ondo::LabeledConnections;
using Ondo::Node;

namespace {

const Ondo::Tree& tree(const CVNASTQuery& query) {
    return *static_cast<const CVNAST&>(query).ast;
}

std::u16string titleOf(const Ondo::Tree& tree, const Node::Iterator& heading) {
    constexpr std::int64_t noLimit = std::numeric_limits<std::int64_t>::max();
    return CVN::TreeSummary::normalizedTitle(tree, heading, heading.end(), noLimit);
}

/// Where the heading's own marker starts, behind the prefixes of its containers.
std::int64_t markerOffset(Node::Iterator heading) {
    const Node* marker = heading->firstMarker();
    while (heading.node != marker)
        heading.nextInSequence();
    return heading.offset;
}

/// Null in a rule set without footnotes.
const LabeledConnections* footnotes(const Ondo::Tree& tree) {
    for (const LabeledConnections* group : tree.ruleConfig().connectionGroups)
        if (group->name == u"footnotes") return group;
    return nullptr;
}

CVNRange rangeOf(const LabeledConnections::Entry* entry) {
    return entry ? CVNRange{entry->offset, entry->node->charCount} : CVNRange::notFound();
}

} // namespace

CVNRange CVNASTQuery::rangeOfHeaderWithTitle(std::u16string_view title) const {
    const std::u16string folded = Ondo::Util::downcaseUnicode(title);
    for (Node::Iterator block(tree(*this).root->firstChild); block.node; block.nextInSequence(true)) {
        if (block->type != Ondo::ONDO_ATX_HEADING_NODE) continue;
        if (Ondo::Util::downcaseUnicode(titleOf(tree(*this), block)) == folded)
            return CVNRange::between(markerOffset(block), block.end());
    }
    return CVNRange::notFound();
}

bool CVNASTQuery::hasFoldableContentAtIndex(std::int64_t index) const {
    if (index < 0 || index >= tree(*this).length()) return false;
    const Node* leaf = tree(*this).nodeAtOffset(index, Ondo::LevelSetting::Leaf);
    return Ondo::Inline::FoldMarkerNode::isContentHeadOfFoldable(leaf->parentBlock());
}

CVNRange CVNASTQuery::footnoteDefinitionRangeForLabel(std::u16string_view label) const {
    const LabeledConnections* index = footnotes(tree(*this));
    return rangeOf(index ? index->lookupFirstDefinition(label) : nullptr);
}

CVNRange CVNASTQuery::footnoteReferenceRangeForLabel(std::u16string_view label) const {
    const LabeledConnections* index = footnotes(tree(*this));
    return rangeOf(index ? index->lookupFirstReference(label) : nullptr);
}
