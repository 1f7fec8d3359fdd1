#pragma once

#include <cstdint>
#include <limits>
#include <string_view>

#include "corvane/scan/Assert.h"
#include "corvane/scan/Predicate.h"

namespace Ondo {

/// A cursor over UTF-16 text: a view, a position and bounds; nothing is owned.
///
/// Positions count UTF-16 code units. A moving operation that does not succeed sets the position to NoPos
/// (-1), which lies outside all bounds, so that every later step fails too and a chain of steps is checked
/// once, at its end. Operations called `is...` test and never move; all others return the new position.
/// To try something, copy the cursor.
///
/// Predicates see one code unit at a time, each half of a surrogate pair by itself. Line endings are LF, CR
/// and CR LF, nothing else.
class Go {
public:
    static constexpr std::int64_t NoPos = -1;
    /// The usual `max`: as many characters as there are.
    static constexpr std::int64_t NoLimit = std::numeric_limits<std::int64_t>::max();

    static constexpr Predicate::Always always{};
    static constexpr Predicate::Never never{};
    static constexpr Predicate::Function<Predicate::isSpaceOrTab> spaceOrTab{};
    static constexpr Predicate::Function<Predicate::isWhitespace> whitespace{};
    static constexpr Predicate::Function<Predicate::isUnicodeWhitespace> unicodeWhitespace{};
    static constexpr Predicate::Function<Predicate::isLineEndingCharacter> lineEndingCharacter{};
    static constexpr Predicate::Function<Predicate::isAsciiPunctuation> asciiPunctuation{};
    static constexpr Predicate::Function<isUnicodePunctuation> unicodePunctuation{};
    static constexpr Predicate::Function<Predicate::isUnicodeOpenClosePunctuation>
        unicodeOpenClosePunctuation{};
    static constexpr Predicate::Function<isUnicodeCurrencySymbol> unicodeCurrencySymbol{};
    static constexpr Predicate::Function<isUnicodeOpenPunctuation> unicodeOpenPunctuation{};
    static constexpr Predicate::Function<isUnicodeClosePunctuation> unicodeClosePunctuation{};
    static constexpr Predicate::Function<isUnicodeSymbol> unicodeSymbol{};
    static constexpr Predicate::Function<Predicate::isUnicodePunctuationOrSymbol>
        unicodePunctuationOrSymbol{};
    static constexpr Predicate::Function<Predicate::isDecimalNumber> decimalNumber{};
    static constexpr Predicate::Function<Predicate::isHexadecimalNumber> hexadecimalNumber{};
    static constexpr Predicate::Function<isUnicodeDecimalNumber> unicodeDecimalNumber{};
    static constexpr Predicate::Function<Predicate::isLogogram> logogram{};

    static constexpr Predicate::Character character(char32_t c) { return {c}; }
    /// True for any code unit of `chars`, which must outlive the predicate.
    static constexpr Predicate::CharacterAnyOf characterAnyOf(std::u16string_view chars) { return {chars}; }
    template <class A, class B>
    static constexpr Predicate::EitherOf<A, B> eitherOf(A a, B b) {
        return {a, b};
    }
    template <class P>
    static constexpr Predicate::No<P> no(P p) {
        return {p};
    }

    explicit Go(std::u16string_view view) : Go(view, 0, static_cast<std::int64_t>(view.size())) {}
    /// Readable are the code units from `min` up to `max`, exclusive; the position is `min`.
    Go(std::u16string_view view, std::int64_t min, std::int64_t max)
        : text(view), pos_(min), minPos_(min), maxPos_(max) {}

    std::int64_t pos() const { return pos_; }
    std::int64_t minPos() const { return minPos_; }
    std::int64_t maxPos() const { return maxPos_; }
    bool hasFailed() const { return pos_ == NoPos; }
    /// Sets the position, NoPos included, without a check; later steps fail when it is out of bounds.
    void setPos(std::int64_t pos) { pos_ = pos; }

    /// The code unit at the position. Asserts `pos_ < maxPos_`; does not check for failure.
    char16_t unsafePeekNextCharacter() const {
        CORVANE_ASSERT(pos_ < maxPos_, "Go");
        return unit(pos_);
    }
    /// The code unit before the position. Asserts `pos_ > minPos_`.
    char16_t unsafePeekPreviousCharacter() const {
        CORVANE_ASSERT(pos_ > minPos_, "Go");
        return unit(pos_ - 1);
    }

    /// At the upper bound, where there is nothing to read.
    bool isAtEnd() const { return pos_ == maxPos_; }
    /// Over one code unit, which the caller knows is there.
    void step() { ++pos_; }

    /// The predicate on the code unit at `offset` from the position; false when that is not readable.
    template <class P>
    bool isWithOffset(std::int64_t offset, P predicate) const {
        if (hasFailed()) return false;
        const std::int64_t at = pos_ + offset;
        return at >= minPos_ && at < maxPos_ && predicate(unit(at));
    }
    template <class P>
    bool isNext(P predicate) const {
        return isWithOffset(0, predicate);
    }
    template <class P>
    bool isPrevious(P predicate) const {
        return isWithOffset(-1, predicate);
    }
    /// The empty string is next at every valid position.
    bool isNextString(std::u16string_view s) const;
    bool isPreviousString(std::u16string_view s) const;
    /// Folds ASCII letters only.
    bool isNextCaseInsensitiveString(std::u16string_view s) const;
    /// At the lower bound or behind an LF. Only LF counts here: behind a lone CR this is false, although
    /// beginningOfLine() and Lines accept that position.
    bool isAtLineStart() const;
    /// Between CR and LF there is no line end.
    bool isAtLineEnd() const;

    /// Consumes at least `min` matching characters, or fails; then as many as match, up to `max` in all.
    template <class P>
    std::int64_t nextMatch(P predicate, std::int64_t min, std::int64_t max) {
        if (!isInBounds()) return fail();
        std::int64_t at = pos_;
        std::int64_t count = 0;
        for (; count < min; ++count, ++at)
            if (at >= maxPos_ || !predicate(unit(at))) return fail();
        for (; count < max && at < maxPos_ && predicate(unit(at)); ++count)
            ++at;
        return pos_ = at;
    }
    /// Cannot fail on a valid cursor.
    template <class P>
    std::int64_t nextWhile(P predicate, std::int64_t max) {
        return nextMatch(predicate, 0, max);
    }
    template <class P>
    std::int64_t nextWhile(P predicate) {
        if (!isInBounds()) return fail();
        std::int64_t at = pos_;
        while (at < maxPos_ && predicate(unit(at)))
            ++at;
        return pos_ = at;
    }
    template <class P>
    std::int64_t previousMatch(P predicate, std::int64_t min, std::int64_t max) {
        if (!isInBounds()) return fail();
        std::int64_t at = pos_;
        std::int64_t count = 0;
        for (; count < min; ++count, --at)
            if (at <= minPos_ || !predicate(unit(at - 1))) return fail();
        for (; count < max && at > minPos_ && predicate(unit(at - 1)); ++count)
            --at;
        return pos_ = at;
    }
    template <class P>
    std::int64_t previousWhile(P predicate, std::int64_t max = NoLimit) {
        return previousMatch(predicate, 0, max);
    }
    std::int64_t nextMatchString(std::u16string_view s);
    std::int64_t nextMatchCaseInsensitiveString(std::u16string_view s);

    /// The text from `startPos` to `endPos`, clamped to the view. Asserts `startPos <= endPos`; a start
    /// beyond the view is the standard library's out-of-range failure.
    std::u16string_view substring(std::int64_t startPos, std::int64_t endPos) const;

    /// The start of the line that holds the position, not before the lower bound.
    std::int64_t beginningOfLine();
    /// Forward to a CR, to an LF that no CR precedes, or to the upper bound.
    std::int64_t endOfLine();
    /// The start of the next line; fails in the last one.
    std::int64_t nextLine();
    /// The end of the previous line, before its ending; fails in the first one.
    std::int64_t previousLine();

protected:
    char16_t unit(std::int64_t at) const { return text[static_cast<std::size_t>(at)]; }
    bool isInBounds() const { return pos_ >= minPos_ && pos_ <= maxPos_; }
    std::int64_t fail() { return pos_ = NoPos; }

    std::u16string_view text;
    std::int64_t pos_;
    std::int64_t minPos_;
    std::int64_t maxPos_;
};

} // namespace Ondo
