#pragma once

#include <cstdint>
#include <vector>

#include "corvane/tree/Node.h"
#include "corvane/tree/Tree.h"

namespace CVN::Correction {

/// A part of the text, from the start of its first unit to the end of its last.
struct Span {
    std::int64_t start;
    std::int64_t end;

    bool isEmpty() const { return start >= end; }
    bool touches(const Span& other) const { return start < other.end && other.start < end; }
    bool holds(std::int64_t position) const { return start <= position && position <= end; }
    bool operator==(const Span& other) const { return start == other.start && end == other.end; }
};

/// An inline construct with an opening and a closing marker, and where it stands. Good until the next edit.
struct InlineConstruct {
    const Ondo::Node* node;
    Span span;
    Span content; ///< between the first marker and the last one

    /// The markers in between, of the parts of a link or image. Separators in tags and wikilinks are none.
    std::vector<Span> innerMarkers() const;
    /// Whether a span inside has a part of a marker.
    bool touchesMarker(const Span& inside) const;
};

/// The constructs that a position lies strictly inside of, the innermost first.
std::vector<InlineConstruct> constructsAround(const Ondo::Tree& tree, std::int64_t position);

} // namespace CVN::Correction
