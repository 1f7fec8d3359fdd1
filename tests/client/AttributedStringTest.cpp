// Attributed strings against an array with a value for each code unit.

#include "corvane/client/CVNAttributedString.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace {

/// In the order of their numbers.
constexpr CVNAttributeName keys[] = {CVNListItemAttributeName, CVNStrongAttributeName,
                                     CVNImageLabelAttributeName};

/// Values are told apart by numbers, so that nothing here depends on how they compare.
constexpr std::int64_t valueCount = 7;
constexpr std::int64_t none = -1;

/// A new object at each call.
CVNValue value(std::int64_t number) {
    CVNListInfo item;
    item.itemIndex = number - 5;
    switch (number) {
    case 0:
        return CVNValue::integer(1);
    case 1:
        return CVNValue::boolean(true);
    case 2:
        return CVNValue::string(u"a");
    case 3:
    case 4:
        return CVNValue::dictionary({{u"a", CVNValue::array({CVNValue::integer(number)})}});
    default:
        return CVNValue::listInfo(item);
    }
}

std::int64_t numberOf(const CVNValue* value) {
    if (!value) return none;
    switch (value->kind()) {
    case CVNValue::Kind::Integer:
        return 0;
    case CVNValue::Kind::Boolean:
        return 1;
    case CVNValue::Kind::String:
        return 2;
    case CVNValue::Kind::Dictionary:
        return value->dictionaryValue()->at(u"a").arrayValue()->front().integerValue();
    default:
        return 5 + value->listInfoValue()->itemIndex;
    }
}

std::int64_t number(std::mt19937_64& random) {
    return static_cast<std::int64_t>(random() % valueCount);
}

/// The number of a key's value at each code unit.
using Units = std::vector<std::int64_t>;

struct Stretch {
    std::int64_t location;
    std::int64_t end;
    std::int64_t number;
    bool operator==(const Stretch&) const = default;
};

Stretch stretch(CVNRange range, const CVNValue* value) {
    return {range.location, range.end(), numberOf(value)};
}

std::string show(const std::vector<Stretch>& stretches) {
    std::string out;
    for (const Stretch& each : stretches)
        out += '[' + std::to_string(each.location) + ", " + std::to_string(each.end) + ") " +
               std::to_string(each.number) + "; ";
    return out;
}

/// The maximal stretches of a part of the array.
std::vector<Stretch> stretches(const Units& units, std::int64_t start, std::int64_t end) {
    std::vector<Stretch> all;
    for (std::int64_t at = start; at < end; ++at) {
        const std::int64_t here = units[static_cast<std::size_t>(at)];
        if (all.empty() || all.back().number != here) all.push_back({at, at, here});
        ++all.back().end;
    }
    return all;
}

const Stretch& around(const std::vector<Stretch>& stretches, std::int64_t index) {
    return *std::find_if(stretches.begin(), stretches.end(),
                         [index](const Stretch& each) { return index < each.end; });
}

/// Both representations, and what must be the same in them.
class Pair {
public:
    explicit Pair(std::int64_t length)
        : string_(std::u16string(static_cast<std::size_t>(length), u'x')),
          units_(std::size(keys), Units(static_cast<std::size_t>(length), none)) {}

    std::int64_t length() const { return string_.length(); }

    void add(std::size_t key, std::int64_t start, std::int64_t end, std::int64_t number) {
        string_.addAttribute(keys[key], value(number), CVNRange::between(start, end));
        std::fill(units_[key].begin() + start, units_[key].begin() + end, number);
    }

    void expectEqual(std::mt19937_64& random) const {
        for (std::size_t key = 0; key < std::size(keys); ++key) {
            expectRuns(key);
            for (std::int64_t index = 0; index < length(); ++index)
                expectValue(key, index, random);
            expectEnumeration(key, random);
        }
        for (std::int64_t index = 0; index < length(); ++index)
            expectAttributes(index);
    }

private:
    void expectRuns(std::size_t key) const {
        std::vector<Stretch> actual;
        const AttributeRuns& runs = string_.runs(keys[key]);
        for (std::int64_t i = 0; i < runs.size(); ++i)
            actual.push_back(stretch(CVNRange::between(runs[i].location, runs[i].end), &runs[i].value));
        std::vector<Stretch> expected = stretches(units_[key], 0, length());
        std::erase_if(expected, [](const Stretch& each) { return each.number == none; });
        EXPECT_EQ(actual, expected) << show(actual) << "instead of " << show(expected);
    }

    void expectValue(std::size_t key, std::int64_t index, std::mt19937_64& random) const {
        const CVNRange part = rangeAround(index, random);
        CVNRange range;
        const CVNValue* found = string_.attribute(keys[key], index, &range);
        EXPECT_EQ(string_.attribute(keys[key], index), found);
        expectStretch(around(stretches(units_[key], 0, length()), index), found, range);
        found = string_.attributeAtIndexLongestEffectiveRange(keys[key], index, &range, part);
        expectStretch(around(stretches(units_[key], part.location, part.end()), index), found, range);
    }

    CVNRange rangeAround(std::int64_t index, std::mt19937_64& random) const {
        const auto start = static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(index + 1));
        const auto rest = static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(length() - index));
        return CVNRange::between(start, index + 1 + rest);
    }

    static void expectStretch(const Stretch& expected, const CVNValue* value, CVNRange range) {
        const std::vector<Stretch> actual = {stretch(range, value)};
        EXPECT_EQ(actual, std::vector{expected}) << show(actual) << "instead of " << show({expected});
    }

    /// Of a part that reaches beyond the text, in both directions, each to its end and up to a stop.
    void expectEnumeration(std::size_t key, std::mt19937_64& random) const {
        const std::int64_t start = static_cast<std::int64_t>(random() % 20) - 3;
        const std::int64_t end = start + static_cast<std::int64_t>(random() % 40);
        std::vector<Stretch> expected =
            stretches(units_[key], std::max<std::int64_t>(start, 0), std::min(end, length()));
        for (const auto options : {CVNEnumerationOptions::None, CVNEnumerationOptions::Reverse}) {
            const std::size_t limit = random() % (expected.size() + 2) + 1;
            std::vector<Stretch> actual;
            string_.enumerateAttribute(keys[key], CVNRange::between(start, end), options,
                                       [&](const CVNValue* value, CVNRange range, bool& stop) {
                                           actual.push_back(stretch(range, value));
                                           stop = actual.size() == limit;
                                       });
            std::vector<Stretch> wanted = expected;
            wanted.resize(std::min(limit, wanted.size()));
            EXPECT_EQ(actual, wanted) << show(actual) << "instead of " << show(wanted);
            std::reverse(expected.begin(), expected.end());
        }
    }

    void expectAttributes(std::int64_t index) const {
        CVNRange range;
        const std::vector<CVNAttribute> actual = string_.attributesAtIndex(index, &range);
        CVNRange common = {0, length()};
        std::size_t count = 0;
        for (std::size_t key = 0; key < std::size(keys); ++key) {
            const Stretch expected = around(stretches(units_[key], 0, length()), index);
            common = CVNRange::intersect(common, CVNRange::between(expected.location, expected.end));
            if (expected.number == none) continue;
            ASSERT_LT(count, actual.size());
            EXPECT_EQ(actual[count].name, keys[key]);
            EXPECT_EQ(numberOf(&actual[count].value), expected.number);
            ++count;
        }
        EXPECT_EQ(actual.size(), count);
        EXPECT_EQ(range, common);
    }

    CVNAttributedString string_;
    std::vector<Units> units_;
};

TEST(AttributedString, IsAnArrayOfValuesInAnyOrderOfRanges) {
    for (std::uint64_t seed = 0; seed < 300 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        Pair pair(static_cast<std::int64_t>(random() % 24));
        for (std::uint64_t count = random() % 12 + 1; count > 0; --count) {
            auto start = static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(pair.length() + 1));
            auto end = static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(pair.length() + 1));
            pair.add(random() % std::size(keys), std::min(start, end), std::max(start, end), number(random));
            pair.expectEqual(random);
        }
    }
}

/// As constructs are annotated: a range, then the ranges in it, from left to right.
void addNested(Pair& pair, std::size_t key, std::int64_t start, std::int64_t end, std::mt19937_64& random) {
    if (random() % 4 != 0) pair.add(key, start, end, number(random));
    for (std::int64_t at = start; at < end && end - start > 1;) {
        const std::int64_t next = at + 1 + static_cast<std::int64_t>(random() % 5);
        if (random() % 2 == 0) addNested(pair, key, at, std::min(next, end - 1), random);
        at = next;
    }
}

TEST(AttributedString, IsAnArrayOfValuesInNestedOrder) {
    for (std::uint64_t seed = 0; seed < 300 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        Pair pair(24);
        for (std::size_t key = 0; key < std::size(keys); ++key)
            addNested(pair, key, 0, pair.length(), random);
        pair.expectEqual(random);
    }
}

TEST(AttributedString, OutsideTheText) {
    CVNAttributedString string(u"abc");
    string.addAttribute(CVNStrongAttributeName, CVNValue::integer(1), {0, 3});
    string.addAttribute(CVNStrongAttributeName, CVNValue::integer(2), {3, 0});
    for (const std::int64_t index : {std::int64_t{-1}, std::int64_t{3}, CVNNotFound}) {
        CVNRange range;
        EXPECT_EQ(string.attribute(CVNStrongAttributeName, index, &range), nullptr);
        EXPECT_EQ(range, CVNRange::notFound());
        range = {};
        EXPECT_TRUE(string.attributesAtIndex(index, &range).empty());
        EXPECT_EQ(range, CVNRange::notFound());
        EXPECT_DEATH(string.characterAtIndex(index), "CVNAttributedString");
    }
    EXPECT_EQ(string.characterAtIndex(2), u'c');
    for (const CVNRange range :
         {CVNRange{-1, 2}, CVNRange{2, 2}, CVNRange{4, 0}, CVNRange{1, -1}, CVNRange::notFound()})
        EXPECT_DEATH(string.addAttribute(CVNStrongAttributeName, {}, range), "CVNAttributedString");
    for (const CVNRange range : {CVNRange{3, 5}, CVNRange{1, 0}, CVNRange::notFound()})
        string.enumerateAttribute(CVNStrongAttributeName, range, CVNEnumerationOptions::None,
                                  [](const CVNValue*, CVNRange, bool&) { FAIL(); });
}

} // namespace
