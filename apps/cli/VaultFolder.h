#pragma once

#include <memory>
#include <string>
#include <vector>

namespace Cli {

/// A note of a folder.
struct VaultFile {
    const std::string* folder; ///< as it was given; the listing owns it
    std::string name;          ///< below the folder, with "/"; any bytes but NUL
};

/// What was left out, and why.
struct Skipped {
    std::string name; ///< as of a note
    std::string reason;
};

struct VaultListing {
    std::unique_ptr<const std::string> folder; ///< the one of all files
    std::vector<VaultFile> files;              ///< by name, bytewise
    std::vector<Skipped> skipped;              ///< folders that can't be read, or may be some; in no order
};

/// The notes of a folder and of all folders below it: .md, .markdown and .txt in any case. What begins with
/// "." is left out with all below it. A symbolic link is not followed, since what it leads to within the
/// folder is found at its own place; the folder itself may be one. Throws a Failure for a folder that can't
/// be read.
VaultListing listNotes(const std::string& folder);

/// A name for one line of text: with signs in place of control characters and of what is not UTF-8.
std::string shownName(const std::string& name);

} // namespace Cli
