#include "corvane/operation/OperationTagBase.h"

#include <algorithm>
#include <iterator>

#include "corvane/inline/Hashtag.h"
#include "corvane/inline/Segments.h"
#include "corvane/operation/TrialParse.h"
#include "corvane/scan/Util.h"

namespace CVN::Operation {

using Ondo::Go;
using Ondo::Node;
using Ondo::Tree;

namespace {

/// The path that the tree has for a tag of that name.
std::u16string canonical(std::u16string_view encoded) {
    return Ondo::Segments::encode(Ondo::Segments::decode(encoded));
}

/// Up to which length a block is parsed on trial, in code units.
constexpr std::int64_t longestTrial = 4000;

/// A tag that is to replace a stretch of text, with what surrounds it there. An empty stretch is a place
/// between lines, or at the end of one.
struct Replacement {
    Ondo::Range stretch;
    std::u16string_view above; ///< what goes in before the tag
    const Node* neighbor;      ///< of the block that the tag is to be in; null where it is a line of its own
    TagPlace place;
};

/// The first-level block at an offset; none if it is too long for a trial.
Node::Iterator blockOnTrial(const Tree& tree, std::int64_t offset) {
    Node::Iterator at = leafAt(tree, std::min(offset, tree.length() - 1));
    const Node* const block = at->firstLevelAncestor();
    if (block->charCount > longestTrial) return {};
    while (at.node != block)
        at.parent();
    return at;
}

/// Whether the tag is that tag in its block, where more than its line decides.
bool comesOut(const Tree& tree, const Node::Iterator& block, const Replacement& replacement,
              std::u16string_view tag, std::u16string_view encoded) {
    const Ondo::Range& stretch = replacement.stretch;
    std::u16string text(tree.markdownIn({block.offset, stretch.offset - block.offset}));
    const auto start = static_cast<std::int64_t>((text += replacement.above).size());
    text += tag;
    if (stretch.length == 0) text += u'\n';
    text += tree.markdownIn({stretch.end(), block.end() - stretch.end()});
    const Tree trial = trialParse(tree, text);
    const Node* const node = leafAt(trial, start)->parent;
    if (!isOfType(node, Ondo::ONDO_HASHTAG_NODE)) return false;
    const Node* const neighbor = replacement.neighbor;
    return (!neighbor || node->parentBlock()->type == neighbor->parentBlock()->type) &&
           node->charCount == static_cast<std::int64_t>(tag.size()) &&
           static_cast<const Ondo::Inline::HashtagNode*>(node)->encodedSegments() == encoded;
}

/// The plainest text that is the tag in its place; empty when there is none.
std::u16string markdownIn(const Tree& tree, const Replacement& replacement, std::u16string_view encoded) {
    const std::u16string path = canonical(encoded);
    const bool isInDoubt =
        isClosing(path) && tree.length() > 0 && tree.ruleConfig().ruleInstanceByName("Hashtag");
    const Node::Iterator block =
        isInDoubt ? blockOnTrial(tree, replacement.stretch.offset) : Node::Iterator();
    for (std::u16string& text : tagSpellings(path, isInDoubt && !block.node)) {
        TagBase::forceDoubleMarkerIfNeededDueToTrailingText(text, path, replacement.place);
        if (!isSpelling(text, path, replacement.place)) continue;
        if (!block.node || comesOut(tree, block, replacement, text, path)) return text;
    }
    return {};
}

std::u16string_view textBefore(const Tree& tree, std::int64_t offset, std::int64_t length) {
    const std::int64_t start = std::max<std::int64_t>(offset - length, 0);
    return tree.markdownIn({start, offset - start});
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

/// What a typed name can't hold: tabs, line endings and other controls, the marker, a byte order mark.
bool isUntypable(char16_t c) {
    return c == u'#' || c < 0x20 || c == 0xFEFF || (c >= 0x80 && c <= 0x9F);
}

} // namespace

std::u16string TagBase::foldedPath(std::u16string_view tag) {
    return Ondo::Util::downcaseUnicode(canonical(tag));
}

bool TagBase::isMatch(const Node* node, std::u16string_view folded) {
    const auto* const tag = static_cast<const Ondo::Inline::HashtagNode*>(node);
    return Ondo::Segments::isFoldedPrefix(folded, tag->encodedSegments());
}

std::u16string TagBase::encodedSegmentsToMarkdown(std::u16string_view encoded) {
    const std::u16string path = canonical(encoded);
    for (std::u16string& text : tagSpellings(path, false)) {
        forceDoubleMarkerIfNeededDueToTrailingText(text, path, {});
        if (isSpelling(text, path, {})) return text;
    }
    return {};
}

std::u16string TagBase::encodedSegmentsToMarkdown(const Tree& tree, const Node::Iterator& node,
                                                  std::u16string_view encoded) {
    const TagPlace place{unitsBefore(tree, node), contentBehind(tree, node)};
    return markdownIn(tree, {{node.offset, node->charCount}, {}, node.node, place}, encoded);
}

std::u16string TagBase::encodedSegmentsToMarkdown(const Tree& tree, std::int64_t offset,
                                                  std::u16string_view above, std::u16string_view encoded) {
    const Node* const neighbor = above == u" " ? leafAt(tree, offset - 1).node : nullptr;
    const std::u16string text = markdownIn(tree, {{offset, 0}, above, neighbor, {}}, encoded);
    return text.empty() ? text : std::u16string(above) + text;
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
