#pragma once

#include <string>

#include "corvane/client/CVNRange.h"
#include "corvane/scan/Export.h"

/// A pair of inline markers, such as the asterisks around strong text.
class CORVANE_EXPORT CVNInlineStyle {
public:
    CVNRange openingMarkerRange;
    CVNRange closingMarkerRange; ///< at the end of the opening marker or behind it

    static CVNInlineStyle inlineWithOpeningRange(CVNRange openingRange, CVNRange closingRange) {
        return {openingRange, closingRange};
    }

    /// What stands between the markers.
    CVNRange textRange() const {
        return CVNRange::between(openingMarkerRange.end(), closingMarkerRange.location);
    }
    /// By where the opening markers begin, whatever else differs: -1 when this one comes first, 0 when they
    /// begin together, else 1.
    int compare(const CVNInlineStyle& other) const;
    std::u16string description() const;
};
