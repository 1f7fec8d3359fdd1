#pragma once

#include <array>

#include "corvane/client/CVNAttributeName.h"

/// What is known of keys as a whole.
class CVNAttributes {
public:
    /// The marker keys: a character with a value for one of them is syntax that an editor may hide.
    static constexpr const std::array<CVNAttributeName, 17>& markerAttributes() { return markers; }

private:
    static constexpr std::array<CVNAttributeName, 17> markers = {
        CVNStrongMarkerAttributeName,     CVNEmphasisMarkerAttributeName,
        CVNCodeMarkerAttributeName,       CVNStrikethroughMarkerAttributeName,
        CVNUnderlineMarkerAttributeName,  CVNHighlighterMarkerAttributeName,
        CVNHashtagMarkerAttributeName,    CVNLinkMarkerAttributeName,
        CVNImageMarkerAttributeName,      CVNHeadingMarkerAttributeName,
        CVNFencedCodeMarkerAttributeName, CVNListMarkerAttributeName,
        CVNBlockquoteMarkerAttributeName, CVNReferenceMarkerAttributeName,
        CVNFootNoteMarkerAttributeName,   CVNWikiLinkMarkerAttributeName,
        CVNColorMarkerAttributeName,
    };
};
