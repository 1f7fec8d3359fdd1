#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Ondo::Test {

/// A Markdown file that somebody wrote.
struct RealNote {
    std::filesystem::path file;
    std::string text; ///< valid UTF-8
};

/// The Markdown files of at most `maximumBytes` that this machine happens to have: those of the packages of
/// tests/npm, of the packages that come with npm, and of /usr/share/doc. Sorted by path, read once; empty
/// where there are none.
std::vector<RealNote> realNotes(std::size_t maximumBytes);

} // namespace Ondo::Test
