#pragma once

#include "corvane/client/QueryTypes.h"

/// Whether a range touches a construct: its first or its last character lies in one. An empty range counts as the
/// character at its location. False when the location is CVNNotFound or negative, or the last character lies
/// behind the end of the text.

namespace CVN::Query {

/// Whether the key has a value at the first or the last character.
CORVANE_EXPORT bool isRangeInside(const CVNAttributedString& text, CVNRange range, CVNAttributeName key);

/// isRangeInside() of at least one key.
CORVANE_EXPORT bool isInsideAny(const CVNAttributedString& text, const KeyList& keys, CVNRange range);
CORVANE_EXPORT bool isInsideTask(const CVNAttributedString& text, const KeyList& keys, CVNRange range);

inline constexpr RangeTest isRangeInsideColor{"isRangeInsideColor", {CVNColorAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideArrow{"isRangeInsideArrow", {CVNArrowAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideHashtag{
    "isRangeInsideHashtag", {CVNHashtagAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideLink{"isRangeInsideLink", {CVNLinkAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideWikiLink{
    "isRangeInsideWikiLink", {CVNWikiLinkAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideAutoLinkEmail{
    "isRangeInsideAutoLinkEmail", {CVNAutoLinkEmailAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideAutoLinkURL{
    "isRangeInsideAutoLinkURL", {CVNAutoLinkURLAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideImage{"isRangeInsideImage", {CVNImageAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideHeader{"isRangeInsideHeader", {CVNHeadingAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideList{"isRangeInsideList", {CVNListAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideBlockquote{
    "isRangeInsideBlockquote", {CVNBlockquoteAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideFootnote{
    "isRangeInsideFootnote", {CVNFootNoteAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideReference{
    "isRangeInsideReference", {CVNReferenceAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideReferenceDefinition{
    "isRangeInsideReferenceDefinition", {CVNReferenceDefinitionAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideTable{"isRangeInsideTable", {CVNTableAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideBlockMath{
    "isRangeInsideBlockMath", {CVNMathBlockAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideInlineCode{
    "isRangeInsideInlineCode", {CVNCodeAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideHTML{
    "isRangeInsideHTML", {CVNHTMLBlockAttributeName, CVNHTMLInlineAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideBlockCode{
    "isRangeInsideBlockCode", {CVNFencedCodeAttributeName, CVNIndentedCodeAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideCode{
    "isRangeInsideCode",
    {CVNCodeAttributeName, CVNFencedCodeAttributeName, CVNIndentedCodeAttributeName},
    isInsideAny};
inline constexpr RangeTest isRangeInsideMath{
    "isRangeInsideMath", {CVNMathBlockAttributeName, CVNMathSpanAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideAutoLink{
    "isRangeInsideAutoLink", {CVNAutoLinkEmailAttributeName, CVNAutoLinkURLAttributeName}, isInsideAny};
inline constexpr RangeTest isRangeInsideReferenceOrDefinition{
    "isRangeInsideReferenceOrDefinition",
    {CVNReferenceAttributeName, CVNReferenceDefinitionAttributeName},
    isInsideAny};
inline constexpr RangeTest isRangeInsideFootnoteLabel{
    "isRangeInsideFootnoteLabel", {CVNFootNoteLabelAttributeName, CVNFootNoteMarkerAttributeName}, isInsideAny};
/// In an item with a task, that is: the innermost one. An item without a task below one doesn't count.
inline constexpr RangeTest isRangeInsideTaskList{
    "isRangeInsideTaskList", {CVNListItemAttributeName}, isInsideTask};

inline constexpr const RangeTest* insideQueries[] = {
    &isRangeInsideColor,
    &isRangeInsideArrow,
    &isRangeInsideHashtag,
    &isRangeInsideLink,
    &isRangeInsideWikiLink,
    &isRangeInsideAutoLinkEmail,
    &isRangeInsideAutoLinkURL,
    &isRangeInsideImage,
    &isRangeInsideHeader,
    &isRangeInsideList,
    &isRangeInsideBlockquote,
    &isRangeInsideFootnote,
    &isRangeInsideReference,
    &isRangeInsideReferenceDefinition,
    &isRangeInsideTable,
    &isRangeInsideBlockMath,
    &isRangeInsideInlineCode,
    &isRangeInsideHTML,
    &isRangeInsideBlockCode,
    &isRangeInsideCode,
    &isRangeInsideMath,
    &isRangeInsideAutoLink,
    &isRangeInsideReferenceOrDefinition,
    &isRangeInsideFootnoteLabel,
    &isRangeInsideTaskList,
};

} // namespace CVN::Query
