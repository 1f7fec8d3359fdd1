#include "corvane/client/CVNInlineStyle.h"

#include "corvane/client/ValueText.h"

int CVNInlineStyle::compare(const CVNInlineStyle& other) const {
    const std::int64_t own = openingMarkerRange.location;
    const std::int64_t others = other.openingMarkerRange.location;
    if (own == others) return 0;
    return own < others ? -1 : 1;
}

std::u16string CVNInlineStyle::description() const {
    using CVN::ValueText::rangeString;
    return u"CVNInlineStyle opening: " + rangeString(openingMarkerRange) + u" closing: " +
           rangeString(closingMarkerRange);
}
