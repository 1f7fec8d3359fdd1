#include <gtest/gtest.h>

#include <map>

#include "corvane/block/IndentedCode.h"
#include "corvane/block/List.h"
#include "corvane/inline/CodeSpan.h"
#include "tests/client/QueryNotes.h"
#include "tests/support/RandomNote.h"
#include "tests/support/RealNotes.h"

namespace Ondo::Test {
namespace {

namespace Query = CVN::Query;

/// What queries of items answer, against the tree that the runs came from.
class Checker {
public:
    explicit Checker(const std::u16string& note)
        : ast_(CVNAST::fromMarkdown(note)), text_(ast_.annotatedString()) {
        for (auto at = ast_.ast->root->begin(); at.node; at.nextInSequence()) {
            ranges_[at.node] = {at.offset, at.node->charCount};
            const bool isMarker =
                at.node->type == ONDO_LIST_ITEM_MARKER_NODE || at.node->type == ONDO_BLOCK_QUOTE_MARKER_NODE;
            if (isMarker) markers_.try_emplace(at.node->maker, CVNRange{at.offset, at.node->charCount});
        }
    }

    /// The first query that differs, empty when none does.
    std::string fault() const {
        for (const auto& [node, range] : ranges_) {
            std::string fault;
            if (node->type == ONDO_LIST_ITEM_NODE) fault = itemFault(node);
            if (node->type == ONDO_BLOCK_QUOTE_NODE) fault = quoteFault(node);
            if (!fault.empty()) return fault;
        }
        return listsFault(CVNListInfo::BlockQuote) + listsFault(CVNListInfo::Unordered) +
               listsFault(CVNListInfo::Ordered);
    }

private:
    std::string itemFault(const Node* item) const {
        const CVNRange marker = markers_.at(item);
        const std::int64_t at = marker.location;
        const CVNListInfo* const info = Query::listItemInfoAtIndex(text_, at);
        CVNRange found;
        const CVNRange range = Query::rangeOfListItemAtIndex(text_, at, &found);
        const Node* parent = item->parent->parent;
        while (parent && parent->type != ONDO_LIST_ITEM_NODE)
            parent = parent->parent;
        if (!info || !is(item, range)) return "item";
        if (!(found == marker)) return "marker";
        if (!(Query::rangeOfListMarkerForListItemRange(text_, range) == marker)) return "marker in range";
        if (!is(item->nextSibling, Query::rangeOfNextSiblingListItemAtIndex(text_, at))) return "sibling";
        if (!is(parent, Query::rangeOfParentListItemOfType(text_, 0, at))) return "parent";
        if (!is(item->parent, Query::rangeOfListLevel(text_, info->listLevel, at))) return "list";
        if (!is(item, Query::extendRangeToFullyContainListItems(text_, {at, 1}))) return "extended";
        const bool hasSublist =
            item->hasDescendantWhere([](const Node* node) { return node->type == ONDO_LIST_ITEM_NODE; });
        if (Query::hasListWithSublistAtIndex(text_, at) != hasSublist) return "sublist";
        if (Query::rangeOfSublistsForListItemAtIndex(text_, at).isFound() != hasSublist) return "sublists";
        return {};
    }

    std::string quoteFault(const Node* quote) const {
        const std::int64_t at = markers_.at(quote).location;
        const CVNListInfo* const info = Query::blockquoteItemInfoAtIndex(text_, at);
        return info && is(quote, Query::rangeOfBlockquoteLevel(text_, info->listLevel, at)) ? "" : "quote";
    }

    std::string listsFault(std::int64_t type) const {
        std::string lists;
        std::int64_t end = 0;
        for (auto at = ast_.ast->root->begin(); at.node; at.nextInSequence()) {
            if (at.offset < end || typeOf(at.node) != type) continue;
            end = at.end();
            lists += std::to_string(end) + ' ';
        }
        std::string found;
        Query::enumerateListType(
            text_, type, wholeText, forwards,
            [&found](CVNRange list, bool&) { found += std::to_string(list.end()) + ' '; },
            [](CVNRange, CVNRange, const CVNListInfo&, bool&) {});
        return found == lists ? "" : "lists of type " + std::to_string(type);
    }

    static std::int64_t typeOf(const Node* node) {
        if (node->type == ONDO_BLOCK_QUOTE_NODE) return CVNListInfo::BlockQuote;
        if (node->type != ONDO_LIST_NODE) return 0;
        return static_cast<const Block::ListNode*>(node)->isOrdered() ? CVNListInfo::Ordered
                                                                      : CVNListInfo::Unordered;
    }

    /// Whether the range is the node's from some place on at its head. No node has no range.
    bool is(const Node* node, CVNRange range) const {
        if (!node) return range == CVNRange::notFound();
        const CVNRange whole = ranges_.at(node);
        const Node* const first = node->type == ONDO_LIST_NODE ? node->firstChild : node;
        return range.end() == whole.end() && range.location >= whole.location &&
               range.location <= markers_.at(first).location;
    }

    CVNAST ast_;
    CVNAttributedString text_;
    std::map<const Node*, CVNRange> ranges_;
    std::map<const Node*, CVNRange> markers_; ///< the first one of an item or quote
};

TEST(QueryItems, AnswerWhatTheTreeKnows) {
    const std::u16string_view pieces[] = {u"- ", u"- ",   u"> ",   u"> ",         u"  ",   u"    ", u"1. ",
                                          u"* ", u"\n",   u"\n",   u"\n",         u"a",    u"a",    u"- [ ] ",
                                          u"\t", u"\r\n", u"\n> ", u"\n  ",       u"\n- ", u"1) ",  u"\n\n",
                                          u"#",  u"```",  u" ",    u"> [!NOTE]\n"};
    RandomNote random(3);
    for (int i = 0; i < 4000; ++i) {
        std::u16string note = random.below(8) == 0 ? random.note(12) : u"";
        for (std::size_t count = random.below(18); count > 0; --count)
            note += pieces[random.below(std::size(pieces))];
        ASSERT_EQ(Checker(note).fault(), "") << visible(note);
    }
    for (const RealNote& note : realNotes(8000))
        ASSERT_EQ(Checker(Util::utf16(note.text)).fault(), "") << note.file;
}

} // namespace
} // namespace Ondo::Test
