#pragma once

#include <optional>
#include <string_view>

namespace Cli {

/// A colour of the 256 that terminals number: the one nearest to the colour literal that the text begins
/// with,
/// "#rrggbb", "rgb(...)" or "hsl(...)", and black or white, whichever can be read on it.
struct Swatch {
    int color;
    int onColor;
};

/// Null when the text does not begin with a literal, or its numbers are none. Values out of range count as
/// the nearest in range; an alpha is left out.
std::optional<Swatch> swatchOf(std::u16string_view text);

} // namespace Cli
