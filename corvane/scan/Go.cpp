#include "corvane/scan/Go.h"

namespace Ondo {

namespace {

constexpr char16_t upcaseAscii(char16_t c) {
    return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - u'a' + u'A') : c;
}

constexpr std::int64_t lengthOf(std::u16string_view s) {
    return static_cast<std::int64_t>(s.size());
}

constexpr Predicate::Character lineFeed{U'\n'};
constexpr Predicate::Character carriageReturn{U'\r'};

} // namespace

bool Go::isNextString(std::u16string_view s) const {
    if (pos_ < minPos_ || pos_ + lengthOf(s) > maxPos_) return false;
    return text.substr(static_cast<std::size_t>(pos_), s.size()) == s;
}

bool Go::isPreviousString(std::u16string_view s) const {
    if (pos_ - lengthOf(s) < minPos_ || pos_ > maxPos_) return false;
    return text.substr(static_cast<std::size_t>(pos_) - s.size(), s.size()) == s;
}

bool Go::isNextCaseInsensitiveString(std::u16string_view s) const {
    if (pos_ < minPos_ || pos_ + lengthOf(s) > maxPos_) return false;
    for (std::size_t i = 0; i < s.size(); ++i)
        if (upcaseAscii(text[static_cast<std::size_t>(pos_) + i]) != upcaseAscii(s[i])) return false;
    return true;
}

bool Go::isAtLineStart() const {
    return !hasFailed() && (pos_ == minPos_ || isPrevious(lineFeed));
}

bool Go::isAtLineEnd() const {
    return pos_ == maxPos_ || isNext(carriageReturn) || (isNext(lineFeed) && !isPrevious(carriageReturn));
}

std::int64_t Go::nextMatchString(std::u16string_view s) {
    return isNextString(s) ? pos_ += lengthOf(s) : fail();
}

std::int64_t Go::nextMatchCaseInsensitiveString(std::u16string_view s) {
    return isNextCaseInsensitiveString(s) ? pos_ += lengthOf(s) : fail();
}

std::u16string_view Go::substring(std::int64_t startPos, std::int64_t endPos) const {
    CORVANE_ASSERT(startPos <= endPos, "Go");
    return text.substr(static_cast<std::size_t>(startPos), static_cast<std::size_t>(endPos - startPos));
}

std::int64_t Go::beginningOfLine() {
    if (!isInBounds()) return fail();
    while (pos_ > minPos_ && !isPrevious(lineFeed) && !(isPrevious(carriageReturn) && !isNext(lineFeed)))
        --pos_;
    return pos_;
}

std::int64_t Go::endOfLine() {
    if (!isInBounds()) return fail();
    while (!isAtLineEnd())
        ++pos_;
    return pos_;
}

std::int64_t Go::nextLine() {
    nextWhile(no(lineEndingCharacter));
    if (isNext(carriageReturn) && isWithOffset(1, lineFeed)) return pos_ += 2;
    return nextMatch(lineEndingCharacter, 1, 1);
}

std::int64_t Go::previousLine() {
    beginningOfLine();
    const bool endsInLineFeed = isPrevious(lineFeed);
    previousMatch(lineEndingCharacter, 1, 1);
    if (endsInLineFeed) previousWhile(carriageReturn, 1);
    return pos_;
}

} // namespace Ondo
