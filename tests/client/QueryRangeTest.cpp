#include <gtest/gtest.h>

#include "tests/client/QueryNotes.h"

namespace Ondo::Test {
namespace {

namespace Query = CVN::Query;

std::string answer(const std::string& query, const QueriedNote& note) {
    const std::size_t space = query.find(' ');
    const std::string name = query.substr(0, space);
    const std::int64_t caret = note.selection.location;
    const bool isOfMarker = space != std::string::npos && query.substr(space) == " marker";
    if (const auto* const find = Query::rangeAtIndexQuery(name)) {
        CVNRange marker;
        const CVNRange range = (*find)(note.text, caret, &marker);
        return marked(note.text, isOfMarker ? marker : range);
    }
    if (const auto* const find = Query::itemInfoQuery(name)) {
        CVNRange item;
        CVNRange marker;
        const CVNListInfo* const info = (*find)(note.text, caret, &item, &marker);
        return (info ? Util::utf8(info->description()) + ' ' : "null ") +
               marked(note.text, isOfMarker ? marker : item);
    }
    if (const auto* const find = Query::numberedRangeQuery(name))
        return marked(note.text, (*find)(note.text, std::stoll(query.substr(space)), caret));
    if (const auto* const find = Query::rangeOfRangeQuery(name))
        return marked(note.text, (*find)(note.text, note.selection));
    return "no query";
}

struct Case {
    std::u16string_view note;
    const char* query; ///< with " marker" behind it for the marker, or with a number
    const char* expected;
};

template <std::size_t count>
void check(const Case (&cases)[count]) {
    for (const Case& c : cases)
        EXPECT_EQ(answer(c.query, queried(std::u16string(c.note))), c.expected)
            << visible(c.note) << ' ' << c.query;
}

TEST(QueryRange, ConstructsThatTouchAreToldApart) {
    check({
        {u"[a](x)[‸b](y)[c](z)", "linkRangeAtIndex", R"([a](x)⟦[b](y)⟧[c](z))"},
        {u"[![a](x)](y)[‸c](z)", "linkRangeAtIndex", R"([![a](x)](y)⟦[c](z)⟧)"},
        {u"a‸ [b](x)", "linkRangeAtIndex", "none"},
        {u"# a\n‸# b\nc", "headerRangeAtIndex", R"(# a\n⟦# b\n⟧c)"},
        {u"# a\r\nb‸\r\n===\r\nc\r\n===\r\n", "headerRangeAtIndex", R"(# a\r\n⟦b\r\n===\r\n⟧c\r\n===\r\n)"},
        {u"a\n===\nb\nb‸\n===\n# c", "headerRangeAtIndex", R"(a\n===\n⟦b\nb\n===\n⟧# c)"},
        {u"a\n===\nb\nb‸\n===\n# c", "headerRangeAtIndex marker", R"(a\n===\nb\nb\n⟦===\n⟧# c)"},
        {u"[^1][‸^2]\n\n[^1]: a\n[^2]: b", "footnoteRangeAtIndex", R"([^1]⟦[^2]⟧\n\n[^1]: a\n[^2]: b)"},
        {u"[^1][^2]\n\n[^1]: a\n[^2]: b‸b", "footnoteRangeAtIndex", R"([^1][^2]\n\n[^1]: a\n⟦[^2]: bb⟧)"},
        {u"[[a]][[‸a]]", "wikiLinkRangeAtIndex", "[[a]]⟦[[a]]⟧"},
        {u"==🔴a====‸b====c==", "highlighterRangeAtIndex", "==🔴a==⟦==b==⟧==c=="},
        {u"==a ==b== c‸== d", "highlighterRangeAtIndex", "⟦==a ==b== c==⟧ d"},
        {u"<http://a.b><http‸://c.d>", "autoLinkRangeAtIndex", "<http://a.b>⟦<http://c.d>⟧"},
        {u"- ```\n  a\n```\nb‸\n```\n", "codeBlockRangeAtIndex", R"(- ```\n  a\n⟦```\nb\n```⟧\n)"},
        {u"**__a__‸**", "inlineClosingMarkerRangeAtIndex", "**__a⟦__**⟧"},
        {u"‸**a**", "inlineClosingMarkerRangeAtIndex", "none"},
    });
}

TEST(QueryRange, ALabelIsThatOfTheReferenceAtTheIndex) {
    check({
        {u"[a][x][b‸][y]\n\n[x]: u\n[y]: v", "referenceLabelRangeForReferenceAtIndex",
         R"([a][x][b][⟦y⟧]\n\n[x]: u\n[y]: v)"},
        {u"[x][‸][y][]\n\n[x]: u\n[y]: v", "referenceLabelRangeForReferenceAtIndex",
         R"([⟦x⟧][][y][]\n\n[x]: u\n[y]: v)"},
        {u"[x][][‸y]\n\n[x]: u\n[y]: v", "referenceLabelRangeForReferenceAtIndex",
         R"([x][][⟦y⟧]\n\n[x]: u\n[y]: v)"},
        {u"![a][x]![b‸][x]\n\n[x]: u", "referenceLabelRangeForReferenceAtIndex",
         R"(![a][x]![b][⟦x⟧]\n\n[x]: u)"},
        {u"[x]\n\n[x]: u‸r \"t\"", "referenceLabelRangeForReferenceAtIndex", R"([x]\n\n[⟦x⟧]: ur "t")"},
    });
}

TEST(QueryRange, ListItem) {
    check({
        {u"- a\n ‸ - b\n    - c\n  - d\n", "rangeOfListItemAtIndex", R"(- a\n⟦  - b\n    - c\n⟧  - d\n)"},
        {u"- a\n\n  a‸\n\n- b", "rangeOfListItemAtIndex", R"(⟦- a\n\n  a\n\n⟧- b)"},
        {u"- a\n  - b\n\n  c‸\n- d", "rangeOfListItemAtIndex", R"(- a\n  - b\n⟦\n  c\n⟧- d)"},
        {u"- a\n  - b\n\n  c‸\n- d", "rangeOfListItemAtIndex marker", "none"},
        {u"- a\n  - b\n\n  c‸\n- d", "rangeOfListItemWithoutSublistsAtIndex", R"(- a\n  - b\n⟦\n  c\n⟧- d)"},
        {u"- ‸- - a\n- b", "rangeOfListItemAtIndex", R"(- ⟦- - a\n⟧- b)"},
        {u"- ‸- - a\n- b", "rangeOfListItemAtIndex marker", R"(- ⟦- ⟧- a\n- b)"},
        {u"- [x] a‸b\n- [ ] c", "rangeOfListItemAtIndex marker", R"(⟦- [x] ⟧ab\n- [ ] c)"},
        {u"- > a‸\n  > b\n- c", "rangeOfListItemAtIndex", R"(⟦- > a\n  > b\n⟧- c)"},
        {u"- a‸", "listItemInfoAtIndex", "null none"},
        {u"- a\n  1. b\n  2. c‸\n", "listItemInfoAtIndex",
         R"(List level: 1 Item index: 1 - a\n  1. b\n⟦  2. c\n⟧)"},
        {u"⟦- - a\n⟧", "rangeOfListMarkerForListItemRange", R"(⟦- ⟧- a\n)"},
        {u"- a\n⟦  - b\n⟧", "rangeOfListMarkerForListItemRange", R"(- a\n  ⟦- ⟧b\n)"},
        {u"- a\n⟦\n  b\n⟧", "rangeOfListMarkerForListItemRange", "none"},
    });
}

TEST(QueryRange, AroundAListItem) {
    check({
        {u"- a\n  1. b\n     - c‸c\n  2. d\n", "rangeOfParentListItemOfType 2",
         R"(- a\n⟦  1. b\n     - cc\n⟧  2. d\n)"},
        {u"- a\n  1. b\n     - c‸c\n", "rangeOfParentListItemOfType 1", R"(⟦- a\n  1. b\n     - cc\n⟧)"},
        {u"- a\n  - b\n\n  c\n\n  - d‸d\n", "rangeOfParentListItemOfType 0",
         R"(⟦- a\n  - b\n\n  c\n\n  - dd\n⟧)"},
        {u"- a\n  > - b\n  > - c‸c\n- d", "rangeOfParentListItemOfType 0",
         R"(⟦- a\n  > - b\n  > - cc\n⟧- d)"},
        {u"- a\n> - b‸b", "rangeOfParentListItemOfType 0", "none"},
        {u"- a‸a\n  - b\n- c", "rangeOfNextSiblingListItemAtIndex marker", R"(- aa\n  - b\n⟦- ⟧c)"},
        {u"- a‸a\n* b", "rangeOfNextSiblingListItemAtIndex", "none"},
        {u"- a\n  > - b‸b\n  > - c\n", "rangeOfNextSiblingListItemAtIndex", R"(- a\n  > - bb\n  > ⟦- c\n⟧)"},
        {u"- a\n  > - b‸b\n\n  > - c\n", "rangeOfNextSiblingListItemAtIndex", "none"},
        {u"- a‸a\n  - b\n\n  c\n\n  - d\n\n  e\n", "rangeOfSublistsForListItemAtIndex",
         R"(- aa\n⟦  - b\n\n  c\n\n  - d\n⟧\n  e\n)"},
        {u"- a\n  - b\n\n  c‸c\n", "rangeOfSublistsForListItemAtIndex", R"(- a\n⟦  - b\n⟧\n  cc\n)"},
        {u"- a\n\t- b‸b\n", "rangeOfIndentForListItemAtIndex", R"(- a\n⟦\t⟧- bb\n)"},
        {u"> - a\n>   - b‸b\n", "rangeOfIndentForListItemAtIndex", R"(> - a\n> ⟦  ⟧- bb\n)"},
        {u"- a\n  - b\n- c‸c\n\nd\n\n- e", "rangeOfListLevel 0", R"(⟦- a\n  - b\n- cc\n⟧\nd\n\n- e)"},
        {u"- p\n  > - a\n  > - b‸b\n\n  q\n", "rangeOfListLevel 2", R"(- p\n  > ⟦- a\n  > - bb\n⟧\n  q\n)"},
        {u"- p\n  > - a\n  > - b‸b\n", "rangeOfListLevel 1", "none"},
    });
}

TEST(QueryRange, ExtendToListItems) {
    const char* const items = "extendRangeToFullyContainListItems";
    check({
        {u"- a\n  - b‸b\n    - c\n  - d\n", items, R"(- a\n⟦  - bb\n    - c\n⟧  - d\n)"},
        {u"- a⟦\n  -⟧ b\n  - c\n- d\n", items, R"(⟦- a\n  - b\n  - c\n⟧- d\n)"},
        {u"- a\n  - b⟦\n-⟧ c\n  - d\n", items, R"(- a\n⟦  - b\n- c\n  - d\n⟧)"},
        {u"- a\n  - ⟦b\n    - c\n\n  d⟧\n- e\n", items, R"(⟦- a\n  - b\n    - c\n\n  d\n⟧- e\n)"},
        {u"> - a\n> ⟦ ⟧ - b\n> - c\n", items, R"(> - a\n> ⟦  - b\n⟧> - c\n)"},
        {u"- a\n  > - ⟦b\n  > -⟧ c\n", items, R"(- a\n  > ⟦- b\n  > - c\n⟧)"},
        {u"- a\n⟦ ⟧ > - b\n", items, R"(- a\n⟦  > - b\n⟧)"},
        {u"- a\n- b‸", items, R"(- a\n⟦- b⟧)"},
        {u"a‸\n\n- b", items, R"(a⟦⟧\n\n- b)"},
        {u"# a\n- c‸\n  - d\n\n", "extendRangeToFullyContainLists", R"(# a\n⟦- c\n  - d\n⟧\n)"},
        {u"a\n- b\n⟦# c⟧", "extendRangeToFullyContainLists", R"(a\n⟦- b\n# c⟧)"},
        {u"a\n\n> b\n> > c‸", "extendRangeToFullyContainBlockquote", R"(a\n\n⟦> b\n> > c⟧)"},
    });
}

TEST(QueryRange, Quote) {
    check({
        {u"‸> > a\n> > b\n", "rangeOfBlockquoteItemAtIndex", R"(⟦> > a\n⟧> > b\n)"},
        {u"> > ‸a\nlazy\n> > b\n", "rangeOfBlockquoteItemAtIndex", R"(> ⟦> a\nlazy\n⟧> > b\n)"},
        {u"> > a\nla‸zy\n> > b\n", "rangeOfBlockquoteItemAtIndex marker", R"(> ⟦> ⟧a\nlazy\n> > b\n)"},
        {u"- > a\n  > ‸b\n", "blockquoteItemInfoAtIndex", R"(List level: 1 Item index: 1 - > a\n⟦  > b\n⟧)"},
        {u"> > a\n> > b‸b\n>\n> > c", "rangeOfBlockquoteLevel 1", R"(> ⟦> a\n> > bb\n⟧>\n> > c)"},
        {u"> > a\n> > b‸b\n>\n> > c", "rangeOfBlockquoteLevel 0", R"(⟦> > a\n> > bb\n>\n> > c⟧)"},
        {u"- > a\n  > b‸b\n> c", "rangeOfBlockquoteLevel 1", R"(- ⟦> a\n  > bb\n⟧> c)"},
        {u"> - a‸a\n>   b", "listOrBlockquoteItemInfoAtIndex",
         R"(List level: 1 Item index: 0 > ⟦- aa\n>   b⟧)"},
        {u"- > a‸a\n", "listOrBlockquoteItemInfoAtIndex marker", R"(List level: 1 Item index: 0 - ⟦> ⟧aa\n)"},
    });
}

CVNRange extended(const CVNAttributedString& text, CVNRange range) {
    const CVNAttributeName keys[] = {CVNEmphasisAttributeName, CVNStrongAttributeName};
    return Query::extendRange(text, range, keys);
}

TEST(QueryRange, ExtendRangeGrowsOverWhatTouches) {
    const CVNAttributedString text = annotated(u"a *b***c** d");
    EXPECT_EQ(marked(text, extended(text, {5, 0})), "a ⟦*b***c**⟧ d");
    EXPECT_EQ(marked(text, extended(text, {10, 2})), "a *b*⟦**c** d⟧")
        << "emphasis had its turn before strong";
    EXPECT_EQ(marked(text, extended(text, {0, 2})), "⟦a ⟧*b***c** d") << "nothing at the last index";
    EXPECT_EQ(marked(text, extended(text, {1, 2})), "a⟦ *b*⟧**c** d");
    EXPECT_EQ(extended(text, CVNRange::notFound()), CVNRange::notFound());
    EXPECT_EQ(extended(text, {-3, 2}), (CVNRange{-3, 2}));
    EXPECT_EQ(extended(text, {11, CVNNotFound}), (CVNRange{11, 1}));
    const CVNAttributedString end = annotated(u"a **b**");
    EXPECT_EQ(marked(end, extended(end, {7, 0})), "a ⟦**b**⟧");
}

} // namespace
} // namespace Ondo::Test
