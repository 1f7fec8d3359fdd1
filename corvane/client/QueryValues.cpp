#include "corvane/client/QueryValues.h"

#include "corvane/client/QueryUtilities.h"

namespace CVN::Query {

const CVNDictionary* metadataAtIndex(const CVNAttributedString& text, std::int64_t index) {
    const CVNValue* const value = text.attribute(CVNMetadataAttributeName, index);
    return value ? value->dictionaryValue() : nullptr;
}

bool rangeContainsAttribute(const CVNAttributedString& text, CVNRange range, CVNAttributeName key) {
    return firstRunIn(text, key, clippedRange(text, range)).isFound() ||
           (range.length <= 0 && text.attribute(key, range.location));
}

bool Answer::containsAny(const CVNAttributedString& text, const KeyList& keys, CVNRange range) {
    return keys.hasKeyWhere([&](CVNAttributeName key) { return rangeContainsAttribute(text, range, key); });
}

std::int64_t Answer::headerLevel(const CVNAttributedString& text, const KeyList& keys, std::int64_t index) {
    const CVNValue* const value = text.attribute(keys[0], index);
    return value ? value->integerValue() : 0;
}

std::int64_t Answer::writingDirection(const CVNAttributedString& text, const KeyList& keys,
                                      std::int64_t index) {
    const CVNValue* const value = text.attribute(keys[0], index);
    const std::int64_t direction = value ? value->integerValue() : CVNDirectionNaturalValue;
    if (direction == CVNDirectionLtrValue) return 0;
    return direction == CVNDirectionRtlValue ? 1 : -1;
}

} // namespace CVN::Query
