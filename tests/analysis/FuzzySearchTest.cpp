#include "corvane/analysis/FuzzySearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <limits>

#include "corvane/analysis/CVNFuzzySearch.h"
#include "corvane/scan/Util.h"
#include "tests/support/RandomNote.h"

namespace CVN {
namespace {

using Ondo::Util::utf8;

std::string show(const FuzzyMatch& match) {
    std::string out = match.matched ? std::to_string(match.score) : "none";
    for (const std::int64_t index : match.indexes)
        out += ' ' + std::to_string(index);
    return out;
}

struct Case {
    std::u16string_view pattern;
    std::u16string_view text;
    std::string_view expected;
};

TEST(FuzzySearch, Scores) {
    static constexpr Case cases[] = {
        {u"ab", u"xab", "22 1 2"},
        {u"ab", u"axb", "1 0 2"},
        {u"b", u"abb", "0 1"},
        {u"a", u"a", "1 0"},                // a run needs two
        {u"abc", u"abc", "26 0 1 2"},       // 1 + 2 + 3, and 20
        {u"abc", u"abxc", "3 0 1 3"},       // 1 + 2 + (1 - 1)
        {u"ab", u"a ab", "21 2 3"},         // 3 + 20 - 2 is better than 1 - 1 + 1
        {u"ab", u"axxxxxxxxxxb", "0 0 11"}, // matched with nothing to show for it
        {u"ab", u"axbxab", "19 4 5"},
        {u"\xD83D\xDE00\xD83D\xDE01", u"\xD83D\xDE00\xD83D\xDE01", "23 0 2"}, // neighbours have no gap
        {u"a\xD83D\xDE00z", u"a\xD83D\xDE00z", "26 0 1 3"},
        {u"\xD83D", u"\xD83D\xDE00\xD83D", "0 2"}, // half a pair is none of a whole one
        {u"\xDE00", u"\xD83D\xDE00", "none"},
        {u"A", u"a", "none"},
        {u"ba", u"ab", "none 1"},
        {u"abc", u"ab", "none 0 1"},
        {u"ab", u"", "none"},
        {u"", u"ab", "none"},
        {u"", u"", "none"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(show(fuzzySearch(each.pattern, each.text)), each.expected)
            << utf8(each.pattern) << " in " << utf8(each.text);
}

/// Each of ten ways begins at another "a", so that the tight match behind the eleventh is never seen.
TEST(FuzzySearch, StopsAtItsLimit) {
    EXPECT_EQ(show(fuzzySearch(u"ab", u"a--a--a--ab")), "14 9 10");
    EXPECT_EQ(show(fuzzySearch(u"ab", std::u16string(10, u'a') + u'b')), "14 9 10");
    EXPECT_EQ(show(fuzzySearch(u"ab", std::u16string(11, u'a') + u'b')), "0 0 11");
}

// The same, put down in the plainest way.

struct Plain {
    std::vector<std::pair<char32_t, std::int64_t>> pattern;
    std::vector<std::pair<char32_t, std::int64_t>> text; ///< with offsets
    int calls = 0;

    static std::vector<std::pair<char32_t, std::int64_t>> points(std::u16string_view units) {
        std::vector<std::pair<char32_t, std::int64_t>> out;
        for (std::int64_t at = 0; at < std::ssize(units);) {
            out.emplace_back(Ondo::Util::codePointAt(units, at), at);
            at += Ondo::Util::codeUnitCount(out.back().first);
        }
        return out;
    }

    static std::int32_t scoreOf(const std::vector<std::pair<char32_t, std::int64_t>>& matches) {
        std::int64_t run = 0, sum = 0;
        bool isGapless = true;
        for (std::size_t i = 0; i < matches.size(); ++i) {
            std::int64_t gap = 0;
            if (i > 0) {
                const auto& [c, offset] = matches[i - 1];
                gap = matches[i].second - (offset + (c > 0xFFFF ? 2 : 1));
            }
            run = gap != 0 || i == 0 ? 0 : run + 1;
            sum = sum - gap + run + 1;
            isGapless = isGapless && gap == 0;
        }
        sum -= matches[0].second;
        if (matches.size() >= 2 && isGapless) sum += 20;
        return static_cast<std::int32_t>(
            std::clamp<std::int64_t>(sum, 0, std::numeric_limits<std::int32_t>::max()));
    }

    FuzzyMatch inner(std::size_t patternAt, std::size_t textAt,
                     std::vector<std::pair<char32_t, std::int64_t>> matches) {
        if (calls++ >= 10) return {};
        FuzzyMatch best;
        for (; textAt < text.size(); ++textAt) {
            if (text[textAt].first != pattern[patternAt].first) continue;
            const FuzzyMatch found = inner(patternAt, textAt + 1, matches);
            if (found.matched && found.score > best.score) best = found;
            matches.push_back(text[textAt]);
            if (++patternAt == pattern.size()) break;
        }
        FuzzyMatch own{patternAt == pattern.size(), 0, {}};
        for (const auto& match : matches)
            own.indexes.push_back(match.second);
        if (!own.matched) return best.matched ? best : own;
        own.score = scoreOf(matches);
        return best.matched && best.score > own.score ? best : own;
    }
};

FuzzyMatch plainSearch(std::u16string_view pattern, std::u16string_view text) {
    Plain plain{Plain::points(pattern), Plain::points(text)};
    return plain.inner(0, 0, {});
}

TEST(FuzzySearch, IsWhatThePlainestWayFinds) {
    static constexpr std::u16string_view alphabets[] = {u"a",    u"ab",  u"ab",  u"abc",
                                                        u"abc-", u"aab", u"ab ", u"a\xD83D\xDE00\xDE01"};
    Ondo::Test::RandomNote random(83);
    FuzzyMatch reused;
    std::size_t matched = 0, branched = 0;
    for (int round = 0; round < 60'000; ++round) {
        const std::u16string_view alphabet = alphabets[random.below(std::size(alphabets))];
        const auto make = [&](std::size_t limit) {
            std::u16string out;
            for (std::size_t i = random.below(limit); i > 0; --i)
                out += alphabet[random.below(alphabet.size())];
            return out;
        };
        const std::u16string pattern = alphabet[0] + make(1 + random.below(8));
        const std::u16string text = make(2 + random.below(40));
        const FuzzyMatch expected = plainSearch(pattern, text);
        ASSERT_EQ(show(fuzzySearch(pattern, text)), show(expected)) << utf8(pattern) << " in " << utf8(text);
        fuzzySearch(pattern, text, reused);
        ASSERT_EQ(show(reused), show(expected)) << utf8(pattern) << " in " << utf8(text);
        matched += expected.matched;
        branched +=
            expected.matched && expected.indexes[0] != static_cast<std::int64_t>(text.find(pattern[0]));
    }
    EXPECT_GT(matched, 20'000u);
    EXPECT_GT(branched, 2'000u);
}

/// A run of n earns n * (n + 1) / 2. Where each step tried a branch of its own, this would take years.
TEST(FuzzySearch, LongTexts) {
    const auto start = std::chrono::steady_clock::now();
    const std::u16string text(1'000'000, u'a');
    const FuzzyMatch short_ = fuzzySearch(std::u16string(60'000, u'a'), text);
    EXPECT_EQ(short_.score, 1'800'030'020);
    EXPECT_EQ(short_.indexes.back(), 59'999);
    const FuzzyMatch whole = fuzzySearch(text, text);
    EXPECT_EQ(whole.score, std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(whole.indexes.size(), text.size());
    const FuzzyMatch none = fuzzySearch(text + u'b', text);
    EXPECT_TRUE(!none.matched && none.score == 0 && none.indexes.size() == text.size());
    EXPECT_EQ(show(fuzzySearch(u"ab", text + u'b')), "0 0 1000000");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(FuzzySearch, AsTheClientHasIt) {
    std::vector<std::int64_t> indexes{7};
    EXPECT_EQ(CVNFuzzySearch::fuzzySearch(u"ab", u"xab", &indexes), 22);
    EXPECT_EQ(indexes, (std::vector<std::int64_t>{1, 2}));
    EXPECT_EQ(CVNFuzzySearch::fuzzySearch(u"ab", u"xab"), 22);
    EXPECT_EQ(CVNFuzzySearch::fuzzySearch(u"ab", u"xb", &indexes), 0);
    EXPECT_TRUE(indexes.empty());
}

} // namespace
} // namespace CVN
