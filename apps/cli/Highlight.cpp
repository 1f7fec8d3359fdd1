#include "Highlight.h"

#include "Canvas.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

constexpr Pen matchPen = {.attributes = Bold, .foreground = 172}; // orange, for dark and light terminals
constexpr char32_t joiner = 0x200D;

/// What is drawn onto the character before it: marks of all scripts, selectors of variants, tones of emoji.
constexpr struct {
    char32_t first, last;
} marks[] = {
    {0x300, 0x36F},   {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {joiner, joiner},   {0x20D0, 0x20FF},
    {0x3099, 0x309A}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0x1F3FB, 0x1F3FF},
};

bool isMark(char32_t c) {
    for (const auto& [first, last] : marks)
        if (c >= first && c <= last) return true;
    return false;
}

} // namespace

std::string highlighted(std::u16string_view text, const std::vector<std::int64_t>& indexes, bool colored) {
    Canvas canvas(colored);
    auto next = indexes.begin();
    bool isMatch = false;
    bool isJoined = false; // to the character before
    const auto length = static_cast<std::int64_t>(text.size());
    for (std::int64_t at = 0; at < length;) {
        const char32_t c = Ondo::Util::codePointAt(text, at);
        const std::int64_t size = Ondo::Util::codeUnitCount(c);
        if (next != indexes.end() && *next == at) {
            isMatch = true;
            ++next;
        } else if (!isJoined && !isMark(c)) {
            isMatch = false;
        }
        canvas.put(isMatch ? matchPen : Pen(),
                   text.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(size)));
        isJoined = c == joiner;
        at += size;
    }
    canvas.endLine({});
    return canvas.text();
}

} // namespace Cli
