#pragma once

#include <string>

#include "Painted.h"
#include "corvane/client/CVNAST.h"
#include "corvane/tree/Tree.h"

namespace Cli {

/// How an edited tree differs from a fresh parse of its text: a unified diff of the two indented trees, empty
/// when they are equal, as they must be.
std::string differenceFromFreshParse(const Ondo::Tree& tree);

/// The first place at which an editor that repainted only what its edits returned does not show what a fresh
/// note gives, in a few lines; empty when there is none.
std::string differenceFromFreshPainting(const CVNAST& note, const Painted& painted);

} // namespace Cli
