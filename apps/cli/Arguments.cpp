#include "Arguments.h"

#include <charconv>
#include <sstream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Commands.h"
#include "corvane/Version.h"

namespace Cli {

namespace {

/// A word of the command line and what it stands for.
template <class Value>
struct Choice {
    const char* name;
    Value value;
};

constexpr Choice<Ondo::RuleConfig::RuleSet> ruleChoices[] = {
    {"commonmark", Ondo::RuleConfig::Commonmark},
    {"extended", Ondo::RuleConfig::Extended},
    {"simplified", Ondo::RuleConfig::Simplified},
};

constexpr Choice<Print> printChoices[] = {
    {"tree", Print::Tree},
    {"html", Print::Html},
    {"text", Print::Text},
    {"none", Print::None},
};

constexpr Choice<Colors> colorChoices[] = {
    {"auto", Colors::Auto},
    {"always", Colors::Always},
    {"never", Colors::Never},
};

/// An option that takes one of the words; `value` holds the default.
template <class Value, std::size_t N>
void addChoice(CLI::App& app, const std::string& name, const Choice<Value> (&choices)[N], Value& value,
               const std::string& about) {
    std::vector<std::string> names;
    std::string defaultName;
    for (const Choice<Value>& choice : choices) {
        names.emplace_back(choice.name);
        if (choice.value == value) defaultName = choice.name;
    }
    const auto take = [&choices, &value](const std::string& word) {
        for (const Choice<Value>& choice : choices)
            if (word == choice.name) value = choice.value;
    };
    app.add_option_function<std::string>(name, take, about)
        ->type_name("NAME")
        ->check(CLI::IsMember(names))
        ->default_str(defaultName);
}

void addNote(CLI::App& app, Options& options) {
    app.add_option("FILE", options.file, "The note, in UTF-8; standard input if it is missing or -")
        ->type_name("");
    addChoice(app, "--rules", ruleChoices, options.rules, "The rule set");
}

/// A count at the start of a word, which loses it; null when there is none.
std::optional<std::int64_t> takeCount(std::string_view& word) {
    std::int64_t count = 0;
    const bool isDigit = !word.empty() && word[0] >= '0' && word[0] <= '9';
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), count);
    if (!isDigit || error != std::errc()) return std::nullopt;
    word.remove_prefix(static_cast<std::size_t>(end - word.data()));
    return count;
}

std::optional<CVNRange> rangeOf(std::string_view word) {
    const auto offset = takeCount(word);
    if (!offset || !word.starts_with(',')) return std::nullopt;
    word.remove_prefix(1);
    const auto length = takeCount(word);
    if (!length || !word.empty()) return std::nullopt;
    return CVNRange{*offset, *length};
}

std::string complaintAboutRange(const std::string& word) {
    if (rangeOf(word)) return {};
    return word + " is not two whole numbers with a comma between them, from 0 to 9223372036854775807";
}

void addAnnotate(CLI::App& app, Options& options) {
    addNote(app, options);
    app.add_option_function<std::string>(
           "--range", [&options](const std::string& word) { options.range = rangeOf(word); },
           "Print what lies inside this range")
        ->type_name("OFFSET,LENGTH")
        ->check(complaintAboutRange);
}

void addShow(CLI::App& app, Options& options) {
    addNote(app, options);
    addChoice(app, "--color", colorChoices, options.colors, "When to use colours");
    app.get_option("--color")->take_last(); // so that who has an alias can overrule it
}

void addEdit(CLI::App& app, Options& options) {
    addNote(app, options);
    app.add_option("--script", options.script, "The edits, or - for standard input")
        ->type_name("FILE")
        ->required();
    app.add_flag("--check", options.check, "Compare the tree with a fresh parse after every edit");
    addChoice(app, "--print", printChoices, options.print, "What to print after the last edit");
}

void addType(CLI::App& app, Options& options) {
    addNote(app, options);
    app.add_flag("--check", options.check,
                 "Compare tree and painting with a fresh note's after every keystroke");
    app.add_option("--every", options.every, "Of how many paragraphs one is changed on the way back")
        ->type_name("N")
        ->check(CLI::Range(std::int64_t{1}, std::int64_t{1'000'000'000}).description({}))
        ->capture_default_str();
}

struct CommandRow {
    const char* name;
    const char* about;
    void (*addOptions)(CLI::App&, Options&);
    Outcome (*run)(const Options&);
    const char* footer;
};

constexpr CommandRow commandRows[] = {
    {"html", "Print a note as HTML", addNote, html, R"(Example:
  printf '# Title\n' | corvane html)"},
    {"tree", "Print the tree of a note, one node a line", addNote, tree, R"(Example:
  corvane tree --rules commonmark note.md)"},
    {"annotate", "Print the attribute runs of a note, one JSON object a line", addAnnotate, annotate,
     R"(A run is a stretch over which a key has one value, as long as it can be:
  {"range":[offset,length],"key":"CVNStrong","value":true}
Offsets and lengths count UTF-16 code units in the whole text. Runs are ordered by offset, those that begin
together by the name of the key as text. With --range, the first-level blocks that the range touches are
annotated, and the runs that touch the range are printed, clipped to it.

Example:
  corvane annotate --range 0,100 note.md)"},
    {"show", "Print a note as a person would like to read it", addShow, show,
     R"(On a terminal the note is painted. Everywhere tasks are boxes, a folded section is an ellipsis, and control
characters other than tabs and line endings are shown by signs. A painted line of a right-to-left block
ends with a dim arrow. The colours of "auto" are used on a terminal, unless NO_COLOR is set in the
environment and not empty, or TERM is "dumb".

Example:
  corvane show --color always note.md | less -R)"},
    {"edit", "Apply a script of edits and print which ranges each restyles", addEdit, edit,
     R"(Each line of the script is one edit of the text that the line before left, in UTF-16 code units:
  {"range":[offset,length],"text":"..."}
Each edit is answered by one line:
  {"redraw":[[offset,length],...]}

Example:
  echo '{"range":[0,0],"text":"# "}' | corvane edit note.md --script - --check --print tree)"},
    {"type", "Type a note character by character and print what the keystrokes cost", addType, type,
     R"(The note is typed into an empty one. Then, from the last paragraph to the first, a character is
deleted and typed again in one of every N. Measured is what an editor waits for: to replace in the tree
and extend the range to restyle, and to annotate that range.

The runs are painted over the range that each keystroke returned and nowhere else, and in the end must be
those of a fresh note. With --check they are compared after every keystroke, as is the tree. Under the
rules "commonmark", in which nothing folds, the runs of CVNFoldable are left out.

Example:
  corvane type --every 1 note.md)"},
};

void addCommands(CLI::App& app, Options& options) {
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    app.require_subcommand(0, 1);
    app.set_version_flag("--version", "corvane " + std::string(Ondo::version));
    app.footer(R"(Example:
  corvane html note.md

The exit code is 1 for input that can't be taken and for a check that fails, and 2 for arguments that
don't fit.)");
    for (const CommandRow& row : commandRows) {
        CLI::App* const command = app.add_subcommand(row.name, row.about);
        command->group("Commands");
        row.addOptions(*command, options);
        command->footer(row.footer);
    }
}

const CommandRow* findCommand(const std::string& name) {
    for (const CommandRow& row : commandRows)
        if (name == row.name) return &row;
    return nullptr;
}

/// The library takes an unknown command for a surplus argument.
void requireCommand(int argc, const char* const* argv) {
    if (argc < 2) throw Failure("a command is missing; corvane --help lists them", BadUsage);
    const std::string first = argv[1];
    if (first.rfind('-', 0) != 0 && !findCommand(first))
        throw Failure("there is no command " + first + "; corvane --help lists them", BadUsage);
}

/// The text that was asked for, with --help or --version; a Failure for what did not fit.
Outcome answer(const CLI::App& app, const CLI::ParseError& error) {
    std::ostringstream out;
    std::ostringstream ignored;
    if (app.exit(error, out, ignored) == 0) return {out.str()};
    throw Failure(error.what(), BadUsage);
}

} // namespace

Outcome runArguments(int argc, const char* const* argv) {
    requireCommand(argc, argv);
    CLI::App app("Parses Markdown notes and follows edits of them.", "corvane");
    Options options;
    addCommands(app, options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return answer(app, error);
    }
    if (app.get_subcommands().empty())
        throw Failure("a command is missing; corvane --help lists them", BadUsage);
    if (options.file == "-" && options.script == "-")
        throw Failure("FILE and --script can't both be standard input", BadUsage);
    return findCommand(app.get_subcommands().front()->get_name())->run(options);
}

} // namespace Cli
