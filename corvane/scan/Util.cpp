#include "corvane/scan/Util.h"

#include <charconv>
#include <iterator>
#include <limits>

namespace Ondo::Util {

namespace {

std::u16string_view debugEscape(char16_t c) {
    switch (c) {
    case u'\\':
        return u"\\\\";
    case u'\n':
        return u"\\n";
    case u'\r':
        return u"\\r";
    case u'\t':
        return u"\\t";
    default:
        return {};
    }
}

std::u16string_view htmlEntity(char16_t c) {
    switch (c) {
    case u'"':
        return u"&quot;";
    case u'&':
        return u"&amp;";
    case u'<':
        return u"&lt;";
    case u'>':
        return u"&gt;";
    default:
        return {};
    }
}

/// Appends the text with each code unit replaced for which `replacement` is not empty, by runs.
template <std::u16string_view (*replacement)(char16_t)>
void addReplacing(std::u16string_view text, std::u16string& out) {
    std::size_t runStart = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::u16string_view with = replacement(text[at]);
        if (with.empty()) continue;
        out += text.substr(runStart, at - runStart);
        out += with;
        runStart = at + 1;
    }
    out += text.substr(runStart);
}

bool isPercentEscape(Go go) {
    go.nextMatch(Go::character(U'%'), 1, 1);
    go.nextMatch(Go::hexadecimalNumber, 2, 2);
    return !go.hasFailed();
}

constexpr char16_t foldWidth(char16_t c) {
    if (c == 0x3000) return u' ';
    return c >= 0xFF01 && c <= 0xFF5E ? static_cast<char16_t>(c - 0xFF01 + 0x21) : c;
}

} // namespace

std::u16string toString(std::int64_t number) {
    char digits[std::numeric_limits<std::int64_t>::digits10 + 2];
    char* const end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    return {std::begin(digits), end};
}

std::int64_t decimalToInteger(std::u16string_view digits) {
    std::uint64_t value = 0;
    for (const char16_t c : digits) {
        if (!Go::decimalNumber(c)) CORVANE_ASSERT(false, "Util");
        value = value * 10 + (c - U'0');
    }
    return static_cast<std::int64_t>(value);
}

std::int64_t hexadecimalToInteger(std::u16string_view digits) {
    std::uint64_t value = 0;
    for (const char16_t c : digits) {
        if (!Go::hexadecimalNumber(c)) CORVANE_ASSERT(false, "Util");
        value = value * 16 + (Go::decimalNumber(c) ? c - U'0' : downcaseAscii(c) - U'a' + 10);
    }
    return static_cast<std::int64_t>(value);
}

std::u16string escape(std::u16string_view text) {
    std::u16string out;
    addReplacing<debugEscape>(text, out);
    return out;
}

std::u16string unescape(std::u16string_view text) {
    std::u16string out(text);
    for (const char16_t c : {u'\n', u'\r', u'\t', u'\\'})
        out = replaceAll(out, debugEscape(c), std::u16string_view(&c, 1));
    return out;
}

std::u16string replaceAll(std::u16string_view text, std::u16string_view from, std::u16string_view to) {
    if (from.empty()) return std::u16string(text);
    std::u16string out;
    std::size_t start = 0;
    for (std::size_t found = text.find(from); found != std::u16string_view::npos;
         found = text.find(from, start)) {
        out += text.substr(start, found - start);
        out += to;
        start = found + from.size();
    }
    out += text.substr(start);
    return out;
}

void addHtmlEscaped(std::u16string_view text, std::u16string& out) {
    addReplacing<htmlEntity>(text, out);
}

bool shouldPercentEscape(char32_t c) {
    if (c <= U' ' || c >= 0x7F) return true;
    return std::u32string_view(U"\"%<>[\\]^`{|}").find(c) != std::u32string_view::npos;
}

void addPercentEscape(char32_t c, std::u16string& out) {
    constexpr std::u16string_view digits = u"0123456789ABCDEF";
    out += u'%';
    out += digits[(c >> 4) & 0xF];
    out += digits[c & 0xF];
}

std::u16string percentEscape(std::u16string_view destination) {
    std::u16string out;
    const auto length = static_cast<std::int64_t>(destination.size());
    for (std::int64_t at = 0; at < length;) {
        const char32_t c = codePointAt(destination, at);
        const std::int64_t end = at + codeUnitCount(c);
        const auto units =
            destination.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(end - at));
        if (!shouldPercentEscape(c) || isPercentEscape(Go(destination, at, length))) {
            out += units;
        } else {
            for (const char byte : utf8(units))
                addPercentEscape(static_cast<unsigned char>(byte), out);
        }
        at = end;
    }
    return out;
}

std::u16string mergeTrimUnicodeWhitespace(std::u16string_view text) {
    std::u16string out;
    out.reserve(text.size());
    for (const char16_t c : text) {
        if (!Go::unicodeWhitespace(c)) {
            out += c;
        } else if (!out.empty() && out.back() != u' ') {
            out += u' ';
        }
    }
    if (!out.empty() && out.back() == u' ') out.pop_back();
    return out;
}

std::u16string downcaseAscii(std::u16string_view text) {
    std::u16string out(text);
    for (char16_t& c : out)
        c = downcaseAscii(c);
    return out;
}

std::u16string downcaseUnicode(std::u16string_view text) {
    std::u16string out;
    out.reserve(text.size());
    const auto length = static_cast<std::int64_t>(text.size());
    for (std::int64_t at = 0; at < length;) {
        const char32_t c = codePointAt(text, at);
        const std::u16string_view full = fullCaseFolding(c);
        if (full.empty()) {
            addUtf16(commonCaseFolding(c), out);
        } else {
            out += full;
        }
        at += codeUnitCount(c);
    }
    return out;
}

std::u16string widthFolding(std::u16string_view text) {
    std::u16string out(text);
    for (char16_t& c : out)
        c = foldWidth(c);
    return out;
}

std::u16string diacriticFolding(std::u16string_view text) {
    std::u16string out;
    out.reserve(text.size());
    for (const char16_t c : text)
        if (c < 0x300 || c > 0x36F) out += baseLetter(c);
    return out;
}

} // namespace Ondo::Util
