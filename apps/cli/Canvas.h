#pragma once

#include <string>
#include <string_view>

namespace Cli {

/// What a pen can do besides colour.
enum Attribute : unsigned { Bold = 1, Dim = 2, Italic = 4, Underline = 8, Strike = 16 };

/// The colour that the terminal writes in by itself; others are numbers from 0 to 255.
inline constexpr int TerminalColor = -1;

struct Pen {
    unsigned attributes = 0;
    int foreground = TerminalColor;
    int background = TerminalColor;

    bool operator==(const Pen& other) const = default;
};

/// Text for a terminal. Only the pens control it: a control character of the text becomes its picture, and
/// each line ends with the terminal as it was.
class Canvas {
public:
    /// Without colours pens are of no effect.
    explicit Canvas(bool isColored) : isColored_(isColored) {}

    bool isColored() const { return isColored_; }
    /// Ends the line.
    void endLine(std::u16string_view lineEnding);
    void put(const Pen& pen, char16_t c);
    void put(const Pen& pen, std::u16string_view text);

    bool isAtLineStart() const;
    bool isBehindSpace() const;
    /// All that was put, in UTF-8.
    std::string text() const;

private:
    void take(const Pen& pen);

    std::u16string text_;
    Pen pen_;
    bool isColored_;
};

} // namespace Cli
