#include "KeyScript.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include <nlohmann/json.hpp>

#include "Outcome.h"
#include "Ranges.h"
#include "Script.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

using Command = CVNTextOperation::Number;

// The keys. A new one is a row of one of these tables.

template <Keyboard::Effect (Keyboard::*key)()>
Keyboard::Effect press(Keyboard& keyboard, const KeyPress&) {
    return (keyboard.*key)();
}

struct PlainKey {
    const char* name;
    KeyPress::Action action;
};

constexpr PlainKey plainKeys[] = {
    {"enter", press<&Keyboard::enter>},
    {"tab", press<&Keyboard::tab>},
    {"shift-tab", press<&Keyboard::shiftTab>},
    {"backspace", press<&Keyboard::backspace>},
    {"delete", press<&Keyboard::deleteForward>},
    {"left", press<&Keyboard::left>},
    {"right", press<&Keyboard::right>},
    {"up", press<&Keyboard::up>},
    {"down", press<&Keyboard::down>},
};

/// A key that runs a command with a number as its argument.
struct CommandKey {
    const char* name;
    Command command;
    std::int64_t style;
};

constexpr CommandKey commandKeys[] = {
    {"bold", Command::toggleInlineStyle, 0},
    {"italic", Command::toggleInlineStyle, 1},
    {"strikethrough", Command::toggleInlineStyle, 2},
    {"underline", Command::toggleInlineStyle, 3},
    {"highlight", Command::toggleInlineStyle, 4},
    {"highlight-red", Command::toggleInlineStyle, 5},
    {"highlight-blue", Command::toggleInlineStyle, 6},
    {"highlight-green", Command::toggleInlineStyle, 7},
    {"highlight-yellow", Command::toggleInlineStyle, 8},
    {"highlight-purple", Command::toggleInlineStyle, 9},
    {"code", Command::toggleInlineStyle, 10},
    {"math", Command::toggleInlineStyle, 11},
    {"heading-1", Command::toggleBlockStyle, 0},
    {"heading-2", Command::toggleBlockStyle, 1},
    {"heading-3", Command::toggleBlockStyle, 2},
    {"heading-4", Command::toggleBlockStyle, 3},
    {"heading-5", Command::toggleBlockStyle, 4},
    {"heading-6", Command::toggleBlockStyle, 5},
    {"bullets", Command::toggleBlockStyle, 6},
    {"numbers", Command::toggleBlockStyle, 7},
    {"tasks", Command::toggleBlockStyle, 8},
    {"quote", Command::toggleBlockStyle, 9},
    {"fence", Command::toggleBlockStyle, 10},
    {"math-block", Command::toggleBlockStyle, 11},
    {"callout", Command::toggleBlockStyle, 12},
    {"callout-note", Command::toggleBlockStyle, 13},
    {"callout-tip", Command::toggleBlockStyle, 14},
    {"callout-caution", Command::toggleBlockStyle, 15},
    {"callout-warning", Command::toggleBlockStyle, 16},
    {"callout-important", Command::toggleBlockStyle, 17},
    {"normalize", Command::normalizeIndentationInRange, 0},
    {"toggle-task", Command::toggleTask, 0},
    {"check", Command::toggleTask, 1},
    {"uncheck", Command::toggleTask, 2},
    {"renumber", Command::renumberOrderedListInRange, 0},
    {"move-up", Command::moveLinesUpIn, 0},
    {"move-down", Command::moveLinesDownIn, 0},
    {"select-all", Command::selectAllTextIn, 0},
    {"thematic-break", Command::insertThematicBreak, 0},
    {"table", Command::insertTable, 0},
    {"fold", Command::toggleFoldInRange, 0},
    {"fold-all", Command::foldAllHeadingSelectionRange, 0},
    {"unfold-all", Command::unfoldAllHeadingSelectionRange, 0},
    {"unfold-edges", Command::unfoldAtRangeEdges, 0},
    {"clean-comments", Command::removeStrayMetaCommentInRange, 0},
    {"next-cell", Command::jumpTableCell, 0},
    {"previous-cell", Command::jumpTableCell, 1},
    {"row-above", Command::mutateTable, 0},
    {"row-below", Command::mutateTable, 1},
    {"delete-row", Command::mutateTable, 2},
    {"row-up", Command::mutateTable, 3},
    {"row-down", Command::mutateTable, 4},
    {"column-before", Command::mutateTable, 5},
    {"column-after", Command::mutateTable, 6},
    {"delete-column", Command::mutateTable, 7},
    {"column-left", Command::mutateTable, 8},
    {"column-right", Command::mutateTable, 9},
    {"align-none", Command::mutateTable, 10},
    {"align-left", Command::mutateTable, 11},
    {"align-center", Command::mutateTable, 12},
    {"align-right", Command::mutateTable, 13},
    {"align-tables", Command::normalizeTables, 0},
    {"escape-pipes", Command::escapePipesInRange, 0},
    {"renumber-footnotes", Command::renumberFootnotesIn, 0},
    {"sort-footnotes", Command::reorderFootnoteDefinitionsIn, 0},
    {"mark-unused-footnotes", Command::renameUnusedFootnoteDefinitionsIn, 0},
};

Keyboard::Effect runCommand(Keyboard& keyboard, const KeyPress& key) {
    return keyboard.run(key.command, {CVNTextArgument{key.style, {}}});
}

Keyboard::Effect typeText(Keyboard& keyboard, const KeyPress& key) {
    return keyboard.type(key.text);
}

Keyboard::Effect pasteText(Keyboard& keyboard, const KeyPress& key) {
    return keyboard.paste(key.text);
}

Keyboard::Effect selectRange(Keyboard& keyboard, const KeyPress& key) {
    return keyboard.select(*key.selection);
}

Keyboard::Effect dragRange(Keyboard& keyboard, const KeyPress& key) {
    return keyboard.drag(*key.selection);
}

/// Why a line is no key.
struct BadKey : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Text with the escapes of JSON. Quotation marks stand for themselves, too.
std::u16string unescaped(std::string_view escaped) {
    std::string json = "\"";
    for (std::size_t at = 0; at < escaped.size(); ++at) {
        if (escaped[at] == '"') json += '\\';
        json += escaped[at];
        if (escaped[at] == '\\' && at + 1 < escaped.size()) json += escaped[++at];
    }
    try {
        return Ondo::Util::utf16(nlohmann::json::parse(json + '"').get_ref<const std::string&>());
    } catch (const nlohmann::json::exception&) {
        throw BadKey(R"(the text has an escape that JSON does not know; a backslash is \\, a tab \t)");
    }
}

using Keys = std::vector<KeyPress>;

Keys typedKeys(std::string_view escaped) {
    Keys keys;
    const std::u16string text = unescaped(escaped);
    for (std::u16string_view rest = text; !rest.empty();) {
        const auto count =
            static_cast<std::size_t>(Ondo::Util::codeUnitCount(Ondo::Util::codePointAt(rest, 0)));
        const std::u16string character(rest.substr(0, count));
        keys.push_back({0, "text:" + Ondo::Util::utf8(character), typeText, character});
        rest.remove_prefix(count);
    }
    return keys;
}

Keys pasteKey(std::string_view escaped) {
    return {{0, "paste", pasteText, unescaped(escaped)}};
}

Keys rangeKey(const char* name, KeyPress::Action action, std::string_view word) {
    const std::optional<CVNRange> range = rangeOf(word);
    if (!range) throw BadKey(complaintAboutRange(std::string(word)));
    return {{0, name, action, {}, range}};
}

Keys selectKey(std::string_view word) {
    return rangeKey("select", selectRange, word);
}

Keys dragKey(std::string_view word) {
    return rangeKey("drag", dragRange, word);
}

/// A key that takes what stands behind its name and a colon.
struct TakingKey {
    const char* name;
    const char* takes;
    const char* about;
    Keys (*keys)(std::string_view);
};

constexpr TakingKey takingKeys[] = {
    {"text", "TEXT", "types each character of a text", typedKeys},
    {"paste", "TEXT", "pastes a text as one edit", pasteKey},
    {"select", "OFFSET,LENGTH", "selects, in UTF-16 code units", selectKey},
    {"drag", "OFFSET,LENGTH", "selects as the mouse does, and keeps inlines whole", dragKey},
};

// Lines

template <class Row, std::size_t N>
const Row* findKey(const Row (&rows)[N], std::string_view name) {
    const Row* const found = std::find_if(rows, rows + N, [&](const Row& row) { return name == row.name; });
    return found == rows + N ? nullptr : found;
}

std::string form(const TakingKey& key) {
    return std::string(key.name) + ":" + key.takes;
}

std::vector<std::string> allNames() {
    std::vector<std::string> names;
    for (const TakingKey& key : takingKeys)
        names.push_back(form(key));
    for (const PlainKey& key : plainKeys)
        names.emplace_back(key.name);
    for (const CommandKey& key : commandKeys)
        names.emplace_back(key.name);
    return names;
}

std::string complaintAboutName(std::string_view name) {
    std::string names;
    for (const std::string& each : allNames())
        names += (names.empty() ? "" : ", ") + each;
    return "there is no key " + std::string(name) + "; the keys are " + names;
}

std::string_view trimmedLeft(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(" \t"), text.size()));
}

std::string_view trimmedRight(std::string_view text) {
    return text.substr(0, text.find_last_not_of(" \t") + 1);
}

constexpr std::int64_t maximumTimes = 10'000;

/// The number behind the "*" of a line, which loses both and the blanks before them; 1 when there is none.
std::int64_t takeTimes(std::string_view& line) {
    const std::size_t star = line.find('*');
    if (star == std::string_view::npos) return 1;
    std::string_view number = line.substr(star + 1);
    const std::optional<std::int64_t> times = takeCount(number);
    if (!times || !number.empty() || *times < 1 || *times > maximumTimes)
        throw BadKey("behind * stands how often the key is pressed, from 1 to 10000");
    line = trimmedRight(line.substr(0, star));
    return *times;
}

KeyPress keyNamed(std::string_view name) {
    if (const PlainKey* const key = findKey(plainKeys, name)) return {0, key->name, key->action};
    if (const CommandKey* const key = findKey(commandKeys, name))
        return {0, key->name, runCommand, {}, {}, key->command, key->style};
    if (const TakingKey* const key = findKey(takingKeys, name)) throw BadKey("the key is " + form(*key));
    throw BadKey(complaintAboutName(name));
}

Keys parseLine(std::string_view line) {
    line = trimmedLeft(line);
    if (line.empty() || line[0] == '#') return {};
    const std::size_t colon = line.find(':');
    if (colon != std::string_view::npos)
        if (const TakingKey* const key = findKey(takingKeys, line.substr(0, colon)))
            return key->keys(line.substr(colon + 1));
    line = trimmedRight(line);
    const std::int64_t times = takeTimes(line);
    return Keys(static_cast<std::size_t>(times), keyNamed(line));
}

/// The first line of what is left, which loses it, without its ending.
std::string_view takeLine(std::string_view& rest) {
    const std::size_t length = std::min(rest.find('\n'), rest.size());
    std::string_view line = rest.substr(0, length);
    rest.remove_prefix(std::min(length + 1, rest.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

} // namespace

std::vector<KeyPress> parseKeys(std::string_view bytes, const std::string& file) {
    std::vector<KeyPress> keys;
    for (std::int64_t number = 1; !bytes.empty(); ++number) {
        try {
            for (KeyPress& key : parseLine(takeLine(bytes))) {
                key.line = number;
                keys.push_back(std::move(key));
            }
        } catch (const BadKey& bad) {
            throw Failure(linePlace(file, number) + ": " + bad.what());
        }
    }
    return keys;
}

std::string listOfKeys() {
    std::string list;
    for (const std::string& name : allNames()) {
        list += name;
        if (const TakingKey* const key = findKey(takingKeys, name.substr(0, name.find(':'))))
            list += std::string(std::max<std::size_t>(25, name.size() + 1) - name.size(), ' ') + key->about;
        list += "\n";
    }
    return list;
}

} // namespace Cli
