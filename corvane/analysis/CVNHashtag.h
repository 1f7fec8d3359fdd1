#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/scan/Export.h"

/// Tags of a text that no editor has open: each function parses the text, runs one command on it and answers
/// the new text. For many notes at once, not for typing. Texts are parsed in the dialect of
/// CVNAST::ruleSet; a byte order mark counts as text, so cut it off before.
///
/// A tag is called by its name, an encoded path: "/" between the components, with "\" before a slash or
/// backslash within one. A name that is not found, or that no tag can have, changes nothing.
class CORVANE_EXPORT CVNHashtag {
public:
    // Names

    /// The tag as it is written in text, with its markers. Empty for a name that no tag can have.
    static std::u16string hashtagStringForTagName(std::u16string_view name);
    static std::vector<std::u16string> hashtagStringsForTagNames(std::span<const std::u16string> names);
    /// Folded for comparison: without case, diacritics and widths.
    static std::u16string normalizeTagName(std::u16string_view name);
    /// Text as somebody types it as a name, without what no tag can hold.
    static std::u16string sanitizeTagName(std::u16string_view name);
    static std::u16string tagNameFromComponents(std::span<const std::u16string> components);
    /// Without empty ones.
    static std::vector<std::u16string> componentsForForTagName(std::u16string_view name);

    // Texts

    static std::u16string addTagNameToTheTopOfString(std::u16string_view name, std::u16string_view string);
    static std::u16string addTagNameToTheBottomOfString(std::u16string_view name, std::u16string_view string);
    /// One after the other, each into the text that the ones before left.
    static std::u16string addTagsNamesToTheTopOfString(std::span<const std::u16string> names,
                                                       std::u16string_view string);
    static std::u16string addTagsNamesToTheBottomOfString(std::span<const std::u16string> names,
                                                          std::u16string_view string);
    /// Takes the last component of the name, and what is below it, off all tags that begin with it: without
    /// "a/b", "#a/b/c" is "#a". A tag of which nothing is left goes with the blanks behind it.
    static std::u16string removeTagName(std::u16string_view name, std::u16string_view string);
    /// A tag below it keeps what is behind the name.
    static std::u16string renameTagName(std::u16string_view name, std::u16string_view newTagName,
                                        std::u16string_view string);
    /// Makes plain text of the tags and of those below them.
    static std::u16string escapeTagsNames(std::span<const std::u16string> names, std::u16string_view string);
};
