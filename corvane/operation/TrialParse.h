#pragma once

#include <string_view>

#include "corvane/tree/Tree.h"

namespace CVN::Operation {

// Trees of their own, in which a command tries what it is about to propose. The text of one is a piece of a
// note, with what is to change: it costs what the piece costs, and the note's tree stays as it is. The caller
// owns the tree. A piece that may begin with a line of dashes and does not begin the note takes a blank line
// in front: front matter begins on the first line only.

/// An empty tree with the rules of a note: its rule set, but for the rules that its host switched off.
Ondo::Tree emptyTrial(const Ondo::Tree& note);

/// A text, parsed with the rules of a note.
Ondo::Tree trialParse(const Ondo::Tree& note, std::u16string_view text);

} // namespace CVN::Operation
