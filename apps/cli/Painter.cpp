#include "Painter.h"

#include <utility>

namespace Cli {

namespace {

constexpr char16_t openBox = u'\u2610';
constexpr char16_t tickedBox = u'\u2611';
constexpr char16_t bar = u'\u258C';
constexpr char16_t linePart = u'\u2500';
constexpr char16_t ellipsis = u'\u2026';
constexpr std::u16string_view rightToLeftMark = u" \u21E0";

char16_t drawn(char16_t c, Form form) {
    if (form == Form::Bar && c == u'>') return bar;
    return form == Form::Line ? linePart : c;
}

} // namespace

void Painter::paint(CVNRange stretch, const Values& values) {
    const Look look = lookOf(values);
    const bool wasInFold = std::exchange(isInFold_, look.form == Form::Fold);
    if (!wasInFold && isInFold_) startFold(look.pen);
    if (wasInFold && !isInFold_) endFold(stretch.location);
    if (isInFold_ || look.form == Form::Hidden) return;
    noteDirection(values);
    if (!values[CVNColorAttributeName.id()]) swatch_.reset();
    paintShown(lookInCallout(look, values), stretch);
}

void Painter::noteDirection(const Values& values) {
    const CVNValue* direction = values[CVNDirectionAttributeName.id()];
    isStretchRightToLeft_ = direction && direction->integerValue() == CVNDirectionRtlValue;
    if (isStretchRightToLeft_) isLineRightToLeft_ = true;
}

/// Only the head of a callout tells its colour, which the bars below it share.
Look Painter::lookInCallout(Look look, const Values& values) {
    if (look.form != Form::Bar) return look;
    const CVNValue* item = values[CVNBlockquoteItemAttributeName.id()];
    const CVNListInfo* info = item ? item->listInfoValue() : nullptr;
    if (!info || !info->isCallout()) return look;
    int& color = calloutColors_[info->listLevel];
    if (values[CVNCalloutAttributeName.id()])
        color = look.pen.foreground;
    else
        look.pen.foreground = color;
    return look;
}

void Painter::paintShown(const Look& look, CVNRange stretch) {
    if (look.form == Form::Task) return paintTask(look, stretch);
    if (look.form == Form::Swatch) return paintSwatch(look, stretch);
    paintText(look, stretch);
}

void Painter::paintText(const Look& look, CVNRange stretch) {
    for (std::int64_t i = stretch.location; i < stretch.end(); ++i)
        paintCharacter(look, i);
}

void Painter::paintCharacter(const Look& look, std::int64_t offset) {
    const char16_t c = text_[static_cast<std::size_t>(offset)];
    if (const std::u16string_view lineEnding = lineEndingBefore(offset + 1); !lineEnding.empty())
        return endLine(lineEnding);
    if (c == u'\r') return;
    canvas_.put(look.pen, canvas_.isColored() ? drawn(c, look.form) : c);
    if (isStretchRightToLeft_) isLineRightToLeft_ = true;
}

/// A list marker, with a box for the brackets of a task.
void Painter::paintTask(const Look& look, CVNRange stretch) {
    const std::u16string_view marker = textIn(stretch);
    const std::size_t bracket = marker.find(u'[');
    if (bracket == std::u16string_view::npos || bracket + 2 >= marker.size()) return paintText(look, stretch);
    canvas_.put(look.pen, marker.substr(0, bracket));
    canvas_.put({}, marker[bracket + 1] == u' ' ? openBox : tickedBox);
    canvas_.put(look.pen, marker.substr(bracket + 3));
}

/// The first stretch of a literal names the colour of them all.
void Painter::paintSwatch(Look look, CVNRange stretch) {
    const auto start = static_cast<std::size_t>(stretch.location);
    if (const auto swatch = swatchOf(text_.substr(start))) swatch_ = swatch;
    if (swatch_) {
        look.pen.foreground = swatch_->onColor;
        look.pen.background = swatch_->color;
    }
    paintText(look, stretch);
}

void Painter::startFold(const Pen& pen) {
    if (!canvas_.isBehindSpace()) canvas_.put(pen, u' ');
    canvas_.put(pen, ellipsis);
}

/// When what was hidden ends a line, the ellipsis ends it.
void Painter::endFold(std::int64_t offset) {
    if (const std::u16string_view lineEnding = lineEndingBefore(offset); !lineEnding.empty())
        endLine(lineEnding);
}

void Painter::endLine(std::u16string_view lineEnding) {
    const bool isMarked = isLineRightToLeft_ && canvas_.isColored() && !canvas_.isAtLineStart();
    if (isMarked) canvas_.put({.attributes = Dim}, rightToLeftMark);
    canvas_.endLine(lineEnding);
    isLineRightToLeft_ = false;
}

/// How to end the line whose ending in the text ends here; empty when none does. A lone CR becomes an LF: a
/// terminal would write what follows over the line.
std::u16string_view Painter::lineEndingBefore(std::int64_t offset) const {
    if (isAt(offset - 1, u'\n')) return isAt(offset - 2, u'\r') ? u"\r\n" : u"\n";
    return isAt(offset - 1, u'\r') && !isAt(offset, u'\n') ? u"\n" : u"";
}

std::string Painter::result() {
    if (isInFold_) endFold(static_cast<std::int64_t>(text_.size()));
    if (!canvas_.isAtLineStart()) endLine(canvas_.isColored() ? u"\n" : u"");
    return canvas_.text();
}

} // namespace Cli
