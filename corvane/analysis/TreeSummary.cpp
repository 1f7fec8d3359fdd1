#include "corvane/analysis/TreeSummary.h"

#include <string_view>
#include <unordered_map>
#include <utility>

#include "corvane/block/LinkReferenceDefinition.h"
#include "corvane/block/List.h"
#include "corvane/inline/Hashtag.h"
#include "corvane/inline/LinkBase.h"
#include "corvane/inline/Segments.h"
#include "corvane/inline/Wikilink.h"
#include "corvane/operation/DocumentParts.h"
#include "corvane/operation/OperationIndent.h"
#include "corvane/scan/Util.h"

namespace CVN {

namespace {

using namespace Ondo;

/// Walks over all nodes and fills in all but title and subtitle.
class Gathering {
public:
    explicit Gathering(TreeSummary& summary) : tree_(*summary.tree), summary_(summary) {}

    void run() {
        for (Node::Iterator at = tree_.root->begin(); at.node; at.nextInSequence()) {
            if (at->parent && at->parent->isBlock()) block_ = at->parent;
            visit(at);
        }
        addLinks();
    }

private:
    void visit(const Node::Iterator& at) {
        switch (at->type) {
        case ONDO_SPACE_NODE:
            return countIndentation(at);
        case ONDO_FENCED_CODE_NODE:
        case ONDO_INDENTED_CODE_NODE:
            ++summary_.codeBlockCount;
            return;
        case ONDO_LIST_ITEM_NODE:
            return countTask(static_cast<const Block::ListItemNode*>(at.node)->taskType);
        case ONDO_HASHTAG_NODE:
            return addTags(static_cast<const Inline::HashtagNode*>(at.node)->segments);
        case ONDO_IMAGE_NODE:
        case ONDO_LINK_NODE:
            links_.push_back(static_cast<const Inline::LinkBaseNode*>(at.node));
            return;
        case ONDO_LINK_REFERENCE_DEFINITION_NODE:
            return addDefinition(static_cast<const Block::LinkReferenceDefinitionNode*>(at.node));
        case ONDO_WIKILINK_NODE:
            return addWikiLink(at);
        default:
            return;
        }
    }

    void countIndentation(const Node::Iterator& space) {
        const std::u16string_view text = tree_.markdownIn({space.offset, space->charCount});
        if (Operation::Indent::spaceAsIndentation(space.node, text, block_).second < 1) return;
        const bool hasTab = text.find(u'\t') != std::u16string_view::npos;
        ++(hasTab ? summary_.tabIndentedLineCount : summary_.spaceIndentedLineCount);
    }

    void countTask(Block::List::TaskType type) {
        if (type == Block::List::TaskType::todo) ++summary_.todoCount;
        if (type == Block::List::TaskType::done) ++summary_.doneCount;
    }

    void addTags(const std::vector<std::u16string>& segments) {
        for (std::int64_t count = 1; count <= std::ssize(segments); ++count)
            summary_.tags.insert(Segments::encodePrefix(segments, count));
    }

    void addDefinition(const Block::LinkReferenceDefinitionNode* definition) {
        urls_.try_emplace(definition->place.group, definition->url);
    }

    void addWikiLink(const Node::Iterator& at) {
        std::u16string title = static_cast<const Inline::WikilinkNode*>(at.node)->encodedSegments();
        if (!title.empty()) summary_.wikiLinks.push_back({std::move(title), at.offset});
    }

    /// As LinkBaseNode::destination(), which looks for a definition and copies what that says. The second
    /// time that a reference asks, it is empty.
    std::u16string_view takeDestination(const Inline::LinkBaseNode* link) {
        if (link->label.empty()) return link->ownDestination;
        const auto url = urls_.find(link->place.group);
        return url == urls_.end() ? std::u16string_view() : std::exchange(url->second, {});
    }

    void addLinks() {
        std::unordered_set<std::u16string_view> seen;
        for (const Inline::LinkBaseNode* link : links_) {
            const std::u16string_view destination = takeDestination(link);
            if (!destination.empty() && seen.insert(destination).second)
                summary_.links.emplace_back(destination);
        }
    }

    const Tree& tree_;
    TreeSummary& summary_;
    const Node* block_ = nullptr; ///< the innermost one around the node
    std::vector<const Inline::LinkBaseNode*> links_;
    std::unordered_map<const LabelGroup*, std::u16string_view> urls_; ///< of each label's first definition
};

void addTitles(TreeSummary& summary, const Node::Iterator& begin) {
    const Tree& tree = *summary.tree;
    Node::Iterator end = begin;
    end.endOfLine();
    const bool isOnlyLine = end->type != ONDO_LINE_ENDING_NODE;
    summary.title = TreeSummary::normalizedTitle(tree, begin, isOnlyLine ? tree.length() : end.offset,
                                                 TreeSummary::titleLimit);
    if (isOnlyLine) return;
    end.nextInSequence();
    summary.subtitle = Util::mergeTrimUnicodeWhitespace(
        TreeSummary::normalizedTitle(tree, end, tree.length(), TreeSummary::subtitleLimit));
}

} // namespace

TreeSummary::TreeSummary(const Tree& note) : tree(&note) {
    Node::Iterator block(Operation::firstContentBlock(note));
    if (!block.node) return;
    Gathering(*this).run();
    while (block.node && block->type == ONDO_BLANK_LINE_NODE)
        block.nextSibling();
    if (block.node) addTitles(*this, block);
}

} // namespace CVN
