#include <cstdio>
#include <cstdlib>
#include <string_view>

#include <unistd.h>

#include "Commands.h"
#include "Note.h"
#include "Painter.h"

namespace Cli {

namespace {

std::string_view environment(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

bool isColored(Colors colors) {
    if (colors != Colors::Auto) return colors == Colors::Always;
    return environment("NO_COLOR").empty() && environment("TERM") != "dumb" && isatty(fileno(stdout)) != 0;
}

} // namespace

Outcome show(const Options& options) {
    const CVNAttributedString note = readNote(options).annotatedString();
    Painter painter(note.string(), isColored(options.colors));
    forEachStretch(note, [&](CVNRange stretch, const Values& values) { painter.paint(stretch, values); });
    return {painter.result()};
}

} // namespace Cli
