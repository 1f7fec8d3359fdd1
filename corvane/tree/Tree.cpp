#include "corvane/tree/Tree.h"

#include <algorithm>

#include "corvane/scan/Assert.h"
#include "corvane/tree/DocumentNode.h"
#include "corvane/tree/Parser.h"
#include "corvane/tree/ReparseRanges.h"
#include "corvane/tree/TreeText.h"
#include "corvane/tree/WritingDirection.h"

namespace Ondo {

/// The first-level blocks that an edit has parsed again, and the fragment that came out.
struct Tree::Region {
    Node::Iterator startNode; ///< positions are those before the edit
    Node::Iterator endNode;
    std::int64_t delta = 0;     ///< by how much the edit makes the text longer
    bool changesLabels = false; ///< so that equal text far away is parsed in another way
    std::unique_ptr<Node> fragment;

    Range newRange() const { return {startNode.offset, endNode.end() + delta - startNode.offset}; }
};

namespace {

bool isBlank(const Node* node) {
    return node->type == ONDO_BLANK_LINE_NODE;
}

bool isDefinition(const Node* node) {
    return node->type == ONDO_LINK_REFERENCE_DEFINITION_NODE || node->type == ONDO_FOOTNOTE_DEFINITION_NODE;
}

/// The first-level block at an offset, as an iterator.
Node::Iterator firstLevelAt(Node* root, std::int64_t offset) {
    const auto found = static_cast<DocumentNode*>(root)->index.find(offset);
    Node::Iterator at;
    at.offset = found.offset;
    at.line = found.line;
    at.level = 1;
    at.node = found.node;
    return at;
}

Node::Iterator firstBlock(Node* root) {
    Node::Iterator at(root);
    at.firstChild();
    return at;
}

Node::Iterator lastBlock(Node* root) {
    Node::Iterator at(root);
    at.lastChild();
    return at;
}

bool isParagraph(const Node* node) {
    return node->type == ONDO_PARAGRAPH_NODE;
}

bool hasBracket(const TextBuffer& text, const Node::Iterator& at) {
    std::int64_t offset = at.offset;
    while (offset < at.end() && text[offset] != u'[')
        ++offset;
    return offset < at.end();
}

/// Back to the first block before the edit that is not blank: an edit can extend it.
void toStartOfRegion(Node::Iterator& at) {
    if (!at->previousSibling) return;
    do
        at.previousSibling();
    while (isBlank(at.node) && at->previousSibling);
}

/// A definition takes its title from the lines behind it, which may only now be complete.
void toStartOfDefinitions(Node::Iterator& at) {
    if (isDefinition(at.node)) return;
    while (at->previousSibling && isDefinition(at->previousSibling))
        at.previousSibling();
}

/// Where a definition can end a paragraph, it can have cut off a title that begins above it, so that a
/// definition reads as a paragraph, or its title does. Without what cut it, the title may go on over all
/// these lines.
void toStartOfCutTitle(Node::Iterator& at, const TextBuffer& text) {
    Node::Iterator back = at;
    while (back->previousSibling &&
           (isDefinition(back->previousSibling) || isParagraph(back->previousSibling))) {
        const bool isBelow = isParagraph(back.node);
        back.previousSibling();
        if (isDefinition(back.node) ? isBelow : hasBracket(text, back)) at = back;
    }
}

/// A heading can be folded only when the block behind it lets it, which the edit may change.
void toHeadingBefore(Node::Iterator& at) {
    Node::Iterator before = at;
    do
        before.previousSibling();
    while (before.node && isBlank(before.node));
    if (before.node && before->type == ONDO_ATX_HEADING_NODE) at = before;
}

/// Forward to the first block that is not blank, and over a run of definitions: a definition can turn into
/// text, or back, when its neighbour changes.
void toEndOfRegion(Node::Iterator& at) {
    if (!at->nextSibling) return;
    do
        at.nextSibling();
    while (isBlank(at.node) && at->nextSibling);
    while (isDefinition(at.node) && at->nextSibling)
        at.nextSibling();
}

/// Whether a first-level block of the fragment starts at `offset`. From there on the parse sees what it saw
/// before, so that everything behind stays as it is.
bool hasBlockStartingAt(const Node* fragment, std::int64_t offset) {
    std::int64_t start = fragment->charCount;
    for (const Node* block = fragment->lastChild; block && start > offset; block = block->previousSibling)
        start -= block->charCount;
    return start == offset;
}

bool looksBehindEnd(const Node* fragment) {
    return static_cast<const DocumentNode*>(fragment)->looksBehindEnd;
}

} // namespace

Tree::Tree(std::u16string markdown, RuleConfig::RuleSet ruleSet_)
    : markdown_(std::move(markdown)), ruleConfig_(ruleSet_), ruleSet(ruleSet_) {
    loadText();
}

Tree::Tree(Tree&& other) noexcept = default;

Tree& Tree::operator=(Tree&& other) noexcept {
    root = std::move(other.root);
    arena_ = std::move(other.arena_);
    markdown_ = std::move(other.markdown_);
    ruleConfig_ = std::move(other.ruleConfig_);
    fullReparseCount_ = other.fullReparseCount_;
    ruleSet = other.ruleSet;
    syncRanges = std::move(other.syncRanges);
    return *this;
}

Tree::~Tree() = default;

std::unique_ptr<Node> Tree::parse(std::u16string_view text, const Node* previousBlock) {
    const NodeArena::Scope scope(*arena_);
    return Parser::parse(text, ruleConfig_, directionBehind(previousBlock), !previousBlock);
}

std::vector<Range> Tree::replace(Range range, std::u16string_view replacement) {
    CORVANE_ASSERT(range.offset >= 0, "Tree");
    CORVANE_ASSERT(range.length >= 0, "Tree");
    CORVANE_ASSERT(range.offset + range.length <= markdown_.length(), "Tree");
    if (!root || !root->firstChild) {
        markdown_ = TextBuffer(std::u16string(replacement));
        return loadText();
    }
    const auto inserted = static_cast<std::int64_t>(replacement.size());
    Region region = regionForReparse(range);
    region.delta = inserted - range.length;
    markdown_.replace(range, replacement);
    parseFragment(region);
    region.changesLabels = changesDefinedLabels(region);
    if (region.changesLabels || needFullReparse(region, range.offset, inserted)) {
        widenToDocument(region);
    } else if (widen(region) && changesDefinedLabels(region)) {
        // What the region has grown by can hold definitions, too.
        region.changesLabels = true;
        widenToDocument(region);
    }
    return patch(region, range);
}

std::vector<Range> Tree::replaceAll(std::u16string_view replacement) {
    return replace({0, markdown_.length()}, replacement);
}

/// The first parse, and the one of a text that was empty.
std::vector<Range> Tree::loadText() {
    const std::int64_t length = markdown_.length();
    root = parse(markdown_.all(), nullptr);
    const ReparseRanges ranges{{}, {}, firstBlock(root.get()), lastBlock(root.get())};
    for (LabeledConnections* group : ruleConfig_.connectionGroups)
        group->mergeJustAdded(0, {0, 0}, length);
    ruleConfig_.resetIndirectChangeTracking();
    rulesPostprocessing(ranges);
    std::vector<Range> redraw{{0, length}};
    rulesExpandRedrawRanges(redraw);
    return redraw;
}

Tree::Region Tree::regionForReparse(const Range& range) const {
    Region region;
    region.startNode = firstLevelAt(root.get(), range.offset);
    region.endNode = range.length == 0 ? region.startNode : firstLevelAt(root.get(), range.end());
    toStartOfRegion(region.startNode);
    toStartOfDefinitions(region.startNode);
    if (ruleSet == RuleConfig::Simplified) toStartOfCutTitle(region.startNode, markdown_);
    toHeadingBefore(region.startNode);
    toEndOfRegion(region.endNode);
    return region;
}

void Tree::parseFragment(Region& region) {
    region.fragment = parse(markdownIn(region.newRange()), region.startNode->previousSibling);
}

bool Tree::needFullReparse(const Region& region, std::int64_t offset, std::int64_t inserted) const {
    const auto& rules = ruleConfig_.blockRules.getAllBlockRules();
    return std::any_of(rules.begin(), rules.end(), [&](const auto& rule) {
        return rule->needFullReparse(markdown_, offset, inserted, region.startNode.node, region.endNode.node,
                                     region.fragment.get());
    });
}

bool Tree::changesDefinedLabels(const Region& region) const {
    if (!ruleConfig_.referencesNeedDefinitions) return false;
    const auto& groups = ruleConfig_.connectionGroups;
    return std::any_of(groups.begin(), groups.end(), [&region](const LabeledConnections* group) {
        return group->changesDefinedLabels(region.startNode.node, region.endNode.node);
    });
}

void Tree::widenToDocument(Region& region) {
    ++fullReparseCount_;
    region.fragment.reset();
    ruleConfig_.resetIndirectChangeTracking();
    region.startNode = firstBlock(root.get());
    region.endNode = lastBlock(root.get());
    for (LabeledConnections* group : ruleConfig_.connectionGroups)
        group->setParsesAll(true);
    parseFragment(region);
    for (LabeledConnections* group : ruleConfig_.connectionGroups)
        group->setParsesAll(false);
    region.changesLabels = region.changesLabels || changesDefinedLabels(region);
}

/// Takes in the blocks behind the region that its last block has grown into: a list item that now reaches
/// past the next block, an indented block that a paragraph above takes in. Steps double, so that the whole
/// costs no more than a few parses of what has to be parsed anyway. True when the region has grown.
bool Tree::widen(Region& region) {
    const auto isAligned = [&region] {
        // A blank line at the end of the fragment may be an item's that goes on behind it.
        return !isBlank(region.endNode.node) && !looksBehindEnd(region.fragment.get()) &&
               hasBlockStartingAt(region.fragment.get(),
                                  region.endNode.offset + region.delta - region.startNode.offset);
    };
    std::int64_t steps = 1;
    for (; region.endNode->nextSibling && !isAligned(); steps *= 2) {
        for (std::int64_t step = 0; step < steps; ++step)
            toEndOfRegion(region.endNode);
        region.fragment.reset();
        parseFragment(region);
    }
    return steps > 1;
}

std::vector<Range> Tree::patch(Region& region, const Range& range) {
    const std::int64_t start = region.startNode.offset;
    ReparseRanges ranges{region.startNode, region.endNode, firstBlock(region.fragment.get()),
                         lastBlock(region.fragment.get())};
    ReparseRanges::shrink(ranges, range, region.changesLabels);
    Node* const behind = ranges.oldEnd->nextSibling;
    ReparseRanges::replaceNodes(ranges);
    region.fragment.reset();
    rulesPostprocessing(ranges);
    Range redraw = ReparseRanges::redrawRange(ranges);
    for (LabeledConnections* group : ruleConfig_.connectionGroups)
        group->mergeJustAdded(start, redraw, region.delta);
    inheritDirections(behind, redraw);
    std::vector<Range> result{redraw};
    addIndirectRedrawRanges(result);
    rulesExpandRedrawRanges(result);
    return result;
}

void Tree::inheritDirections(Node* behind, Range& redraw) {
    if (!behind) return;
    const Node* const lastChanged = inheritDirection(behind, directionBehind(behind->previousSibling));
    if (!lastChanged) return;
    for (const Node* block = behind; block != lastChanged->nextSibling; block = block->nextSibling)
        redraw.length += block->charCount;
}

void Tree::rulesPostprocessing(const ReparseRanges& ranges) {
    for (const auto& rule : ruleConfig_.inlineRules.getAllInlineRules())
        rule->afterParseAll(ranges);
}

void Tree::rulesExpandRedrawRanges(std::vector<Range>& ranges) {
    for (const auto& rule : ruleConfig_.inlineRules.getAllInlineRules())
        rule->expandRedrawRanges(ranges, root.get());
}

void Tree::addIndirectRedrawRanges(std::vector<Range>& ranges) {
    CORVANE_ASSERT(ranges.size() == 1, "Tree");
    const std::vector<LabeledNode*> changed = ruleConfig_.nodesWithIndirectChange();
    ruleConfig_.resetIndirectChangeTracking();
    std::vector<Range> blocks;
    for (LabeledNode* node : changed) {
        // The first range consists of whole blocks: it holds the node when it holds the node's block.
        const Node* const block = node->firstLevelAncestor();
        const Range range{block->startOffset(), block->charCount};
        if (range.offset >= ranges[0].offset && range.end() <= ranges[0].end()) continue;
        blocks.push_back(range);
    }
    std::sort(blocks.begin(), blocks.end(),
              [](const Range& a, const Range& b) { return a.offset < b.offset; });
    blocks.erase(std::unique(blocks.begin(), blocks.end()), blocks.end());
    ranges.insert(ranges.end(), blocks.begin(), blocks.end());
}

void Tree::replaceDeferSync(Range range, std::u16string_view replacement, bool clean) {
    if (clean) CORVANE_ASSERT(isSynced(), "Tree");
    Replacement pending{{0, 0}, {}};
    if (!clean) pending = {range, std::u16string(replacement)}; // before the edit, which it may be a view of
    syncRanges.addAndMerge(replace(range, replacement), std::move(pending));
}

void Tree::addRedrawRange(Range range) {
    syncRanges.addAndMerge({range}, {{0, 0}, {}});
}

std::vector<RangePair> Tree::sync() {
    std::vector<RangePair> merged = unsyncedRangesMerged();
    syncRanges = {};
    return merged;
}

std::vector<RangePair> Tree::unsyncedRangesMerged() const {
    return SyncRanges::mergeRanges(syncRanges.ranges);
}

std::u16string Tree::toHtml() const {
    return Util::toHtml(root.get(), markdown());
}

std::u16string Tree::toIndentedTree() const {
    return Util::toIndentedTree(root.get(), markdown());
}

std::u16string_view Tree::markdownForNode(const Node* node) const {
    const std::int64_t start = node->startOffset();
    if (start > length()) return node->expensiveSubstring(markdown()); // the failure that it is
    return markdownIn({start, std::min(node->charCount, length() - start)});
}

Node* Tree::nodeAtOffset(std::int64_t offset, LevelSetting level) const {
    return root->nodeAtRelativeOffset(offset, level);
}

NodeIterator Tree::nodeIteratorAtOffset(std::int64_t offset) const {
    NodeIterator iterator(markdown(), root.get());
    iterator.nextByOffset(offset);
    return iterator;
}

Node::Iterator Tree::iteratorAtOffset(std::int64_t offset, LevelSetting level) const {
    Node::Iterator iterator = root->begin();
    iterator.nextByOffset(offset, level);
    return iterator;
}

void Tree::removeRuleByName(std::string_view name) {
    CORVANE_ASSERT(isSynced(), "Tree");
    CORVANE_ASSERT(markdown_.empty(), "Tree");
    ruleConfig_.removeRuleByName(name);
}

LabeledConnections& Tree::getLabeledConnections(std::u16string_view name) const {
    const auto connection =
        std::find_if(ruleConfig_.connectionGroups.begin(), ruleConfig_.connectionGroups.end(),
                     [name](const LabeledConnections* group) { return group->name == name; });
    CORVANE_ASSERT(connection != ruleConfig_.connectionGroups.end(), "Tree");
    return **connection;
}

} // namespace Ondo
