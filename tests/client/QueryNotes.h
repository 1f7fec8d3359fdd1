#pragma once

#include <string>
#include <string_view>

#include "corvane/client/CVNAST.h"
#include "corvane/client/CVNQuery.h"
#include "corvane/scan/Util.h"
#include "tests/support/TreeCheck.h"

/// Notes with their runs, and ranges as strings, for the tests of queries.

namespace Ondo::Test {

/// A note in which "‸" was the caret, or in which "⟦⟧" stood around a selection.
struct QueriedNote {
    CVNAttributedString text;
    CVNRange selection;
};

inline CVNAttributedString annotated(std::u16string_view note) {
    return CVNAST::fromMarkdown(note).annotatedString();
}

inline QueriedNote queried(std::u16string note) {
    const auto take = [&note](char16_t mark) {
        const std::size_t at = note.find(mark);
        if (at != std::u16string::npos) note.erase(at, 1);
        return static_cast<std::int64_t>(at);
    };
    const std::int64_t caret = take(u'‸');
    const std::int64_t start = take(u'⟦');
    const std::int64_t end = take(u'⟧');
    const CVNRange selection = caret >= 0 ? CVNRange{caret, 0} : CVNRange::between(start, end);
    return {annotated(note), selection};
}

/// The note with "⟦⟧" around a range, "none" for {CVNNotFound, 0}.
inline std::string marked(const CVNAttributedString& text, CVNRange range) {
    if (!range.isFound()) return range == CVNRange::notFound() ? "none" : "not found, with a length";
    if (range.location < 0 || range.length < 0 || range.end() > text.length()) return "out of the text";
    std::u16string note(text.string());
    note.insert(static_cast<std::size_t>(range.end()), 1, u'⟧');
    note.insert(static_cast<std::size_t>(range.location), 1, u'⟦');
    return visible(note);
}

/// The text of a range, "-" for {CVNNotFound, 0}.
inline std::string part(const CVNAttributedString& text, CVNRange range) {
    if (range == CVNRange::notFound()) return "-";
    if (range.location < 0 || range.length < 0 || range.end() > text.length()) return "out of the text";
    return visible(text.string().substr(static_cast<std::size_t>(range.location),
                                        static_cast<std::size_t>(range.length)));
}

inline constexpr CVNRange wholeText = {0, CVNNotFound};
inline constexpr auto forwards = CVNEnumerationOptions::None;
inline constexpr auto backwards = CVNEnumerationOptions::Reverse;

} // namespace Ondo::Test
