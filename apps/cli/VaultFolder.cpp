#include "VaultFolder.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "Canvas.h"
#include "Outcome.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view noteExtensions[] = {".md", ".markdown", ".txt"};

bool isNoteName(std::string name) {
    for (char& c : name)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return std::any_of(std::begin(noteExtensions), std::end(noteExtensions), [&](std::string_view extension) {
        return name.size() > extension.size() &&
               name.compare(name.size() - extension.size(), extension.size(), extension) == 0;
    });
}

/// The folders below one, read without a call of its own for each level.
class Walk {
public:
    explicit Walk(const std::string& root) : root_(root) {
        listing.folder = std::make_unique<const std::string>(root);
    }

    VaultListing listing;

    /// What a folder holds; "" is the root.
    std::error_code read(const std::string& name);
    void readFoldersBelow();

private:
    fs::path root_;
    std::vector<std::string> folders_; ///< still to be read

    void take(const fs::directory_entry& entry, const std::string& name);
};

std::error_code Walk::read(const std::string& name) {
    const std::string prefix = name.empty() ? name : name + "/";
    std::error_code error;
    fs::directory_iterator at(name.empty() ? root_ : root_ / name, error);
    for (; !error && at != fs::directory_iterator(); at.increment(error)) {
        const std::string leaf = at->path().filename().native();
        if (leaf[0] != '.') take(*at, prefix + leaf);
    }
    return error;
}

void Walk::readFoldersBelow() {
    while (!folders_.empty()) {
        const std::string name = std::move(folders_.back());
        folders_.pop_back();
        const std::error_code error = read(name);
        if (error) listing.skipped.push_back({name, error.message()});
    }
}

void Walk::take(const fs::directory_entry& entry, const std::string& name) {
    // Mostly known from the list. Else what can't be looked at is named, since notes may be below it.
    std::error_code error;
    const bool isLink = entry.is_symlink(error);
    const bool isFolder = !error && !isLink && entry.is_directory(error);
    if (error && error != std::errc::no_such_file_or_directory)
        listing.skipped.push_back({name, error.message()});
    else if (isFolder)
        folders_.push_back(name);
    else if (!error && !isLink && isNoteName(name))
        listing.files.push_back({listing.folder.get(), name});
}

} // namespace

VaultListing listNotes(const std::string& folder) {
    Walk walk(folder);
    const std::error_code error = walk.read({});
    if (error) throw Failure((folder.empty() ? "\"\"" : folder) + ": " + error.message());
    walk.readFoldersBelow();
    std::sort(walk.listing.files.begin(), walk.listing.files.end(),
              [](const VaultFile& a, const VaultFile& b) { return a.name < b.name; });
    return std::move(walk.listing);
}

std::string shownName(const std::string& name) {
    Canvas canvas(false);
    canvas.put({}, Ondo::Util::utf16(name));
    return canvas.text();
}

} // namespace Cli
