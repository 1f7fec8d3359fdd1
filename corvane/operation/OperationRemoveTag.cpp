#include "corvane/operation/OperationRemoveTag.h"

#include "corvane/inline/Hashtag.h"
#include "corvane/inline/Segments.h"
#include "corvane/scan/Go.h"

namespace CVN::Operation {

using Ondo::Segments;

namespace {

/// Behind the blanks that follow a tag on its line.
std::int64_t behindBlanks(const Ondo::Tree& tree, std::int64_t offset) {
    const auto isBlankUnit = [](char16_t c) {
        return c != u'\n' && c != u'\r' && c != u'\f' && Ondo::Go::unicodeWhitespace(c);
    };
    while (isBlankUnit(unitAt(tree, offset)))
        ++offset;
    return offset;
}

} // namespace

std::vector<Result> RemoveTag::run(const Ondo::Tree& tree, std::int64_t, std::int64_t,
                                   std::int64_t selectionOffset, std::int64_t selectionLength) const {
    std::vector<Result> results;
    const std::int64_t kept = Segments::segmentCount(tag_) - 1;
    forEachTag(tree, tag_, [&](const Ondo::Node::Iterator& at) {
        const auto* const tag = static_cast<const Ondo::Inline::HashtagNode*>(at.node);
        std::u16string text;
        std::int64_t end = at.end();
        if (kept > 0) {
            text = encodedSegmentsToMarkdown(tree, at, Segments::encodePrefix(tag->segments, kept));
            if (text.empty()) return;
        } else {
            end = behindBlanks(tree, end);
        }
        Result::addToList(results, at.offset, end - at.offset, text, selectionOffset, selectionLength);
    });
    return results;
}

} // namespace CVN::Operation
