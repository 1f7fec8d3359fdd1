#include <gtest/gtest.h>

#include <limits>

#include "corvane/client/CVNInlineStyle.h"
#include "corvane/client/CVNListInfo.h"
#include "corvane/client/CVNNestableValue.h"
#include "corvane/client/ValueText.h"

namespace {

using CVN::ValueText::hashOfString;

constexpr std::uint64_t maximum = std::numeric_limits<std::uint64_t>::max();

/// With another number in each field.
CVNListInfo sevenNumbers() {
    CVNListInfo info = CVNListInfo::listInfoWithListType(4, 5, 6, 3, 2);
    info.orderedListItemNumber = 1;
    info.relativeListLevel = 7;
    return info;
}

TEST(ListInfo, EveryFieldCountsForEquality) {
    constexpr std::int64_t CVNListInfo::*fields[] = {
        &CVNListInfo::listLevel,        &CVNListInfo::itemIndex, &CVNListInfo::listType,
        &CVNListInfo::listSubType,      &CVNListInfo::taskType,  &CVNListInfo::orderedListItemNumber,
        &CVNListInfo::relativeListLevel};
    for (std::size_t i = 0; i < std::size(fields); ++i) {
        CVNListInfo other = sevenNumbers();
        EXPECT_TRUE(other == sevenNumbers());
        other.*fields[i] = 0;
        EXPECT_FALSE(other == sevenNumbers()) << i;
    }
}

TEST(ListInfo, Questions) {
    struct Case {
        std::int64_t type;
        std::int64_t subType;
        std::int64_t task;
        const char* answers; ///< ordered, unordered, quote, task, callout
        std::optional<std::u16string_view> delimiter;
    };
    constexpr Case cases[] = {
        {1, 1, 0, "-u---", std::nullopt}, {1, 2, 1, "-u-t-", std::nullopt}, {1, 3, 2, "-u-t-", std::nullopt},
        {2, 4, 0, "o----", u"."},         {2, 5, 0, "o----", u")"},         {3, 0, 0, "--q--", std::nullopt},
        {3, 6, 0, "--q-c", std::nullopt},
    };
    for (const Case& c : cases) {
        const CVNListInfo info = CVNListInfo::listInfoWithListType(c.type, c.subType, c.task, 0, 0);
        const std::string answers{info.isOrderedList() ? 'o' : '-', info.isUnorderedList() ? 'u' : '-',
                                  info.isBlockQuote() ? 'q' : '-', info.isTaskList() ? 't' : '-',
                                  info.isCallout() ? 'c' : '-'};
        EXPECT_EQ(answers, c.answers);
        EXPECT_EQ(info.orderedListItemNumberDelimiter(), c.delimiter) << c.subType;
    }
}

TEST(ListInfo, IsArchivedByTheseKeys) {
    CVNArchive archive;
    sevenNumbers().encodeWithCoder(archive);
    const std::map<std::u16string, std::int64_t, std::less<>> fields = {
        {u"listLevel", 3},        {u"itemIndex", 2}, {u"listType", 4},
        {u"listSubType", 5},      {u"taskType", 6},  {u"orderedListItemNumber", 1},
        {u"relativeListLevel", 7}};
    EXPECT_EQ(archive.fields(), fields);
    EXPECT_EQ(CVNListInfo::initWithCoder(archive), sevenNumbers());
    for (const auto& [missing, number] : fields) {
        CVNArchive rest;
        for (const auto& [key, value] : fields)
            if (key != missing) rest.encode(key, value);
        EXPECT_FALSE(CVNListInfo::initWithCoder(rest)) << number;
    }
}

TEST(Values, HashIsThatOfTheWrittenNumbersAndStays) {
    EXPECT_EQ(hashOfString("a"), 0xAF63DC4C8601EC8C) << "FNV-1a, as it is published";
    CVNListInfo info = sevenNumbers();
    EXPECT_EQ(info.hash(), hashOfString("1-2-3-4-5-6-7"));
    info.itemIndex = -1;
    EXPECT_EQ(info.hash(), hashOfString("1-2-3-4-5-6-7")) << "computed once";
    CVNListInfo negative;
    negative.itemIndex = -1;
    EXPECT_EQ(negative.hash(), hashOfString("0-18446744073709551615-0-0-0-0-0"));

    CVNNestableValue value = CVNNestableValue::nestedValueWithLevel(maximum, 20);
    EXPECT_EQ(value.hash(), hashOfString("18446744073709551615-20"));
    value.level = 0;
    EXPECT_EQ(value.hash(), hashOfString("18446744073709551615-20"));
}

TEST(Values, Descriptions) {
    EXPECT_EQ(sevenNumbers().description(), u"List level: 3 Item index: 2");
    EXPECT_EQ(CVNNestableValue::nestedValueWithLevel(1, maximum).description(),
              u"Level: 1 Index: 18446744073709551615");
    EXPECT_EQ(CVNInlineStyle::inlineWithOpeningRange({3, 2}, {9, 2}).description(),
              u"CVNInlineStyle opening: {3, 2} closing: {9, 2}");
}

TEST(NestableValue, OrderIsThatOfLevelThenIndex) {
    constexpr std::uint64_t numbers[] = {0, 1, maximum / 2, maximum / 2 + 1, maximum};
    std::vector<CVNNestableValue> ascending;
    for (const std::uint64_t level : numbers)
        for (const std::uint64_t index : numbers)
            ascending.push_back(CVNNestableValue::nestedValueWithLevel(level, index));
    for (std::size_t a = 0; a < ascending.size(); ++a) {
        for (std::size_t b = 0; b < ascending.size(); ++b) {
            EXPECT_EQ(ascending[a].compare(ascending[b]), a < b ? -1 : a > b) << a << ' ' << b;
            EXPECT_EQ(ascending[a] == ascending[b], a == b) << a << ' ' << b;
        }
    }
}

TEST(NestableValue, ArchiveKeepsAll64Bits) {
    const CVNNestableValue value = CVNNestableValue::nestedValueWithLevel(maximum, maximum / 2 + 1);
    CVNArchive archive;
    value.encodeWithCoder(archive);
    EXPECT_EQ(CVNNestableValue::initWithCoder(archive), value);
    for (const char16_t* key : {u"level", u"index"}) {
        CVNArchive half;
        half.encode(key, 1);
        EXPECT_FALSE(CVNNestableValue::initWithCoder(half));
    }
}

TEST(InlineStyle, TextStandsBetweenTheMarkers) {
    const CVNInlineStyle strong = CVNInlineStyle::inlineWithOpeningRange({3, 2}, {9, 2});
    EXPECT_EQ(strong.textRange(), (CVNRange{5, 4}));
    EXPECT_EQ(CVNInlineStyle::inlineWithOpeningRange({3, 2}, {5, 2}).textRange(), (CVNRange{5, 0}));
    EXPECT_EQ(strong.compare(CVNInlineStyle::inlineWithOpeningRange({3, 1}, {4, 1})), 0);
    EXPECT_EQ(strong.compare(CVNInlineStyle::inlineWithOpeningRange({4, 1}, {5, 1})), -1);
    EXPECT_EQ(strong.compare(CVNInlineStyle::inlineWithOpeningRange({2, 1}, {9, 2})), 1);
}

} // namespace
