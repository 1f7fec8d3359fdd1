#include "corvane/operation/OperationTagBase.h"

#include <algorithm>

#include "corvane/inline/Hashtag.h"
#include "corvane/inline/Segments.h"
#include "corvane/scan/Util.h"

namespace CVN::Operation {

using Ondo::Go;
using Ondo::Node;
using Ondo::Tree;

namespace {

/// How much text before a tag is looked through for constructs that its name could close.
constexpr std::int64_t guardedLength = 1000;

std::u16string_view textBefore(const Tree& tree, std::int64_t offset, std::int64_t length) {
    const std::int64_t start = std::max<std::int64_t>(offset - length, 0);
    return tree.markdownIn({start, offset - start});
}

bool isGuarded(const Tree& tree, std::int64_t offset, std::u16string_view encoded) {
    return hasClosingCharacter(encoded) && hasOpeningCharacter(textBefore(tree, offset, guardedLength));
}

std::u16string unitsBefore(const Tree& tree, const Node::Iterator& tag) {
    const Node* const previous = tag->previousSibling;
    if (!previous || isBlockMarker(previous)) return {};
    const std::u16string_view units = textBefore(tree, tag.offset, 2);
    return std::u16string(units.substr(units.find_last_of(u"\r\n") + 1));
}

/// Up to the next tag: the "#" that begins it ends all that is read behind this one.
std::u16string contentBehind(const Tree& tree, const Node::Iterator& tag) {
    const Node* const end = tag->parentBlock()->nextInSequenceSkippingSubtree();
    Node::Iterator at = tag;
    at.nextInSequenceSkippingSubtree();
    std::int64_t length = 0;
    while (at.node && at.node != end && !isLineEnding(at.node) && !isBlockMarker(at.node) &&
           length < longestTag) {
        if (!at->firstChild) length = at.end() - tag.end();
        if (isOfType(at.node, Ondo::ONDO_HASHTAG_OPEN_MARKER_NODE)) break;
        ++at;
    }
    return std::u16string(tree.markdownIn({tag.end(), std::min(length, longestTag)}));
}

TagPlace placeOf(const Tree& tree, const Node::Iterator& tag, std::u16string_view encoded) {
    return {unitsBefore(tree, tag), contentBehind(tree, tag), isGuarded(tree, tag.offset, encoded)};
}

/// What a typed name can't hold: tabs, line endings and other controls, the marker, a byte order mark.
bool isUntypable(char16_t c) {
    return c == u'#' || c < 0x20 || c == 0xFEFF || (c >= 0x80 && c <= 0x9F);
}

} // namespace

bool TagBase::isMatch(const Node* node, std::u16string_view tag) {
    return Ondo::Segments::isPrefix(tag,
                                    static_cast<const Ondo::Inline::HashtagNode*>(node)->encodedSegments());
}

std::u16string TagBase::encodedSegmentsToMarkdown(std::u16string_view encoded) {
    return tagSpelling(encoded, {});
}

std::u16string TagBase::encodedSegmentsToMarkdown(const Tree& tree, const Node::Iterator& node,
                                                  std::u16string_view encoded) {
    const TagPlace place = placeOf(tree, node, encoded);
    std::u16string text = tagSpelling(encoded, {{}, {}, place.isGuarded});
    if (text.empty()) return text;
    forceDoubleMarkerIfNeededDueToTrailingText(text, encoded, place);
    return isSpelling(text, encoded, place) ? text : tagSpelling(encoded, place);
}

std::u16string TagBase::encodedSegmentsToMarkdown(const Tree& tree, std::int64_t offset,
                                                  std::u16string_view encoded) {
    return tagSpelling(encoded, {{}, {}, isGuarded(tree, offset, encoded)});
}

void TagBase::forceDoubleMarkerIfNeededDueToTrailingText(std::u16string& markdown,
                                                         std::u16string_view encoded, const TagPlace& place) {
    if (!isSpelling(markdown, encoded, place) && isSpelling(markdown + u'#', encoded, place))
        markdown += u'#';
}

std::u16string TagBase::normalizeTag(std::u16string_view tag) {
    return Ondo::Util::widthFolding(Ondo::Util::diacriticFolding(Ondo::Util::downcaseUnicode(tag)));
}

std::u16string TagBase::sanitizeTag(std::u16string_view tag) {
    std::u16string kept;
    std::copy_if(tag.begin(), tag.end(), std::back_inserter(kept),
                 [](char16_t c) { return !isUntypable(c); });
    const auto isEdge = [](char32_t c) { return c == U'/' || Go::unicodeWhitespace(c); };
    return std::u16string(Ondo::Util::trim(std::u16string_view(kept), isEdge));
}

} // namespace CVN::Operation
