#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/tree/Node.h"
#include "corvane/tree/NodeArena.h"
#include "corvane/tree/NodeIterator.h"
#include "corvane/tree/RuleConfig.h"
#include "corvane/tree/SyncRanges.h"
#include "corvane/tree/TextBuffer.h"

namespace Ondo {

struct ReparseRanges;

/// A note: its text, and the tree that is kept equal to a fresh parse of it while the text is edited.
///
/// Offsets and lengths count UTF-16 code units. A tree belongs to one thread at a time. It owns its text, its
/// rules and its nodes; node pointers and views of the text are valid until the next edit, but nodes of
/// first-level blocks that an edit left as they were stay the same objects.
class CORVANE_EXPORT Tree {
    // The nodes tell the label indexes of the rules when they go, so the rules outlive them.
    NodeArena::Owner arena_ = NodeArena::make();
    TextBuffer markdown_;
    RuleConfig ruleConfig_;
    std::int64_t fullReparseCount_ = 0;

public:
    RuleConfig::RuleSet ruleSet;
    std::unique_ptr<Node> root; ///< a DocumentNode; without children when the text is empty
    SyncRanges syncRanges;      ///< what replaceDeferSync() has gathered

    explicit Tree(std::u16string markdown, RuleConfig::RuleSet ruleSet = RuleConfig::Extended);
    /// A tree that was moved from can be destroyed or assigned to, nothing else.
    Tree(Tree&& other) noexcept;
    Tree& operator=(Tree&& other) noexcept;
    ~Tree();

    /// The whole text in one piece. The first call behind an edit moves the text behind that edit: on the
    /// road of a keystroke take markdownIn().
    std::u16string_view markdown() const { return markdown_.all(); }
    /// A part of the text, which must lie in it.
    std::u16string_view markdownIn(const Range& range) const {
        return markdown_.slice(range.offset, range.length);
    }
    std::int64_t length() const { return markdown_.size(); }

    // Edits

    /// Replaces a range of the text and patches the tree around it. Returns the ranges to restyle: first the
    /// blocks that were replaced, then blocks elsewhere that changed their meaning, in document order.
    /// Asserts that the range lies in the text.
    std::vector<Range> replace(Range range, std::u16string_view replacement);
    std::vector<Range> replaceAll(std::u16string_view replacement);
    /// Replaces and keeps the redraw ranges until sync(). A `clean` edit does not count as pending: its
    /// ranges need no place in the text of the last sync. Asserts, for a clean one, that the tree is synced.
    void replaceDeferSync(Range range, std::u16string_view replacement, bool clean);
    /// Adds a range to restyle without an edit.
    void addRedrawRange(Range range);
    /// Hands over the pending ranges, merged, from the end of the text to its start.
    std::vector<RangePair> sync();
    bool isSynced() const { return syncRanges.ranges.empty(); }
    std::vector<RangePair> unsyncedRanges() const { return syncRanges.ranges; }
    std::vector<RangePair> unsyncedRangesMerged() const;

    // Reading

    std::u16string toHtml() const;
    std::u16string toIndentedTree() const;
    /// As Node::expensiveSubstring(): a start beyond the text is the standard library's out-of-range failure,
    /// the length is clamped.
    std::u16string_view markdownForNode(const Node* node) const;
    Node* nodeAtOffset(std::int64_t offset, LevelSetting level) const;
    Node::Iterator iteratorAtOffset(std::int64_t offset, LevelSetting level) const;
    /// A cursor on the highest node that starts at the offset, or on the leaf that holds it, or at the end of
    /// the document. Asserts that the offset lies in the text.
    NodeIterator nodeIteratorAtOffset(std::int64_t offset) const;

    // Rules

    /// Drops a rule from a new, empty tree. Asserts that the tree is synced and its text empty.
    void removeRuleByName(std::string_view name);
    /// The label index of that name. Asserts that there is one.
    LabeledConnections& getLabeledConnections(std::u16string_view name) const;
    const RuleConfig& ruleConfig() const { return ruleConfig_; }

    /// How many edits since construction had to parse the whole text.
    std::int64_t fullReparseCount() const { return fullReparseCount_; }

private:
    struct Region;

    std::unique_ptr<Node> parse(std::u16string_view text, const Node* previousBlock);
    std::vector<Range> loadText();
    Region regionForReparse(const Range& range) const;
    void parseFragment(Region& region);
    bool widen(Region& region);
    void widenToDocument(Region& region);
    bool needFullReparse(const Region& region, std::int64_t offset, std::int64_t inserted) const;
    bool changesDefinedLabels(const Region& region) const;
    std::vector<Range> patch(Region& region, const Range& range);
    static void inheritDirections(Node* behind, Range& redraw);
    void rulesPostprocessing(const ReparseRanges& ranges);
    void rulesExpandRedrawRanges(std::vector<Range>& ranges);
    void addIndirectRedrawRanges(std::vector<Range>& ranges);
};

} // namespace Ondo
