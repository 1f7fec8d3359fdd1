#include "corvane/client/QueryInside.h"

namespace CVN::Query {

namespace {

template <class Predicate>
bool holdsAtAnEnd(const CVNAttributedString& text, CVNRange range, Predicate&& predicate) {
    const std::int64_t reach = range.length > 0 ? range.length : 1;
    if (range.location < 0 || range.location >= text.length() || reach > text.length() - range.location)
        return false;
    return predicate(range.location) || predicate(range.location + reach - 1);
}

} // namespace

bool isRangeInside(const CVNAttributedString& text, CVNRange range, CVNAttributeName key) {
    return holdsAtAnEnd(text, range,
                        [&](std::int64_t index) { return text.attribute(key, index) != nullptr; });
}

bool Answer::isInsideAny(const CVNAttributedString& text, const KeyList& keys, CVNRange range) {
    return keys.hasKeyWhere([&](CVNAttributeName key) { return isRangeInside(text, range, key); });
}

bool Answer::isInsideTask(const CVNAttributedString& text, const KeyList& keys, CVNRange range) {
    return holdsAtAnEnd(text, range, [&](std::int64_t index) {
        const CVNValue* const value = text.attribute(keys[0], index);
        const CVNListInfo* const info = value ? value->listInfoValue() : nullptr;
        return info && info->isTaskList();
    });
}

} // namespace CVN::Query
