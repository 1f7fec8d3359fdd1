#include "Note.h"

#include "Input.h"

namespace Cli {

namespace {

constexpr const char* standardInput = "-";

} // namespace

CVNAST newNote(const Options& options) {
    CVNAST::ruleSet = options.rules;
    return {};
}

CVNAST readNote(const Options& options) {
    return readNote(options, options.file);
}

CVNAST readNote(const Options& options, const std::optional<std::string>& file) {
    CVNAST::ruleSet = options.rules;
    return CVNAST::fromMarkdown(readText(file.value_or(standardInput)));
}

std::u16string readNoteText(const Options& options) {
    return readText(options.file.value_or(standardInput));
}

} // namespace Cli
