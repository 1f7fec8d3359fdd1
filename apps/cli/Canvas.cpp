#include "Canvas.h"

#include <utility>

#include "corvane/scan/Util.h"

namespace Cli {

namespace {

constexpr char16_t escape = u'\x1B';
constexpr char16_t firstPicture = u'\u2400'; // of the 32 control characters of ASCII, in their order
constexpr char16_t deletePicture = u'\u2421';
constexpr char16_t escapePicture = firstPicture + escape;

constexpr std::pair<Attribute, char16_t> attributeCodes[] = {
    {Bold, u'1'}, {Dim, u'2'}, {Italic, u'3'}, {Underline, u'4'}, {Strike, u'9'},
};

std::u16string colorCode(std::u16string_view ground, int color) {
    if (color == TerminalColor) return {};
    return std::u16string(ground) + Ondo::Util::toString(color);
}

std::u16string sequenceFor(const Pen& pen) {
    std::u16string sequence = {escape, u'[', u'0'};
    for (const auto& [attribute, code] : attributeCodes)
        if (pen.attributes & attribute) sequence += {u';', code};
    return sequence + colorCode(u";38;5;", pen.foreground) + colorCode(u";48;5;", pen.background) + u'm';
}

/// A control of the second set is the same as an escape and a letter.
constexpr char16_t substitute = u'\u2426';

/// Embeddings, overrides and isolates, which turn around what stands behind them.
bool isDirectionControl(char16_t c) {
    return (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
}

void addVisible(char16_t c, std::u16string& out) {
    if (c >= 0x80 && c < 0xA0)
        out += {escapePicture, static_cast<char16_t>(c - 0x40)};
    else if (c == 0x7F)
        out += deletePicture;
    else if (isDirectionControl(c))
        out += substitute;
    else if (c < 0x20 && c != u'\t')
        out += static_cast<char16_t>(firstPicture + c);
    else
        out += c;
}

} // namespace

void Canvas::take(const Pen& pen) {
    if (isColored_ && !(pen == pen_)) text_ += sequenceFor(pen);
    pen_ = pen;
}

void Canvas::endLine(std::u16string_view lineEnding) {
    take(Pen());
    text_ += lineEnding;
}

void Canvas::put(const Pen& pen, char16_t c) {
    take(pen);
    addVisible(c, text_);
}

void Canvas::put(const Pen& pen, std::u16string_view text) {
    for (const char16_t c : text)
        put(pen, c);
}

bool Canvas::isAtLineStart() const {
    return text_.empty() || text_.back() == u'\n';
}

bool Canvas::isBehindSpace() const {
    return !text_.empty() && text_.back() == u' ';
}

std::string Canvas::text() const {
    return Ondo::Util::utf8(text_);
}

} // namespace Cli
