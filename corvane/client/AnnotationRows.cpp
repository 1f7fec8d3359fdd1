// One of the files that compose: a row asks what an operation knows of indentation.
#include "corvane/client/AnnotationRows.h"

#include <array>
#include <cstddef>
#include <iterator>
#include <string>
#include <utility>

#include "corvane/block/AtxHeading.h"
#include "corvane/block/Callout.h"
#include "corvane/block/FencedCode.h"
#include "corvane/block/List.h"
#include "corvane/block/MathBlock.h"
#include "corvane/block/Table.h"
#include "corvane/client/AlignmentNumber.h"
#include "corvane/client/CVNAST.h"
#include "corvane/client/CVNMetadata.h"
#include "corvane/inline/Autolink.h"
#include "corvane/inline/Email.h"
#include "corvane/inline/Entity.h"
#include "corvane/inline/FoldMarker.h"
#include "corvane/inline/Hashtag.h"
#include "corvane/inline/Highlight.h"
#include "corvane/inline/LinkBase.h"
#include "corvane/inline/MathSpan.h"
#include "corvane/inline/RawHtml.h"
#include "corvane/inline/Url.h"
#include "corvane/inline/Wikilink.h"
#include "corvane/operation/OperationIndent.h"

namespace {

using namespace Ondo;
using Inline::FoldMarkerNode;
using MaybeValue = std::optional<CVNValue>;

constexpr std::int64_t open = CVNOpenMarkerValue;
constexpr std::int64_t close = CVNCloseMarkerValue;
constexpr AnnotationRow::Value isTrue;

template <class T>
const T& as(const Annotator& at) {
    return static_cast<const T&>(at.node());
}

/// The construct that a marker or attribute belongs to.
template <class T>
const T& makerAs(const Annotator& at) {
    return static_cast<const T&>(*at.node().maker);
}

MaybeValue trueIf(bool condition) {
    return condition ? MaybeValue(CVNValue::boolean(true)) : std::nullopt;
}

/// The string of a node that has one.
template <class T, std::u16string T::*field>
MaybeValue stringOf(const Annotator& at) {
    return CVNValue::string(as<T>(at).*field);
}

template <class T, std::u16string (T::*method)() const>
MaybeValue stringOf(const Annotator& at) {
    return CVNValue::string((as<T>(at).*method)());
}

template <class T, std::u16string T::*field>
MaybeValue makersString(const Annotator& at) {
    return CVNValue::string(makerAs<T>(at).*field);
}

// Ranges

CVNRange trimmed(const Annotator& at) {
    return at.trimmedRange(false);
}

CVNRange trimmedKeepingSpace(const Annotator& at) {
    return at.trimmedRange(true);
}

CVNRange withoutBreak(const Annotator& at, CVNRange range) {
    CVNAST::removeLineBreakFromEndOfRange(range, at.allText());
    return range;
}

CVNRange lessBreak(const Annotator& at) {
    return withoutBreak(at, at.nodeRange());
}

CVNRange withLineBreak(const Annotator& at) {
    CVNRange range = at.nodeRange();
    CVNAST::addLineBreakToEndOfRange(range, at.allText());
    return range;
}

CVNRange widened(CVNRange range, std::int64_t atStart, std::int64_t atEnd) {
    return CVNRange::between(range.location - atStart, range.end() + atEnd);
}

/// The quotes, which are no part of the attribute.
CVNRange withQuotes(const Annotator& at) {
    return widened(at.nodeRange(), 1, 1);
}

CVNRange withAngleBrackets(const Annotator& at) {
    const std::int64_t location = at.nodeRange().location;
    const bool isBracketed = location > 0 && at.allText()[static_cast<std::size_t>(location - 1)] == u'<';
    return isBracketed ? widened(at.nodeRange(), 1, 1) : at.nodeRange();
}

CVNRange withoutDollars(const Annotator& at) {
    return widened(at.nodeRange(), -1, -1);
}

/// Behind the last line of an open fence there is more code to come.
template <NodeType closeMarker>
CVNRange codeRange(const Annotator& at) {
    const bool isClosed =
        at.node().hasChildWhere([](const Node* child) { return child->type == closeMarker; });
    return isClosed ? withoutBreak(at, trimmed(at)) : trimmed(at);
}

CVNRange toEndOfBreak(const Annotator& at) {
    CVNRange range = at.nodeRange();
    for (const Node* next = at.node().nextSibling; next; next = next->nextSibling)
        range.length += next->charCount;
    return withoutBreak(at, range);
}

// Headings, code, math

MaybeValue headingLevel(const Annotator& at) {
    return CVNValue::integer(FoldMarkerNode::headingLevel(&at.node()));
}

MaybeValue indentation(const Annotator& at) {
    const auto [isIndentation, width] =
        CVN::Operation::Indent::spaceAsIndentation(&at.node(), at.text(), at.block());
    return isIndentation && width >= 1 ? MaybeValue(CVNValue::integer(width)) : std::nullopt;
}

MaybeValue isFoldableHeading(const Annotator& at) {
    return trueIf(FoldMarkerNode::isContentHeadOfFoldable(at.node().parentBlock()));
}

// Quotes, callouts, lists

/// From the start of the head to a marker of the quote, which stands in the head's first line.
std::int64_t offsetOfMarker(const Node& head, const Node* quote) {
    std::int64_t offset = 0;
    for (const Node* child = head.firstChild; child && child->maker != quote; child = child->nextSibling)
        offset += child->charCount;
    return offset;
}

MaybeValue calloutType(const Annotator& at) {
    return CVNValue::integer(static_cast<std::int64_t>(as<Block::CalloutHeadNode>(at).calloutType));
}

CVNRange calloutRange(const Annotator& at) {
    return widened(at.nodeRange(), -offsetOfMarker(at.node(), at.node().parent), 0);
}

CVNRange calloutTitleRange(const Annotator& at) {
    const Range title = as<Block::CalloutHeadNode>(at).titleRangeFrom(at.nodeRange().location);
    return CVNRange::of(title);
}

MaybeValue listInfo(const Annotator& at) {
    return CVNValue::listInfo(at.listInfo());
}

MaybeValue listMarker(const Annotator& at) {
    return CVNValue::integer(makerAs<Block::ListItemNode>(at).isOrdered() ? CVNListInfo::Ordered
                                                                          : CVNListInfo::Unordered);
}

MaybeValue isFoldableItem(const Annotator& at) {
    const Node* first = at.node().maker->firstChild;
    return trueIf(first && FoldMarkerNode::isContentHeadOfFoldable(first));
}

// Tables

using Alignment = Block::TableNode::ColumnAlignment;

MaybeValue alignmentValue(Alignment alignment) {
    return CVNValue::integer(alignmentNumber(alignment));
}

MaybeValue tableSize(const Annotator& at) {
    const auto columns = static_cast<std::int64_t>(as<Block::TableNode>(at).alignments.size());
    CVNDictionary size;
    size.emplace(CVNTableRowCountName, CVNValue::integer(at.node().lineCount - 1));
    size.emplace(CVNTableColumnCountName, CVNValue::integer(columns));
    return CVNValue::dictionary(std::move(size));
}

MaybeValue cellAlignment(const Annotator& at) {
    return alignmentValue(as<Block::TableCellNode>(at).alignment);
}

MaybeValue delimiterAlignment(const Annotator& at) {
    const std::u16string_view text = at.text();
    const bool isLeft = !text.empty() && text.front() == u':';
    const bool isRight = !text.empty() && text.back() == u':';
    if (isLeft && isRight) return alignmentValue(Alignment::Center);
    if (isLeft) return alignmentValue(Alignment::Left);
    return alignmentValue(isRight ? Alignment::Right : Alignment::Default);
}

std::int64_t spaceLength(const Node* node) {
    return node && node->type == ONDO_SPACE_NODE ? node->charCount : 0;
}

CVNRange delimiterWithSpaces(const Annotator& at) {
    return widened(at.nodeRange(), spaceLength(at.node().previousSibling),
                   spaceLength(at.node().nextSibling));
}

CVNRange cellContent(const Annotator& at) {
    const Node* first = at.node().firstChild;
    const Node* last = at.node().lastChild;
    return widened(at.nodeRange(), -spaceLength(first), last != first ? -spaceLength(last) : 0);
}

// Definitions, links, images

MaybeValue label(const Annotator& at) {
    return CVNValue::string(makerAs<LabeledNode>(at).label);
}

MaybeValue connections(const Annotator& at) {
    return CVNValue::integer(as<LabeledNode>(at).connections());
}

bool isReference(const Annotator& at) {
    const Node* link = at.node().maker ? at.node().maker : &at.node();
    return static_cast<const Inline::LinkBaseNode*>(link)->isReference;
}

/// A key of links and images comes in two forms, of which a node has one.
MaybeValue trueOfInline(const Annotator& at) {
    return trueIf(!isReference(at));
}

MaybeValue trueOfReference(const Annotator& at) {
    return trueIf(isReference(at));
}

MaybeValue connectionsOfReference(const Annotator& at) {
    return isReference(at) ? connections(at) : std::nullopt;
}

template <std::int64_t value, bool ofReference>
MaybeValue linkMarker(const Annotator& at) {
    return isReference(at) == ofReference ? MaybeValue(CVNValue::integer(value)) : std::nullopt;
}

MaybeValue destination(const Annotator& at) {
    return CVNValue::string(makerAs<Inline::LinkBaseNode>(at).destination());
}

// Other inlines

MaybeValue highlightColor(const Annotator& at) {
    const std::int64_t color = as<Inline::HighlightNode>(at).color;
    return CVNValue::integer(color >= 1 && color <= 5 ? color : 0);
}

MaybeValue treeLevel(const Annotator& at) {
    return CVNValue::integer(at.level());
}

/// Arrows that touch are numbered, so that they stay apart.
MaybeValue arrowNumber(const Annotator& at) {
    const CVNValue* before = at.valueBefore(CVNArrowAttributeName);
    return CVNValue::integer(before ? before->integerValue() + 1 : 1);
}

MaybeValue trueOfUri(const Annotator& at) {
    return trueIf(!as<Inline::AutolinkNode>(at).isAddress());
}

MaybeValue trueOfAddress(const Annotator& at) {
    return trueIf(as<Inline::AutolinkNode>(at).isAddress());
}

MaybeValue metadata(const Annotator& at) {
    std::optional<CVNDictionary> dictionary = CVNMetadataFromComment(as<Inline::RawHtmlNode>(at).text);
    return dictionary ? MaybeValue(CVNValue::dictionary(std::move(*dictionary))) : std::nullopt;
}

/// Up to the last line ending, which stays visible.
CVNRange foldRange(const Annotator& at) {
    const CVNRange marker = at.nodeRange();
    Node* head = at.node().parentBlock();
    Node* tail = head ? FoldMarkerNode::foldableTailFromContentHead(head) : nullptr;
    if (!tail) return marker;
    const Node* last = tail->lastNodeOfSubtree();
    const bool endsLine = last->category == Node::Category::LineEnding;
    const bool isInItem = head->parent->type == ONDO_LIST_ITEM_NODE;
    const std::int64_t end = isInItem ? at.itemRange().end() : at.locationOf(tail->endOffset());
    return CVNRange::unite(marker,
                           CVNRange::between(marker.location, end - (endsLine ? last->charCount : 0)));
}

// The rows

/// A fixed number that marks what kind of the construct it is.
constexpr std::int64_t quoteMarker = 3;
constexpr std::int64_t footnoteReference = 1;
constexpr std::int64_t footnoteDefinition = 2;

/// In the order of types. Where no range is given, it is that of the node.
constexpr AnnotationRow rows[] = {
    {ONDO_SPACE_NODE, CVNIndentSpaceAttributeName, indentation},
    {ONDO_ATX_HEADING_NODE, CVNHeadingAttributeName, headingLevel, trimmed},
    {ONDO_ATX_HEADING_OPEN_MARKER_NODE, CVNHeadingMarkerAttributeName, CVNHeadingATXValue},
    {ONDO_ATX_HEADING_OPEN_MARKER_NODE, CVNFoldableAttributeName, isFoldableHeading},
    {ONDO_BLOCK_QUOTE_NODE, CVNBlockquoteAttributeName, isTrue, trimmedKeepingSpace},
    {ONDO_BLOCK_QUOTE_MARKER_NODE, CVNBlockquoteMarkerAttributeName, quoteMarker},
    {ONDO_FENCED_CODE_NODE, CVNFencedCodeAttributeName, isTrue,
     codeRange<ONDO_FENCED_CODE_CLOSE_MARKER_NODE>},
    {ONDO_FENCED_CODE_OPEN_MARKER_NODE, CVNFencedCodeMarkerAttributeName, open},
    {ONDO_FENCED_CODE_INFO_ATTRIBUTE_NODE, CVNFencedCodeLanguageAttributeName,
     makersString<Block::FencedCodeNode, &Block::FencedCodeNode::language>},
    {ONDO_FENCED_CODE_CLOSE_MARKER_NODE, CVNFencedCodeMarkerAttributeName, close},
    {ONDO_FOOTNOTE_DEFINITION_NODE, CVNFootNoteAttributeName, footnoteDefinition},
    {ONDO_FOOTNOTE_DEFINITION_LABEL_OPEN_MARKER_NODE, CVNFootNoteMarkerAttributeName, open},
    {ONDO_FOOTNOTE_DEFINITION_LABEL_ATTRIBUTE_NODE, CVNFootNoteLabelAttributeName, label},
    {ONDO_FOOTNOTE_DEFINITION_LABEL_CLOSE_MARKER_NODE, CVNFootNoteMarkerAttributeName, close},
    {ONDO_FOOTNOTE_DEFINITION_COLON_MARKER_NODE, CVNFootNoteMarkerAttributeName, close},
    {ONDO_FOOTNOTE_DEFINITION_CONTENT_NODE, CVNFootNoteTextAttributeName, isTrue},
    {ONDO_HTML_BLOCK_NODE, CVNHTMLBlockAttributeName, isTrue, trimmed},
    {ONDO_INDENTED_CODE_NODE, CVNIndentedCodeAttributeName, isTrue, trimmedKeepingSpace},
    {ONDO_LINK_REFERENCE_DEFINITION_NODE, CVNReferenceDefinitionAttributeName, connections, lessBreak},
    {ONDO_LINK_REFERENCE_DEFINITION_LABEL_OPEN_MARKER_NODE, CVNReferenceMarkerAttributeName, open},
    {ONDO_LINK_REFERENCE_DEFINITION_LABEL_ATTRIBUTE_NODE, CVNReferenceDefinitionLabelAttributeName, isTrue},
    {ONDO_LINK_REFERENCE_DEFINITION_LABEL_CLOSE_MARKER_NODE, CVNReferenceMarkerAttributeName, close},
    {ONDO_LINK_REFERENCE_DEFINITION_COLON_MARKER_NODE, CVNReferenceMarkerAttributeName, close},
    {ONDO_LINK_REFERENCE_DEFINITION_DESTINATION_OPEN_MARKER_NODE, CVNAutoLinkMarkerAttributeName, open},
    {ONDO_LINK_REFERENCE_DEFINITION_DESTINATION_ATTRIBUTE_NODE, CVNReferenceDefinitionLinkAttributeName,
     isTrue},
    {ONDO_LINK_REFERENCE_DEFINITION_DESTINATION_CLOSE_MARKER_NODE, CVNAutoLinkMarkerAttributeName, close},
    {ONDO_LINK_REFERENCE_DEFINITION_TITLE_OPEN_MARKER_NODE, CVNReferenceMarkerAttributeName, open},
    {ONDO_LINK_REFERENCE_DEFINITION_TITLE_ATTRIBUTE_NODE, CVNReferenceDefinitionTitleAttributeName, isTrue},
    {ONDO_LINK_REFERENCE_DEFINITION_TITLE_CLOSE_MARKER_NODE, CVNReferenceMarkerAttributeName, close},
    {ONDO_LIST_NODE, CVNListAttributeName, isTrue, trimmedKeepingSpace},
    {ONDO_LIST_ITEM_NODE, CVNListItemAttributeName, listInfo, trimmedKeepingSpace},
    {ONDO_LIST_ITEM_MARKER_NODE, CVNListMarkerAttributeName, listMarker},
    {ONDO_LIST_ITEM_MARKER_NODE, CVNFoldableAttributeName, isFoldableItem},
    {ONDO_SETEXT_HEADING_NODE, CVNHeadingAttributeName, headingLevel, trimmed},
    {ONDO_SETEXT_HEADING_MARKER_NODE, CVNHeadingMarkerAttributeName, CVNHeadingSETEXValue, withLineBreak},
    {ONDO_TABLE_NODE, CVNTableAttributeName, tableSize, lessBreak},
    {ONDO_TABLE_PIPE_MARKER_NODE, CVNTableMarkerAttributeName, isTrue},
    {ONDO_TABLE_DELIMITER_MARKER_NODE, CVNTableCellContentAttributeName, delimiterAlignment},
    {ONDO_TABLE_DELIMITER_MARKER_NODE, CVNTableCellAttributeName, isTrue, delimiterWithSpaces},
    {ONDO_TABLE_CELL_NODE, CVNTableCellAttributeName, cellAlignment},
    {ONDO_TABLE_CELL_NODE, CVNTableCellContentAttributeName, cellAlignment, cellContent},
    {ONDO_THEMATIC_BREAK_MARKER_NODE, CVNThematicBreakAttributeName, isTrue, toEndOfBreak},
    {ONDO_YAML_NODE, CVNYamlAttributeName, isTrue, lessBreak},
    {ONDO_YAML_NODE, CVNFencedCodeAttributeName, isTrue, lessBreak},
    {ONDO_YAML_OPEN_MARKER_NODE, CVNFencedCodeMarkerAttributeName, open},
    {ONDO_YAML_CLOSE_MARKER_NODE, CVNFencedCodeMarkerAttributeName, close},
    {ONDO_AUTOLINK_NODE, CVNAutoLinkURLAttributeName, trueOfUri},
    {ONDO_AUTOLINK_NODE, CVNAutoLinkEmailAttributeName, trueOfAddress},
    {ONDO_AUTOLINK_OPEN_MARKER_NODE, CVNAutoLinkMarkerAttributeName, open},
    {ONDO_AUTOLINK_CLOSE_MARKER_NODE, CVNAutoLinkMarkerAttributeName, close},
    {ONDO_ESCAPE_MARKER_NODE, CVNEscapeAttributeName, isTrue},
    {ONDO_CODE_SPAN_NODE, CVNCodeAttributeName, isTrue},
    {ONDO_CODE_SPAN_OPEN_MARKER_NODE, CVNCodeMarkerAttributeName, open},
    {ONDO_CODE_SPAN_CLOSE_MARKER_NODE, CVNCodeMarkerAttributeName, close},
    {ONDO_COLOR_NODE, CVNColorAttributeName, isTrue},
    {ONDO_COLOR_MARKER_NODE, CVNColorMarkerAttributeName, isTrue},
    {ONDO_EMAIL_NODE, CVNAutoLinkEmailAttributeName,
     stringOf<Inline::EmailNode, &Inline::EmailNode::address>},
    {ONDO_EMPHASE_NODE, CVNEmphasisAttributeName, isTrue},
    {ONDO_EMPHASE_OPEN_MARKER_NODE, CVNEmphasisMarkerAttributeName, open},
    {ONDO_EMPHASE_CLOSE_MARKER_NODE, CVNEmphasisMarkerAttributeName, close},
    {ONDO_ENTITY_NODE, CVNHTMLEntityAttributeName,
     stringOf<Inline::EntityNode, &Inline::EntityNode::toString>},
    {ONDO_ENTITY_OPEN_MARKER_NODE, CVNHTMLEntityMarkerAttributeName, open},
    {ONDO_ENTITY_CLOSE_MARKER_NODE, CVNHTMLEntityMarkerAttributeName, close},
    {ONDO_FOOTNOTE_REFERENCE_NODE, CVNFootNoteAttributeName, footnoteReference},
    {ONDO_FOOTNOTE_REFERENCE_LABEL_OPEN_MARKER_NODE, CVNFootNoteMarkerAttributeName, open},
    {ONDO_FOOTNOTE_REFERENCE_LABEL_ATTRIBUTE_NODE, CVNFootNoteLabelAttributeName, label},
    {ONDO_FOOTNOTE_REFERENCE_LABEL_CLOSE_MARKER_NODE, CVNFootNoteMarkerAttributeName, close},
    {ONDO_HARD_LINE_BREAK_MARKER_NODE, CVNHardLinebreakAttributeName, isTrue},
    {ONDO_HASHTAG_NODE, CVNHashtagAttributeName,
     stringOf<Inline::HashtagNode, &Inline::HashtagNode::encodedSegments>},
    {ONDO_HASHTAG_OPEN_MARKER_NODE, CVNHashtagMarkerAttributeName, open},
    {ONDO_HASHTAG_SEGMENT_ATTRIBUTE_NODE, CVNHashtagSegmentAttributeName, isTrue},
    {ONDO_HASHTAG_SEPARATOR_MARKER_NODE, CVNHashtagSeparatorAttributeName, isTrue},
    {ONDO_HASHTAG_CLOSE_MARKER_NODE, CVNHashtagMarkerAttributeName, close},
    {ONDO_HIGHLIGHT_NODE, CVNHighlighterAttributeName, isTrue},
    {ONDO_HIGHLIGHT_NODE, CVNHighlighterColorAttributeName, highlightColor},
    {ONDO_HIGHLIGHT_OPEN_MARKER_NODE, CVNHighlighterMarkerAttributeName, open},
    {ONDO_HIGHLIGHT_OPEN_MARKER_NODE, CVNHighlighterMarkerNestingAttributeName, treeLevel},
    {ONDO_HIGHLIGHT_CLOSE_MARKER_NODE, CVNHighlighterMarkerAttributeName, close},
    {ONDO_HIGHLIGHT_CLOSE_MARKER_NODE, CVNHighlighterMarkerNestingAttributeName, treeLevel},
    {ONDO_IMAGE_NODE, CVNImageAttributeName, trueOfInline},
    {ONDO_IMAGE_NODE, CVNReferenceAttributeName, connectionsOfReference},
    {ONDO_IMAGE_TEXT_OPEN_MARKER_NODE, CVNImageMarkerAttributeName, linkMarker<open, false>},
    {ONDO_IMAGE_TEXT_OPEN_MARKER_NODE, CVNReferenceMarkerAttributeName, linkMarker<open, true>},
    {ONDO_IMAGE_TEXT_ATTRIBUTE_NODE, CVNImageLabelAttributeName, trueOfInline},
    {ONDO_IMAGE_TEXT_ATTRIBUTE_NODE, CVNReferenceTextAttributeName, trueOfReference},
    {ONDO_IMAGE_TEXT_CLOSE_MARKER_NODE, CVNImageMarkerAttributeName, linkMarker<close, false>},
    {ONDO_IMAGE_TEXT_CLOSE_MARKER_NODE, CVNReferenceMarkerAttributeName, linkMarker<close, true>},
    {ONDO_IMAGE_LABEL_OPEN_MARKER_NODE, CVNImageMarkerAttributeName, linkMarker<open, false>},
    {ONDO_IMAGE_LABEL_OPEN_MARKER_NODE, CVNReferenceMarkerAttributeName, linkMarker<open, true>},
    {ONDO_IMAGE_LABEL_ATTRIBUTE_NODE, CVNReferenceLabelAttributeName, isTrue},
    {ONDO_IMAGE_LABEL_CLOSE_MARKER_NODE, CVNImageMarkerAttributeName, linkMarker<close, false>},
    {ONDO_IMAGE_LABEL_CLOSE_MARKER_NODE, CVNReferenceMarkerAttributeName, linkMarker<close, true>},
    {ONDO_IMAGE_PAREN_OPEN_MARKER_NODE, CVNImageMarkerAttributeName, linkMarker<open, false>},
    {ONDO_IMAGE_PAREN_OPEN_MARKER_NODE, CVNReferenceMarkerAttributeName, linkMarker<open, true>},
    {ONDO_IMAGE_DESTINATION_ATTRIBUTE_NODE, CVNImageURLAttributeName, destination, withAngleBrackets},
    {ONDO_IMAGE_TITLE_ATTRIBUTE_NODE, CVNImageTitleAttributeName, trueOfInline, withQuotes},
    {ONDO_IMAGE_TITLE_ATTRIBUTE_NODE, CVNReferenceTextAttributeName, trueOfReference, withQuotes},
    {ONDO_IMAGE_PAREN_CLOSE_MARKER_NODE, CVNImageMarkerAttributeName, linkMarker<close, false>},
    {ONDO_IMAGE_PAREN_CLOSE_MARKER_NODE, CVNReferenceMarkerAttributeName, linkMarker<close, true>},
    {ONDO_LINK_NODE, CVNLinkAttributeName, trueOfInline},
    {ONDO_LINK_NODE, CVNReferenceAttributeName, connectionsOfReference},
    {ONDO_LINK_TEXT_OPEN_MARKER_NODE, CVNLinkMarkerAttributeName, linkMarker<open, false>},
    {ONDO_LINK_TEXT_OPEN_MARKER_NODE, CVNReferenceMarkerAttributeName, linkMarker<open, true>},
    {ONDO_LINK_TEXT_ATTRIBUTE_NODE, CVNLinkLabelAttributeName, trueOfInline},
    {ONDO_LINK_TEXT_ATTRIBUTE_NODE, CVNReferenceTextAttributeName, trueOfReference},
    {ONDO_LINK_TEXT_CLOSE_MARKER_NODE, CVNLinkMarkerAttributeName, linkMarker<close, false>},
    {ONDO_LINK_TEXT_CLOSE_MARKER_NODE, CVNReferenceMarkerAttributeName, linkMarker<close, true>},
    {ONDO_LINK_LABEL_OPEN_MARKER_NODE, CVNLinkMarkerAttributeName, linkMarker<open, false>},
    {ONDO_LINK_LABEL_OPEN_MARKER_NODE, CVNReferenceMarkerAttributeName, linkMarker<open, true>},
    {ONDO_LINK_LABEL_ATTRIBUTE_NODE, CVNReferenceLabelAttributeName, isTrue},
    {ONDO_LINK_LABEL_CLOSE_MARKER_NODE, CVNLinkMarkerAttributeName, linkMarker<close, false>},
    {ONDO_LINK_LABEL_CLOSE_MARKER_NODE, CVNReferenceMarkerAttributeName, linkMarker<close, true>},
    {ONDO_LINK_PAREN_OPEN_MARKER_NODE, CVNLinkMarkerAttributeName, linkMarker<open, false>},
    {ONDO_LINK_PAREN_OPEN_MARKER_NODE, CVNReferenceMarkerAttributeName, linkMarker<open, true>},
    {ONDO_LINK_DESTINATION_ATTRIBUTE_NODE, CVNLinkURLAttributeName, destination, withAngleBrackets},
    {ONDO_LINK_TITLE_ATTRIBUTE_NODE, CVNLinkTitleAttributeName, trueOfInline, withQuotes},
    {ONDO_LINK_TITLE_ATTRIBUTE_NODE, CVNReferenceTextAttributeName, trueOfReference, withQuotes},
    {ONDO_LINK_PAREN_CLOSE_MARKER_NODE, CVNLinkMarkerAttributeName, linkMarker<close, false>},
    {ONDO_LINK_PAREN_CLOSE_MARKER_NODE, CVNReferenceMarkerAttributeName, linkMarker<close, true>},
    {ONDO_RAW_HTML_NODE, CVNHTMLInlineAttributeName, isTrue},
    {ONDO_RAW_HTML_NODE, CVNMetadataAttributeName, metadata},
    {ONDO_REPLACE_NODE, CVNArrowAttributeName, arrowNumber},
    {ONDO_STRIKETHROUGH_NODE, CVNStrikethroughAttributeName, isTrue},
    {ONDO_STRIKETHROUGH_OPEN_MARKER_NODE, CVNStrikethroughMarkerAttributeName, open},
    {ONDO_STRIKETHROUGH_CLOSE_MARKER_NODE, CVNStrikethroughMarkerAttributeName, close},
    {ONDO_STRONG_NODE, CVNStrongAttributeName, isTrue},
    {ONDO_STRONG_OPEN_MARKER_NODE, CVNStrongMarkerAttributeName, open},
    {ONDO_STRONG_CLOSE_MARKER_NODE, CVNStrongMarkerAttributeName, close},
    {ONDO_UNDERLINE_NODE, CVNUnderlineAttributeName, isTrue},
    {ONDO_UNDERLINE_OPEN_MARKER_NODE, CVNUnderlineMarkerAttributeName, open},
    {ONDO_UNDERLINE_CLOSE_MARKER_NODE, CVNUnderlineMarkerAttributeName, close},
    {ONDO_URL_NODE, CVNAutoLinkURLAttributeName, stringOf<Inline::UrlNode, &Inline::UrlNode::url>},
    {ONDO_WIKILINK_NODE, CVNWikiLinkAttributeName,
     stringOf<Inline::WikilinkNode, &Inline::WikilinkNode::encodedSegments>},
    {ONDO_WIKILINK_OPEN_MARKER_NODE, CVNWikiLinkMarkerAttributeName, open},
    {ONDO_WIKILINK_CLOSE_MARKER_NODE, CVNWikiLinkMarkerAttributeName, close},
    {ONDO_WIKILINK_SEGMENT_ATTRIBUTE_NODE, CVNWikiLinkSegmentAttributeName, isTrue},
    {ONDO_WIKILINK_SEPARATOR_MARKER_NODE, CVNWikiLinkSeparatorAttributeName, isTrue},
    {ONDO_WIKILINK_ALIAS_ATTRIBUTE_NODE, CVNWikiLinkAliasAttributeName,
     makersString<Inline::WikilinkNode, &Inline::WikilinkNode::alias>},
    {ONDO_WIKILINK_ALIAS_SEPARATOR_MARKER_NODE, CVNWikiLinkAliasSeparatorAttributeName, isTrue},
    {ONDO_FOLD_MARKER_NODE, CVNFoldMarkerAttributeName, isTrue},
    {ONDO_FOLD_MARKER_NODE, CVNFoldAttributeName, isTrue, foldRange},
    {ONDO_CALLOUT_HEAD_NODE, CVNCalloutAttributeName, calloutType, calloutRange},
    {ONDO_CALLOUT_HEAD_NODE, CVNCalloutTitleAttributeName, isTrue, calloutTitleRange},
    {ONDO_CALLOUT_MARKER_NODE, CVNCalloutMarkerAttributeName, isTrue},
    {ONDO_MATH_SPAN_NODE, CVNMathSpanAttributeName,
     stringOf<Inline::MathSpanNode, &Inline::MathSpanNode::text>},
    {ONDO_MATH_SPAN_NODE, CVNMathSpanFormulaAttributeName, isTrue, withoutDollars},
    {ONDO_MATH_SPAN_OPEN_MARKER_NODE, CVNMathSpanMarkerAttributeName, open},
    {ONDO_MATH_SPAN_CLOSE_MARKER_NODE, CVNMathSpanMarkerAttributeName, close},
    {ONDO_MATH_BLOCK_NODE, CVNMathBlockAttributeName,
     stringOf<Block::MathBlockNode, &Block::MathBlockNode::code>,
     codeRange<ONDO_MATH_BLOCK_CLOSE_MARKER_NODE>},
    {ONDO_MATH_BLOCK_OPEN_MARKER_NODE, CVNMathBlockMarkerAttributeName, open},
    {ONDO_MATH_BLOCK_CONTENT_ATTRIBUTE_NODE, CVNMathBlockFormulaAttributeName, close},
    {ONDO_MATH_BLOCK_CLOSE_MARKER_NODE, CVNMathBlockMarkerAttributeName, close},
};

constexpr std::size_t rowCount = std::size(rows);
/// For each type the place of its first row; rows end where those of the next type begin.
using FirstRows = std::array<std::uint8_t, nodeTypeCount + 1>;

static_assert(rowCount < 256);

consteval FirstRows findFirstRows() {
    FirstRows first{};
    std::size_t row = 0;
    for (std::uint16_t type = 0; type <= nodeTypeCount; ++type) {
        while (row < rowCount && rows[row].type < type)
            ++row;
        first[type] = static_cast<std::uint8_t>(row);
    }
    return first;
}

constexpr FirstRows firstRows = findFirstRows();

consteval bool areInOrder() {
    for (std::size_t row = 1; row < rowCount; ++row)
        if (rows[row].type < rows[row - 1].type) return false;
    return true;
}

static_assert(areInOrder());

} // namespace

std::span<const AnnotationRow> annotationRows(std::uint16_t type) {
    return std::span(rows).subspan(firstRows[type],
                                   static_cast<std::size_t>(firstRows[type + 1] - firstRows[type]));
}
