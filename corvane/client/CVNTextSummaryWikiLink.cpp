#include "corvane/client/CVNTextSummaryWikiLink.h"

#include <utility>
#include <vector>

#include "corvane/client/ValueText.h"
#include "corvane/inline/Segments.h"

CVNTextSummaryWikiLink CVNTextSummaryWikiLink::wikiLinkWithTitle(std::u16string title, std::int64_t offset) {
    return {std::move(title), offset};
}

std::optional<std::u16string> CVNTextSummaryWikiLink::decodedTitle() const {
    std::vector<std::u16string> segments = Ondo::Segments::decode(title);
    if (segments.empty()) return std::nullopt;
    return std::move(segments.front());
}

std::u16string CVNTextSummaryWikiLink::description() const {
    return u"CVNTextSummaryWikiLink\ntitle: " + title + u"\noffset: " +
           CVN::ValueText::unsignedString(offset);
}
