#pragma once

#include "corvane/client/CVNAttributes.h"
#include "corvane/client/QueryTypes.h"

/// Whether the character at an index has a value for a key, or one of some kind. False outside the text.

namespace CVN::Query {

namespace Answer {

/// Whether one of the keys has a value.
CORVANE_EXPORT bool hasAny(const CVNAttributedString& text, const KeyList& keys, std::int64_t index);
/// Whether one of the keys has that number.
template <std::int64_t number>
bool hasNumber(const CVNAttributedString& text, const KeyList& keys, std::int64_t index) {
    return keys.hasKeyWhere([&](CVNAttributeName key) {
        const CVNValue* const value = text.attribute(key, index);
        return value && *value == CVNValue::integer(number);
    });
}
CORVANE_EXPORT bool hasTaskMarker(const CVNAttributedString& text, const KeyList& keys, std::int64_t index);
CORVANE_EXPORT bool hasSublist(const CVNAttributedString& text, const KeyList& keys, std::int64_t index);

} // namespace Answer

/// The marker keys that tell an opening marker from a closing one.
inline constexpr KeyList pairedMarkers = {
    CVNStrongMarkerAttributeName,        CVNEmphasisMarkerAttributeName,  CVNCodeMarkerAttributeName,
    CVNStrikethroughMarkerAttributeName, CVNUnderlineMarkerAttributeName, CVNHighlighterMarkerAttributeName,
    CVNHashtagMarkerAttributeName,       CVNLinkMarkerAttributeName,      CVNImageMarkerAttributeName,
    CVNFencedCodeMarkerAttributeName,    CVNReferenceMarkerAttributeName, CVNFootNoteMarkerAttributeName,
    CVNWikiLinkMarkerAttributeName};

/// Syntax that an editor may hide.
inline constexpr IndexTest hasMarkerAtIndex{"hasMarkerAtIndex", KeyList(CVNAttributes::markerAttributes()),
                                            Answer::hasAny};
/// Of a heading, a list item or a quote: a sentence begins behind it.
inline constexpr IndexTest hasBeginOfSentenceMarkerAtIndex{
    "hasBeginOfSentenceMarkerAtIndex",
    {CVNHeadingMarkerAttributeName, CVNListMarkerAttributeName, CVNBlockquoteMarkerAttributeName},
    Answer::hasAny};
inline constexpr IndexTest hasHeaderMarkerAtIndex{
    "hasHeaderMarkerAtIndex", {CVNHeadingMarkerAttributeName}, Answer::hasAny};
inline constexpr IndexTest hasListMarkerAtIndex{
    "hasListMarkerAtIndex", {CVNListMarkerAttributeName}, Answer::hasAny};
inline constexpr IndexTest hasBlockquoteMarkerAtIndex{
    "hasBlockquoteMarkerAtIndex", {CVNBlockquoteMarkerAttributeName}, Answer::hasAny};
inline constexpr IndexTest hasTableAtIndex{"hasTableAtIndex", {CVNTableAttributeName}, Answer::hasAny};
/// Not at a reference that stands in a definition.
inline constexpr IndexTest hasFootnoteDefinitionAtIndex{
    "hasFootnoteDefinitionAtIndex", {CVNFootNoteAttributeName}, Answer::hasNumber<2>};
inline constexpr IndexTest hasYamlAtIndex{"hasYamlAtIndex", {CVNYamlAttributeName}, Answer::hasAny};
inline constexpr IndexTest hasFoldAtIndex{"hasFoldAtIndex", {CVNFoldAttributeName}, Answer::hasAny};
inline constexpr IndexTest hasHighlightAtIndex{
    "hasHighlightAtIndex", {CVNHighlighterAttributeName}, Answer::hasAny};
inline constexpr IndexTest hasHTMLBlockAtIndex{
    "hasHTMLBlockAtIndex", {CVNHTMLBlockAttributeName}, Answer::hasAny};
inline constexpr IndexTest hasIndentSpaceAtIndex{
    "hasIndentSpaceAtIndex", {CVNIndentSpaceAttributeName}, Answer::hasAny};
/// The marker of a task, with its box.
inline constexpr IndexTest hasTaskListMarkerAtIndex{"hasTaskListMarkerAtIndex",
                                                    {CVNListItemAttributeName, CVNListMarkerAttributeName},
                                                    Answer::hasTaskMarker};
/// Whether the innermost item around the index has items below it.
inline constexpr IndexTest hasListWithSublistAtIndex{
    "hasListWithSublistAtIndex", {CVNListItemAttributeName, CVNListMarkerAttributeName}, Answer::hasSublist};

inline constexpr IndexTest hasOpeningMarkerAtIndex{"hasOpeningMarkerAtIndex", pairedMarkers,
                                                   Answer::hasNumber<CVNOpenMarkerValue>};
inline constexpr IndexTest hasClosingMarkerAtIndex{"hasClosingMarkerAtIndex", pairedMarkers,
                                                   Answer::hasNumber<CVNCloseMarkerValue>};
inline constexpr IndexTest hasOpeningTagMarkerAtIndex{
    "hasOpeningTagMarkerAtIndex", {CVNHashtagMarkerAttributeName}, Answer::hasNumber<CVNOpenMarkerValue>};
inline constexpr IndexTest hasClosingTagMarkerAtIndex{
    "hasClosingTagMarkerAtIndex", {CVNHashtagMarkerAttributeName}, Answer::hasNumber<CVNCloseMarkerValue>};
inline constexpr IndexTest hasClosingHighlightMarkerAtIndex{"hasClosingHighlightMarkerAtIndex",
                                                            {CVNHighlighterMarkerAttributeName},
                                                            Answer::hasNumber<CVNCloseMarkerValue>};

inline constexpr const IndexTest* hasQueries[] = {
    &hasMarkerAtIndex,
    &hasBeginOfSentenceMarkerAtIndex,
    &hasHeaderMarkerAtIndex,
    &hasListMarkerAtIndex,
    &hasBlockquoteMarkerAtIndex,
    &hasTableAtIndex,
    &hasFootnoteDefinitionAtIndex,
    &hasYamlAtIndex,
    &hasFoldAtIndex,
    &hasHighlightAtIndex,
    &hasHTMLBlockAtIndex,
    &hasIndentSpaceAtIndex,
    &hasTaskListMarkerAtIndex,
    &hasListWithSublistAtIndex,
    &hasOpeningMarkerAtIndex,
    &hasClosingMarkerAtIndex,
    &hasOpeningTagMarkerAtIndex,
    &hasClosingTagMarkerAtIndex,
    &hasClosingHighlightMarkerAtIndex,
};

} // namespace CVN::Query
