#include "Commands.h"
#include "Note.h"
#include "Ranges.h"
#include "Results.h"

namespace Cli {

namespace {

std::string listOfCorrections() {
    std::string list;
    for (const CVNTextCorrection& correction : CVNTextCorrection::all())
        list += std::string(correction.name) + "\n    " + correction.about + "\n";
    return list;
}

std::u16string replacement(const CVNTextCorrection& correction, const Options& options) {
    if (!correction.isOfSelection) return textOfArgument("--text", required("--text", options.text));
    if (!options.text || options.text->empty()) return {};
    throw Failure(std::string("--text: ") + correction.name + " takes none", BadUsage);
}

} // namespace

Outcome correct(const Options& options) {
    if (options.list) return {listOfCorrections()};
    const auto& correction = requiredRow<CVNTextCorrection>(options);
    const CVNRange range = required("--range", options.range);
    const std::u16string text = replacement(correction, options);
    const auto length = static_cast<std::int64_t>(text.size());
    const CVNAST note = readNote(options);
    const std::int64_t total = note.markdownLength();
    requireInText("--range", range, total);
    const CVNRange selection =
        options.selection.value_or(correction.isOfSelection ? range : CVNRange{range.location + length, 0});
    requireInText("--selection", selection, correction.isOfSelection ? total : total - range.length + length);
    return {jsonText(correction.run(note, range, text, selection)) + "\n"};
}

} // namespace Cli
