#pragma once

#include <cstdint>
#include <string>
#include <string_view>

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

// Places for lines that a command adds. A place is the start of a line, or the end of a text whose last line
// lacks its ending.

/// Where lines can go, and what is to be written before them.
struct InsertionPlace {
    std::int64_t offset;
    /// An ending that the line before lacks, and an empty line where the lines would become part of the list,
    /// quote, table or HTML above them.
    std::u16string_view above;
};

/// The place for what is to stand at `offset`, which lies behind the first line of `block`: no heading that
/// is underlined, no list, table, fence or quote is broken up, so that behind one of these it is the end of
/// that block. The block may be null.
CORVANE_EXPORT InsertionPlace placeBehind(const Ondo::Tree& tree, const Ondo::Node::Iterator& block,
                                          std::int64_t offset);

/// The place for body text, see afterTitleAndTagline(), behind tags directly below the title's block as well.
/// In a note without title, or of footnotes only, it is the start, or behind front matter.
CORVANE_EXPORT InsertionPlace bodyPlace(const Ondo::Tree& tree);

/// Lines with what is to follow them at a place: an empty line where they would swallow the block that begins
/// or goes on there, or make another one of it, and always above a definition. The lines end in a line
/// ending.
CORVANE_EXPORT std::u16string withLineBelow(const Ondo::Tree& tree, std::u16string lines,
                                            std::int64_t offset);

/// The last block that is no blank line, before the footnotes that end the note; none when there isn't one.
CORVANE_EXPORT Ondo::Node::Iterator lastContentBlock(const Ondo::Tree& tree);

/// Whether a block of code, math or HTML lacks its end, so that all that is written below it belongs to it.
/// This parses the block again.
CORVANE_EXPORT bool isLeftOpen(const Ondo::Tree& tree, const Ondo::Node::Iterator& block);

/// Whether no block but front matter, blank lines and the footnotes at the end makes up the note, and there
/// are such footnotes.
CORVANE_EXPORT bool isOnlyFootnotes(const Ondo::Tree& tree);

/// Whether a block holds nothing but tags and begins with those below the title, which is a block of one line
/// (underlined or not): below more than that, tags end what stands above them.
CORVANE_EXPORT bool isTagline(const Ondo::Tree& tree, const Ondo::Node::Iterator& block);

/// Whether a node is the definition of a link or footnote; it may be null.
CORVANE_EXPORT bool isDefinition(const Ondo::Node* node);

} // namespace CVN::Operation
