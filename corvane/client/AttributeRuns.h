#pragma once

#include <cstdint>
#include <vector>

#include "corvane/client/CVNValue.h"
#include "corvane/scan/Export.h"

/// A stretch with a value.
struct AttributeRun {
    std::int64_t location;
    std::int64_t end;
    CVNValue value;
};

/// The runs of one key over a text: in order, not empty, without overlap; those that touch are unequal.
///
/// There is a gap where the last run was added, as in a text buffer, so that adding in order of location
/// moves nothing but what lies between one run and the next, however the runs nest.
class CORVANE_EXPORT AttributeRuns {
public:
    std::int64_t size() const { return static_cast<std::int64_t>(before_.size() + behind_.size()); }
    const AttributeRun& operator[](std::int64_t index) const;

    /// The index of the first run that ends behind `location`; size() when there is none.
    std::int64_t firstEndingBehind(std::int64_t location) const;

    /// Puts a value over [location, end), in place of what is there. Nothing happens when that is empty.
    void set(std::int64_t location, std::int64_t end, CVNValue value);

private:
    void moveGap(std::int64_t location);
    void clearUntil(std::int64_t end);
    void append(AttributeRun run);

    std::vector<AttributeRun> before_; ///< runs that lie before the gap, in order
    std::vector<AttributeRun> behind_; ///< runs behind it, the last one first
};
