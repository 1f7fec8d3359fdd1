#pragma once

#include <string>
#include <string_view>

#include "corvane/operation/LineWalk.h"
#include "corvane/operation/Operation.h"
#include "corvane/operation/TagSpelling.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Whether the leaf belongs to a tag.
inline bool isInTag(const Ondo::Node* leaf) {
    return selfOrAncestor(leaf, Ondo::ONDO_HASHTAG_NODE);
}

/// What the commands on tags share: which tags a name means, and how a name is written.
///
/// A tag is named by its encoded path, see Ondo::Segments. A name means the tag of that path and all tags
/// below it, whatever their case; a backslash in it that escapes nothing stands for itself. The commands work
/// on the whole note: the range that run() is given doesn't count.
class CORVANE_EXPORT TagBase : public Operation {
public:
    /// The text of a tag, markers included: the plainest one that parses as that tag when it stands alone.
    /// Empty when none does, such as for a name with an empty segment or beyond 500 code units.
    static std::u16string encodedSegmentsToMarkdown(std::u16string_view encoded);

    /// The same for a name in the place of a tag of the tree: there what stands before and behind it must
    /// leave it that tag.
    static std::u16string encodedSegmentsToMarkdown(const Ondo::Tree& tree, const Ondo::Node::Iterator& node,
                                                    std::u16string_view encoded);

    /// What to insert for a name that goes in at an offset: the text `above` the tag, and the tag. That text
    /// is a blank behind a tag that ends a line, or what makes the tag begin a line. Empty when no text is
    /// the tag there.
    static std::u16string encodedSegmentsToMarkdown(const Ondo::Tree& tree, std::int64_t offset,
                                                    std::u16string_view above, std::u16string_view encoded);

    /// Appends the closing "#" to the text of a tag where text glued to its end, or to its start, would make
    /// it another tag without.
    static void forceDoubleMarkerIfNeededDueToTrailingText(std::u16string& markdown,
                                                           std::u16string_view encoded,
                                                           const TagPlace& place);

    /// Folded for comparison: without case, diacritics and widths.
    static std::u16string normalizeTag(std::u16string_view tag);

    /// Text as somebody types it as the name of a tag, without what no tag can hold: "#", controls, and
    /// blanks and slashes at its ends.
    static std::u16string sanitizeTag(std::u16string_view tag);

protected:
    /// Calls `visit` with an iterator for each tag that the name means, from the last to the first. An empty
    /// name means none.
    template <class Visit>
    static void forEachTag(const Ondo::Tree& tree, std::u16string_view tag, Visit visit) {
        if (tag.empty()) return;
        const std::u16string folded = foldedPath(tag);
        Ondo::Node::Iterator at = tree.root->begin();
        for (at.lastNodeOfSubtree(); at.node; at.previousInSequence())
            if (isOfType(at.node, Ondo::ONDO_HASHTAG_NODE) && isMatch(at.node, folded)) visit(at);
    }

private:
    /// A name as the tree would have it, folded.
    static std::u16string foldedPath(std::u16string_view tag);
    static bool isMatch(const Ondo::Node* node, std::u16string_view folded);
};

} // namespace CVN::Operation
