#include "Coloring.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include <unistd.h>

namespace Cli {

namespace {

std::string_view environment(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

} // namespace

bool isColored(Colors colors) {
    if (colors != Colors::Auto) return colors == Colors::Always;
    return environment("NO_COLOR").empty() && environment("TERM") != "dumb" && isatty(fileno(stdout)) != 0;
}

} // namespace Cli
