#pragma once

#include <cstdint>

#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

// The parts of a note that commands tell apart: front matter, the title, a line of tags below it, and the
// footnotes at the end. Offsets count UTF-16 code units. Nothing here walks over the blocks in between.

/// The first block behind front matter and one blank line; null when there is none. It may be a blank line.
CORVANE_EXPORT Ondo::Node* firstContentBlock(const Ondo::Tree& tree);

/// Whether all of a node's text is U+0020.
CORVANE_EXPORT bool isOnlySpaces(const Ondo::Tree& tree, const Ondo::Node::Iterator& at);

/// Whether a block holds hashtags and, but for blanks and line endings, nothing else. The block may be null.
CORVANE_EXPORT bool isBlockOnlyTags(const Ondo::Tree& tree, Ondo::Node* block);

/// Where body text begins: behind the title, which is the first line that is neither front matter nor blank,
/// and behind a line of tags directly below the title or below its block and one blank line. 0 when there is
/// no title.
CORVANE_EXPORT std::int64_t afterTitleAndTagline(const Ondo::Tree& tree);

/// Where the footnote definitions begin that end the note, at most one blank line apart, with a blank line
/// before the first of them; the length of the text when it ends in something else.
CORVANE_EXPORT std::int64_t trailingFootnotesStart(const Ondo::Tree& tree);

} // namespace CVN::Operation
