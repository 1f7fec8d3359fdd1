#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace CVN::Operation {

// How tags are written. Nothing here looks at a tree: a place is the text around it.

/// How far a tag reaches, and so what is worth reading behind one, in code units.
inline constexpr std::int64_t longestTag = 502;

/// The line around a tag, as far as it decides what the tag is.
struct TagPlace {
    std::u16string before; ///< the two code units before the tag; empty at the start of the inline content
    std::u16string behind; ///< up to the end of the inline content, of the line, or longestTag
};

/// Whether a tag's name holds a character that may close what began before the tag, or end a cell: then the
/// line around it does not decide alone.
bool isClosing(std::u16string_view encoded);

/// Whether the text, put in that place, parses as the tag of an encoded path and as nothing more, as far as
/// the rules of tags go.
bool isSpelling(std::u16string_view text, std::u16string_view encoded, const TagPlace& place);

/// The texts to try for a tag without its closing marker, the plainest first; if guarded, only those in which
/// nothing closes what began before. None for names that are too long or of more than one line. A slash at
/// the end adds no segment, and keeps apart what may not stand next to the marker.
std::vector<std::u16string> tagSpellings(std::u16string_view encoded, bool isGuarded);

} // namespace CVN::Operation
