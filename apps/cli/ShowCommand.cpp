#include "Coloring.h"
#include "Commands.h"
#include "Note.h"
#include "Painter.h"

namespace Cli {

Outcome show(const Options& options) {
    const CVNAttributedString note = readNote(options).annotatedString();
    Painter painter(note.string(), isColored(options.colors));
    forEachStretch(note, [&](CVNRange stretch, const Values& values) { painter.paint(stretch, values); });
    return {painter.result()};
}

} // namespace Cli
