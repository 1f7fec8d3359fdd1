#include "corvane/client/QueryLinks.h"

#include "corvane/client/QueryWrapped.h"

namespace CVN::Query {

LinkRanges LinkQuery::rangesOf(const CVNAttributedString& text, CVNRange link) const {
    const Wrapping markers = wrappingOf(text, markerKey, link);
    return {link,
            markers.opening,
            markers.closing,
            firstRunIn(text, urlKey, link),
            firstRunIn(text, titleKey, link),
            firstRunIn(text, labelKey, link)};
}

} // namespace CVN::Query
