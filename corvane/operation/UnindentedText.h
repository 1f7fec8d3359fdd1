#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "corvane/tree/Node.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

// What lines would be without the blanks in front of them. The answers err to the side of another block.

/// The text of a line from an offset on, without its line ending.
std::u16string restOfLine(const Ondo::Tree& tree, std::int64_t offset);

/// Whether a line whose text begins at an offset, and that lies in a paragraph behind its first line,
/// continues one without the blanks, or the missing marker, in front.
bool continuesParagraph(const Ondo::Tree& tree, std::int64_t textOffset);

/// Whether a text with this first unit could be an item, or a fence.
bool mayBeItem(char16_t first);
bool mayBeFence(char16_t first);

/// Whether a block stays of its type when all its lines lose their prefixes. It begins with a line.
bool staysBlock(const Ondo::Tree& tree, const Ondo::Node::Iterator& block);

/// Whether lines between the fences of a block look like one, and are none by their indentation alone.
bool holdsFenceLikeLines(std::u16string_view block);

/// Whether a line behind the first looks like what makes a heading of the lines above.
bool holdsUnderline(std::u16string_view text);

} // namespace CVN::Operation
