#include "Arguments.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Commands.h"
#include "Ranges.h"
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

void addRules(CLI::App& app, Options& options) {
    addChoice(app, "--rules", ruleChoices, options.rules, "The rule set");
}

void addNote(CLI::App& app, Options& options) {
    app.add_option("FILE", options.file, "The note, in UTF-8; standard input if it is missing or -")
        ->type_name("");
    addRules(app, options);
}

void addRange(CLI::App& app, const std::string& name, std::optional<CVNRange>& range,
              const std::string& about) {
    app.add_option_function<std::string>(
           name, [&range](const std::string& word) { range = rangeOf(word); }, about)
        ->type_name("OFFSET,LENGTH")
        ->check(complaintAboutRange);
}

void addAnnotate(CLI::App& app, Options& options) {
    addNote(app, options);
    addRange(app, "--range", options.range, "Print what lies inside this range");
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

/// What `op` and `correct` have in common.
void addRanges(CLI::App& app, Options& options, const std::string& aboutSelection) {
    app.add_flag("--list", options.list, "Print the names, and nothing else");
    addRange(app, "--range", options.range, "The range that it is run on");
    addRange(app, "--selection", options.selection, aboutSelection);
}

void addOp(CLI::App& app, Options& options) {
    app.add_option("NAME", options.name, "The command")->type_name("");
    app.add_option("ARG", options.words,
                   "Its arguments, then the note, in UTF-8; standard input if that is missing or -")
        ->type_name("");
    addRanges(app, options, "The selection; the range if it is missing");
    addRules(app, options);
    app.add_flag("--apply", options.apply,
                 "Print the text, the selection and what to redraw behind the command");
}

void addCorrect(CLI::App& app, Options& options) {
    app.add_option("NAME", options.name, "The correction")->type_name("");
    addNote(app, options);
    addRanges(app, options,
              "The selection proposed for behind the edit; a caret behind the text if it is missing");
    app.add_option("--text", options.text, "What takes the place of the range, as it stands")
        ->type_name("TEXT");
}

void addKeys(CLI::App& app, Options& options) {
    app.add_option("FILE", options.file, "The note to start with, in UTF-8; an empty one if it is missing")
        ->type_name("");
    addRules(app, options);
    app.add_option("--script", options.script, "The keys, or - for standard input")->type_name("FILE");
    app.add_flag("--list", options.list, "Print the keys, and nothing else");
    app.add_flag("--trace", options.trace, "Print what each key led to");
    app.add_flag("--check", options.check, "Compare tree and painting with a fresh note's after every key");
}

void addFiles(CLI::App& app, Options& options) {
    app.add_option("FILE", options.files, "The notes, in UTF-8; standard input if there is none, or for -")
        ->type_name("");
}

void addSummary(CLI::App& app, Options& options) {
    addFiles(app, options);
    addRules(app, options);
}

void addFuzzy(CLI::App& app, Options& options) {
    app.add_option("PATTERN", options.name, "The letters to look for, in their order")
        ->type_name("")
        ->required();
    app.add_option("FILE", options.file, "The lines, in UTF-8; standard input if it is missing or -")
        ->type_name("");
    app.add_flag("--fold", options.fold, "Take letters as equal whatever their case, accents and width");
    app.add_flag("--json", options.json, "Print one JSON object a line");
    addChoice(app, "--color", colorChoices, options.colors, "When to highlight what matches");
    app.get_option("--color")->take_last();
}

void addVault(CLI::App& app, Options& options) {
    app.add_option("DIR", options.file, "The folder")->type_name("")->required();
    app.add_option("ACTION", options.name, "What to do; see below")->type_name("")->required();
    app.add_option("ARG", options.words, "Its arguments")->type_name("");
    addRules(app, options);
    app.add_flag("--dry-run", options.dryRun,
                 "Print what would change, as a unified diff, and change nothing");
    app.add_flag("--json", options.json, "Print one JSON object a line; no action that changes notes has it");
    app.add_option("--jobs", options.jobs,
                   "How many threads work; if it is missing, one a core, but eight at least for changes")
        ->type_name("N")
        ->check(CLI::Range(std::int64_t{1}, std::int64_t{256}).description({}));
    addChoice(app, "--color", colorChoices, options.colors, "When to highlight what matches");
    app.get_option("--color")->take_last();
    app.footer(vaultHelp());
}

struct CommandRow {
    const char* name;
    const char* about;
    void (*addOptions)(CLI::App&, Options&);
    Outcome (*run)(const Options&);
    const char* footer; ///< null: addOptions has one
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
    {"op", "Print what a command of an editor does to a note", addOp, op,
     R"(The commands and their arguments are listed by --list. Printed is one JSON array of replacements, each in
the text that the ones before it left, or [] where the command has no opinion:
  [{"range":[offset,length],"text":"...","selection":[offset,length]}]
The selection of the last one is the one to show. With --apply one object is printed instead; without an
opinion it has the text and the selection as they were, and nothing to redraw:
  {"text":"...","selection":[offset,length],"redraw":[offset,length] or null}
Offsets and lengths count UTF-16 code units.

Example:
  printf 'some text' | corvane op toggleInlineStyle 0 --range 5,4)"},
    {"correct", "Print what a correction makes of an edit", addCorrect, correct,
     R"(The corrections are listed by --list. The edit would replace --range by --text, which is taken as it
stands: a shell writes a line feed as $'\n', a text that begins with - as --text=-, and none as --text ''.
selectionCorrectionIn takes no text: --range is the selection as it was, and --selection the new one. Printed
is an array as "corvane op" prints it, [] if the edit is to be made as it is.

Example:
  printf '> [!TIP]' | corvane correct calloutCorrectionIn --range 8,0 --text a)"},
    {"keys", "Press keys as a person would and print the note that comes out", addKeys, keys,
     R"(Each line of the script is a key; blank lines and those that begin with # are none. The caret starts at the
end of the note.
  text:TEXT             types each character of TEXT
  paste:TEXT            pastes TEXT as one edit
  select:OFFSET,LENGTH  selects, in UTF-16 code units
  drag:OFFSET,LENGTH    selects as the mouse does, and keeps inlines whole
  enter, backspace, bold, heading-2, move-up, toggle-task, fold, next-cell ...
The others are listed by --list; "left*3" presses one three times. TEXT goes to the end of the line and has the
escapes of JSON: \n is a line feed, \\ a backslash. Each key goes the whole road of an editor: corrections,
command, edit, selection, painting. Printed is
  {"text":"...","selection":[offset,length]}
and with --trace before it, for each key, the line of the script, the key, who answered it and the state:
  {"line":1,"key":"enter","by":"insertNewlineInRange","text":"...","selection":[...],"redraw":[...]}
"by" is the name of a correction or command, "edit", or null for a key that changed nothing.

Example:
  printf 'text:- one\nenter\ntext:two\n' | corvane keys --script -)"},
    {"summary", "Print what a list of notes shows, one JSON object a note", addSummary, summary,
     R"(Each note, in the order of the arguments, is one line:
  {"file":"a.md","title":"...","subtitle":"...","tags":["work","work/now"],"links":["https://..."],
   "wikiLinks":[{"title":"...","offset":9}],"codeBlockCount":0,"todoCount":2,"doneCount":1,
   "spaceIndentedLineCount":0,"tabIndentedLineCount":0}
A tag is #work, #work/now or #two words#; front matter has none. With a tag there are those above it, sorted
by code units. A wikilink is [[Note]], [[Note/Header]] or [[Note|shown]]; its "title" is the path without what
is shown, as "Note/Header". [[Note#x]] leads to a note called "Note#x". A "/" that belongs to the name of a
tag or note is written "\/" there and here. The subtitle leaves out lines of nothing but tags and is cut at
200. Offsets and lengths count UTF-16 code units, a byte order mark not among them. Files that can't be taken
are named on standard error; the others are printed all the same, and the exit code is 1.

Example:
  corvane summary *.md)"},
    {"stats", "Count words and paragraphs, one JSON object a note", addFiles, stats,
     R"(Each note, in the order of the arguments, is one line:
  {"file":"a.md","wordsCount":120,"paragraphCount":9,"readTime":28}
The text is counted as it is written, with its markup. Words end at white space and hyphens. A paragraph is a
line that has a character, be it a blank. The time to read is in seconds, rounded down, at 250 words or 300
Chinese or Japanese characters a minute. Files that can't be taken are named on standard error; the others
are printed all the same, and the exit code is 1.

Example:
  corvane stats *.md)"},
    {"fuzzy", "Find lines by a few of their letters, best first", addFuzzy, fuzzy,
     R"(Printed are the lines that have all characters of PATTERN in their order, whatever stands between them;
those that have them close together and near the start come first. Colours show what matches, behind the score
of the line. Without colours a line is
  SCORE <tab> OFFSETS <tab> LINE
where the offsets of the characters that match are joined by commas, as in "26<tab>0,1,2<tab>readme", and with
--json
  {"line":1,"score":26,"indexes":[0,1,2],"text":"readme"}
Offsets count UTF-16 code units from the start of the line. Control characters show as signs, but in JSON.
The colours of "auto" are used on a terminal, unless NO_COLOR is set in the environment and not empty, or TERM
is "dumb". The exit code is 0 also when nothing matches. An empty pattern matches nothing; one that begins
with - stands behind --.

Examples:
  ls | corvane fuzzy rdm --fold
  ls | corvane fuzzy rdm --fold | head -1 | cut -f3-)"},
    {"vault", "Ask and change all notes of a folder", addVault, vault, nullptr},
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
        if (row.footer) command->footer(row.footer);
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

/// The library takes a word in brackets for a list. A NUL behind it, which no argument holds, hides them.
std::vector<std::string> wordsFrom(int argc, const char* const* argv) {
    std::vector<std::string> words;
    for (int i = argc - 1; i > 0; --i) { // from the last one, as the library wants them
        words.emplace_back(argv[i]);
        if (words.back().starts_with('[') && words.back().ends_with(']')) words.back() += '\0';
    }
    return words;
}

void showBrackets(Options& options) {
    const auto show = [](std::string& word) {
        if (word.ends_with('\0')) word.pop_back();
    };
    for (std::optional<std::string>* const word :
         {&options.file, &options.script, &options.name, &options.text})
        if (*word) show(**word);
    for (std::vector<std::string>* const words : {&options.words, &options.files})
        std::for_each(words->begin(), words->end(), show);
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
        app.parse(wordsFrom(argc, argv));
    } catch (const CLI::ParseError& error) {
        return answer(app, error);
    }
    showBrackets(options);
    if (app.get_subcommands().empty())
        throw Failure("a command is missing; corvane --help lists them", BadUsage);
    const CommandRow& command = *findCommand(app.get_subcommands().front()->get_name());
    const std::string defaultFile = command.run == keys ? "" : "-";
    if (options.file.value_or(defaultFile) == "-" && options.script == "-")
        throw Failure("FILE and --script can't both be standard input", BadUsage);
    return command.run(options);
}

} // namespace Cli
