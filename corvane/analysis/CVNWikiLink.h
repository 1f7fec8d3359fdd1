#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/client/CVNRange.h"
#include "corvane/scan/Export.h"

/// Wikilinks of a text that no editor has open, and the ways in which their targets are written.
///
/// A title is a note's, as a person reads it. Encoded, as the tree has it, it is a path: the title, and
/// behind "/" a header in that note; a slash or backslash within either has "\" before it. In text, brackets,
/// pipes and the ampersands of what looks like an entity are escaped on top. Functions that take a text parse
/// it, in the dialect of CVNAST::ruleSet where nothing else is said: for many notes at once, not for typing.
/// A byte order mark counts as text, so cut it off before.
class CORVANE_EXPORT CVNWikiLink {
public:
    // Writing

    /// A title as a path of one segment.
    static std::u16string encodeSegment(std::u16string_view segment);
    /// A title as it may stand in "[[...]]".
    static std::u16string encodeTitle(std::u16string_view title);
    static std::u16string wikiLinkStringForTitle(std::u16string_view title);
    /// With an empty alias as the one above.
    static std::u16string wikiLinkStringForTitle(std::u16string_view title, std::u16string_view alias);
    static std::u16string wikiLinkStringForTitleAndHeader(std::u16string_view title,
                                                          std::u16string_view header);

    // Reading

    /// The title, and what follows it as one element, with "/" between its segments; none for an empty link.
    static std::vector<std::u16string> componentsForWikiLink(std::u16string_view wikiLink);
    /// The title of an encoded path; null when there is none.
    static std::optional<std::u16string> decodeTitleForWikiLink(std::u16string_view wikiLink);
    /// Of each; an empty one where there is none.
    static std::vector<std::u16string> decodeTitlesForWikiLinks(std::span<const std::u16string> wikiLinks);
    /// What is written in "[[...]]" without its escapes, in two steps: those of a path, and then those of
    /// brackets, pipes, backslashes and ampersands in what is left. So encodeTitle() is not undone for a
    /// title with two backslashes side by side: one comes back.
    static std::u16string decodeWikiLink(std::u16string_view wikiLink);

    // Texts

    /// Points the links to a note to another one, but for those in the title line if that is to be skipped.
    static std::u16string updateWikiLinkWithTitle(std::u16string_view title, std::u16string_view to,
                                                  bool skipInTitle, std::u16string_view string);
    /// Whether a note's title, found in running text, may be offered as a link: it stands apart from the
    /// words around it, and begins in no tag, link, image, wikilink or "<...>". Logograms are words of their
    /// own. False for a range that is empty or outside the text. The dialect is always `Extended`.
    static bool validateImplictBacklinkForRange(CVNRange range, std::u16string_view string);
};
