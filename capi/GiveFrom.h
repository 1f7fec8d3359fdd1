#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "capi/Arguments.h"
#include "capi/Handles.h"

namespace CApi {

/// A text as functions of the border take it, in one piece.
struct Text {
    const corvane_unit* units;
    std::int64_t length;

    bool isOne() const { return isText(units, length); }
    std::u16string_view operator*() const { return view(units, length); }
};

/// Hands over what `make` gives for one text.
template <class Made, class Result>
corvane_status giveFrom(Text text, Made (*make)(std::u16string_view text), Result** result) {
    if (!result) return CORVANE_ERROR_NULL;
    if (!text.isOne()) return CORVANE_ERROR_TEXT;
    return give(make(*text), result);
}

/// The same for two.
inline corvane_status giveFrom(Text text, Text other,
                               std::u16string (*make)(std::u16string_view text, std::u16string_view other),
                               corvane_string** result) {
    if (!result) return CORVANE_ERROR_NULL;
    if (!text.isOne() || !other.isOne()) return CORVANE_ERROR_TEXT;
    return give(make(*text, *other), result);
}

} // namespace CApi
