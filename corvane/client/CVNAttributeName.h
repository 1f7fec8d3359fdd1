#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "corvane/scan/Assert.h"

/// The keys of attribute runs, and the numbers that some of their values are.
///
/// A key is the place of its name in the table below: one byte, compared by identity. Its string, which files
/// and other languages see, is the constant's name without "AttributeName". New keys go to the end of the
/// table, so that the numbers stay.

inline constexpr std::u16string_view CVNAttributeNameStrings[] = {
    u"CVNDirection",
    u"CVNIndentSpace",
    u"CVNHeading",
    u"CVNHeadingMarker",
    u"CVNFoldable",
    u"CVNBlockquote",
    u"CVNBlockquoteItem",
    u"CVNBlockquoteMarker",
    u"CVNCallout",
    u"CVNCalloutTitle",
    u"CVNCalloutMarker",
    u"CVNFencedCode",
    u"CVNFencedCodeMarker",
    u"CVNFencedCodeLanguage",
    u"CVNYaml",
    u"CVNYamlMarker",
    u"CVNIndentedCode",
    u"CVNMathBlock",
    u"CVNMathBlockMarker",
    u"CVNMathBlockFormula",
    u"CVNHTMLBlock",
    u"CVNThematicBreak",
    u"CVNList",
    u"CVNListItem",
    u"CVNListMarker",
    u"CVNTable",
    u"CVNTableMarker",
    u"CVNTableCell",
    u"CVNTableCellContent",
    u"CVNFootNote",
    u"CVNFootNoteMarker",
    u"CVNFootNoteLabel",
    u"CVNFootNoteText",
    u"CVNReferenceDefinition",
    u"CVNReferenceMarker",
    u"CVNReferenceDefinitionLabel",
    u"CVNReferenceDefinitionLink",
    u"CVNReferenceDefinitionTitle",
    u"CVNReference",
    u"CVNReferenceText",
    u"CVNReferenceLabel",
    u"CVNStrong",
    u"CVNStrongMarker",
    u"CVNEmphasis",
    u"CVNEmphasisMarker",
    u"CVNStrikethrough",
    u"CVNStrikethroughMarker",
    u"CVNUnderline",
    u"CVNUnderlineMarker",
    u"CVNCode",
    u"CVNCodeMarker",
    u"CVNHighlighter",
    u"CVNHighlighterColor",
    u"CVNHighlighterMarker",
    u"CVNHighlighterMarkerNesting",
    u"CVNColor",
    u"CVNColorMarker",
    u"CVNArrow",
    u"CVNHashtag",
    u"CVNHashtagMarker",
    u"CVNHashtagSegment",
    u"CVNHashtagSeparator",
    u"CVNEscape",
    u"CVNHardLinebreak",
    u"CVNHTMLEntity",
    u"CVNHTMLEntityMarker",
    u"CVNAutoLinkURL",
    u"CVNAutoLinkEmail",
    u"CVNAutoLinkMarker",
    u"CVNHTMLInline",
    u"CVNMetadata",
    u"CVNFoldMarker",
    u"CVNFold",
    u"CVNMathSpan",
    u"CVNMathSpanFormula",
    u"CVNMathSpanMarker",
    u"CVNWikiLink",
    u"CVNWikiLinkMarker",
    u"CVNWikiLinkSegment",
    u"CVNWikiLinkSeparator",
    u"CVNWikiLinkAlias",
    u"CVNWikiLinkAliasSeparator",
    u"CVNLink",
    u"CVNLinkMarker",
    u"CVNLinkURL",
    u"CVNLinkTitle",
    u"CVNLinkLabel",
    u"CVNImage",
    u"CVNImageMarker",
    u"CVNImageURL",
    u"CVNImageTitle",
    u"CVNImageLabel",
};

class CVNAttributeName {
    std::uint8_t id_;

public:
    static constexpr std::int64_t count = std::size(CVNAttributeNameStrings);

    /// The key of that string. Does not compile if there is none.
    consteval explicit CVNAttributeName(std::u16string_view string) : id_(idOf(string)) {}
    /// Asserts that `id` is one of the `count` numbers from 0 on.
    static constexpr CVNAttributeName withId(std::int64_t id) {
        CORVANE_ASSERT(id >= 0 && id < count, "CVNAttributeName");
        return CVNAttributeName(Id{static_cast<std::uint8_t>(id)});
    }

    constexpr std::uint8_t id() const { return id_; }
    constexpr std::u16string_view string() const { return CVNAttributeNameStrings[id_]; }
    constexpr bool operator==(const CVNAttributeName& other) const { return id_ == other.id_; }

private:
    struct Id {
        std::uint8_t value;
    };
    constexpr explicit CVNAttributeName(Id id) : id_(id.value) {}

    static consteval std::uint8_t idOf(std::u16string_view string) {
        std::uint8_t id = 0;
        while (CVNAttributeNameStrings[id] != string)
            ++id;
        return id;
    }
};

inline constexpr CVNAttributeName CVNDirectionAttributeName{u"CVNDirection"};
inline constexpr CVNAttributeName CVNIndentSpaceAttributeName{u"CVNIndentSpace"};
inline constexpr CVNAttributeName CVNHeadingAttributeName{u"CVNHeading"};
inline constexpr CVNAttributeName CVNHeadingMarkerAttributeName{u"CVNHeadingMarker"};
inline constexpr CVNAttributeName CVNFoldableAttributeName{u"CVNFoldable"};
inline constexpr CVNAttributeName CVNBlockquoteAttributeName{u"CVNBlockquote"};
inline constexpr CVNAttributeName CVNBlockquoteItemAttributeName{u"CVNBlockquoteItem"};
inline constexpr CVNAttributeName CVNBlockquoteMarkerAttributeName{u"CVNBlockquoteMarker"};
inline constexpr CVNAttributeName CVNCalloutAttributeName{u"CVNCallout"};
inline constexpr CVNAttributeName CVNCalloutTitleAttributeName{u"CVNCalloutTitle"};
inline constexpr CVNAttributeName CVNCalloutMarkerAttributeName{u"CVNCalloutMarker"};
inline constexpr CVNAttributeName CVNFencedCodeAttributeName{u"CVNFencedCode"};
inline constexpr CVNAttributeName CVNFencedCodeMarkerAttributeName{u"CVNFencedCodeMarker"};
inline constexpr CVNAttributeName CVNFencedCodeLanguageAttributeName{u"CVNFencedCodeLanguage"};
inline constexpr CVNAttributeName CVNYamlAttributeName{u"CVNYaml"};
inline constexpr CVNAttributeName CVNYamlMarkerAttributeName{u"CVNYamlMarker"};
inline constexpr CVNAttributeName CVNIndentedCodeAttributeName{u"CVNIndentedCode"};
inline constexpr CVNAttributeName CVNMathBlockAttributeName{u"CVNMathBlock"};
inline constexpr CVNAttributeName CVNMathBlockMarkerAttributeName{u"CVNMathBlockMarker"};
inline constexpr CVNAttributeName CVNMathBlockFormulaAttributeName{u"CVNMathBlockFormula"};
inline constexpr CVNAttributeName CVNHTMLBlockAttributeName{u"CVNHTMLBlock"};
inline constexpr CVNAttributeName CVNThematicBreakAttributeName{u"CVNThematicBreak"};
inline constexpr CVNAttributeName CVNListAttributeName{u"CVNList"};
inline constexpr CVNAttributeName CVNListItemAttributeName{u"CVNListItem"};
inline constexpr CVNAttributeName CVNListMarkerAttributeName{u"CVNListMarker"};
inline constexpr CVNAttributeName CVNTableAttributeName{u"CVNTable"};
inline constexpr CVNAttributeName CVNTableMarkerAttributeName{u"CVNTableMarker"};
inline constexpr CVNAttributeName CVNTableCellAttributeName{u"CVNTableCell"};
inline constexpr CVNAttributeName CVNTableCellContentAttributeName{u"CVNTableCellContent"};
inline constexpr CVNAttributeName CVNFootNoteAttributeName{u"CVNFootNote"};
inline constexpr CVNAttributeName CVNFootNoteMarkerAttributeName{u"CVNFootNoteMarker"};
inline constexpr CVNAttributeName CVNFootNoteLabelAttributeName{u"CVNFootNoteLabel"};
inline constexpr CVNAttributeName CVNFootNoteTextAttributeName{u"CVNFootNoteText"};
inline constexpr CVNAttributeName CVNReferenceDefinitionAttributeName{u"CVNReferenceDefinition"};
inline constexpr CVNAttributeName CVNReferenceMarkerAttributeName{u"CVNReferenceMarker"};
inline constexpr CVNAttributeName CVNReferenceDefinitionLabelAttributeName{u"CVNReferenceDefinitionLabel"};
inline constexpr CVNAttributeName CVNReferenceDefinitionLinkAttributeName{u"CVNReferenceDefinitionLink"};
inline constexpr CVNAttributeName CVNReferenceDefinitionTitleAttributeName{u"CVNReferenceDefinitionTitle"};
inline constexpr CVNAttributeName CVNReferenceAttributeName{u"CVNReference"};
inline constexpr CVNAttributeName CVNReferenceTextAttributeName{u"CVNReferenceText"};
inline constexpr CVNAttributeName CVNReferenceLabelAttributeName{u"CVNReferenceLabel"};
inline constexpr CVNAttributeName CVNStrongAttributeName{u"CVNStrong"};
inline constexpr CVNAttributeName CVNStrongMarkerAttributeName{u"CVNStrongMarker"};
inline constexpr CVNAttributeName CVNEmphasisAttributeName{u"CVNEmphasis"};
inline constexpr CVNAttributeName CVNEmphasisMarkerAttributeName{u"CVNEmphasisMarker"};
inline constexpr CVNAttributeName CVNStrikethroughAttributeName{u"CVNStrikethrough"};
inline constexpr CVNAttributeName CVNStrikethroughMarkerAttributeName{u"CVNStrikethroughMarker"};
inline constexpr CVNAttributeName CVNUnderlineAttributeName{u"CVNUnderline"};
inline constexpr CVNAttributeName CVNUnderlineMarkerAttributeName{u"CVNUnderlineMarker"};
inline constexpr CVNAttributeName CVNCodeAttributeName{u"CVNCode"};
inline constexpr CVNAttributeName CVNCodeMarkerAttributeName{u"CVNCodeMarker"};
inline constexpr CVNAttributeName CVNHighlighterAttributeName{u"CVNHighlighter"};
inline constexpr CVNAttributeName CVNHighlighterColorAttributeName{u"CVNHighlighterColor"};
inline constexpr CVNAttributeName CVNHighlighterMarkerAttributeName{u"CVNHighlighterMarker"};
inline constexpr CVNAttributeName CVNHighlighterMarkerNestingAttributeName{u"CVNHighlighterMarkerNesting"};
inline constexpr CVNAttributeName CVNColorAttributeName{u"CVNColor"};
inline constexpr CVNAttributeName CVNColorMarkerAttributeName{u"CVNColorMarker"};
inline constexpr CVNAttributeName CVNArrowAttributeName{u"CVNArrow"};
inline constexpr CVNAttributeName CVNHashtagAttributeName{u"CVNHashtag"};
inline constexpr CVNAttributeName CVNHashtagMarkerAttributeName{u"CVNHashtagMarker"};
inline constexpr CVNAttributeName CVNHashtagSegmentAttributeName{u"CVNHashtagSegment"};
inline constexpr CVNAttributeName CVNHashtagSeparatorAttributeName{u"CVNHashtagSeparator"};
inline constexpr CVNAttributeName CVNEscapeAttributeName{u"CVNEscape"};
inline constexpr CVNAttributeName CVNHardLinebreakAttributeName{u"CVNHardLinebreak"};
inline constexpr CVNAttributeName CVNHTMLEntityAttributeName{u"CVNHTMLEntity"};
inline constexpr CVNAttributeName CVNHTMLEntityMarkerAttributeName{u"CVNHTMLEntityMarker"};
inline constexpr CVNAttributeName CVNAutoLinkURLAttributeName{u"CVNAutoLinkURL"};
inline constexpr CVNAttributeName CVNAutoLinkEmailAttributeName{u"CVNAutoLinkEmail"};
inline constexpr CVNAttributeName CVNAutoLinkMarkerAttributeName{u"CVNAutoLinkMarker"};
inline constexpr CVNAttributeName CVNHTMLInlineAttributeName{u"CVNHTMLInline"};
inline constexpr CVNAttributeName CVNMetadataAttributeName{u"CVNMetadata"};
inline constexpr CVNAttributeName CVNFoldMarkerAttributeName{u"CVNFoldMarker"};
inline constexpr CVNAttributeName CVNFoldAttributeName{u"CVNFold"};
inline constexpr CVNAttributeName CVNMathSpanAttributeName{u"CVNMathSpan"};
inline constexpr CVNAttributeName CVNMathSpanFormulaAttributeName{u"CVNMathSpanFormula"};
inline constexpr CVNAttributeName CVNMathSpanMarkerAttributeName{u"CVNMathSpanMarker"};
inline constexpr CVNAttributeName CVNWikiLinkAttributeName{u"CVNWikiLink"};
inline constexpr CVNAttributeName CVNWikiLinkMarkerAttributeName{u"CVNWikiLinkMarker"};
inline constexpr CVNAttributeName CVNWikiLinkSegmentAttributeName{u"CVNWikiLinkSegment"};
inline constexpr CVNAttributeName CVNWikiLinkSeparatorAttributeName{u"CVNWikiLinkSeparator"};
inline constexpr CVNAttributeName CVNWikiLinkAliasAttributeName{u"CVNWikiLinkAlias"};
inline constexpr CVNAttributeName CVNWikiLinkAliasSeparatorAttributeName{u"CVNWikiLinkAliasSeparator"};
inline constexpr CVNAttributeName CVNLinkAttributeName{u"CVNLink"};
inline constexpr CVNAttributeName CVNLinkMarkerAttributeName{u"CVNLinkMarker"};
inline constexpr CVNAttributeName CVNLinkURLAttributeName{u"CVNLinkURL"};
inline constexpr CVNAttributeName CVNLinkTitleAttributeName{u"CVNLinkTitle"};
inline constexpr CVNAttributeName CVNLinkLabelAttributeName{u"CVNLinkLabel"};
inline constexpr CVNAttributeName CVNImageAttributeName{u"CVNImage"};
inline constexpr CVNAttributeName CVNImageMarkerAttributeName{u"CVNImageMarker"};
inline constexpr CVNAttributeName CVNImageURLAttributeName{u"CVNImageURL"};
inline constexpr CVNAttributeName CVNImageTitleAttributeName{u"CVNImageTitle"};
inline constexpr CVNAttributeName CVNImageLabelAttributeName{u"CVNImageLabel"};

// Values of marker keys

inline constexpr std::int64_t CVNOpenMarkerValue = 1;
inline constexpr std::int64_t CVNCloseMarkerValue = 2;
inline constexpr std::int64_t CVNHeadingATXValue = 1;
inline constexpr std::int64_t CVNHeadingSETEXValue = 2;

// Values of CVNDirectionAttributeName

inline constexpr std::int64_t CVNDirectionNaturalValue = 0;
inline constexpr std::int64_t CVNDirectionLtrValue = 1;
inline constexpr std::int64_t CVNDirectionRtlValue = 2;

// Keys of the dictionary that CVNTableAttributeName has as its value

inline constexpr std::u16string_view CVNTableRowCountName = u"RowCount";
inline constexpr std::u16string_view CVNTableColumnCountName = u"ColumnCount";
