#pragma once

#include <cstdint>
#include <string>

#include "corvane/tree/Node.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

// Where the commands that add a tag find a line of tags, and what they write into a note without text.

/// Whether the leaf belongs to a tag.
bool isInTag(const Ondo::Node* node);

/// Whether no block but front matter, blank lines and the footnotes at the end makes up the note, and there
/// are such footnotes.
bool isOnlyFootnotes(const Ondo::Tree& tree);

/// A tag for the line where `first` starts, the first block behind front matter: with an empty line between
/// it and the footnotes below, as far as there is none.
std::u16string tagAboveFootnotes(const Ondo::Node* first, std::u16string tag);

} // namespace CVN::Operation
