#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace CVN::Operation {

// How tags are written. Nothing here looks at a tree: a place is the text around it.

/// How far a tag reaches, and so what is worth reading behind one, in code units.
inline constexpr std::int64_t longestTag = 502;

/// The line around a tag, as far as it decides what the tag is.
struct TagPlace {
    std::u16string before;  ///< the two code units before the tag; empty at the start of the inline content
    std::u16string behind;  ///< up to the end of the inline content, of the line, or longestTag
    bool isGuarded = false; ///< what may close a construct that began earlier is to be written as an entity
};

/// Whether a tag's name holds a character that could close a construct that began before the tag.
bool hasClosingCharacter(std::u16string_view encoded);

/// Whether a text holds one that could begin such a construct.
bool hasOpeningCharacter(std::u16string_view text);

/// Whether the text, put in that place, parses as the tag of an encoded path and as nothing more.
bool isSpelling(std::u16string_view text, std::u16string_view encoded, const TagPlace& place);

/// The plainest text that parses as the tag in that place; empty when there is none.
std::u16string tagSpelling(std::u16string_view encoded, const TagPlace& place);

} // namespace CVN::Operation
