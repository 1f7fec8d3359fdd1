#pragma once

#include "Canvas.h"
#include "Stretches.h"

namespace Cli {

/// What takes the place of a stretch's text.
enum class Form {
    Text,   ///< nothing does
    Task,   ///< the task's brackets become a box
    Bar,    ///< each ">" becomes a bar
    Line,   ///< each character becomes a part of a line
    Swatch, ///< the text, on the colour that it names
    Fold,   ///< an ellipsis for the whole
    Hidden  ///< nothing at all
};

struct Look {
    Pen pen;
    Form form = Form::Text;
};

/// How to show a stretch with these values.
Look lookOf(const Values& values);

} // namespace Cli
