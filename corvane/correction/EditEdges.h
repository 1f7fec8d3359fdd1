#pragma once

#include <cstdint>
#include <string_view>

#include "corvane/tree/Node.h"
#include "corvane/tree/Range.h"
#include "corvane/tree/Tree.h"

/// What stands at the edges of an edit, in the text that doesn't hold it yet.

namespace CVN::Correction {

/// The character that ends at an offset and the one that starts there, a surrogate pair as one; 0 where there
/// is none. Offsets lie in the text.
char32_t characterBefore(const Ondo::Tree& tree, std::int64_t offset);
char32_t characterAt(const Ondo::Tree& tree, std::int64_t offset);

/// The first and the last character of a text, a surrogate pair as one; 0 for an empty text.
char32_t firstCharacter(std::u16string_view text);
char32_t lastCharacter(std::u16string_view text);

/// The leaf that ends at an offset, or holds what stands before it; null at the start of the text.
const Ondo::Node* leafEndingAt(const Ondo::Tree& tree, std::int64_t offset);

/// The leaf that starts at an offset, or holds what stands there; at the end of the text the last leaf. Null
/// in an empty text.
const Ondo::Node* leafStartingAt(const Ondo::Tree& tree, std::int64_t offset);

/// The first marker of its construct, and the last one. The single marker of a construct is both. The
/// separator that a tag ends in closes nothing: "#tag/".
bool isOpener(const Ondo::Node* leaf);
bool isCloser(const Ondo::Node* leaf);

/// A text that goes in at an offset, and what changes at its two ends: units put, or dropped when negative.
struct ChangedEnds {
    std::int64_t offset;
    std::int64_t length; ///< before the change
    std::int64_t before;
    std::int64_t behind;

    /// What becomes of a position in the note with the text in it. One at the start moves with the text;
    /// one among dropped units goes to where they were.
    std::int64_t moved(std::int64_t position) const;
    /// A caret moves; a selection that starts with the text stays there. Both are clamped to the note, which
    /// has `textLength` units before the change.
    Ondo::Range moved(std::int64_t textLength, std::int64_t selectionOffset,
                      std::int64_t selectionLength) const;
};

/// A selection as far as it lies in a text of the length.
Ondo::Range clampedTo(std::int64_t textLength, std::int64_t selectionOffset, std::int64_t selectionLength);

} // namespace CVN::Correction
