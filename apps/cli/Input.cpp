#include "Input.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

#include "Outcome.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

[[noreturn]] void failReading(const std::string& file) {
    throw Failure(displayName(file) + ": " + std::generic_category().message(errno));
}

std::string readAll(std::FILE* stream, const std::string& file) {
    constexpr std::size_t chunk = std::size_t{1} << 20;
    std::string bytes;
    for (std::size_t got = chunk; got == chunk;) {
        const std::size_t size = bytes.size();
        bytes.resize(size + chunk);
        got = std::fread(bytes.data() + size, 1, chunk, stream);
        bytes.resize(size + got);
    }
    if (std::ferror(stream)) failReading(file);
    return bytes;
}

std::string readBytes(const std::string& file) {
    if (file == "-") return readAll(stdin, file);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(std::fopen(file.c_str(), "rb"), std::fclose);
    if (!stream) failReading(file);
    return readAll(stream.get(), file);
}

/// The first and second bytes of the well-formed sequences beyond ASCII, and how many bytes follow the first.
struct Utf8Row {
    unsigned firstLead, lastLead;
    unsigned firstSecond, lastSecond;
    std::size_t following;
};

constexpr Utf8Row utf8Rows[] = {
    {0xC2, 0xDF, 0x80, 0xBF, 1}, {0xE0, 0xE0, 0xA0, 0xBF, 2}, {0xE1, 0xEC, 0x80, 0xBF, 2},
    {0xED, 0xED, 0x80, 0x9F, 2}, {0xEE, 0xEF, 0x80, 0xBF, 2}, {0xF0, 0xF0, 0x90, 0xBF, 3},
    {0xF1, 0xF3, 0x80, 0xBF, 3}, {0xF4, 0xF4, 0x80, 0x8F, 3},
};

bool isByteIn(char byte, unsigned first, unsigned last) {
    const unsigned value = static_cast<unsigned char>(byte);
    return value >= first && value <= last;
}

/// The length of the sequence beyond ASCII that the bytes begin with; 0 when it is malformed.
std::size_t sequenceLength(std::string_view bytes) {
    for (const Utf8Row& row : utf8Rows) {
        if (!isByteIn(bytes[0], row.firstLead, row.lastLead)) continue;
        if (bytes.size() <= row.following || !isByteIn(bytes[1], row.firstSecond, row.lastSecond)) return 0;
        for (std::size_t i = 2; i <= row.following; ++i)
            if (!isByteIn(bytes[i], 0x80, 0xBF)) return 0;
        return row.following + 1;
    }
    return 0;
}

} // namespace

std::string displayName(const std::string& file) {
    if (file.empty()) return "\"\"";
    return file == "-" ? "standard input" : file;
}

std::int64_t invalidUtf8(std::string_view bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t length = isByteIn(bytes[at], 0, 0x7F) ? 1 : sequenceLength(bytes.substr(at));
        if (length == 0) return static_cast<std::int64_t>(at);
        at += length;
    }
    return -1;
}

std::string readUtf8(const std::string& file) {
    std::string bytes = readBytes(file);
    const std::int64_t invalid = invalidUtf8(bytes);
    if (invalid >= 0)
        throw Failure(displayName(file) + ": invalid UTF-8 at byte offset " + std::to_string(invalid));
    return bytes;
}

std::u16string readText(const std::string& file) {
    return Ondo::Util::utf16(readUtf8(file));
}

std::u16string readPlainText(const std::string& file) {
    constexpr char16_t mark = 0xFEFF;
    std::u16string text = readText(file);
    if (text.starts_with(mark)) text.erase(0, 1);
    return text;
}

} // namespace Cli
