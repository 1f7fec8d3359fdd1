#include "corvane/client/QueryBlockquotes.h"

#include "corvane/client/QueryHas.h"
#include "corvane/client/QueryItems.h"
#include "corvane/client/QueryUtilities.h"

namespace CVN::Query {

namespace {

/// In these a blank line is content.
constexpr KeyList verbatimKeys = {CVNFencedCodeAttributeName, CVNIndentedCodeAttributeName,
                                  CVNMathBlockAttributeName, CVNHTMLBlockAttributeName};

bool isLineBreak(char16_t c) {
    return c == u'\n' || c == u'\r';
}

} // namespace

const CVNListInfo* Answer::innermostItemInfo(const CVNAttributedString& text, const KeyList&,
                                             std::int64_t index, CVNRange* itemRange, CVNRange* markerRange) {
    const CVNListInfo* const item = listItemInfoAtIndex(text, index);
    const CVNListInfo* const line = blockquoteItemInfoAtIndex(text, index);
    const bool isInLine = line && (!item || line->listLevel > item->listLevel);
    return (isInLine ? blockquoteItemInfoAtIndex : listItemInfoAtIndex)(text, index, itemRange, markerRange);
}

bool Answer::isParagraphEmpty(const CVNAttributedString& text, const KeyList&, std::int64_t index) {
    if (!listOrBlockquoteItemInfoAtIndex(text, index) || hasAny(text, verbatimKeys, index)) return false;
    const auto isMarkerOrBlank = [&](std::int64_t at) {
        return isBlankOrQuoteMarker(text, at) || text.attribute(CVNListMarkerAttributeName, at);
    };
    const bool isInBreak = text.characterAtIndex(index) == u'\n' && index > 0;
    std::int64_t at = isInBreak && text.characterAtIndex(index - 1) == u'\r' ? index - 1 : index;
    for (; at > 0 && !isLineBreak(text.characterAtIndex(at - 1)); --at)
        if (!isMarkerOrBlank(at - 1)) return false;
    for (at = index; at < text.length() && !isLineBreak(text.characterAtIndex(at)); ++at)
        if (!isMarkerOrBlank(at)) return false;
    return true;
}

std::int64_t Answer::calloutNestLevel(const CVNAttributedString& text, const KeyList& keys,
                                      std::int64_t index) {
    const ItemRuns items(text, keys);
    std::int64_t count = 0;
    for (std::int64_t run = items.at(index); run != ItemRuns::noRun; run = items.parent(run))
        count += items.info(run).isCallout() ? 1 : 0;
    return count;
}

} // namespace CVN::Query
