#pragma once

#include "corvane/client/QueryTypes.h"

/// The construct around the character at an index, {CVNNotFound, 0} when there is none.
///
/// Constructs that touch are told apart as in QueryConstructs.h. The marker is the construct's first one:
/// of a heading its "#" signs, or its underline with the break behind it.

namespace CVN::Query {

namespace Answer {

/// Of the first of the keys that has a value at the index.
CORVANE_EXPORT CVNRange constructRange(const CVNAttributedString& text, const KeyList& keys,
                                       std::int64_t index, CVNRange* markerRange);
/// The run of a closing marker among the keys.
CORVANE_EXPORT CVNRange closingMarkerRange(const CVNAttributedString& text, const KeyList& keys,
                                           std::int64_t index, CVNRange* markerRange);
CORVANE_EXPORT CVNRange referenceLabelRange(const CVNAttributedString& text, const KeyList& keys,
                                            std::int64_t index, CVNRange* markerRange);

} // namespace Answer

inline constexpr RangeAtIndexQuery headerRangeAtIndex{
    "headerRangeAtIndex", {CVNHeadingAttributeName}, Answer::constructRange};
inline constexpr RangeAtIndexQuery linkRangeAtIndex{
    "linkRangeAtIndex", {CVNLinkAttributeName}, Answer::constructRange};
inline constexpr RangeAtIndexQuery autoLinkRangeAtIndex{
    "autoLinkRangeAtIndex",
    {CVNAutoLinkURLAttributeName, CVNAutoLinkEmailAttributeName},
    Answer::constructRange};
inline constexpr RangeAtIndexQuery autoLinkEmailRangeAtIndex{
    "autoLinkEmailRangeAtIndex", {CVNAutoLinkEmailAttributeName}, Answer::constructRange};
inline constexpr RangeAtIndexQuery autoLinkURLRangeAtIndex{
    "autoLinkURLRangeAtIndex", {CVNAutoLinkURLAttributeName}, Answer::constructRange};
inline constexpr RangeAtIndexQuery colorRangeAtIndex{
    "colorRangeAtIndex", {CVNColorAttributeName}, Answer::constructRange};
inline constexpr RangeAtIndexQuery arrowRangeAtIndex{
    "arrowRangeAtIndex", {CVNArrowAttributeName}, Answer::constructRange};
/// A reference, or a definition up to a reference in it, or from there on.
inline constexpr RangeAtIndexQuery footnoteRangeAtIndex{
    "footnoteRangeAtIndex", {CVNFootNoteAttributeName}, Answer::constructRange};
inline constexpr RangeAtIndexQuery codeRangeAtIndex{
    "codeRangeAtIndex", {CVNCodeAttributeName}, Answer::constructRange};
inline constexpr RangeAtIndexQuery codeBlockRangeAtIndex{
    "codeBlockRangeAtIndex", {CVNFencedCodeAttributeName}, Answer::constructRange};
inline constexpr RangeAtIndexQuery indentedCodeRangeAtIndex{
    "indentedCodeRangeAtIndex", {CVNIndentedCodeAttributeName}, Answer::constructRange};
inline constexpr RangeAtIndexQuery metadataRangeAtIndex{
    "metadataRangeAtIndex", {CVNMetadataAttributeName}, Answer::constructRange};
inline constexpr RangeAtIndexQuery hashTagRangeAtIndex{
    "hashTagRangeAtIndex", {CVNHashtagAttributeName}, Answer::constructRange};
inline constexpr RangeAtIndexQuery wikiLinkRangeAtIndex{
    "wikiLinkRangeAtIndex", {CVNWikiLinkAttributeName}, Answer::constructRange};
inline constexpr RangeAtIndexQuery highlighterRangeAtIndex{
    "highlighterRangeAtIndex", {CVNHighlighterAttributeName}, Answer::constructRange};
inline constexpr RangeAtIndexQuery mathRangeAtIndex{
    "mathRangeAtIndex", {CVNMathSpanAttributeName, CVNMathBlockAttributeName}, Answer::constructRange};
/// The closing marker at the index, over which a caret jumps; closing markers that touch are one.
inline constexpr RangeAtIndexQuery inlineClosingMarkerRangeAtIndex{
    "inlineClosingMarkerRangeAtIndex",
    {CVNStrongMarkerAttributeName, CVNEmphasisMarkerAttributeName, CVNStrikethroughMarkerAttributeName,
     CVNUnderlineMarkerAttributeName, CVNCodeMarkerAttributeName, CVNHighlighterMarkerAttributeName,
     CVNHashtagMarkerAttributeName, CVNLinkMarkerAttributeName, CVNImageMarkerAttributeName,
     CVNReferenceMarkerAttributeName, CVNFootNoteMarkerAttributeName, CVNWikiLinkMarkerAttributeName,
     CVNMathSpanMarkerAttributeName, CVNHTMLEntityMarkerAttributeName, CVNAutoLinkMarkerAttributeName},
    Answer::closingMarkerRange};
/// The label by which the reference at the index finds its definition: that of «[text][label]», the text of
/// «[label][]» and «[label]»; and the label of a definition.
inline constexpr RangeAtIndexQuery referenceLabelRangeForReferenceAtIndex{
    "referenceLabelRangeForReferenceAtIndex",
    {CVNReferenceAttributeName, CVNReferenceDefinitionAttributeName},
    Answer::referenceLabelRange};

inline constexpr const RangeAtIndexQuery* rangeAtIndexQueries[] = {
    &headerRangeAtIndex,
    &linkRangeAtIndex,
    &autoLinkRangeAtIndex,
    &autoLinkEmailRangeAtIndex,
    &autoLinkURLRangeAtIndex,
    &colorRangeAtIndex,
    &arrowRangeAtIndex,
    &footnoteRangeAtIndex,
    &codeRangeAtIndex,
    &codeBlockRangeAtIndex,
    &indentedCodeRangeAtIndex,
    &metadataRangeAtIndex,
    &hashTagRangeAtIndex,
    &wikiLinkRangeAtIndex,
    &highlighterRangeAtIndex,
    &mathRangeAtIndex,
    &inlineClosingMarkerRangeAtIndex,
    &referenceLabelRangeForReferenceAtIndex,
};

} // namespace CVN::Query
