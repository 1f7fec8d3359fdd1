#pragma once

#include <string_view>

#include "corvane/client/QueryConstructs.h"
#include "corvane/client/QueryTypes.h"

/// Constructs of one key.
///
/// The block gets (CVNRange range, const CVNValue& value, bool& stop) for each, clipped to the range that is
/// enumerated. Those that touch and have equal values come one by one when their markers tell them apart, as
/// one when nothing does: «<b><i>» is one stretch of inline HTML.

namespace CVN::Query {

struct RunQuery {
    std::string_view name;
    CVNAttributeName key;

    template <class Block>
    void operator()(const CVNAttributedString& text, CVNRange range, CVNEnumerationOptions options,
                    Block&& block) const {
        forEachConstruct(text, constructKeys(key), range, options, block);
    }
};

/// With the key of URLs or of e-mail addresses, each in angle brackets or bare.
template <class Block>
void enumerateAutoLinkInRange(const CVNAttributedString& text, CVNRange range, CVNAttributeName attributeName,
                              CVNEnumerationOptions options, Block&& block) {
    RunQuery{{}, attributeName}(text, range, options, block);
}

inline constexpr RunQuery enumerateColorInRange{"enumerateColorInRange", CVNColorAttributeName};
inline constexpr RunQuery enumerateArrowInRange{"enumerateArrowInRange", CVNArrowAttributeName};
/// The backslashes.
inline constexpr RunQuery enumerateEscapeInRange{"enumerateEscapeInRange", CVNEscapeAttributeName};
inline constexpr RunQuery enumerateHTMLInlineInRange{"enumerateHTMLInlineInRange",
                                                     CVNHTMLInlineAttributeName};
inline constexpr RunQuery enumerateAutoLinkEmailInRange{"enumerateAutoLinkEmailInRange",
                                                        CVNAutoLinkEmailAttributeName};
inline constexpr RunQuery enumerateAutoLinkURLInRange{"enumerateAutoLinkURLInRange",
                                                      CVNAutoLinkURLAttributeName};
/// Links and images in reference form; the value counts definitions of their label.
inline constexpr RunQuery enumerateReferenceInRange{"enumerateReferenceInRange", CVNReferenceAttributeName};
inline constexpr RunQuery enumerateReferenceDefinitionInRange{"enumerateReferenceDefinitionInRange",
                                                              CVNReferenceDefinitionAttributeName};
/// References, with the value 1, and definitions, with 2. A reference in a definition parts it.
inline constexpr RunQuery enumerateFootnotesInRange{"enumerateFootnotesInRange", CVNFootNoteAttributeName};
inline constexpr RunQuery enumerateWikiLinkInRange{"enumerateWikiLinkInRange", CVNWikiLinkAttributeName};
inline constexpr RunQuery enumerateMetadataInRange{"enumerateMetadataInRange", CVNMetadataAttributeName};
/// From the fold marker on.
inline constexpr RunQuery enumerateFoldInRange{"enumerateFoldInRange", CVNFoldAttributeName};
inline constexpr RunQuery enumerateHTMLEntitiesInRange{"enumerateHTMLEntitiesInRange",
                                                       CVNHTMLEntityAttributeName};
/// The backslash or the spaces before the break.
inline constexpr RunQuery enumerateHardLinebreakInRange{"enumerateHardLinebreakInRange",
                                                        CVNHardLinebreakAttributeName};
inline constexpr RunQuery enumerateThematicBreakInRange{"enumerateThematicBreakInRange",
                                                        CVNThematicBreakAttributeName};
/// The value is the level.
inline constexpr RunQuery enumerateHeadingInRange{"enumerateHeadingInRange", CVNHeadingAttributeName};
inline constexpr RunQuery enumerateIndentedCodeInRange{"enumerateIndentedCodeInRange",
                                                       CVNIndentedCodeAttributeName};
inline constexpr RunQuery enumerateHTMLBlockInRange{"enumerateHTMLBlockInRange", CVNHTMLBlockAttributeName};
/// The heads of callouts; the value is the type.
inline constexpr RunQuery enumerateCalloutInRange{"enumerateCalloutInRange", CVNCalloutAttributeName};

inline constexpr const RunQuery* runQueries[] = {
    &enumerateColorInRange,         &enumerateArrowInRange,
    &enumerateEscapeInRange,        &enumerateHTMLInlineInRange,
    &enumerateAutoLinkEmailInRange, &enumerateAutoLinkURLInRange,
    &enumerateReferenceInRange,     &enumerateReferenceDefinitionInRange,
    &enumerateFootnotesInRange,     &enumerateWikiLinkInRange,
    &enumerateMetadataInRange,      &enumerateFoldInRange,
    &enumerateHTMLEntitiesInRange,  &enumerateHardLinebreakInRange,
    &enumerateThematicBreakInRange, &enumerateHeadingInRange,
    &enumerateIndentedCodeInRange,  &enumerateHTMLBlockInRange,
    &enumerateCalloutInRange,
};

} // namespace CVN::Query
