#pragma once

#include <string>

#include "VaultRun.h"
#include "corvane/analysis/TreeSummary.h"

namespace Cli {

// The actions that only read.

/// The summaries of the notes as JSON, in order of the names; printed as they come.
Outcome vaultSummary(VaultRun& run);
/// The tree of the tags.
Outcome vaultTags(VaultRun& run);
/// Where the wikilinks lead.
Outcome vaultLinks(VaultRun& run);
/// The notes whose titles match a pattern, best first. Throws a Failure for a pattern that is not UTF-8.
Outcome vaultFind(VaultRun& run);

// What they have in common.

/// The summary of a note. Its pointer to the tree is null, since the tree is gone.
CVN::TreeSummary summaryOf(const VaultRun& run, const VaultNote& note);
/// What a note is called without a title: the name of its file, without folders and extension.
std::u16string titleOfFile(const VaultFile& file);

} // namespace Cli
