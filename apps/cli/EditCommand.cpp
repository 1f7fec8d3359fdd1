#include "Commands.h"
#include "Input.h"
#include "Note.h"
#include "Ranges.h"
#include "Script.h"
#include "TreeCheck.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/Tree.h"

namespace Cli {

namespace {

std::string redrawLine(const std::vector<Ondo::Range>& ranges) {
    std::string line = "{\"redraw\":[";
    for (const Ondo::Range& range : ranges)
        line += (&range == ranges.data() ? "" : ",") + jsonText(CVNRange::of(range));
    return line + "]}\n";
}

void requireInText(const ScriptEdit& edit, std::int64_t length, const std::string& file) {
    const CVNRange range = CVNRange::of(edit.range);
    if (isInText(range, length)) return;
    throw Failure(linePlace(file, edit.line) + ": the range " + jsonText(range) +
                  " reaches outside the text of " + std::to_string(length) + " code units");
}

std::u16string printed(const Ondo::Tree& tree, Print print) {
    switch (print) {
    case Print::None:
        return {};
    case Print::Tree:
        return tree.toIndentedTree();
    case Print::Html:
        return tree.toHtml();
    case Print::Text:
        return std::u16string(tree.markdown());
    }
    return {};
}

} // namespace

Outcome edit(const Options& options) {
    const std::string script = options.script.value_or("-");
    const std::vector<ScriptEdit> edits = parseScript(readUtf8(script), script);
    Ondo::Tree tree(readNoteText(options), options.rules);
    Outcome outcome;
    std::int64_t number = 0;
    for (const ScriptEdit& edit : edits) {
        ++number;
        requireInText(edit, tree.length(), script);
        outcome.output += redrawLine(tree.replace(edit.range, edit.text));
        if (!options.check) continue;
        std::string difference = differenceFromFreshParse(tree);
        if (!difference.empty())
            return {{},
                    linePlace(script, edit.line) + ": edit " + std::to_string(number) +
                        " leaves a tree that differs from a fresh parse",
                    std::move(difference)};
    }
    outcome.output += Ondo::Util::utf8(printed(tree, options.print));
    return outcome;
}

} // namespace Cli
