#include "corvane/client/QueryCode.h"

#include <algorithm>

#include "corvane/client/QueryBlockquotes.h"
#include "corvane/client/QueryConstructs.h"
#include "corvane/client/QueryItems.h"
#include "corvane/client/QueryWrapped.h"

namespace CVN::Query {

namespace {

using Text = const CVNAttributedString&;

bool isBlankAt(Text text, std::int64_t at) {
    const char16_t c = text.characterAtIndex(at);
    return c == u' ' || c == u'\t';
}

bool isLineBreakAt(Text text, std::int64_t at) {
    const char16_t c = text.characterAtIndex(at);
    return c == u'\n' || c == u'\r';
}

std::u16string_view part(Text text, CVNRange range) {
    return text.string().substr(static_cast<std::size_t>(range.location),
                                static_cast<std::size_t>(range.length));
}

std::int64_t lineStart(Text text, std::int64_t at) {
    while (at > 0 && !isLineBreakAt(text, at - 1))
        --at;
    return at;
}

/// A place on a line.
struct Place {
    std::int64_t offset;
    std::int64_t column; ///< tabs reach to the next multiple of 4

    void advance(Text text) {
        column += text.characterAtIndex(offset) == u'\t' ? 4 - column % 4 : 1;
        ++offset;
    }
};

Place placeAt(Text text, std::int64_t offset) {
    Place place{lineStart(text, offset), 0};
    while (place.offset < offset)
        place.advance(text);
    return place;
}

void skipQuoteMarkers(Text text, Place& place, std::int64_t end) {
    for (Place ahead = place; ahead.offset < end && isBlankOrQuoteMarker(text, ahead.offset);) {
        const bool isMarker = text.attribute(CVNBlockquoteMarkerAttributeName, ahead.offset);
        ahead.advance(text);
        if (isMarker) place = ahead;
    }
}

// Blocks

/// Appends the lines from `place` on, each without what stands in the columns of its containers and of the
/// block.
template <class ColumnOf>
void appendLines(std::u16string& code, Text text, Place place, std::int64_t end, ColumnOf&& codeColumn) {
    while (place.offset < end) {
        const std::int64_t found = lineBreakIn(text, CVNRange::between(place.offset, end));
        const std::int64_t lineEnd = std::min(found, end);
        const std::int64_t column = codeColumn(place);
        skipQuoteMarkers(text, place, lineEnd);
        while (place.offset < lineEnd && place.column < column && isBlankAt(text, place.offset))
            place.advance(text);
        code.append(static_cast<std::size_t>(std::max<std::int64_t>(place.column - column, 0)), u' ');
        code += part(text, CVNRange::between(place.offset, lineEnd));
        if (lineEnd == end) break;
        code += u'\n';
        place = {behindLineBreak(text, lineEnd), 0};
    }
}

/// What lies between the line of the opening fence and that of the closing one.
CVNRange fencedLines(Text text, CVNRange block, const Wrapping& fences) {
    const std::int64_t head = fences.opening.isFound() ? fences.opening.end() : block.location;
    const std::int64_t lineEnd = lineBreakIn(text, CVNRange::between(head, block.end()));
    const std::int64_t start = lineEnd == CVNNotFound ? block.end() : behindLineBreak(text, lineEnd);
    const std::int64_t end =
        fences.closing.isFound() ? lineStart(text, fences.closing.location) : block.end();
    return CVNRange::between(start, std::max(start, end));
}

std::u16string fencedCode(Text text, CVNRange block) {
    const Wrapping fences = wrappingOf(text, CVNFencedCodeMarkerAttributeName, block);
    const CVNRange lines = fencedLines(text, block, fences);
    const std::int64_t column = placeAt(text, block.location).column;
    std::u16string code;
    appendLines(code, text, {lines.location, 0}, lines.end(), [&](const Place&) { return column; });
    return code;
}

/// Where the text of an item begins: behind its marker and up to four blanks.
std::int64_t contentColumn(Text text, CVNRange marker) {
    std::int64_t end = marker.end();
    while (end > marker.location && isBlankAt(text, end - 1))
        --end;
    Place place = placeAt(text, end);
    const std::int64_t column = place.column;
    while (place.offset < text.length() && isBlankAt(text, place.offset))
        place.advance(text);
    const bool isBeforeText = place.offset < text.length() && !isLineBreakAt(text, place.offset);
    return isBeforeText && place.column - column <= 4 ? place.column : column + 1;
}

/// Where the text of the innermost quote begins on the line of a place: behind the marker and a blank.
std::int64_t quotedColumn(Text text, Place place) {
    const std::int64_t end = text.length();
    const auto isInHead = [&](std::int64_t at) {
        return at < end && !isLineBreakAt(text, at) &&
               (isBlankOrQuoteMarker(text, at) || text.attribute(CVNListMarkerAttributeName, at));
    };
    std::int64_t column = 0;
    for (; isInHead(place.offset); place.advance(text)) {
        if (!text.attribute(CVNBlockquoteMarkerAttributeName, place.offset) || isBlankAt(text, place.offset))
            continue;
        const bool isBeforeBlank = place.offset + 1 < end && isBlankAt(text, place.offset + 1);
        column = place.column + (isBeforeBlank ? 2 : 1);
    }
    return column;
}

/// Where the text of the innermost item at an index begins.
std::int64_t itemColumn(Text text, std::int64_t index) {
    const ItemRuns items(text, listKeys);
    const CVNRange marker = items.marker(items.firstOfItem(items.at(index)));
    return marker.isFound() ? contentColumn(text, marker) : 0;
}

std::u16string indentedCode(Text text, CVNRange block) {
    const CVNListInfo* const container = listOrBlockquoteItemInfoAtIndex(text, block.location);
    const bool isQuoted = container && container->isBlockQuote();
    const std::int64_t column = container && !isQuoted ? itemColumn(text, block.location) : 0;
    std::u16string code;
    appendLines(code, text, placeAt(text, block.location), block.end(), [&](const Place& at) {
        return 4 + (isQuoted ? quotedColumn(text, {lineStart(text, at.offset), 0}) : column);
    });
    return code;
}

// Code spans

/// Breaks are spaces, without what the next line begins with; at a marker they are nothing. A space at both
/// ends only sets the code off from its markers.
std::u16string spanCode(Text text, CVNRange span) {
    CVNRange content = wrappingOf(text, CVNCodeMarkerAttributeName, span).text;
    const std::int64_t start = content.location;
    const std::u16string_view raw = part(text, content);
    const bool isPadded = raw.size() > 1 && raw.front() == u' ' && raw.back() == u' ' &&
                          raw.find_first_not_of(u' ') != std::u16string_view::npos;
    if (isPadded) content = {content.location + 1, content.length - 2};
    std::u16string code;
    for (std::int64_t at = content.location; at < content.end();) {
        if (!isLineBreakAt(text, at)) {
            code += text.characterAtIndex(at++);
            continue;
        }
        const bool isFirst = at == start;
        at = behindLineBreak(text, at);
        while (at < content.end() && isBlankOrQuoteMarker(text, at))
            ++at;
        if (!isFirst && at < content.end()) code += u' ';
    }
    return code;
}

} // namespace

std::optional<std::u16string> codeStringAtIndex(const CVNAttributedString& text, std::int64_t index) {
    const struct {
        CVNAttributeName key;
        std::u16string (*code)(Text text, CVNRange range);
    } kinds[] = {
        {CVNCodeAttributeName, spanCode},
        {CVNFencedCodeAttributeName, fencedCode},
        {CVNIndentedCodeAttributeName, indentedCode},
    };
    for (const auto& kind : kinds) {
        const CVNRange range = constructAt(text, constructKeys(kind.key), index);
        if (range.isFound()) return kind.code(text, range);
    }
    return std::nullopt;
}

bool Answer::isFencedCodeEmpty(const CVNAttributedString& text, const KeyList& keys, std::int64_t index) {
    const CVNRange block = constructAt(text, constructKeys(keys[0]), index);
    if (!block.isFound()) return false;
    const Wrapping fences = wrappingOf(text, CVNFencedCodeMarkerAttributeName, block);
    if (!fences.opening.isFound() || !fences.closing.isFound()) return false;
    const CVNRange lines = fencedLines(text, block, fences);
    for (std::int64_t at = lines.location; at < lines.end(); ++at)
        if (!isBlankOrQuoteMarker(text, at)) return false;
    return true;
}

} // namespace CVN::Query
