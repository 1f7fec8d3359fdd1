#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "Canvas.h"
#include "ColorLiteral.h"
#include "Look.h"
#include "Stretches.h"

namespace Cli {

/// Paints the stretches of a note, in their order.
///
/// Without colours only boxes, ellipses and the signs for control characters differ from the text.
class Painter {
    std::u16string_view text_;
    Canvas canvas_;
    std::optional<Swatch> swatch_;              ///< of the last colour literal
    std::map<std::int64_t, int> calloutColors_; ///< of the last head of a callout, by the level of its quote
    bool isInFold_ = false;
    bool isStretchRightToLeft_ = false;
    bool isLineRightToLeft_ = false; ///< whether the line holds such text

public:
    /// The text must outlive the painter.
    Painter(std::u16string_view text, bool isColored) : text_(text), canvas_(isColored) {}

    void paint(CVNRange stretch, const Values& values);
    /// What was painted, in UTF-8.
    std::string result();

private:
    void noteDirection(const Values& values);
    Look lookInCallout(Look look, const Values& values);
    void paintShown(const Look& look, CVNRange stretch);
    void paintText(const Look& look, CVNRange stretch);
    void paintCharacter(const Look& look, std::int64_t offset);
    void paintTask(const Look& look, CVNRange stretch);
    void paintSwatch(Look look, CVNRange stretch);
    void startFold(const Pen& pen);
    void endFold(std::int64_t offset);
    void endLine(std::u16string_view lineEnding);
    std::u16string_view lineEndingBefore(std::int64_t offset) const;

    std::u16string_view textIn(CVNRange range) const {
        return text_.substr(static_cast<std::size_t>(range.location), static_cast<std::size_t>(range.length));
    }
    bool isAt(std::int64_t offset, char16_t c) const {
        return offset >= 0 && offset < static_cast<std::int64_t>(text_.size()) &&
               text_[static_cast<std::size_t>(offset)] == c;
    }
};

} // namespace Cli
