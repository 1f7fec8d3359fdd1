// What must hold of the summary of any note: it is that of a plain restatement. CORVANE_SEED and
// CORVANE_ROUNDS set seed and length.

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <sstream>

#include "corvane/analysis/TreeSummary.h"
#include "corvane/block/List.h"
#include "corvane/inline/Entity.h"
#include "corvane/inline/Hashtag.h"
#include "corvane/inline/LinkBase.h"
#include "corvane/inline/RawHtml.h"
#include "corvane/inline/Segments.h"
#include "corvane/inline/Wikilink.h"
#include "corvane/operation/DocumentParts.h"
#include "corvane/operation/OperationIndent.h"
#include "corvane/scan/Util.h"
#include "tests/support/Nodes.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

using CVN::TreeSummary;
using Util::utf8;

std::uint64_t environmentNumber(const char* name, std::uint64_t otherwise) {
    const char* const value = std::getenv(name);
    return value ? std::strtoull(value, nullptr, 10) : otherwise;
}

template <class T>
const T& as(const Node* node) {
    return *static_cast<const T*>(node);
}

/// What is gathered, one a line.
struct Findings {
    std::int64_t codeBlocks = 0, todo = 0, done = 0, spaces = 0, tabs = 0;
    std::set<std::u16string> tags;
    std::vector<std::u16string> links;
    std::vector<std::u16string> wikiLinks;

    std::string show() const {
        std::ostringstream out;
        out << codeBlocks << ' ' << todo << ' ' << done << ' ' << spaces << ' ' << tabs << '\n';
        for (const std::u16string& tag : tags)
            out << "tag " << utf8(tag) << '\n';
        for (const std::u16string& link : links)
            out << "link " << utf8(link) << '\n';
        for (const std::u16string& link : wikiLinks)
            out << "wikilink " << utf8(link) << '\n';
        return out.str();
    }
};

std::u16string wikiLink(const std::u16string& title, std::int64_t offset) {
    return title + u" at " + Util::toString(offset);
}

Findings findingsOf(const TreeSummary& summary) {
    Findings found{summary.codeBlockCount,
                   summary.todoCount,
                   summary.doneCount,
                   summary.spaceIndentedLineCount,
                   summary.tabIndentedLineCount,
                   {summary.tags.begin(), summary.tags.end()},
                   summary.links,
                   {}};
    for (const TreeSummary::WikiLink& link : summary.wikiLinks)
        found.wikiLinks.push_back(wikiLink(link.title, link.offset));
    return found;
}

/// Asks each node by itself.
void findIn(const Tree& tree, const Placed& at, Findings& found) {
    const std::u16string_view text = tree.markdownIn({at.offset, at.node->charCount});
    if (at.node->type == ONDO_FENCED_CODE_NODE || at.node->type == ONDO_INDENTED_CODE_NODE)
        ++found.codeBlocks;
    if (at.node->type == ONDO_LIST_ITEM_NODE) {
        found.todo += as<Block::ListItemNode>(at.node).taskType == Block::List::TaskType::todo;
        found.done += as<Block::ListItemNode>(at.node).taskType == Block::List::TaskType::done;
    }
    if (at.node->type == ONDO_SPACE_NODE &&
        CVN::Operation::Indent::spaceAsIndentation(at.node, text).second >= 1)
        ++(text.find(u'\t') < text.size() ? found.tabs : found.spaces);
    if (at.node->type == ONDO_HASHTAG_NODE)
        for (auto path = as<Inline::HashtagNode>(at.node).segments; !path.empty(); path.pop_back())
            found.tags.insert(Segments::encode(path));
    if (at.node->type == ONDO_LINK_NODE || at.node->type == ONDO_IMAGE_NODE) {
        const std::u16string destination = as<Inline::LinkBaseNode>(at.node).destination();
        const auto known = std::find(found.links.begin(), found.links.end(), destination);
        if (!destination.empty() && known == found.links.end()) found.links.push_back(destination);
    }
    if (at.node->type == ONDO_WIKILINK_NODE) {
        const std::u16string title = as<Inline::WikilinkNode>(at.node).encodedSegments();
        if (!title.empty()) found.wikiLinks.push_back(wikiLink(title, at.offset));
    }
}

// Titles: what each node shows by itself, whatever stands around it; and which ancestors hide it

bool isUndefined(const Node* link) {
    return as<Inline::LinkBaseNode>(link).isReference && as<Inline::LinkBaseNode>(link).connections() == 0;
}
bool isOneOf(const Node* node, std::initializer_list<int> imageTypes) {
    constexpr int fromImageToLink = ONDO_LINK_NODE - ONDO_IMAGE_NODE;
    for (const int type : imageTypes)
        if (node->type == type || node->type == type + fromImageToLink) return true;
    return false;
}
bool hides(const Node* node) {
    if (isOneOf(node, {ONDO_IMAGE_LABEL_ATTRIBUTE_NODE, ONDO_IMAGE_DESTINATION_ATTRIBUTE_NODE,
                       ONDO_IMAGE_TITLE_ATTRIBUTE_NODE}))
        return !isUndefined(node->parent);
    if (node->type == ONDO_WIKILINK_SEGMENT_ATTRIBUTE_NODE)
        return !as<Inline::WikilinkNode>(node->maker).alias.empty();
    return node->type == ONDO_ENTITY_NODE || node->type == ONDO_FOOTNOTE_REFERENCE_NODE ||
           node->type == ONDO_RAW_HTML_NODE;
}

std::u16string shown(const Tree& tree, const Placed& at) {
    const Node* const node = at.node;
    const std::u16string text(tree.markdownIn({at.offset, node->charCount}));
    if (isOneOf(node, {ONDO_IMAGE_TEXT_OPEN_MARKER_NODE, ONDO_IMAGE_TEXT_CLOSE_MARKER_NODE,
                       ONDO_IMAGE_LABEL_OPEN_MARKER_NODE, ONDO_IMAGE_LABEL_CLOSE_MARKER_NODE}))
        return isUndefined(node->parent) ? text : u"";
    switch (node->type) {
    case ONDO_TEXT_NODE:
    case ONDO_HASHTAG_OPEN_MARKER_NODE:
    case ONDO_HASHTAG_SEPARATOR_MARKER_NODE:
    case ONDO_HASHTAG_CLOSE_MARKER_NODE:
        return text;
    case ONDO_LINE_ENDING_NODE:
        return u" ";
    case ONDO_FOOTNOTE_DEFINITION_COLON_MARKER_NODE:
    case ONDO_LINK_REFERENCE_DEFINITION_COLON_MARKER_NODE:
        return u":";
    case ONDO_ENTITY_NODE:
        return as<Inline::EntityNode>(node).toString();
    case ONDO_RAW_HTML_NODE:
        return text == u"<br>" && node->hasAncestorOfType(ONDO_TABLE_CELL_NODE) ? u" " : u"";
    case ONDO_WIKILINK_SEPARATOR_MARKER_NODE:
        return as<Inline::WikilinkNode>(node->maker).alias.empty() ? text : u"";
    default:
        return {};
    }
}

/// The nodes from one offset to another, with a space behind the cells that need one.
std::u16string plainText(const Tree& tree, std::int64_t start, std::int64_t end) {
    std::u16string text;
    for (const Placed& at : placedNodes(tree.root.get())) {
        const Node* const before = at.node->previousSibling;
        if (at.offset < start || at.offset >= end || at.node->hasAncestorWhere(hides)) continue;
        if (before && before->type == ONDO_TABLE_CELL_NODE && at.node->nextSibling) text += u' ';
        text += shown(tree, at);
    }
    return text;
}

std::u16string cut(std::u16string_view text, std::size_t limit) {
    std::u16string title(Util::trim(text, Go::unicodeWhitespace).substr(0, limit));
    if (title.size() == limit && (title.back() & 0xFC00) == 0xD800) title.pop_back();
    return title;
}

/// Behind front matter and blank lines.
std::int64_t titleStart(const Tree& tree) {
    std::int64_t offset = 0;
    for (const Node* block = tree.root->firstChild; block; block = block->nextSibling) {
        if (block->type != ONDO_YAML_NODE && block->type != ONDO_BLANK_LINE_NODE) break;
        offset += block->charCount;
    }
    return offset;
}

void expectTitles(const Tree& tree, const TreeSummary& summary, const std::string& where) {
    const std::u16string_view text = tree.markdown();
    const std::int64_t start = titleStart(tree);
    const std::size_t lineEnd =
        std::min(text.find_first_of(u"\r\n", static_cast<std::size_t>(start)), text.size());
    EXPECT_EQ(utf8(summary.title),
              utf8(cut(plainText(tree, start, std::ssize(text.substr(0, lineEnd))), 500)))
        << where;
    EXPECT_LE(summary.subtitle.size(), 200U) << where;
    EXPECT_EQ(Util::mergeTrimUnicodeWhitespace(summary.subtitle), summary.subtitle) << where;
    const bool hasTag =
        tree.root->hasDescendantWhere([](const Node* node) { return node->type == ONDO_HASHTAG_NODE; });
    if (hasTag || start == tree.length()) return;
    const std::u16string rest = plainText(tree, static_cast<std::int64_t>(lineEnd), tree.length());
    const std::u16string whole = Util::mergeTrimUnicodeWhitespace(rest);
    EXPECT_TRUE(whole.starts_with(summary.subtitle)) << utf8(summary.subtitle) << where;
    EXPECT_TRUE(rest.size() > 200 || summary.subtitle == whole) << utf8(summary.subtitle) << where;
}

void expectRight(const Tree& tree) {
    const std::string where = "\nin " + visible(tree.markdown()) + " under " + nameOf(tree.ruleSet);
    const TreeSummary summary(tree);
    Findings expected;
    if (CVN::Operation::firstContentBlock(tree))
        for (const Placed& at : placedNodes(tree.root.get()))
            findIn(tree, at, expected);
    EXPECT_EQ(findingsOf(summary).show(), expected.show()) << where;
    expectTitles(tree, summary, where);
}

TEST(SummaryProperty, OfRandomNotes) {
    const std::uint64_t seed = environmentNumber("CORVANE_SEED", 1);
    RandomNote random(seed);
    for (std::uint64_t round = 0; round < environmentNumber("CORVANE_ROUNDS", 3000); ++round) {
        Tree tree(random.note(round % 4 == 0 ? 40 : 8), allRuleSets[round % 3]);
        for (int edit = 0; edit < 4; ++edit) {
            expectRight(tree);
            ASSERT_FALSE(HasFailure()) << "seed " << seed << " round " << round;
            tree.replace(random.range(tree.length()), random.piece());
        }
    }
}

} // namespace
} // namespace Ondo::Test
