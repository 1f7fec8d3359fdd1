#pragma once

#include <cstdint>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "Commands.h"
#include "OrderedWork.h"
#include "Progress.h"
#include "StopSignal.h"
#include "VaultFolder.h"
#include "VaultNote.h"

namespace Cli {

/// An action on a folder of notes, on its way.
struct VaultRun {
    const Options& options;
    VaultListing listing;
    std::size_t jobs; ///< threads; at least 1
    /// Whether a line on a terminal tells how far the run is: not where output goes there meanwhile.
    bool showsProgress = true;
    std::vector<Skipped> skipped = {};    ///< what is named in the end, those of the listing too
    std::vector<Skipped> unfinished = {}; ///< notes in which something is left to do, and what
    std::int64_t notReached = 0;          ///< notes that a signal to stop came before

    /// Lists the notes. Throws a Failure as listNotes() does.
    explicit VaultRun(const Options& ofCommand);
};

/// As many threads of those as the files that they have open at once allow; at least 1.
std::size_t jobsThatFit(std::size_t jobs);

/// Calls `use(file, note)`, which gives a Result, for each note on the threads of the run, and
/// `take(file, result)` in the order of the names on this thread. Notes that can't be read, and those for
/// which `use` throws Unusable, are skipped. After a signal that a StopSignal caught, no more notes are
/// begun.
template <class Result, class Use, class Take>
void forEachNote(VaultRun& run, Use use, Take take) {
    struct NotReached {};
    using Answer = std::variant<NotReached, Result, Unusable>;
    const std::vector<VaultFile>& files = run.listing.files;
    std::optional<Progress> progress;
    if (run.showsProgress) progress.emplace("note");
    const auto answer = [&](std::size_t i) -> Answer {
        if (StopSignal::received() != 0) return NotReached{};
        try {
            return Answer(std::in_place_index<1>, use(files[i], readVaultNote(files[i])));
        } catch (const Unusable& unusable) {
            return unusable;
        } catch (const std::bad_alloc&) {
            return Unusable("too large for the memory that is left");
        }
    };
    workInOrder<Answer>(files.size(), jobsThatFit(run.jobs), answer, [&](std::size_t i, Answer result) {
        if (progress) progress->show(static_cast<std::int64_t>(i), static_cast<std::int64_t>(files.size()));
        if (const auto* const unusable = std::get_if<Unusable>(&result))
            run.skipped.push_back({files[i].name, unusable->what()});
        else if (auto* const value = std::get_if<1>(&result))
            take(files[i], std::move(*value));
        else
            ++run.notReached;
    });
}

/// A number and what it counts: "1 note", "2 notes".
std::string countOf(std::int64_t count, const std::string& what);

/// The outcome of a run: its output, and the names of what was skipped or not finished. Any make the exit
/// code 1, as does a run that was stopped.
Outcome finished(VaultRun& run, std::string output);

} // namespace Cli
