#include "EachFile.h"

#include <optional>

#include "Input.h"
#include "Output.h"

namespace Cli {

namespace {

/// Nothing, with a complaint, when the file can't be taken.
std::optional<std::u16string> readOrComplain(const std::string& file) {
    try {
        return readPlainText(file);
    } catch (const Failure& failure) {
        complain(failure.what());
        return std::nullopt;
    }
}

} // namespace

Outcome printEachFile(const Options& options,
                      std::string (*lineOf)(const std::string& file, std::u16string_view text,
                                            const Options& options)) {
    if (options.files.size() <= 1) {
        const std::string file = options.files.empty() ? "-" : options.files.front();
        return {lineOf(file, readPlainText(file), options)};
    }
    std::size_t leftOut = 0;
    for (const std::string& file : options.files) {
        if (const std::optional<std::u16string> text = readOrComplain(file))
            writePart(lineOf(file, *text, options));
        else
            ++leftOut;
    }
    if (leftOut == 0) return {};
    return {{}, std::to_string(leftOut) + " of " + std::to_string(options.files.size()) + " files left out"};
}

} // namespace Cli
