#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <sstream>

#include "tests/client/QueryLog.h"
#include "tests/support/RandomNote.h"
#include "tests/support/RealNotes.h"

namespace Ondo::Test {
namespace {

namespace Query = CVN::Query;

constexpr std::string_view names = R"(
enumerateStrongInRange enumerateEmphasisInRange enumerateStrikethroughInRange enumerateUnderlineInRange
enumerateCodeInRange enumerateHashtagInRange enumerateInlineMathInRange enumerateFencedCodeInRange
enumerateYAMLInRange enumerateMathBlockInRange enumerateLinkInRange enumerateImageInRange
enumerateColorInRange enumerateArrowInRange enumerateEscapeInRange enumerateHTMLInlineInRange
enumerateAutoLinkEmailInRange enumerateAutoLinkURLInRange enumerateReferenceInRange
enumerateReferenceDefinitionInRange enumerateFootnotesInRange enumerateWikiLinkInRange
enumerateMetadataInRange enumerateFoldInRange enumerateHTMLEntitiesInRange enumerateHardLinebreakInRange
enumerateThematicBreakInRange enumerateHeadingInRange enumerateIndentedCodeInRange
enumerateHTMLBlockInRange enumerateCalloutInRange enumerateHighlighterInRange enumerateTableInRange
enumerateBlockquoteInRange enumerateUnorderedListInRange enumerateOrderedListInRange headerRangeAtIndex
linkRangeAtIndex autoLinkRangeAtIndex autoLinkEmailRangeAtIndex autoLinkURLRangeAtIndex
colorRangeAtIndex arrowRangeAtIndex footnoteRangeAtIndex codeRangeAtIndex codeBlockRangeAtIndex
indentedCodeRangeAtIndex metadataRangeAtIndex hashTagRangeAtIndex wikiLinkRangeAtIndex
highlighterRangeAtIndex mathRangeAtIndex inlineClosingMarkerRangeAtIndex
referenceLabelRangeForReferenceAtIndex isRangeInsideColor isRangeInsideArrow isRangeInsideHashtag
isRangeInsideLink isRangeInsideWikiLink isRangeInsideAutoLinkEmail isRangeInsideAutoLinkURL
isRangeInsideImage isRangeInsideHeader isRangeInsideList isRangeInsideBlockquote isRangeInsideFootnote
isRangeInsideReference isRangeInsideReferenceDefinition isRangeInsideTable isRangeInsideBlockMath
isRangeInsideInlineCode isRangeInsideHTML isRangeInsideBlockCode isRangeInsideCode isRangeInsideMath
isRangeInsideAutoLink isRangeInsideReferenceOrDefinition isRangeInsideFootnoteLabel
isRangeInsideTaskList hasMarkerAtIndex hasBeginOfSentenceMarkerAtIndex hasHeaderMarkerAtIndex
hasListMarkerAtIndex hasBlockquoteMarkerAtIndex hasTableAtIndex hasFootnoteDefinitionAtIndex
hasYamlAtIndex hasFoldAtIndex hasHighlightAtIndex hasHTMLBlockAtIndex hasIndentSpaceAtIndex
hasTaskListMarkerAtIndex hasListWithSublistAtIndex hasOpeningMarkerAtIndex hasClosingMarkerAtIndex
hasOpeningTagMarkerAtIndex hasClosingTagMarkerAtIndex hasClosingHighlightMarkerAtIndex
headerLevelAtIndex isFencedCodeEmptyAtIndex writingDirectionAtIndex rangeContainsLink
listItemInfoAtIndex rangeOfParentListItemOfType rangeOfNextSiblingListItemAtIndex
rangeOfListItemWithoutSublistsAtIndex rangeOfSublistsForListItemAtIndex rangeOfListItemAtIndex
rangeOfListLevel rangeOfListMarkerForListItemRange rangeOfIndentForListItemAtIndex
extendRangeToFullyContainListItems extendRangeToFullyContainLists blockquoteItemInfoAtIndex
rangeOfBlockquoteItemAtIndex rangeOfBlockquoteLevel extendRangeToFullyContainBlockquote
listOrBlockquoteItemInfoAtIndex isListOrBlockquoteParagraphEmptyAtIndex calloutNestLevelAtIndex
)";

TEST(QueryNames, EachNameIsOfOneQuery) {
    const std::vector<std::string_view> enumerations = enumerationNames();
    std::istringstream words{std::string(names)};
    for (std::string name; words >> name;) {
        std::int64_t count = std::count(enumerations.begin(), enumerations.end(), name);
        const auto add = [&count](const auto* query) { count += query ? 1 : 0; };
        add(Query::rangeTest(name));
        add(Query::indexTest(name));
        add(Query::numberAtIndexQuery(name));
        add(Query::rangeAtIndexQuery(name));
        add(Query::numberedRangeQuery(name));
        add(Query::rangeOfRangeQuery(name));
        add(Query::itemInfoQuery(name));
        EXPECT_EQ(count, 1) << name;
    }
    EXPECT_EQ(Query::rangeTest("isRangeInsideLink:"), nullptr);
}

/// Calls whatever there is, and notes what lies outside the text.
class Caller {
public:
    explicit Caller(const CVNAttributedString& text) : text_(text) {}

    std::string fault;

    void callAt(std::int64_t index) {
        const auto ranges = [&](const auto& table) {
            for (const auto* const query : table) {
                CVNRange marker;
                check(query->name, (*query)(text_, index, &marker));
                check(query->name, marker);
            }
        };
        const auto values = [&](const auto& table) {
            for (const auto* const query : table)
                if ((*query)(text_, index) > 0 && isOutside(index)) fault = query->name;
        };
        const auto numbered = [&](const auto& table) {
            for (const auto* const query : table)
                for (const std::int64_t number : {-1, 0, 1, 2, 9})
                    check(query->name, (*query)(text_, number, index));
        };
        ranges(Query::rangeAtIndexQueries);
        ranges(Query::listRangeQueries);
        ranges(Query::blockquoteRangeQueries);
        values(Query::hasQueries);
        values(Query::codeTests);
        values(Query::blockquoteTests);
        values(Query::numberQueries);
        values(Query::blockquoteNumberQueries);
        numbered(Query::numberedListRangeQueries);
        numbered(Query::numberedBlockquoteRangeQueries);
        for (const auto* const query : Query::itemInfoQueries) {
            CVNRange item;
            CVNRange marker;
            const bool isThere = (*query)(text_, index, &item, &marker) != nullptr;
            check(query->name, item);
            check(query->name, marker);
            if (isThere != item.isFound() || (isThere && isOutside(index))) fault = query->name;
        }
        if (isOutside(index) &&
            (Query::codeStringAtIndex(text_, index) || Query::metadataAtIndex(text_, index)))
            fault = "value";
    }

    void callOver(CVNRange range) {
        const auto tests = [&](const auto& table) {
            for (const auto* const query : table)
                (*query)(text_, range);
        };
        const auto ranges = [&](const auto& table) {
            for (const auto* const query : table) {
                const CVNRange answer = (*query)(text_, range);
                if (!(answer == range)) check(query->name, answer);
            }
        };
        tests(Query::insideQueries);
        tests(Query::valueTests);
        ranges(Query::listRangeOfRangeQueries);
        ranges(Query::blockquoteRangeOfRangeQueries);
        for (const std::string_view name : enumerations_)
            for (const CVNEnumerationOptions options : {forwards, backwards}) {
                QueryLog log(text_);
                log.run(name, range, options);
                if (log.joined().find("out of the text") != std::string::npos) fault = name;
            }
    }

private:
    bool isOutside(std::int64_t index) const { return index < 0 || index >= text_.length(); }
    void check(std::string_view name, CVNRange range) {
        const bool isInText = range.location >= 0 && range.length >= 0 && range.location <= text_.length() &&
                              range.end() <= text_.length();
        if (!isInText && !(range == CVNRange::notFound())) fault = name;
    }

    const CVNAttributedString& text_;
    std::vector<std::string_view> enumerations_ = enumerationNames();
};

std::string fault(const CVNAttributedString& text) {
    Caller caller(text);
    const std::int64_t least = std::numeric_limits<std::int64_t>::min();
    for (std::int64_t index = -1; index <= text.length() + 1; ++index) {
        caller.callAt(index);
        caller.callOver({index, index % 7});
        if (index % 20 == 0) caller.callOver({index, CVNNotFound});
    }
    for (const std::int64_t index : {CVNNotFound, least}) {
        caller.callAt(index);
        for (const std::int64_t length : {least, std::int64_t{0}, std::int64_t{3}, CVNNotFound})
            caller.callOver({index, length});
    }
    return caller.fault;
}

TEST(QueryRobustness, AnyIndexAndRangeWillDo) {
    std::vector<std::u16string> notes = {u"", u"\n", u"a", u"- ", u"> ", u"```", u"#", u"- - > - a"};
    RandomNote random(11);
    for (int i = 0; i < 60; ++i)
        notes.push_back(random.note(10));
    const std::vector<RealNote> real = realNotes(1200);
    for (std::size_t i = 0; i < real.size(); i += 1 + real.size() / 20)
        notes.push_back(Util::utf16(real[i].text));
    for (const std::u16string& note : notes)
        EXPECT_EQ(fault(annotated(note)), "") << visible(note);
}

/// Runs that no annotation gives: cut off, with values of other kinds, markers without a construct.
TEST(QueryRobustness, AnyRunsWillDo) {
    RandomNote random(12);
    for (int i = 0; i < 300; ++i) {
        CVNAttributedString text(random.note(3));
        for (int runs = 0; runs < 60 && text.length() > 0; ++runs) {
            const Query::KeyList keys[] = {Query::listKeys, Query::blockquoteKeys};
            const bool isOfItem = random.below(2) == 0;
            const CVNAttributeName key = isOfItem ? keys[random.below(2)][random.below(2)]
                                                  : CVNAttributeName::withId(static_cast<std::int64_t>(
                                                        random.below(CVNAttributeName::count)));
            const CVNValue values[] = {
                CVNValue::integer(1), CVNValue::integer(2), CVNValue::boolean(true),
                CVNValue::listInfo(CVNListInfo::listInfoWithListType(
                    static_cast<std::int64_t>(random.below(4)), 0, 0,
                    static_cast<std::int64_t>(random.below(3)), static_cast<std::int64_t>(random.below(3))))};
            const Range range = random.range(text.length());
            text.addAttribute(key, values[random.below(std::size(values))], CVNRange::of(range));
        }
        EXPECT_EQ(fault(text), "") << visible(text.string());
    }
}

} // namespace
} // namespace Ondo::Test
