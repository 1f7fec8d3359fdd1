#include "Output.h"

#include <cerrno>
#include <cstdio>

namespace Cli {

namespace {

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

} // namespace

int writeOutput(const std::string& text) {
    errno = 0;
    const bool isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (isWritten && std::fclose(stdout) == 0) return 0;
    return errno ? errno : EIO;
}

void complain(std::string message, const std::string& detail) {
    for (char& c : message)
        if (isControl(c)) c = '?';
    message = "corvane: " + message + "\n";
    std::fwrite(message.data(), 1, message.size(), stderr);
    std::fwrite(detail.data(), 1, detail.size(), stderr);
}

} // namespace Cli
