#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Outcome.h"
#include "corvane/client/CVNRange.h"
#include "corvane/tree/RuleConfig.h"

namespace Cli {

/// What follows the last edit of a script.
enum class Print { None, Tree, Html, Text };

/// When the output is coloured. Auto: on a terminal, unless the environment forbids it.
enum class Colors { Auto, Always, Never };

/// What the command line said, with the defaults of what it left out. Files are paths; "-" is standard input.
struct Options {
    Ondo::RuleConfig::RuleSet rules = Ondo::RuleConfig::Extended;
    std::optional<std::string> file; ///< missing: standard input, but for `keys` an empty note
    std::optional<std::string> script;
    bool check = false; ///< compare with a fresh parse after every edit
    Print print = Print::None;
    std::int64_t every = 10;           ///< from 1 on
    std::optional<CVNRange> range;     ///< not negative, but not known to lie in a text
    std::optional<CVNRange> selection; ///< the same
    Colors colors = Colors::Auto;
    std::optional<std::string> name; ///< of `op`, `correct` and `vault`; the pattern of `fuzzy`
    std::vector<std::string> words;  ///< of `op` and `vault`: what stands behind the name
    std::vector<std::string> files;  ///< of `summary` and `stats`; none: standard input
    std::optional<std::string> text;
    bool apply = false;
    bool list = false;
    bool trace = false;
    bool fold = false;
    bool json = false;
    bool dryRun = false;
    std::int64_t jobs = 0; ///< threads; 0: one a core
};

/// The commands throw a Failure for input that they can't take.
Outcome html(const Options& options);
Outcome tree(const Options& options);
Outcome annotate(const Options& options);
Outcome show(const Options& options);
Outcome edit(const Options& options);
Outcome type(const Options& options);
Outcome op(const Options& options);
Outcome correct(const Options& options);
Outcome keys(const Options& options);
Outcome summary(const Options& options);
Outcome stats(const Options& options);
Outcome fuzzy(const Options& options);
Outcome vault(const Options& options);

/// The actions of `vault`, and what they have in common.
std::string vaultHelp();

} // namespace Cli
