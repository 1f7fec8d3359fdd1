#include "Output.h"

#include <cerrno>
#include <cstdio>

namespace Cli {

namespace {

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

/// U+0080 to U+009F in UTF-8.
bool isSecondOfControl(char first, char second) {
    const auto byte = static_cast<unsigned char>(second);
    return static_cast<unsigned char>(first) == 0xC2 && byte >= 0x80 && byte < 0xA0;
}

} // namespace

int writeOutput(const std::string& text) {
    errno = 0;
    const bool isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (isWritten && std::fclose(stdout) == 0) return 0;
    return errno ? errno : EIO;
}

void writePart(std::string_view text) {
    errno = 0;
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size())
        throw OutputError{errno ? errno : EIO};
}

void complain(std::string message, const std::string& detail) {
    for (std::size_t at = 0; at < message.size(); ++at)
        if (isControl(message[at]) || (at > 0 && isSecondOfControl(message[at - 1], message[at])))
            message[at] = '?';
    message = "corvane: " + message + "\n";
    std::fwrite(message.data(), 1, message.size(), stderr);
    std::fwrite(detail.data(), 1, detail.size(), stderr);
}

} // namespace Cli
