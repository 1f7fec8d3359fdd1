#include "corvane/client/CVNAttributedString.h"

#include "corvane/scan/Assert.h"

char16_t CVNAttributedString::characterAtIndex(std::int64_t index) const {
    CORVANE_ASSERT(index >= 0 && index < length(), "CVNAttributedString");
    return string_[static_cast<std::size_t>(index)];
}

void CVNAttributedString::addAttribute(CVNAttributeName name, CVNValue value, CVNRange range) {
    CORVANE_ASSERT(range.location >= 0 && range.length >= 0 && range.length <= length() - range.location,
                   "CVNAttributedString");
    runs_[name.id()].set(range.location, range.end(), std::move(value));
}

const CVNValue* CVNAttributedString::attribute(CVNAttributeName name, std::int64_t index,
                                               CVNRange* effectiveRange) const {
    return attributeAtIndexLongestEffectiveRange(name, index, effectiveRange, {0, length()});
}

const CVNValue* CVNAttributedString::attributeAtIndexLongestEffectiveRange(CVNAttributeName name,
                                                                           std::int64_t index,
                                                                           CVNRange* longestEffectiveRange,
                                                                           CVNRange inRange) const {
    if (index < 0 || index >= length()) {
        if (longestEffectiveRange) *longestEffectiveRange = CVNRange::notFound();
        return nullptr;
    }
    const AttributeRuns& all = runs(name);
    const std::int64_t found = all.firstEndingBehind(index);
    const bool isInside = found < all.size() && all[found].location <= index;
    if (longestEffectiveRange) {
        const std::int64_t before = found > 0 ? all[found - 1].end : 0;
        const std::int64_t behind = found < all.size() ? all[found].location : length();
        const CVNRange run = isInside ? CVNRange::between(all[found].location, all[found].end)
                                      : CVNRange::between(before, behind);
        const bool isInRange = index >= inRange.location && index < inRange.end();
        *longestEffectiveRange = isInRange ? CVNRange::intersect(run, inRange) : CVNRange{index, 0};
    }
    return isInside ? &all[found].value : nullptr;
}

std::vector<CVNAttribute> CVNAttributedString::attributesAtIndex(std::int64_t index,
                                                                 CVNRange* effectiveRange) const {
    std::vector<CVNAttribute> attributes;
    CVNRange common = index >= 0 && index < length() ? CVNRange{0, length()} : CVNRange::notFound();
    for (std::int64_t id = 0; common.isFound() && id < CVNAttributeName::count; ++id) {
        const CVNAttributeName name = CVNAttributeName::withId(id);
        CVNRange run;
        const CVNValue* value = attribute(name, index, &run);
        if (value) attributes.push_back({name, *value});
        common = CVNRange::intersect(common, run);
    }
    if (effectiveRange) *effectiveRange = common;
    return attributes;
}
