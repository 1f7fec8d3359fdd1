#pragma once

#include <string>

#include "corvane/tree/Tree.h"

namespace Cli {

/// How an edited tree differs from a fresh parse of its text: a unified diff of the two indented trees, empty
/// when they are equal, as they must be.
std::string differenceFromFreshParse(const Ondo::Tree& tree);

} // namespace Cli
