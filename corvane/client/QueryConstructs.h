#pragma once

#include <cstdint>

#include "corvane/client/CVNAttributedString.h"
#include "corvane/client/QueryUtilities.h"
#include "corvane/scan/Export.h"

/// Constructs that touch one another and have equal values are one run: the two links of «[a](x)[b](y)», two
/// headings of a level in a row. Their markers tell them apart, where the key has a marker key.

namespace CVN::Query {

/// How a construct of a key begins directly behind another one.
enum class Neighbours : std::uint8_t {
    Merged,    ///< they can't be told apart
    Marked,    ///< at every marker
    Flat,      ///< at every opening marker
    Nested,    ///< at an opening marker that touches a closing one, when all that was opened before is closed
    Link,      ///< at an opening marker that is no parenthesis
    Reference, ///< at an opening marker that is not the one of a label
    Heading    ///< at a marker of "#" signs; behind the line of such a one; behind an underline
};

struct ConstructKeys {
    CVNAttributeName key;
    CVNAttributeName markerKey; ///< `key` when there is none
    Neighbours neighbours;
};

/// How constructs of a key are told apart.
CORVANE_EXPORT ConstructKeys constructKeys(CVNAttributeName key);
/// The same with another marker key, whose constructs nest unless it is known better.
CORVANE_EXPORT ConstructKeys constructKeys(CVNAttributeName key, CVNAttributeName markerKey);

/// The construct with that key around an index, {CVNNotFound, 0} when there is none.
CORVANE_EXPORT CVNRange constructAt(const CVNAttributedString& text, const ConstructKeys& keys,
                                    std::int64_t index);

/// A walk over the constructs of a key that reach into a range. A binary search finds the first one, and
/// nothing is read behind the last one. Only where constructs nest, all markers of a run that reaches into
/// the range are read: what is open there is known no other way.
class CORVANE_EXPORT ConstructWalk {
public:
    ConstructWalk(const CVNAttributedString& text, const ConstructKeys& keys, CVNRange range,
                  CVNEnumerationOptions options);

    /// Moves to the next construct, at first to the first one. False when none is left.
    bool next();
    /// The whole construct, which may reach out of the range.
    CVNRange construct() const { return construct_; }
    CVNRange constructInRange() const { return CVNRange::intersect(construct_, range_); }
    const CVNValue& value() const { return runs_[run_].value; }

private:
    bool hasRun() const;
    void enterRun();
    void takeConstruct();
    std::int64_t startOfConstruct(std::int64_t index) const;
    std::int64_t firstMarkerOfNext(std::int64_t location) const;
    std::int64_t boundaryBehind(CVNRange rest) const;
    std::int64_t boundaryBefore(CVNRange rest) const;
    std::int64_t boundary(std::int64_t marker, std::int64_t depth) const;
    std::int64_t headingBoundary(std::int64_t marker) const;
    bool isOpening(std::int64_t marker) const;
    bool touchesPrevious(std::int64_t marker) const;
    bool opensLabel(std::int64_t marker) const;
    std::int64_t depthBehind(std::int64_t marker, std::int64_t depth, bool isBackward) const;

    const CVNAttributedString& text_;
    const AttributeRuns& runs_;
    const AttributeRuns& markers_;
    Neighbours neighbours_;
    CVNRange range_;
    bool isReverse_;
    std::int64_t run_;
    CVNRange rest_{}; ///< of the run at hand: what was not walked over
    CVNRange construct_{};
};

/// Calls `block` with (CVNRange range, const CVNValue& value, bool& stop) for each construct, clipped to
/// `range`.
template <class Block>
void forEachConstruct(const CVNAttributedString& text, const ConstructKeys& keys, CVNRange range,
                      CVNEnumerationOptions options, Block&& block) {
    bool stop = false;
    for (ConstructWalk walk(text, keys, range, options); !stop && walk.next();)
        block(walk.constructInRange(), walk.value(), stop);
}

/// The same for each run of the key, unless and until `stop`, which the block can set.
template <class Block>
void forEachRun(const CVNAttributedString& text, CVNAttributeName key, CVNRange range,
                CVNEnumerationOptions options, bool& stop, Block&& block) {
    for (ConstructWalk walk(text, {key, key, Neighbours::Merged}, range, options); !stop && walk.next();)
        block(walk.constructInRange(), walk.value(), stop);
}

} // namespace CVN::Query
