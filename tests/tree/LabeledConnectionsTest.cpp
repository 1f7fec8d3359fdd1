#include "corvane/tree/LabeledConnections.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

#include "corvane/scan/Util.h"
#include "corvane/tree/DocumentNode.h"
#include "corvane/tree/ReparseRanges.h"
#include "corvane/tree/Tree.h"
#include "tests/support/Nodes.h"

namespace Ondo::Test {
namespace {

/// A definition or a reference, in the index as long as it lives.
class Labeled : public LabeledNode {
public:
    Labeled(LabeledConnections& index, bool isDefinition, std::int64_t offset, std::int64_t end,
            std::u16string label_)
        : LabeledNode(isDefinition ? ONDO_LINK_REFERENCE_DEFINITION_NODE : ONDO_LINK_NODE, offset, end, 0, 0,
                      nullptr, std::move(label_)),
          index_(index), isDefinition_(isDefinition) {
        isDefinition_ ? index_.addDefinition(this) : index_.addReference(this);
    }
    ~Labeled() override { isDefinition_ ? index_.removeDefinition(this) : index_.removeReference(this); }
    void toHtml(std::u16string&, std::u16string_view, std::int64_t) const override {}

private:
    LabeledConnections& index_;
    bool isDefinition_;
};

/// Makes the blocks of a note: definitions, paragraphs with references, and quotes that hold both.
class Builder {
public:
    Builder(std::mt19937_64& random, LabeledConnections& index) : random_(random), index_(index) {}

    std::unique_ptr<Node> document(std::size_t blocks) {
        auto root = std::make_unique<DocumentNode>(0, 0, 0);
        while (blocks-- > 0)
            addBlock(*root);
        root->charCount = offset_;
        return root;
    }

    std::size_t below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }

    std::u16string label() { return std::u16string(1, static_cast<char16_t>(u'a' + below(5))); }

private:
    void addBlock(Node& parent) {
        switch (below(4)) {
        case 0:
            addLabeled(parent, true);
            break;
        case 1:
            fill(*parent.link(makeTree("q0-0")), &Builder::addBlock);
            break;
        default:
            fill(*parent.link(makeTree("p0-0")), &Builder::addInline);
            break;
        }
    }

    void addInline(Node& parent) {
        if (below(3) == 0)
            fill(*parent.link(makeTree("e0-0")), &Builder::addInline);
        else
            addLabeled(parent, false);
    }

    void fill(Node& node, void (Builder::*add)(Node&)) {
        node.offsetWhenParsed = offset_;
        parentLink(node);
        for (std::size_t count = below(3); count > 0; --count)
            (this->*add)(node);
        node.charCount = offset_ - node.offsetWhenParsed;
    }

    /// Some text at the start, so that no two nodes with labels start at the same offset.
    void parentLink(Node& node) {
        const std::int64_t start = offset_++;
        node.link(std::make_unique<PlainNode>(ONDO_TEXT_NODE, start, offset_, 0, 0));
    }

    void addLabeled(Node& parent, bool isDefinition) {
        const std::int64_t start = offset_;
        offset_ += 1 + static_cast<std::int64_t>(below(3));
        parent.link(std::make_unique<Labeled>(index_, isDefinition, start, offset_, label()));
    }

    std::mt19937_64& random_;
    LabeledConnections& index_;
    std::int64_t offset_ = 0;
};

/// What the index should hold, from a walk over the tree.
struct Recount {
    std::vector<LabelEntry> definitions;
    std::vector<LabelEntry> references;
    std::map<LabeledNode*, std::int64_t> connections;
    std::set<std::u16string> defined;

    explicit Recount(Node* root) {
        for (const Placed& at : placedNodes(root)) {
            if (at.node->type == ONDO_LINK_REFERENCE_DEFINITION_NODE)
                definitions.push_back({at.offset, static_cast<LabeledNode*>(at.node)});
            else if (at.node->type == ONDO_LINK_NODE)
                references.push_back({at.offset, static_cast<LabeledNode*>(at.node)});
        }
        count(definitions, references);
        count(references, definitions);
        for (const LabelEntry& entry : definitions)
            defined.insert(entry.node->label);
    }

    std::set<LabeledNode*> changedSince(const Recount& before) const {
        std::set<LabeledNode*> changed;
        for (const auto& [node, count] : connections) {
            const auto old = before.connections.find(node);
            if (old != before.connections.end() && old->second != count) changed.insert(node);
        }
        return changed;
    }

private:
    void count(const std::vector<LabelEntry>& side, const std::vector<LabelEntry>& others) {
        for (const LabelEntry& entry : side) {
            std::int64_t& found = connections[entry.node];
            for (const LabelEntry& other : others)
                found += other.node->label == entry.node->label ? 1 : 0;
        }
    }
};

std::string text(const LabelEntry& entry) {
    return Util::utf8(entry.node->label) + " at " + std::to_string(entry.offset);
}

void expectSame(const std::vector<LabelEntry>& actual, const std::vector<LabelEntry>& expected) {
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(text(actual[i]), text(expected[i]));
        EXPECT_EQ(actual[i].node, expected[i].node);
    }
}

void expectFirst(const LabeledConnections::Entry* found, const std::vector<LabelEntry>& side,
                 const std::u16string& label) {
    for (const LabelEntry& entry : side) {
        if (entry.node->label != label) continue;
        ASSERT_TRUE(found);
        EXPECT_EQ(text(*found), text(entry));
        EXPECT_EQ(found->node, entry.node);
        return;
    }
    EXPECT_EQ(found, nullptr);
}

/// A tree whose blocks are replaced as an edit replaces them.
class Note {
public:
    Note(std::uint64_t seed, std::size_t blocks) : random_(seed) {
        root_ = Builder(random_, index_).document(blocks);
        index_.mergeJustAdded(0, {0, 0}, root_->charCount);
        EXPECT_TRUE(index_.changedNodes.empty()) << "nothing was there before";
    }

    void edit() {
        const Recount before(root_.get());
        ReparseRanges ranges = region();
        const std::int64_t start = ranges.oldStart.offset;
        const std::int64_t oldLength = root_->charCount;
        const bool leavesBlocks = ranges.oldStart->previousSibling || ranges.oldEnd->nextSibling;
        Builder builder(random_, index_);
        const std::unique_ptr<Node> fragment = builder.document((leavesBlocks ? 0 : 1) + builder.below(5));
        if (fragment->firstChild) {
            ranges.newStart = Node::Iterator(fragment->firstChild);
            ranges.newEnd = Node::Iterator(fragment->lastChild);
        }
        comeAndGo(builder);
        if (builder.below(2) == 0) expectLookupsDuringParse(before);
        const bool changesLabels = index_.changesDefinedLabels(ranges.oldStart.node, ranges.oldEnd.node);
        ReparseRanges::replaceNodes(ranges);
        index_.mergeJustAdded(start, ReparseRanges::redrawRange(ranges), root_->charCount - oldLength);
        expectCurrent(before, changesLabels, builder.below(3) > 0);
        index_.resetIndirectChangeTracking();
    }

private:
    ReparseRanges region() {
        std::vector<Node*> blocks;
        for (Node* block = root_->firstChild; block; block = block->nextSibling)
            blocks.push_back(block);
        const std::size_t first = static_cast<std::size_t>(random_() % blocks.size());
        const std::size_t last = std::min(first + static_cast<std::size_t>(random_() % 3), blocks.size() - 1);
        return {Node::Iterator(blocks[first]), Node::Iterator(blocks[last]), {}, {}};
    }

    /// Constructs that are tried and dropped.
    void comeAndGo(Builder& builder) {
        std::vector<std::unique_ptr<Labeled>> dropped;
        for (std::size_t count = builder.below(4); count > 0; --count)
            dropped.push_back(
                std::make_unique<Labeled>(index_, builder.below(2) == 0, 0, 1, builder.label()));
        while (!dropped.empty())
            dropped.erase(dropped.begin() + static_cast<std::ptrdiff_t>(builder.below(dropped.size())));
    }

    void expectLookupsDuringParse(const Recount& before) {
        std::set<std::u16string> defined = before.defined;
        for (const LabeledNode* node : index_.justAddedDefinitions)
            defined.insert(node->label);
        for (const std::u16string label : {u"a", u"b", u"c", u"d", u"e"}) {
            const auto* const found = index_.lookupFirstDefinition(label);
            EXPECT_EQ(found != nullptr, defined.count(label) == 1);
            EXPECT_EQ(found ? found->node->label : label, label);
        }
    }

    void expectCurrent(const Recount& before, bool changesLabels, bool looksUp) {
        const Recount now(root_.get());
        expectSame(index_.definitions(), now.definitions);
        expectSame(index_.references(), now.references);
        for (const auto& [node, count] : now.connections)
            EXPECT_EQ(node->connections(), count);
        const std::set<LabeledNode*> changed(index_.changedNodes.begin(), index_.changedNodes.end());
        EXPECT_EQ(changed, now.changedSince(before));
        EXPECT_EQ(changed.size(), index_.changedNodes.size()) << "each once";
        EXPECT_EQ(changesLabels, now.defined != before.defined);
        // Not behind each edit: what the last lookup left must be good, and so must be what it never saw.
        for (const std::u16string label : {u"a", u"b", u"c", u"d", u"e"}) {
            if (!looksUp) break;
            expectFirst(index_.lookupFirstDefinition(label), now.definitions, label);
            expectFirst(index_.lookupFirstReference(label), now.references, label);
        }
    }

    std::mt19937_64 random_;
    LabeledConnections index_{u"test"}; // outlives the nodes
    std::unique_ptr<Node> root_;
};

TEST(LabeledConnections, EqualsARecountThroughRandomEdits) {
    for (std::uint64_t seed = 1; seed <= 120; ++seed) {
        SCOPED_TRACE(seed);
        Note note(seed, 1 + seed % 9);
        for (int edit = 0; edit < 60 && !testing::Test::HasFailure(); ++edit)
            note.edit();
    }
}

/// An edit of a note, the blocks elsewhere that are restyled, and the destinations of "[a]" and "[b]" then.
struct Case {
    const char* what;
    std::u16string_view before;
    std::u16string_view replaced; ///< its first occurrence
    std::u16string_view replacement;
    std::vector<std::u16string_view> restyled;
    std::u16string_view a;
    std::u16string_view b;
};

const Case cases[] = {
    {"a definition comes", u"[a]\n\nx\n\ny\n\nz\n\n[b]: /b\n", u"z", u"[a]: /a", {u"[a]\n"}, u"/a", u"/b"},
    {"a definition goes", u"[a]\n\nx\n\ny\n\n[a]: /a\n", u"[a]: ", u"", {u"[a]\n"}, u"", u""},
    {"a definition changes", u"[a]\n\nx\n\ny\n\n[a]: /a\n", u"/a", u"/c", {}, u"/c", u""},
    {"a definition is parsed again", u"[a]\n\nx\n\ny\n\n[a]: /a\n", u"y", u"z", {}, u"/a", u""},
    {"a label changes",
     u"[a]\n\n[b] [a]\n\nx\n\n[a]: /a\n",
     u"[a]:",
     u"[b]:",
     {u"[a]\n", u"[b] [a]\n"},
     u"",
     u"/a"},
    {"a definition comes first",
     u"[a]: /2\n\n[a]\n",
     u"[a]: /2",
     u"[a]: /1\n\n[a]: /2",
     {u"[a]\n"},
     u"/1",
     u""},
    {"the second takes over",
     u"[a]: /1\n\nx\n\n[a]\n\n[a]: /2\n",
     u"[a]: /1",
     u"[b]: /1",
     {u"[a]\n"},
     u"/2",
     u"/1"},
    {"a reference comes", u"[ A\t]\n\nx\n\ny\n\n[a]: /a\n", u"x", u"[a]", {u"[a]: /a\n"}, u"/a", u""},
};

TEST(LabeledConnections, RestylesWhatAnEditGivesAnotherMeaning) {
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Tree tree{std::u16string(c.before)};
        const auto offset = static_cast<std::int64_t>(c.before.find(c.replaced));
        const auto ranges =
            tree.replace({offset, static_cast<std::int64_t>(c.replaced.size())}, c.replacement);
        std::vector<std::u16string_view> restyled;
        for (std::size_t i = 1; i < ranges.size(); ++i)
            restyled.push_back(tree.markdownIn(ranges[i]));
        EXPECT_EQ(restyled, c.restyled);
        const LabeledConnections& links = tree.getLabeledConnections(u"link_references");
        for (const auto& [label, url] : {std::pair(u"A ", c.a), std::pair(u"\nB", c.b)}) {
            const auto* const found = links.lookupFirstDefinition(label);
            EXPECT_EQ(found ? tree.markdownForNode(found->node).substr(5, url.size()) : u"", url);
        }
        EXPECT_TRUE(links.changedNodes.empty());
    }
}

} // namespace
} // namespace Ondo::Test
