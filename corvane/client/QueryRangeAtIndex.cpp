#include "corvane/client/QueryRangeAtIndex.h"

#include "corvane/client/QueryConstructs.h"

namespace CVN::Query {

CVNRange Answer::constructRange(const CVNAttributedString& text, const KeyList& keys, std::int64_t index,
                                CVNRange* markerRange) {
    CVNRange range = CVNRange::notFound();
    keys.hasKeyWhere([&](CVNAttributeName key) {
        const ConstructKeys construct = constructKeys(key);
        range = constructAt(text, construct, index);
        if (markerRange && range.isFound() && construct.neighbours != Neighbours::Merged)
            *markerRange = firstRunIn(text, construct.markerKey, range);
        return range.isFound();
    });
    return range;
}

CVNRange Answer::closingMarkerRange(const CVNAttributedString& text, const KeyList& keys, std::int64_t index,
                                    CVNRange*) {
    CVNRange range = CVNRange::notFound();
    keys.hasKeyWhere([&](CVNAttributeName key) {
        const CVNValue* const value = text.attribute(key, index);
        const bool closes = value && *value == CVNValue::integer(CVNCloseMarkerValue);
        if (closes) range = longestRangeForAttribute(text, key, index);
        return closes;
    });
    return range;
}

CVNRange Answer::referenceLabelRange(const CVNAttributedString& text, const KeyList& keys, std::int64_t index,
                                     CVNRange*) {
    const CVNRange reference = constructAt(text, constructKeys(keys[0]), index);
    if (!reference.isFound()) {
        const CVNRange definition = constructAt(text, constructKeys(keys[1]), index);
        return firstRunIn(text, CVNReferenceDefinitionLabelAttributeName, definition);
    }
    const CVNRange label = firstRunIn(text, CVNReferenceLabelAttributeName, reference);
    return label.isFound() ? label : firstRunIn(text, CVNReferenceTextAttributeName, reference);
}

} // namespace CVN::Query
