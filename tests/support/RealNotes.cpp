#include "tests/support/RealNotes.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "corvane/scan/Util.h"

namespace Ondo::Test {

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> folders() {
    const char* const npm = std::getenv("CORVANE_NPM");
    return {npm ? npm : CORVANE_NPM_DIR, "/usr/lib/node_modules", "/usr/share/nodejs", "/usr/share/doc"};
}

bool isMarkdown(const fs::path& file) {
    return file.extension() == ".md" || file.filename() == "spec.txt";
}

void addFiles(const fs::path& folder, std::vector<fs::path>& files) {
    std::error_code error;
    const auto options = fs::directory_options::skip_permission_denied;
    for (fs::recursive_directory_iterator at(folder, options, error), end; !error && at != end;
         at.increment(error))
        if (isMarkdown(at->path()) && at->is_regular_file(error)) files.push_back(at->path());
}

std::string textOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), {}};
    return Util::utf8(Util::utf16(bytes));
}

} // namespace

std::vector<RealNote> realNotes(std::size_t maximumBytes) {
    std::vector<fs::path> files;
    for (const fs::path& folder : folders())
        addFiles(folder, files);
    std::sort(files.begin(), files.end());
    std::vector<RealNote> notes;
    for (const fs::path& file : files) {
        std::error_code error;
        if (fs::file_size(file, error) > maximumBytes || error) continue;
        std::string text = textOf(file);
        if (!text.empty()) notes.push_back({file, std::move(text)});
    }
    return notes;
}

} // namespace Ondo::Test
