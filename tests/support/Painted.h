#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "corvane/client/CVNAST.h"

namespace Ondo::Test {

/// What an editor shows that repaints only the ranges it is told to: for each key a value for each code unit.
class Painted {
public:
    std::int64_t length() const { return length_; }
    /// Paints the whole note.
    explicit Painted(const CVNAST& note);

    /// The text changes; what is inserted has no attributes yet.
    void replace(CVNRange range, std::int64_t inserted);
    /// Takes off what is painted over the range and paints what the note gives for it.
    void repaint(const CVNAST& note, CVNRange range);

    /// The first code unit with another value than a fresh object gives it, for a key that is not `skipped`;
    /// empty when there is none.
    std::string difference(const CVNAST& note, const std::vector<CVNAttributeName>& skipped) const;

private:
    std::int64_t length_;
    /// By key; null for no value. Values are few and small: they are kept as text.
    std::array<std::vector<std::string>, CVNAttributeName::count> values_;
};

/// A value in words, of which equal ones have the same.
std::string show(const CVNValue& value);

/// All runs of a text, one a line, by key and place: `Strong |**a**| true`. Those of the writing direction
/// only when they are wanted, for every text has them.
std::string showRuns(const CVNAttributedString& text, bool withDirection);

} // namespace Ondo::Test
