#pragma once

#include <string_view>

#include "corvane/client/QueryConstructs.h"
#include "corvane/client/QueryTypes.h"

/// Links and images with a destination of their own; those in reference form are enumerateReferenceInRange's.
///
/// The block gets (const LinkRanges& link, bool& stop) for each. Of a link that reaches out of the range the
/// part inside counts.

namespace CVN::Query {

/// Where a link is and what it is made of, a range for each key; {CVNNotFound, 0} for what it doesn't have.
/// An empty label and an empty destination are not there. What an editor hides is all but the label.
struct LinkRanges {
    CVNRange link;
    CVNRange opening; ///< the first marker, "[" or "!["
    CVNRange closing; ///< the last marker, ")"
    CVNRange url;     ///< with the angle brackets, if it has some
    CVNRange title;   ///< with its quotes
    CVNRange label;
};

struct LinkQuery {
    std::string_view name;
    CVNAttributeName key;
    CVNAttributeName markerKey;
    CVNAttributeName urlKey;
    CVNAttributeName titleKey;
    CVNAttributeName labelKey;

    template <class Block>
    void operator()(const CVNAttributedString& text, CVNRange range, CVNEnumerationOptions options,
                    Block&& block) const {
        forEachConstruct(
            text, constructKeys(key, markerKey), range, options,
            [&](CVNRange link, const CVNValue&, bool& stop) { block(rangesOf(text, link), stop); });
    }

    /// Of a link that is there.
    CORVANE_EXPORT LinkRanges rangesOf(const CVNAttributedString& text, CVNRange link) const;
};

template <class Block>
void enumerateLinkAttribute(const CVNAttributedString& text, CVNAttributeName key, CVNAttributeName markerKey,
                            CVNAttributeName urlKey, CVNAttributeName titleKey, CVNAttributeName labelKey,
                            CVNRange range, CVNEnumerationOptions options, Block&& block) {
    LinkQuery{{}, key, markerKey, urlKey, titleKey, labelKey}(text, range, options, block);
}

inline constexpr LinkQuery enumerateLinkInRange{"enumerateLinkInRange",     CVNLinkAttributeName,
                                                CVNLinkMarkerAttributeName, CVNLinkURLAttributeName,
                                                CVNLinkTitleAttributeName,  CVNLinkLabelAttributeName};
inline constexpr LinkQuery enumerateImageInRange{"enumerateImageInRange",     CVNImageAttributeName,
                                                 CVNImageMarkerAttributeName, CVNImageURLAttributeName,
                                                 CVNImageTitleAttributeName,  CVNImageLabelAttributeName};

inline constexpr const LinkQuery* linkQueries[] = {&enumerateLinkInRange, &enumerateImageInRange};

} // namespace CVN::Query
