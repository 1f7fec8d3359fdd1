#pragma once

#include "corvane/client/QueryTypes.h"

/// Whether a range touches a construct: its first or its last character lies in one. An empty range counts as
/// the character at its location. False when the location is CVNNotFound or negative, or the last character
/// lies behind the end of the text.

namespace CVN::Query {

/// Whether the key has a value at the first or the last character.
CORVANE_EXPORT bool isRangeInside(const CVNAttributedString& text, CVNRange range, CVNAttributeName key);

namespace Answer {

/// isRangeInside() of at least one key.
CORVANE_EXPORT bool isInsideAny(const CVNAttributedString& text, const KeyList& keys, CVNRange range);
CORVANE_EXPORT bool isInsideTask(const CVNAttributedString& text, const KeyList& keys, CVNRange range);

} // namespace Answer

inline constexpr RangeTest isRangeInsideColor{
    "isRangeInsideColor", {CVNColorAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideArrow{
    "isRangeInsideArrow", {CVNArrowAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideHashtag{
    "isRangeInsideHashtag", {CVNHashtagAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideLink{
    "isRangeInsideLink", {CVNLinkAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideWikiLink{
    "isRangeInsideWikiLink", {CVNWikiLinkAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideAutoLinkEmail{
    "isRangeInsideAutoLinkEmail", {CVNAutoLinkEmailAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideAutoLinkURL{
    "isRangeInsideAutoLinkURL", {CVNAutoLinkURLAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideImage{
    "isRangeInsideImage", {CVNImageAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideHeader{
    "isRangeInsideHeader", {CVNHeadingAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideList{
    "isRangeInsideList", {CVNListAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideBlockquote{
    "isRangeInsideBlockquote", {CVNBlockquoteAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideFootnote{
    "isRangeInsideFootnote", {CVNFootNoteAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideReference{
    "isRangeInsideReference", {CVNReferenceAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideReferenceDefinition{
    "isRangeInsideReferenceDefinition", {CVNReferenceDefinitionAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideTable{
    "isRangeInsideTable", {CVNTableAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideBlockMath{
    "isRangeInsideBlockMath", {CVNMathBlockAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideInlineCode{
    "isRangeInsideInlineCode", {CVNCodeAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideHTML{
    "isRangeInsideHTML", {CVNHTMLBlockAttributeName, CVNHTMLInlineAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideBlockCode{"isRangeInsideBlockCode",
                                                  {CVNFencedCodeAttributeName, CVNIndentedCodeAttributeName},
                                                  Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideCode{
    "isRangeInsideCode",
    {CVNCodeAttributeName, CVNFencedCodeAttributeName, CVNIndentedCodeAttributeName},
    Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideMath{
    "isRangeInsideMath", {CVNMathBlockAttributeName, CVNMathSpanAttributeName}, Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideAutoLink{"isRangeInsideAutoLink",
                                                 {CVNAutoLinkEmailAttributeName, CVNAutoLinkURLAttributeName},
                                                 Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideReferenceOrDefinition{
    "isRangeInsideReferenceOrDefinition",
    {CVNReferenceAttributeName, CVNReferenceDefinitionAttributeName},
    Answer::isInsideAny};
inline constexpr RangeTest isRangeInsideFootnoteLabel{
    "isRangeInsideFootnoteLabel",
    {CVNFootNoteLabelAttributeName, CVNFootNoteMarkerAttributeName},
    Answer::isInsideAny};
/// In an item with a task, that is: the innermost one. An item without a task below one doesn't count.
inline constexpr RangeTest isRangeInsideTaskList{
    "isRangeInsideTaskList", {CVNListItemAttributeName}, Answer::isInsideTask};

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
