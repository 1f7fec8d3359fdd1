#include "ColorLiteral.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "corvane/scan/Util.h"

namespace Cli {

namespace {

constexpr int black = 16;
constexpr int white = 231;

/// Red, green and blue from 0 to 1.
using Rgb = std::array<double, 3>;

/// A number, and whether it was a percentage.
struct Component {
    double value;
    bool isPercent;
};

double inUnit(double value) {
    return std::clamp(value, 0.0, 1.0);
}

std::optional<Component> takeComponent(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc()) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    const bool isPercent = text.starts_with('%');
    if (isPercent) text.remove_prefix(1);
    if (!text.starts_with(',') && !text.starts_with(')')) return std::nullopt;
    text.remove_prefix(1);
    return Component{value, isPercent};
}

std::optional<std::array<Component, 3>> components(std::string_view text) {
    std::array<Component, 3> all{};
    for (Component& each : all) {
        const std::optional<Component> component = takeComponent(text);
        if (!component) return std::nullopt;
        each = *component;
    }
    return all;
}

Rgb rgb(const std::array<Component, 3>& parts) {
    Rgb color{};
    std::transform(parts.begin(), parts.end(), color.begin(),
                   [](const Component& part) { return inUnit(part.value / (part.isPercent ? 100 : 255)); });
    return color;
}

/// Hue in degrees, saturation and lightness in per cent, with or without the sign.
Rgb hsl(const std::array<Component, 3>& parts) {
    const double hue = parts[0].value / 30;
    const double saturation = inUnit(parts[1].value / 100);
    const double lightness = inUnit(parts[2].value / 100);
    const double range = saturation * std::min(lightness, 1 - lightness);
    constexpr std::array<int, 3> shifts = {0, 8, 4};
    Rgb color{};
    std::transform(shifts.begin(), shifts.end(), color.begin(), [&](int shift) {
        const double place = std::fmod(std::fmod(shift + hue, 12) + 12, 12);
        return inUnit(lightness - range * std::clamp(std::min(place - 3, 9 - place), -1.0, 1.0));
    });
    return color;
}

std::optional<Rgb> hexadecimal(std::string_view digits) {
    unsigned value = 0;
    if (digits.size() < 6) return std::nullopt;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + 6, value, 16);
    if (error != std::errc() || end != digits.data() + 6) return std::nullopt;
    return Rgb{(value >> 16 & 0xFF) / 255.0, (value >> 8 & 0xFF) / 255.0, (value & 0xFF) / 255.0};
}

std::optional<Rgb> parsed(std::string_view text) {
    if (text.starts_with('#')) return hexadecimal(text.substr(1));
    const std::size_t parenthesis = text.find_first_not_of("rgbhslaRGBHSLA");
    if (parenthesis == std::string_view::npos || text[parenthesis] != '(') return std::nullopt;
    const auto parts = components(text.substr(parenthesis + 1));
    if (!parts) return std::nullopt;
    return text.starts_with('h') || text.starts_with('H') ? hsl(*parts) : rgb(*parts);
}

/// The terminal's colours from 16 on are a cube of six steps a side, which are not even.
constexpr std::array<int, 6> cubeSteps = {0, 95, 135, 175, 215, 255};

int nearestStep(double value) {
    const auto distance = [value](int step) { return std::abs(step - value * 255); };
    const auto nearest = std::min_element(cubeSteps.begin(), cubeSteps.end(),
                                          [&](int a, int b) { return distance(a) < distance(b); });
    return static_cast<int>(nearest - cubeSteps.begin());
}

} // namespace

std::optional<Swatch> swatchOf(std::u16string_view text) {
    constexpr std::size_t longest = 100; // of what counts as a literal
    const std::optional<Rgb> color = parsed(Ondo::Util::utf8(text.substr(0, longest)));
    if (!color) return std::nullopt;
    const auto [red, green, blue] = *color;
    const double brightness = 0.3 * red + 0.59 * green + 0.11 * blue;
    return Swatch{16 + 36 * nearestStep(red) + 6 * nearestStep(green) + nearestStep(blue),
                  brightness > 0.5 ? black : white};
}

} // namespace Cli
