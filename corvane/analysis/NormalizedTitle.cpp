// TreeSummary::normalizedTitle(): the plain text of a stretch of a note.

#include "corvane/analysis/TreeSummary.h"

#include <string_view>

#include "corvane/inline/Entity.h"
#include "corvane/inline/LinkBase.h"
#include "corvane/inline/RawHtml.h"
#include "corvane/inline/Wikilink.h"
#include "corvane/scan/Util.h"

namespace CVN {

namespace {

using namespace Ondo;

/// Whether the link or image around a marker or attribute is a reference without a definition.
bool isUndefinedReference(const Node* part) {
    const auto* link = static_cast<const Inline::LinkBaseNode*>(part->maker);
    return link->isReference && link->connections() == 0;
}

bool hasAlias(const Node* part) {
    return !static_cast<const Inline::WikilinkNode*>(part->maker)->alias.empty();
}

/// A line break that a table cell can hold.
bool isCellBreak(const Node* rawHtml) {
    return static_cast<const Inline::RawHtmlNode*>(rawHtml)->text == u"<br>";
}

/// The pipe behind a cell, or what else ends it. Nothing needs to be kept apart from the last cell of a text.
bool isBehindCell(const Node* node) {
    const Node* const before = node->previousSibling;
    return before && before->type == ONDO_TABLE_CELL_NODE && node->nextSibling;
}

/// Whether a node's text is part of the title as it stands.
bool isVerbatim(const Node* node) {
    switch (node->type) {
    case ONDO_LINK_TEXT_OPEN_MARKER_NODE:
    case ONDO_LINK_TEXT_CLOSE_MARKER_NODE:
    case ONDO_LINK_LABEL_OPEN_MARKER_NODE:
    case ONDO_LINK_LABEL_CLOSE_MARKER_NODE:
    case ONDO_IMAGE_TEXT_OPEN_MARKER_NODE:
    case ONDO_IMAGE_TEXT_CLOSE_MARKER_NODE:
    case ONDO_IMAGE_LABEL_OPEN_MARKER_NODE:
    case ONDO_IMAGE_LABEL_CLOSE_MARKER_NODE:
        return isUndefinedReference(node);
    case ONDO_TEXT_NODE:
    case ONDO_HASHTAG_OPEN_MARKER_NODE:
    case ONDO_HASHTAG_SEPARATOR_MARKER_NODE:
    case ONDO_HASHTAG_CLOSE_MARKER_NODE:
        return true;
    case ONDO_WIKILINK_SEPARATOR_MARKER_NODE:
        return !hasAlias(node);
    default:
        return false;
    }
}

/// What stands in the title for a node that is not there as it stands.
std::u16string substitute(const Node* node, bool isInCell) {
    switch (node->type) {
    case ONDO_LINE_ENDING_NODE:
        return u" ";
    case ONDO_FOOTNOTE_DEFINITION_COLON_MARKER_NODE:
    case ONDO_LINK_REFERENCE_DEFINITION_COLON_MARKER_NODE:
        return u":";
    case ONDO_RAW_HTML_NODE:
        return isInCell && isCellBreak(node) ? u" " : u"";
    case ONDO_ENTITY_NODE:
        return static_cast<const Inline::EntityNode*>(node)->toString();
    default:
        return {};
    }
}

/// Whether nothing within the node is part of the title: what the reader does not see, or sees otherwise.
bool hidesSubtree(const Node* node) {
    switch (node->type) {
    case ONDO_ENTITY_NODE:
    case ONDO_FOOTNOTE_REFERENCE_NODE:
    case ONDO_RAW_HTML_NODE:
        return true;
    case ONDO_IMAGE_LABEL_ATTRIBUTE_NODE:
    case ONDO_IMAGE_DESTINATION_ATTRIBUTE_NODE:
    case ONDO_IMAGE_TITLE_ATTRIBUTE_NODE:
    case ONDO_LINK_LABEL_ATTRIBUTE_NODE:
    case ONDO_LINK_DESTINATION_ATTRIBUTE_NODE:
    case ONDO_LINK_TITLE_ATTRIBUTE_NODE:
        return !isUndefinedReference(node);
    case ONDO_WIKILINK_SEGMENT_ATTRIBUTE_NODE:
        return hasAlias(node);
    default:
        return false;
    }
}

/// Behind the whole of what a line ending in its midst has cut: a comment, or the title of a link.
void leaveHidden(Node::Iterator& at) {
    const Node* hidden = nullptr;
    for (const Node* node = at.node ? at->parent : nullptr; node; node = node->parent)
        if (hidesSubtree(node)) hidden = node;
    if (!hidden) return;
    const Node* const behind = hidden->nextInSequenceSkippingSubtree();
    while (at.node != behind)
        at.nextInSequenceSkippingSubtree();
}

std::u16string_view textOf(const Tree& tree, const Node::Iterator& at) {
    return tree.markdownIn({at.offset, at->charCount});
}

/// Over a hashtag, or over a space or text without a word. False, with the position as it was, for anything
/// else.
bool passInTagLine(const Tree& tree, Node::Iterator& at) {
    constexpr auto isNoWord = Go::eitherOf(Go::unicodeWhitespace, Go::unicodePunctuation);
    const bool passes = at->type == ONDO_HASHTAG_NODE || at->type == ONDO_SPACE_NODE ||
                        (at->type == ONDO_TEXT_NODE && Util::trim(textOf(tree, at), isNoWord).empty());
    if (passes) at.nextInSequenceSkippingSubtree();
    return passes;
}

/// Moves behind the line of a hashtag if the line holds nothing but hashtags. Otherwise false.
bool passTagLine(const Tree& tree, Node::Iterator& at) {
    Node::Iterator line = at;
    line.beginningOfLine();
    while (line->category < Node::Category::Inline || line->type == ONDO_SPACE_NODE)
        line.nextInSequence();
    while (line.node && line->type != ONDO_LINE_ENDING_NODE)
        if (!passInTagLine(tree, line)) return false;
    line.nextInSequence();
    at = line;
    return true;
}

/// Without whitespace at the ends, and not longer than `limit`.
std::u16string finished(std::u16string_view text, std::int64_t limit) {
    text = Util::trim(text, Go::unicodeWhitespace).substr(0, static_cast<std::size_t>(limit));
    const bool isFull = static_cast<std::int64_t>(text.size()) == limit;
    if (isFull && (text.back() & 0xFC00) == 0xD800) text.remove_suffix(1);
    return std::u16string(text);
}

} // namespace

std::u16string TreeSummary::normalizedTitle(const Tree& tree, Node::Iterator begin, std::int64_t end,
                                            std::int64_t limit) {
    CORVANE_ASSERT(limit > 0, "TreeSummary");
    std::u16string text;
    std::int64_t line = -1;    // where the walk is
    std::size_t lineStart = 0; // what was there before it
    bool isTested = true;      // whether that line is known to be no tag line
    std::int64_t cellEnd = 0;  // of the last table cell
    Node::Iterator at = begin;
    leaveHidden(at);
    while (at.node && at.offset < end && static_cast<std::int64_t>(text.size()) < limit) {
        if (at.line != line) {
            line = at.line;
            lineStart = text.size();
            isTested = limit != subtitleLimit;
        }
        if (!isTested && at->type == ONDO_HASHTAG_NODE) {
            isTested = true;
            if (passTagLine(tree, at)) {
                text.resize(lineStart);
                continue;
            }
        }
        if (at->type == ONDO_TABLE_CELL_NODE) cellEnd = at.end();
        if (isBehindCell(at.node)) text += u' ';
        if (isVerbatim(at.node)) text += textOf(tree, at);
        text += substitute(at.node, at.offset < cellEnd);
        if (hidesSubtree(at.node))
            at.nextInSequenceSkippingSubtree();
        else
            at.nextInSequence();
    }
    return finished(text, limit);
}

} // namespace CVN
