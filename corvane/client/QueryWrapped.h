#pragma once

#include <string_view>

#include "corvane/client/QueryConstructs.h"
#include "corvane/client/QueryTypes.h"

/// Constructs with a marker at both ends.
///
/// The block gets (CVNRange text, CVNRange opening, CVNRange closing, bool& stop) for each: what stands
/// between the markers, and the markers, {CVNNotFound, 0} for one that is absent. The text of a fenced block
/// begins behind the fence, with the info string. Of a construct that reaches out of the range the part
/// inside counts. A construct nested in itself gives one call, of the outermost markers
/// that the range holds.

namespace CVN::Query {

struct Wrapping {
    CVNRange text;
    CVNRange opening;
    CVNRange closing;
};

/// The first and last marker of a construct, and what lies between. A marker that is the only one is the
/// opening one, unless it stands at the end and something is before it.
CORVANE_EXPORT Wrapping wrappingOf(const CVNAttributedString& text, CVNAttributeName markerKey,
                                   CVNRange construct);

template <class Block>
void enumerateWrappingAttribute(const CVNAttributedString& text, CVNAttributeName key,
                                CVNAttributeName markerKey, CVNRange range, CVNEnumerationOptions options,
                                Block&& block) {
    forEachConstruct(text, constructKeys(key, markerKey), range, options,
                     [&](CVNRange construct, const CVNValue&, bool& stop) {
                         const Wrapping wrapping = wrappingOf(text, markerKey, construct);
                         block(wrapping.text, wrapping.opening, wrapping.closing, stop);
                     });
}

struct WrappedQuery {
    std::string_view name;
    CVNAttributeName key;
    CVNAttributeName markerKey;

    template <class Block>
    void operator()(const CVNAttributedString& text, CVNRange range, CVNEnumerationOptions options,
                    Block&& block) const {
        enumerateWrappingAttribute(text, key, markerKey, range, options, block);
    }
};

inline constexpr WrappedQuery enumerateStrongInRange{"enumerateStrongInRange", CVNStrongAttributeName,
                                                     CVNStrongMarkerAttributeName};
inline constexpr WrappedQuery enumerateEmphasisInRange{"enumerateEmphasisInRange", CVNEmphasisAttributeName,
                                                       CVNEmphasisMarkerAttributeName};
inline constexpr WrappedQuery enumerateStrikethroughInRange{
    "enumerateStrikethroughInRange", CVNStrikethroughAttributeName, CVNStrikethroughMarkerAttributeName};
inline constexpr WrappedQuery enumerateUnderlineInRange{
    "enumerateUnderlineInRange", CVNUnderlineAttributeName, CVNUnderlineMarkerAttributeName};
inline constexpr WrappedQuery enumerateCodeInRange{"enumerateCodeInRange", CVNCodeAttributeName,
                                                   CVNCodeMarkerAttributeName};
inline constexpr WrappedQuery enumerateHashtagInRange{"enumerateHashtagInRange", CVNHashtagAttributeName,
                                                      CVNHashtagMarkerAttributeName};
inline constexpr WrappedQuery enumerateInlineMathInRange{
    "enumerateInlineMathInRange", CVNMathSpanAttributeName, CVNMathSpanMarkerAttributeName};
inline constexpr WrappedQuery enumerateFencedCodeInRange{
    "enumerateFencedCodeInRange", CVNFencedCodeAttributeName, CVNFencedCodeMarkerAttributeName};
inline constexpr WrappedQuery enumerateYAMLInRange{"enumerateYAMLInRange", CVNYamlAttributeName,
                                                   CVNFencedCodeMarkerAttributeName};
inline constexpr WrappedQuery enumerateMathBlockInRange{
    "enumerateMathBlockInRange", CVNMathBlockAttributeName, CVNMathBlockMarkerAttributeName};

inline constexpr const WrappedQuery* wrappedQueries[] = {
    &enumerateStrongInRange,     &enumerateEmphasisInRange,   &enumerateStrikethroughInRange,
    &enumerateUnderlineInRange,  &enumerateCodeInRange,       &enumerateHashtagInRange,
    &enumerateInlineMathInRange, &enumerateFencedCodeInRange, &enumerateYAMLInRange,
    &enumerateMathBlockInRange,
};

} // namespace CVN::Query
