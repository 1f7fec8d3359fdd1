#include "corvane/operation/OperationInsertFootnoteDefinition.h"

#include <algorithm>
#include <optional>
#include <string>

#include "corvane/operation/DocumentParts.h"
#include "corvane/operation/FootnoteLabels.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

using Ondo::LabelEntry;
using Ondo::Node;
using Ondo::Tree;
using Connections = Ondo::LabeledConnections;

namespace {

using Place = std::optional<std::int64_t>;

bool isInNoContainer(const LabelEntry& entry) {
    return entry.node->parent->category == Node::Category::Document;
}

std::int64_t endOf(const LabelEntry& entry) {
    return entry.offset + entry.node->charCount;
}

/// The first definition that a reference has; null when there is no reference.
const LabelEntry* definitionOf(const Connections& footnotes, const LabelEntry* reference) {
    return reference ? footnotes.lookupFirstDefinition(reference->node->label) : nullptr;
}

/// Next to the definition of a neighbour; none when there isn't one to go by.
Place placeAmongDefinitions(const Connections& footnotes, std::int64_t offset) {
    const std::vector<LabelEntry> references = footnotes.references();
    const auto next = std::find_if(references.begin(), references.end(),
                                   [offset](const LabelEntry& entry) { return entry.offset >= offset; });
    const LabelEntry* const before = next == references.begin() ? nullptr : &*(next - 1);
    const LabelEntry* const behind = next == references.end() ? nullptr : &*next;

    const LabelEntry* neighbour = definitionOf(footnotes, behind);
    if (neighbour && neighbour->offset >= offset && isInNoContainer(*neighbour)) return neighbour->offset;
    neighbour = definitionOf(footnotes, before);
    if (neighbour && endOf(*neighbour) > offset && isInNoContainer(*neighbour)) return endOf(*neighbour);
    const std::vector<LabelEntry> definitions = footnotes.definitions();
    if (definitions.empty()) return {};
    const LabelEntry& last = definitions.back();
    if (endOf(last) > offset && isInNoContainer(last)) return endOf(last);
    return {};
}

/// Whether what is appended to the note belongs to its last block, even behind an empty line.
bool isOpenAtEnd(const Tree& tree) {
    Node::Iterator last = tree.root->begin();
    last.lastChild();
    return last.node && isLeftOpen(tree, last);
}

/// What ends the last line where it isn't ended.
std::u16string_view lastLineEnding(const Tree& tree) {
    return isLineEnding(leafAt(tree, tree.length()).node) ? u"" : u"\n";
}

/// What sets a definition at the end of the note apart from what stands there.
std::u16string separator(const Tree& tree, std::int64_t offset) {
    std::u16string separator(lastLineEnding(tree));
    const Node::Iterator leaf = leafAt(tree, offset);
    const Node* const block = leaf.node && leaf.node->parent ? leaf->firstLevelAncestor() : nullptr;
    const Node* const last = tree.root->lastChild;
    if (isBlank(last) && block != last) return separator;
    // A reference that goes in at the end brings a line ending.
    const bool isEnding = offset == tree.length() || !separator.empty();
    separator += isEnding ? u"\n" : emptyLineAt(tree, tree.length());
    return separator;
}

/// A reference as it is written, on one line, without what its containers put before the lines.
std::u16string labelText(const Tree& tree, Node::Iterator reference) {
    std::u16string text;
    const Node* const end = reference->nextInSequenceSkippingSubtree();
    for (Node::Iterator& at = reference; at.node != end; ++at) {
        if (at->firstChild || isContainerMarker(at.node)) continue;
        if (isLineEnding(at.node))
            text += u' ';
        else
            text += textOf(tree, at);
    }
    return text;
}

} // namespace

std::vector<Result> InsertFootnoteDefinition::insertDefinition(const Tree& tree, std::int64_t offset,
                                                               std::u16string_view label,
                                                               std::u16string_view text) {
    const Connections* const footnotes = footnotesOf(tree);
    if (!footnotes) return {};
    const Place neighbour = placeAmongDefinitions(*footnotes, offset);
    if (!neighbour && isOpenAtEnd(tree)) return {};
    const std::int64_t place = neighbour.value_or(tree.length());

    std::u16string definition;
    if (!neighbour) definition = separator(tree, offset);
    if (neighbour && place == tree.length()) definition = lastLineEnding(tree);
    definition.append(label).append(u": ");
    const std::int64_t textOffset = place + static_cast<std::int64_t>(definition.size());
    definition.append(text).append(u"\n");
    return {Result(place, 0, definition, textOffset, static_cast<std::int64_t>(text.size()))};
}

std::vector<Result> InsertFootnoteDefinition::run(const Tree& tree, std::int64_t offset, std::int64_t,
                                                  std::int64_t, std::int64_t) const {
    const Node::Iterator leaf = leafAt(tree, offset);
    Node::Iterator reference = leaf;
    reference.node = const_cast<Node*>(selfOrAncestor(leaf.node, Ondo::ONDO_FOOTNOTE_REFERENCE_NODE));
    if (!reference.node) return {};
    reference.offset = offsetIn(leaf.offset, leaf.node, reference.node);
    if (static_cast<const Ondo::LabeledNode*>(reference.node)->connections() > 0) return {};
    return insertDefinition(tree, reference.end(), labelText(tree, reference), definitionText_);
}

} // namespace CVN::Operation
