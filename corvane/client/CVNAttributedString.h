#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "corvane/client/AttributeRuns.h"
#include "corvane/client/CVNAttributeName.h"
#include "corvane/client/CVNRange.h"
#include "corvane/client/CVNValue.h"
#include "corvane/scan/Export.h"

/// How a key's runs are enumerated: from the start of the text, or from its end.
enum class CVNEnumerationOptions { None, Reverse };

/// A key and its value at an index.
struct CVNAttribute {
    CVNAttributeName name;
    CVNValue value;
};

/// A text with attribute runs over it: for each key, stretches that have a value.
///
/// Runs of a key that touch and have equal values are one run. Locations and lengths count UTF-16 code units.
/// An index at or behind the end has no values. Pointers to values are good until the next addAttribute().
/// Adding in order of location takes amortised constant time, reading the logarithm of the key's runs.
class CORVANE_EXPORT CVNAttributedString {
public:
    CVNAttributedString() = default;
    /// The text, without any attribute.
    explicit CVNAttributedString(std::u16string string) : string_(std::move(string)) {}

    std::int64_t length() const { return static_cast<std::int64_t>(string_.size()); }
    std::u16string_view string() const { return string_; }
    /// Asserts that the index lies in the text.
    char16_t characterAtIndex(std::int64_t index) const;

    /// Sets the key over the range, in place of the values that it has there. Asserts that the range lies in
    /// the text. An empty range changes nothing.
    void addAttribute(CVNAttributeName name, CVNValue value, CVNRange range);

    /// The value at an index, null when there is none. `effectiveRange`, if given, becomes the widest range
    /// around the index over which the value, or its absence, stays equal; for an index outside the text it
    /// becomes {CVNNotFound, 0}.
    const CVNValue* attribute(CVNAttributeName name, std::int64_t index,
                              CVNRange* effectiveRange = nullptr) const;
    /// The same, with the effective range clipped to `inRange`; empty for an index outside it.
    const CVNValue* attributeAtIndexLongestEffectiveRange(CVNAttributeName name, std::int64_t index,
                                                          CVNRange* longestEffectiveRange,
                                                          CVNRange inRange) const;
    /// All keys with a value at the index, in the order of their numbers; `effectiveRange` as above, for all
    /// of them together.
    std::vector<CVNAttribute> attributesAtIndex(std::int64_t index, CVNRange* effectiveRange = nullptr) const;

    /// Calls `block` with (const CVNValue* value, CVNRange range, bool& stop) for every maximal run of the
    /// key in the range, and, with a null value, for every stretch between runs. The range is clipped to the
    /// text. The block ends the enumeration by setting `stop`; it may not add attributes.
    template <class Block>
    void enumerateAttribute(CVNAttributeName name, CVNRange inRange, CVNEnumerationOptions options,
                            Block&& block) const {
        const CVNRange range = CVNRange::intersect(inRange, {0, length()});
        const bool isReverse = options == CVNEnumerationOptions::Reverse;
        CVNRange rest = range;
        bool stop = false;
        while (rest.length > 0 && !stop) {
            CVNRange run;
            const CVNValue* value = attributeAtIndexLongestEffectiveRange(
                name, isReverse ? rest.end() - 1 : rest.location, &run, range);
            block(value, run, stop);
            rest = isReverse ? CVNRange::between(rest.location, run.location)
                             : CVNRange::between(run.end(), rest.end());
        }
    }

    /// The runs of a key, in order.
    const AttributeRuns& runs(CVNAttributeName name) const { return runs_[name.id()]; }

private:
    std::u16string string_;
    std::array<AttributeRuns, CVNAttributeName::count> runs_;
};
