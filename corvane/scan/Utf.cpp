#include "corvane/scan/Util.h"

namespace Ondo::Util {

namespace {

constexpr char32_t replacementCharacter = 0xFFFD;

constexpr bool isSurrogate(char32_t c) {
    return c >= 0xD800 && c < 0xE000;
}

/// `c` with the marker bits of a lead or continuation byte; the low 6 bits of `c` follow `shift` others.
constexpr char markedByte(unsigned marker, char32_t c, int shift) {
    const char32_t bits = marker == 0x80 ? (c >> shift) & 0x3F : c >> shift;
    return static_cast<char>(static_cast<unsigned char>(marker | bits));
}

void addUtf8(char32_t c, std::string& out) {
    if (isSurrogate(c)) c = replacementCharacter;
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += markedByte(0xC0, c, 6);
        out += markedByte(0x80, c, 0);
    } else if (c < 0x10000) {
        out += markedByte(0xE0, c, 12);
        out += markedByte(0x80, c, 6);
        out += markedByte(0x80, c, 0);
    } else {
        out += markedByte(0xF0, c, 18);
        out += markedByte(0x80, c, 12);
        out += markedByte(0x80, c, 6);
        out += markedByte(0x80, c, 0);
    }
}

constexpr bool isIn(unsigned value, unsigned first, unsigned last) {
    return value >= first && value <= last;
}

/// How many bytes must follow a lead byte beyond ASCII; 0 for a byte that leads nothing.
constexpr std::size_t continuationCount(unsigned lead) {
    if (isIn(lead, 0xC2, 0xDF)) return 1;
    if (isIn(lead, 0xE0, 0xEF)) return 2;
    return isIn(lead, 0xF0, 0xF4) ? 3 : 0;
}

/// The second byte excludes overlong forms, surrogates and values beyond U+10FFFF.
constexpr bool isSecondByte(unsigned lead, unsigned byte) {
    switch (lead) {
    case 0xE0:
        return isIn(byte, 0xA0, 0xBF);
    case 0xED:
        return isIn(byte, 0x80, 0x9F);
    case 0xF0:
        return isIn(byte, 0x90, 0xBF);
    case 0xF4:
        return isIn(byte, 0x80, 0x8F);
    default:
        return isIn(byte, 0x80, 0xBF);
    }
}

struct Decoded {
    char32_t value;
    std::size_t byteCount;
};

/// The first character of `bytes`, which is not empty.
Decoded decodeUtf8(std::string_view bytes) {
    const unsigned lead = static_cast<unsigned char>(bytes[0]);
    if (lead < 0x80) return {lead, 1};
    const std::size_t count = continuationCount(lead);
    if (count == 0) return {replacementCharacter, 1};
    char32_t value = lead & (0x3FU >> count);
    for (std::size_t i = 1; i <= count; ++i) {
        const unsigned byte = i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0;
        if (i == 1 ? !isSecondByte(lead, byte) : !isIn(byte, 0x80, 0xBF)) return {replacementCharacter, i};
        value = value << 6 | (byte & 0x3F);
    }
    return {value, count + 1};
}

} // namespace

std::string utf8(std::u16string_view text) {
    std::string out;
    out.reserve(text.size());
    const auto length = static_cast<std::int64_t>(text.size());
    for (std::int64_t at = 0; at < length;) {
        const char32_t c = codePointAt(text, at);
        addUtf8(c, out);
        at += codeUnitCount(c);
    }
    return out;
}

std::u16string utf16(std::string_view bytes) {
    std::u16string out;
    out.reserve(bytes.size());
    while (!bytes.empty()) {
        const Decoded decoded = decodeUtf8(bytes);
        addUtf16(decoded.value, out);
        bytes.remove_prefix(decoded.byteCount);
    }
    return out;
}

std::u16string utf16(char32_t c) {
    std::u16string out;
    addUtf16(c, out);
    return out;
}

void addUtf16(char32_t c, std::u16string& out) {
    if (c > 0x10FFFF) c = replacementCharacter;
    if (c < 0x10000) {
        out += static_cast<char16_t>(c);
    } else {
        out += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
        out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
    }
}

} // namespace Ondo::Util
