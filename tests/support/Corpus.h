#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "corvane/tree/RuleConfig.h"

/// Texts with what becomes of them, in files that need no C++. A file holds cases:
///
///     === the hash marks of a heading
///     # a
///     --- tree extended simplified
///     document
///       atx_heading{level: 1}
///         marker(# )
///         text(a)
///         line_ending(\n)
///     --- html
///     <h1>a</h1>
///
/// A case has a name, a text, and at least one tree, HTML or list of attribute runs. These hold in the rule
/// sets that are named behind them, or, with no name, in all that no other section of the kind names. What
/// stands before the first case is commentary. Blank lines at the end of a section don't count.
///
/// Some characters may be written visibly: → a tab, ␠ a space, ␍ a CR, ␀ a NUL. A text ends with the LF of
/// its last line, unless ␄ stands there.

namespace Ondo::Test {

struct CorpusCase {
    std::string place; ///< file, line and name
    std::u16string text;
    std::array<std::optional<std::string>, 3> trees; ///< by rule set
    std::array<std::optional<std::string>, 3> html;
    std::array<std::optional<std::string>, 3> runs; ///< as showRuns() has them
};

/// All corpus files, sorted. Corpus and parts of it live below the folder of the tests.
std::vector<std::filesystem::path> corpusFiles();
/// Throws std::runtime_error, with the line, when the file is not laid out as above.
std::vector<CorpusCase> readCorpus(const std::filesystem::path& file);

} // namespace Ondo::Test
