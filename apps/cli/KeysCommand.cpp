#include <utility>

#include "Commands.h"
#include "Input.h"
#include "KeyScript.h"
#include "Keyboard.h"
#include "Note.h"
#include "Ranges.h"
#include "Results.h"
#include "Script.h"
#include "TreeCheck.h"
#include "ValueJson.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

/// The text and the selection, as members of an object.
std::string state(const Keyboard& keyboard) {
    return R"("text":)" + jsonText(keyboard.note().markdown()) + R"(,"selection":)" +
           jsonText(keyboard.selection());
}

std::string traceLine(const KeyPress& key, const Keyboard::Effect& effect, const Keyboard& keyboard) {
    const std::string name = jsonText(Ondo::Util::utf16(key.name));
    const std::string by = effect.by ? '"' + std::string(effect.by) + '"' : "null";
    const std::string redraw = effect.redraw.isFound() ? jsonText(effect.redraw) : "null";
    return R"({"line":)" + std::to_string(key.line) + R"(,"key":)" + name + R"(,"by":)" + by + "," +
           state(keyboard) + R"(,"redraw":)" + redraw + "}\n";
}

void requireInText(const KeyPress& key, const Keyboard& keyboard, const std::string& script) {
    const std::int64_t length = keyboard.note().markdownLength();
    if (!key.selection || isInText(*key.selection, length)) return;
    throw Failure(linePlace(script, key.line) + ": the range " + jsonText(*key.selection) +
                  " reaches outside the text of " + std::to_string(length) + " code units");
}

/// A complaint when the tree or the painting is not that of a fresh note.
Outcome checked(const KeyPress& key, const Keyboard& keyboard, const std::string& script) {
    const std::string start = linePlace(script, key.line) + ": " + key.name + " leaves ";
    if (std::string difference = differenceFromFreshParse(*keyboard.note().ast); !difference.empty())
        return {{}, start + "a tree that differs from a fresh parse", std::move(difference)};
    if (std::string difference = differenceFromFreshPainting(keyboard.note(), keyboard.painted());
        !difference.empty())
        return {{}, start + "attribute runs that differ from a fresh note's", std::move(difference)};
    return {};
}

} // namespace

Outcome keys(const Options& options) {
    if (options.list) return {listOfKeys()};
    const std::string script = required("--script", options.script);
    const std::vector<KeyPress> presses = parseKeys(readUtf8(script), script);
    Keyboard keyboard(options.file ? readNote(options) : newNote(options));
    Outcome outcome;
    for (const KeyPress& key : presses) {
        requireInText(key, keyboard, script);
        const Keyboard::Effect effect = key.action(keyboard, key);
        if (options.trace) outcome.output += traceLine(key, effect, keyboard);
        if (!options.check) continue;
        if (Outcome failed = checked(key, keyboard, script); !failed.complaint.empty()) return failed;
    }
    outcome.output += "{" + state(keyboard) + "}\n";
    return outcome;
}

} // namespace Cli
