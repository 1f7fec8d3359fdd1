#pragma once

#include <string>
#include <string_view>

namespace Cli {

/// What `patch -p1` makes the bytes `after` of the bytes `before` with, in the folder that the name counts
/// from: a unified diff with three lines of context. Empty for equal bytes. Takes time in proportion to the
/// length; in return a change of the number of lines makes one stretch of all lines from the first that
/// differs to the last. unifiedDiff() is for people to look at instead: it finds the shortest diff, which
/// takes quadratic time, cuts long ones, and does not tell of a missing newline at the end.
std::string notePatch(const std::string& name, std::string_view before, std::string_view after);

} // namespace Cli
