#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

#include "capi/corvane.h"
#include "corvane/client/CVNAttributeName.h"
#include "corvane/client/CVNListInfo.h"
#include "corvane/client/CVNRange.h"

/// Tests of what comes over the border, and conversions of what goes over it.
///
/// A function of the border begins with its tests, in the order of the statuses: nulls, texts, numbers,
/// names, ranges, state. Behind them nothing can fail.
namespace CApi {

/// No text in memory has more code units.
inline constexpr std::int64_t maximumLength = std::numeric_limits<std::ptrdiff_t>::max() / 2;

constexpr bool isText(const corvane_unit* text, std::int64_t length) {
    return length >= 0 && length <= maximumLength && (text || length == 0);
}

constexpr std::u16string_view view(const corvane_unit* text, std::int64_t length) {
    return {text, static_cast<std::size_t>(length)};
}

/// Whether a list of texts is one: it may be null if it has none.
constexpr bool areTexts(const corvane_text* texts, std::int64_t count) {
    if (count < 0 || count > maximumLength || (!texts && count > 0)) return false;
    for (std::int64_t i = 0; i < count; ++i)
        if (!isText(texts[i].units, texts[i].length)) return false;
    return true;
}

constexpr bool isWithin(std::int64_t location, std::int64_t length, std::int64_t total) {
    return location >= 0 && length >= 0 && location <= total && length <= total - location;
}

constexpr bool isKey(corvane_key key) {
    return key >= 0 && key < CVNAttributeName::count;
}

/// CVNNotFound is CORVANE_NOT_FOUND.
constexpr corvane_range toC(const CVNRange& range) {
    return {range.location, range.length};
}
static_assert(CVNNotFound == CORVANE_NOT_FOUND);

inline corvane_list_info toC(const CVNListInfo& info) {
    return {info.listLevel,        info.itemIndex, info.listType,
            info.listSubType,      info.taskType,  info.orderedListItemNumber,
            info.relativeListLevel};
}

} // namespace CApi
