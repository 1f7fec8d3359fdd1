#pragma once

#include <cstdint>

#include "corvane/scan/GoLines.h"
#include "corvane/scan/HtmlSyntax.h"

/// The pieces of bare addresses. Offsets are UTF-16 code units.

namespace Ondo::Inline::AddressSyntax {

/// In the scheme of a URI, behind its first letter.
constexpr bool isSchemeCharacter(char32_t c) {
    return HtmlSyntax::isLetterOrDigit(c) || c == U'+' || c == U'.' || c == U'-';
}

/// Takes a label of a domain: no whitespace, logograms or punctuation but "-", which stands at neither end.
/// Fails when there is none.
CORVANE_EXPORT void matchNextUnicodeDomain(Go& go);
/// The same backwards.
CORVANE_EXPORT void matchPreviousUnicodeDomain(Go& go);

/// ":" and 2 to 5 digits. Stays where it is when there is no port.
CORVANE_EXPORT void matchNextPort(Go& go);
/// The path that was scanned last, for the ends of those that begin inside it. When a URL is given up behind
/// its path, the next one may well begin in there.
struct LastPath {
    std::int64_t start = Go::NoPos;
    std::int64_t until = Go::NoPos; ///< paths that begin before this end where this one ends
    std::int64_t end = Go::NoPos;
};

/// From "/", "?" or "#" on, without brackets that do not pair and without trailing punctuation. False, and
/// the cursor stays where it is, when there is no path. Keep `last` for the next scan of the same text.
CORVANE_EXPORT bool matchNextPath(Go& go, LastPath& last);

/// Takes «user:password@», or stays where it is.
CORVANE_EXPORT void matchNextUser(Go& go);
/// Where the longest «user:password@» in front of the cursor starts; NoPos when there is none.
CORVANE_EXPORT std::int64_t startOfPreviousUser(const Go& go);

CORVANE_EXPORT bool isValidLeftContext(const Go& go);
CORVANE_EXPORT bool isValidRightContext(const Go& go);

/// The labels in front of a dot: a chain of good ones, each but the first behind a dot.
struct DomainChain {
    std::int64_t dot = Go::NoPos;
    std::int64_t start = Go::NoPos; ///< of the first label
    std::int64_t count = 0;         ///< of labels; 0 when the one before the dot is none

    /// The chain in front of the dot at the cursor. `last` is the chain of an earlier dot on the same text,
    /// with which a domain of many labels costs no walk over all of them at each of its dots.
    static DomainChain before(const Go& go, const DomainChain& last);
};

} // namespace Ondo::Inline::AddressSyntax
