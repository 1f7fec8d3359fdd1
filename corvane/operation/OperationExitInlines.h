#pragma once

#include "corvane/operation/Operation.h"

namespace CVN::Operation {

/// Leaves the inline construct whose closing marker stands at the caret: the caret moves behind the marker,
/// and no text changes. Nothing for a range that is not empty, and at the end of the note.
class CORVANE_EXPORT ExitInlines : public Operation {
public:
    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

    /// Whether the marker ends a style, a span of code or math, a tag, a wikilink or an autolink.
    static bool isNodeClosingInlineMarker(const Ondo::Node* node);
};

} // namespace CVN::Operation
