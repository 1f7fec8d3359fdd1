#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "corvane/client/CVNAttributedString.h"

namespace Cli {

/// The values of all keys at one place, by the key's number; null where a key has none.
using Values = std::array<const CVNValue*, CVNAttributeName::count>;

/// A place at which a key's value becomes another, or none.
struct Edge {
    std::int64_t location;
    CVNAttributeName key;
    const CVNValue* value;
};

/// All edges of a text, in order of location. The pointers are good as long as the text is.
std::vector<Edge> edgesOf(const CVNAttributedString& text);

/// Calls `visit` with (CVNRange stretch, const Values& values) for every stretch of the text over which no
/// value changes, in order and without a gap.
template <class Visit>
void forEachStretch(const CVNAttributedString& text, Visit&& visit) {
    const std::vector<Edge> edges = edgesOf(text);
    Values values{};
    std::int64_t start = 0;
    for (const Edge& edge : edges) {
        if (edge.location > start) visit(CVNRange::between(start, edge.location), values);
        start = edge.location;
        values[edge.key.id()] = edge.value;
    }
    if (text.length() > start) visit(CVNRange::between(start, text.length()), values);
}

} // namespace Cli
