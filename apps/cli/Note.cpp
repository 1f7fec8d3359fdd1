#include "Note.h"

#include "Input.h"

namespace Cli {

CVNAST newNote(const Options& options) {
    CVNAST::ruleSet = options.rules;
    return {};
}

CVNAST readNote(const Options& options) {
    CVNAST::ruleSet = options.rules;
    return CVNAST::fromMarkdown(readText(options.file));
}

} // namespace Cli
