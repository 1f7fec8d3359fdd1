#include "corvane/client/StringBuilder.h"

#include <algorithm>

#include "corvane/scan/Predicate.h"
#include "corvane/scan/Util.h"

namespace CVN {

namespace Util = Ondo::Util;

namespace {

bool isWhitespaceOrNewline(char32_t c) {
    return Ondo::Predicate::isWhitespace(c) || Ondo::Predicate::isUnicodeWhitespace(c) || c == 0x85;
}

bool needsEscapeInLabel(char16_t c) {
    return std::u16string_view(u"#()[]").find(c) != std::u16string_view::npos;
}

/// Each line ending as one space.
std::u16string onOneLine(std::u16string_view text) {
    std::u16string line = Util::replaceAll(text, u"\r\n", u" ");
    std::replace_if(
        line.begin(), line.end(), [](char16_t c) { return c == u'\n' || c == u'\r'; }, u' ');
    return line;
}

} // namespace

std::u16string_view StringBuilder::trimWhitespaceAndNewlines(std::u16string_view text) {
    return Util::trim(text, isWhitespaceOrNewline);
}

std::u16string StringBuilder::safeLabelString(std::u16string_view label) {
    std::u16string safe;
    bool isEscaped = false; // an odd run of backslashes stands directly before
    for (const char16_t c : onOneLine(trimWhitespaceAndNewlines(label))) {
        if (!isEscaped && needsEscapeInLabel(c)) safe += u'\\';
        safe += c;
        isEscaped = !isEscaped && c == u'\\';
    }
    return safe;
}

std::u16string StringBuilder::safeURLString(std::u16string_view url) {
    std::u16string safe = Util::replaceAll(trimWhitespaceAndNewlines(url), u"\n", u"");
    if (safe.starts_with(u"tel:")) return safe;
    safe = Util::percentEscape(safe);
    safe = Util::replaceAll(safe, u"(", u"%28");
    return Util::replaceAll(safe, u")", u"%29");
}

std::u16string StringBuilder::metadataComment(Metadata metadata) {
    std::u16string comment;
    for (const auto& [key, value] : metadata) {
        comment += comment.empty() ? u"<!-- {\"" : u", \"";
        comment += key;
        comment += u"\":\"";
        comment += value;
        comment += u'"';
    }
    if (!comment.empty()) comment += u"} -->";
    return comment;
}

std::u16string StringBuilder::markdownLink(std::u16string_view label, std::u16string_view url,
                                           std::u16string_view title, Metadata metadata) {
    std::u16string link = u"[" + safeLabelString(label) + u"](" + safeURLString(url);
    if (!title.empty()) {
        link += u" \"";
        link += title;
        link += u'"';
    }
    return link + u")" + metadataComment(metadata);
}

std::u16string StringBuilder::markdownImage(std::u16string_view label, std::u16string_view url,
                                            std::u16string_view title) {
    return u"!" + markdownLink(label, url, title);
}

std::u16string StringBuilder::markdownFile(std::u16string_view label, std::u16string_view url, bool preview) {
    constexpr MetadataPair pairs[] = {{u"embed", u"true"}, {u"preview", u"true"}};
    return markdownLink(label, url, {}, Metadata(pairs).first(preview ? 2 : 1));
}

std::u16string StringBuilder::footnoteReference(std::u16string_view label) {
    return std::u16string(u"[^").append(label).append(u"]");
}

std::u16string StringBuilder::referenceDefinition(std::u16string_view label, std::u16string_view text) {
    return std::u16string(u"[").append(label).append(u"]: ").append(text);
}

std::u16string StringBuilder::codeBlock(std::u16string_view text) {
    return std::u16string(u"```\n").append(text).append(u"\n```\n");
}

std::u16string StringBuilder::table(std::int64_t rows, std::int64_t columns) {
    const std::int64_t cells = std::clamp<std::int64_t>(columns, 0, maximumTableLength);
    const std::int64_t lineLength = cells * 4 + 2;
    if (rows < 0 || rows >= maximumTableLength / lineLength) return {};
    std::u16string table;
    for (std::int64_t line = 0; line <= rows; ++line) {
        for (std::int64_t cell = 0; cell < cells; ++cell)
            table += line == 1 ? u"|---" : u"|   ";
        table += line < rows ? u"|\n" : u"|";
    }
    return table;
}

} // namespace CVN
