#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

#include <unistd.h>

#include "Commands.h"
#include "Vault.h"
#include "VaultChange.h"
#include "VaultRun.h"

namespace Cli {

namespace {

/// What one can do with a folder.
struct VaultAction {
    const char* name;
    std::array<const char*, 2> arguments; ///< null behind the last
    const char* about;
    bool isWriting;
    bool isStreamed; ///< prints while it works
    Outcome (*run)(VaultRun&);
};

constexpr VaultAction vaultActions[] = {
    {"summary", {}, "Print what a list of notes shows, one JSON object a note", false, true, vaultSummary},
    {"tags", {}, "Print the tree of all tags, and how many notes have each", false, false, vaultTags},
    {"links", {}, "Print which notes the wikilinks lead to, and which are broken", false, false, vaultLinks},
    {"find", {"PATTERN"}, "Find notes by a few letters of title or file name", false, false, vaultFind},
    {"rename-tag", {"FROM", "TO"}, "Rename a tag, and with it those below", true, false, renameTag},
    {"remove-tag", {"TAG"}, "Remove a tag and those below; its parent stays", true, false, removeTag},
    {"rename-note", {"OLD", "NEW"}, "Point wikilinks from a title to another one", true, false, renameNote},
};

/// Who writes mostly waits for the disk, which flushes for several at once.
constexpr std::size_t writingJobs = 8;

/// As one types it.
std::string usageOf(const VaultAction& action) {
    std::string usage = action.name;
    for (const char* const argument : action.arguments)
        if (argument) usage += std::string(" ") + argument;
    return usage;
}

std::string listOfActions() {
    constexpr std::size_t width = 22;
    std::string list;
    for (const VaultAction& action : vaultActions) {
        std::string usage = usageOf(action);
        usage.resize(std::max(width, usage.size() + 1), ' ');
        list += "  " + usage + action.about + "\n";
    }
    return list;
}

const VaultAction& actionOf(const Options& options) {
    const std::string name = options.name.value_or("");
    std::string message = "there is no action " + name + "; the actions are";
    for (const VaultAction& action : vaultActions) {
        if (name == action.name) return action;
        message += std::string(&action == vaultActions ? " " : ", ") + action.name;
    }
    throw Failure(message, BadUsage);
}

void requireArguments(const VaultAction& action, const Options& options) {
    const auto isThere = [](const char* argument) { return argument != nullptr; };
    const auto count =
        static_cast<std::size_t>(std::count_if(action.arguments.begin(), action.arguments.end(), isThere));
    const std::size_t given = options.words.size();
    if (given > count)
        throw Failure("one argument too many: " + options.words[count] + "; the action is " + usageOf(action),
                      BadUsage);
    if (given < count)
        throw Failure(std::string(action.arguments[given]) + " is missing; the action is " + usageOf(action) +
                          " (a shell takes # for a comment: leave it out, or quote it)",
                      BadUsage);
    if (options.json && action.isWriting)
        throw Failure(std::string(action.name) + " has no --json", BadUsage);
}

} // namespace

std::string vaultHelp() {
    return "Actions:\n" + listOfActions() + R"(
Notes are the .md, .markdown and .txt files in DIR and in the folders below it. What begins with "." is left
out, and symbolic links are not followed. Notes that can't be read or are not UTF-8 are skipped and named in
the end, and the exit code is 1 then.

A tag is #work, #work/now or #two words#, and on the command line the same without "#". Front matter has none.
A wikilink is [[Note]], [[Note/Header]] or [[Note|shown]]; a slash in a title is \/, and [[Note#x]] is a note
called "Note#x". It leads to the notes with that title and to those whose file is called so, without folders
and extension; a link that leads to none is broken. The header is not looked for. Letters are equal whatever
their case, but not those of another normal form: a file whose name has its umlauts in two characters is
called otherwise. find takes the better of title and name; it overlooks case, accents and width, and what
matches just anywhere unless there is nothing else. With --json:
  tags   {"tag":"work/now","count":2}
  links  {"file":"a.md","offset":9,"title":"Plan","header":"Costs","targets":["plan.md"]}
  find   {"file":"plan.md","title":"Plan","in":"title","score":23,"indexes":[0,1]}
Offsets and indexes count UTF-16 code units, the latter in the title or, with "in":"name", in the name without
folders and extension. "header" is left out where there is none; "targets" is [] for a broken link.

To rename a tag to one that is there already merges them. remove-tag removes no more than the text of the tag:
what stands behind it may then begin a list or a heading. rename-note changes the links in all notes, with
headers and aliases kept, but neither a title nor the name of a file; OLD and NEW are titles, and [[Old]] will
do. A note in which something is left, since the new name can't be written there, is named in the end, and
the exit code is 1.

A note that changes is replaced as a whole: it is the old one or the new one, whatever happens. It keeps its
permissions, line endings and byte order mark. Skipped are read-only notes, those with several names (hard
links), and those that another program changes meanwhile or has open for writing. The notes that were changed
are printed, with --dry-run the diff, which "patch -p1" in DIR takes. After an interrupt the note at hand is
finished; the run can be repeated. Only a run that is killed outright may leave a hidden file .corvane-*.tmp
behind unnamed. It may hold the only copy of what another program wrote: compare it with the note before you
delete it.

Examples:
  corvane vault ~/notes tags
  corvane vault ~/notes rename-tag work/now work/later --dry-run)";
}

Outcome vault(const Options& options) {
    const VaultAction& action = actionOf(options);
    requireArguments(action, options);
    VaultRun run(options);
    const bool isStreamed = action.isStreamed || options.dryRun;
    run.showsProgress = !isStreamed || isatty(fileno(stdout)) == 0;
    if (!action.isWriting || options.dryRun) return action.run(run);
    const StopSignal stop;
    if (options.jobs == 0) run.jobs = std::max(run.jobs, writingJobs);
    return action.run(run);
}

} // namespace Cli
