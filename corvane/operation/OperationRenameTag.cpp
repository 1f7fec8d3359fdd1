#include "corvane/operation/OperationRenameTag.h"

#include "corvane/inline/Hashtag.h"
#include "corvane/inline/Segments.h"

namespace CVN::Operation {

std::vector<Result> RenameTag::run(const Ondo::Tree& tree, std::int64_t, std::int64_t,
                                   std::int64_t selectionOffset, std::int64_t selectionLength) const {
    std::vector<Result> results;
    if (encodedSegmentsToMarkdown(to_).empty()) return results;
    forEachTag(tree, from_, [&](const Ondo::Node::Iterator& at) {
        const std::u16string old = static_cast<const Ondo::Inline::HashtagNode*>(at.node)->encodedSegments();
        const std::u16string path = Ondo::Segments::replacePrefix(old, from_, to_);
        if (path == old) return;
        const std::u16string text = encodedSegmentsToMarkdown(tree, at, path);
        if (text.empty()) return;
        Result::addToList(results, at.offset, at->charCount, text, selectionOffset, selectionLength);
    });
    return results;
}

} // namespace CVN::Operation
