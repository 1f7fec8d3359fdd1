#include "corvane/analysis/FuzzySearch.h"

#include <algorithm>
#include <limits>

#include "corvane/scan/Util.h"

namespace CVN {

namespace {

using Ondo::Util::codePointAt;
using Ondo::Util::codeUnitCount;

constexpr int maximumWays = 10;
constexpr std::int64_t gaplessBonus = 20;

/// The offset of the next `wanted`, which is a whole code point of the text; the text's length if there is
/// none. `from` is between two code points.
std::int64_t find(std::u16string_view text, char32_t wanted, std::int64_t from) {
    const std::int64_t end = std::ssize(text);
    std::int64_t at = from;
    if (wanted < 0xD800 || Ondo::Predicate::isIn(wanted, 0xE000, 0xFFFF)) {
        while (at < end && text[static_cast<std::size_t>(at)] != wanted)
            ++at;
        return at;
    }
    while (at < end) {
        const char32_t c = codePointAt(text, at);
        if (c == wanted) break;
        at += codeUnitCount(c);
    }
    return at;
}

/// How far a way has come: where to go on in pattern and text, and what makes the score of the matches behind
/// it. Small, so that a branch costs nothing; the offsets of the matches are found anew for the best way.
struct Progress {
    std::int64_t patternAt = 0;
    std::int64_t textAt = 0;

    std::int64_t count = 0;
    std::int64_t first = 0;
    std::int64_t run = 0;
    std::int64_t sum = 0; ///< of squares of runs: beyond 32 bits where a run is longer than 65,000
    std::int64_t end = 0; ///< behind the last match
    bool isGapless = true;

    /// Takes the character at `textAt` for the one at `patternAt`.
    void take(std::int64_t units) {
        if (count == 0) end = first = textAt;
        const std::int64_t gap = textAt - end;
        run = gap != 0 || count == 0 ? 0 : run + 1;
        sum += run + 1 - gap;
        isGapless = isGapless && gap == 0;
        ++count;
        patternAt += units;
        textAt += units;
        end = textAt;
    }

    std::int32_t score() const {
        const std::int64_t bonus = count >= 2 && isGapless ? gaplessBonus : 0;
        constexpr std::int64_t highest = std::numeric_limits<std::int32_t>::max();
        return static_cast<std::int32_t>(std::clamp<std::int64_t>(sum - first + bonus, 0, highest));
    }
};

class Search {
public:
    Search(std::u16string_view pattern, std::u16string_view text) : pattern_(pattern), text_(text) {}

    void run(FuzzyMatch& result);

private:
    static constexpr int noWay = -1;

    /// A way through the text takes the next occurrence of each character, from where it leaves another one.
    struct Way {
        int parent;
        std::int64_t patternAt;
        std::int64_t textAt;
    };
    struct Found {
        int way = noWay;
        std::int32_t score = 0;
    };

    Found follow(Progress at, int parent);
    bool addMatches(std::int64_t patternAt, std::int64_t textAt, std::int64_t patternEnd,
                    std::vector<std::int64_t>& indexes) const;
    void addMatchesOf(int way, std::vector<std::int64_t>& indexes) const;

    std::u16string_view pattern_;
    std::u16string_view text_;
    Way ways_[maximumWays];
    int wayCount_ = 0;
};

/// The best of the way that begins there and of those that leave it, which are tried first: at each match
/// one that goes by. The depth is that of the ways.
Search::Found Search::follow(Progress at, int parent) {
    if (wayCount_ == maximumWays) return {};
    const int way = wayCount_++;
    ways_[way] = {parent, at.patternAt, at.textAt};
    Found best;
    while (at.patternAt < std::ssize(pattern_)) {
        const char32_t wanted = codePointAt(pattern_, at.patternAt);
        const std::int64_t units = codeUnitCount(wanted);
        at.textAt = find(text_, wanted, at.textAt);
        if (at.textAt == std::ssize(text_)) return best;
        Progress goingBy = at;
        goingBy.textAt += units;
        const Found found = follow(goingBy, way);
        if (found.score > best.score) best = found;
        at.take(units);
    }
    const std::int32_t score = at.score();
    return best.score > score ? best : Found{way, score};
}

/// Where the characters from `patternAt` up to `patternEnd` stand; false if there are not all.
bool Search::addMatches(std::int64_t patternAt, std::int64_t textAt, std::int64_t patternEnd,
                        std::vector<std::int64_t>& indexes) const {
    while (patternAt < patternEnd) {
        const char32_t wanted = codePointAt(pattern_, patternAt);
        textAt = find(text_, wanted, textAt);
        if (textAt == std::ssize(text_)) return false;
        if (indexes.empty()) indexes.reserve(std::min(pattern_.size(), text_.size()));
        indexes.push_back(textAt);
        patternAt += codeUnitCount(wanted);
        textAt += codeUnitCount(wanted);
    }
    return true;
}

void Search::addMatchesOf(int way, std::vector<std::int64_t>& indexes) const {
    int line[maximumWays];
    int count = 0;
    for (int each = way; each != noWay; each = ways_[each].parent)
        line[count++] = each;
    while (count-- > 0) {
        const Way& each = ways_[line[count]];
        const std::int64_t end = count > 0 ? ways_[line[count - 1]].patternAt : std::ssize(pattern_);
        addMatches(each.patternAt, each.textAt, end, indexes);
    }
}

/// The first way, which takes all that it finds, fails where every other would.
void Search::run(FuzzyMatch& result) {
    result.score = 0;
    result.indexes.clear();
    result.matched = !pattern_.empty() && addMatches(0, 0, std::ssize(pattern_), result.indexes);
    if (!result.matched) return;
    const Found found = follow({}, noWay);
    result.score = found.score;
    if (found.way == 0) return;
    result.indexes.clear();
    addMatchesOf(found.way, result.indexes);
}

} // namespace

FuzzyMatch fuzzySearch(std::u16string_view pattern, std::u16string_view text) {
    FuzzyMatch result;
    fuzzySearch(pattern, text, result);
    return result;
}

void fuzzySearch(std::u16string_view pattern, std::u16string_view text, FuzzyMatch& result) {
    Search(pattern, text).run(result);
}

} // namespace CVN
