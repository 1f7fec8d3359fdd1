#pragma once

#include <string>
#include <string_view>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Points the wikilinks of a note elsewhere: those whose target is `from`, or begins with its segments, case
/// folded. Both targets are encoded as by Ondo::Segments, and must outlive the call.
///
/// Range and selection say nothing about where: it is the whole note, but for the title line behind front
/// matter where that is to be skipped. A link keeps its alias and the header behind `from`, as they are
/// written. One result a link, from the last to the first.
///
/// Blanks at the ends of segments are trimmed, and of more than two segments all but the first are a header.
/// The new text of a link is a wikilink to `to`, spelt so that everything around it is parsed as before;
/// where no spelling does, characters that markup uses are written as entities. Links that would be none stay
/// as they are. Nothing happens to or from an empty target, and to one with a line ending.
class CORVANE_EXPORT UpdateWikiLinks : public Operation {
public:
    UpdateWikiLinks(std::u16string_view from, std::u16string_view to, bool skipInTitle = false)
        : from_(from), to_(to), skipInTitle_(skipInTitle) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

    /// «[[target|alias]]»; an empty alias leaves no pipe. The alias goes in as it stands.
    static std::u16string encodedSegmentsToMarkdownWikiLink(std::u16string_view encoded,
                                                            std::u16string_view alias);
    /// An encoded target as it is written in a wikilink: with a backslash before each "[", "]" and "|", and
    /// before an "&" that could begin an entity.
    static std::u16string encodedSegmentsToMarkdown(std::u16string_view encoded);
    /// The reverse, with plain "/" between the segments, but for backslashes: two side by side come back as
    /// one.
    static std::u16string decodedSegmentsFromMarkdown(std::u16string_view encoded);

private:
    std::u16string_view from_;
    std::u16string_view to_;
    bool skipInTitle_;
};

} // namespace CVN::Operation
