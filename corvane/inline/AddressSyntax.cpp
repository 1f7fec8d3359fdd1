#include "corvane/inline/AddressSyntax.h"

#include <algorithm>

namespace Ondo::Inline::AddressSyntax {

namespace {

constexpr std::int64_t longestUser = 50;

bool isInLabel(char32_t c) {
    return !Go::unicodeWhitespace(c) && !Go::logogram(c) && (c == U'-' || !Go::unicodePunctuation(c));
}

bool isInUser(char32_t c) {
    return c == U'.' || c == U'_' || (!Go::unicodeWhitespace(c) && !Go::unicodePunctuation(c));
}

bool isInPassword(char32_t c) {
    return c != U'@' && !Go::unicodeWhitespace(c);
}

bool isAcceptedPunctuation(char32_t c) {
    return c == U'+' || c == U'/' || c == U'@' || c == U'$' || c == U'&';
}

/// Fails a cursor that has taken no label, or one with a hyphen at an end.
void checkLabel(Go& go, std::int64_t start, std::int64_t end) {
    const bool isGood = start < end && !(go.substring(start, end).starts_with(u'-')) &&
                        !(go.substring(start, end).ends_with(u'-'));
    if (!isGood) go.setPos(Go::NoPos);
}

constexpr Predicate::CharacterAnyOf pathStart{u"/?#"};

/// The state of a scan along a path.
struct Path {
    Go& go;
    std::int64_t end;   ///< behind the last accepted character
    std::int64_t query; ///< the last "?"; NoPos before the first
    std::int64_t squares = 0;
    std::int64_t parentheses = 0;
    bool hasClosing = false;
    std::int64_t nested = Go::NoLimit; ///< the first that could begin a path and stands in brackets
    std::int64_t endQuery = Go::NoPos; ///< what lets the equals signs at the end count

    /// Over the next character; false at a bracket that ends the path.
    bool take() {
        const char16_t c = go.unsafePeekNextCharacter();
        if (c == u']') return close(squares);
        if (c == u')') return close(parentheses);
        if (squares + parentheses > 0 && pathStart(c)) nested = std::min(nested, go.pos());
        if (c == u'[') ++squares;
        if (c == u'(') ++parentheses;
        if (c == u'?') query = go.pos();
        if (c == u'=')
            takeEqualSigns();
        else if (isAcceptedPunctuation(c) || !Go::unicodePunctuation(c))
            accept();
        else
            step();
        return true;
    }
    void accept() {
        step();
        end = go.pos();
    }
    void step() { go.setPos(go.pos() + 1); }
    bool close(std::int64_t& depth) {
        hasClosing = true;
        if (depth == 0) {
            end = go.pos();
            return false;
        }
        --depth;
        accept();
        return true;
    }
    void takeEqualSigns() {
        const std::int64_t start = go.pos();
        go.nextWhile(Go::character(u'='));
        if (query == Go::NoPos || go.pos() - start >= 3) return;
        end = go.pos();
        endQuery = query;
    }
    /// Up to where paths may begin inside this one and end where it ends. Closing brackets hang on those
    /// before them, equals signs on a "?".
    std::int64_t knownUntil() const {
        std::int64_t until = go.pos();
        if (hasClosing) until = std::min(until, nested);
        if (go.isWithOffset(end - 1 - go.pos(), Go::character(u'='))) until = std::min(until, endQuery + 1);
        return until;
    }
};

} // namespace

void matchNextUnicodeDomain(Go& go) {
    const std::int64_t start = go.pos();
    const std::int64_t end = go.nextWhile(isInLabel);
    if (!go.hasFailed()) checkLabel(go, start, end);
}

void matchPreviousUnicodeDomain(Go& go) {
    const std::int64_t end = go.pos();
    const std::int64_t start = go.previousWhile(isInLabel);
    if (!go.hasFailed()) checkLabel(go, start, end);
}

void matchNextPort(Go& go) {
    Go port = go;
    port.nextMatch(Go::character(u':'), 1, 1);
    port.nextMatch(Go::decimalNumber, 2, Go::NoLimit);
    if (!port.hasFailed() && port.pos() - go.pos() <= 6) go.setPos(port.pos());
}

bool matchNextPath(Go& go, LastPath& last) {
    const std::int64_t start = go.pos();
    if (!go.isNext(pathStart)) return false;
    if (start <= last.start || start >= last.until) {
        Path path{go, start + 1, go.isNext(Go::character(u'?')) ? start : Go::NoPos};
        path.step();
        while (go.pos() != go.maxPos() && !go.isNext(Go::eitherOf(Go::whitespace, Go::logogram)) &&
               path.take())
            ;
        last = {start, path.knownUntil(), path.end};
    }
    go.setPos(std::max(last.end, start + 1));
    return true;
}

void matchNextUser(Go& go) {
    Go user = go;
    user.nextMatch(isInUser, 1, longestUser);
    user.nextMatch(Go::character(u':'), 1, 1);
    user.nextWhile(isInPassword, longestUser);
    user.nextMatch(Go::character(u'@'), 1, 1);
    if (!user.hasFailed()) go.setPos(user.pos());
}

std::int64_t startOfPreviousUser(const Go& go) {
    Go password = go;
    password.previousMatch(Go::character(u'@'), 1, 1);
    if (password.hasFailed()) return Go::NoPos;
    std::int64_t start = Go::NoPos;
    for (std::int64_t length = 0; length <= longestUser; ++length) {
        Go user = password;
        user.previousMatch(Go::character(u':'), 1, 1);
        user.previousMatch(isInUser, 1, longestUser);
        if (!user.hasFailed() && (start == Go::NoPos || user.pos() < start)) start = user.pos();
        if (password.previousMatch(isInPassword, 1, 1) == Go::NoPos) break;
    }
    return start;
}

bool isValidLeftContext(const Go& go) {
    return go.pos() == go.minPos() || go.isPrevious(Go::unicodeWhitespace) ||
           go.isPrevious(Go::unicodePunctuation) || go.isPrevious(Go::logogram);
}

bool isValidRightContext(const Go& go) {
    return go.pos() == go.maxPos() || go.isNext(Go::unicodeWhitespace) || go.isNext(Go::unicodePunctuation) ||
           go.isNext(Go::logogram);
}

DomainChain DomainChain::before(const Go& go, const DomainChain& last) {
    DomainChain chain{go.pos()};
    Go label = go;
    while (true) {
        matchPreviousUnicodeDomain(label);
        if (label.hasFailed()) return chain;
        chain.start = label.pos();
        ++chain.count;
        if (label.previousMatch(Go::character(u'.'), 1, 1) == Go::NoPos) return chain;
        if (label.pos() != last.dot) continue;
        if (last.count > 0) chain.start = last.start;
        chain.count += last.count;
        return chain;
    }
}

} // namespace Ondo::Inline::AddressSyntax
