#include "VaultRun.h"

#include <algorithm>
#include <iterator>
#include <thread>

#include <sys/resource.h>

#include "corvane/client/CVNAST.h"

namespace Cli {

namespace {

std::size_t jobsOf(const Options& options) {
    if (options.jobs > 0) return static_cast<std::size_t>(options.jobs);
    return std::max(1U, std::thread::hardware_concurrency());
}

/// By name.
std::string linesOf(std::vector<Skipped> notes) {
    std::stable_sort(notes.begin(), notes.end(),
                     [](const Skipped& a, const Skipped& b) { return a.name < b.name; });
    std::string lines;
    for (const Skipped& one : notes)
        lines += "  " + shownName(one.name) + ": " + one.reason + "\n";
    return lines;
}

std::string complaintOf(const VaultRun& run) {
    std::string complaint;
    const auto add = [&](const std::string& what, std::int64_t count) {
        if (count > 0) complaint += (complaint.empty() ? "" : "; ") + what + std::to_string(count);
    };
    if (StopSignal::received() != 0)
        complaint = "stopped by a signal; not looked at: " + countOf(run.notReached, "note");
    add("skipped: ", std::ssize(run.skipped));
    add("not changed everywhere: ", std::ssize(run.unfinished));
    return complaint;
}

} // namespace

VaultRun::VaultRun(const Options& ofCommand)
    : options(ofCommand), listing(listNotes(ofCommand.file.value_or(""))), jobs(jobsOf(ofCommand)),
      skipped(std::move(listing.skipped)) {
    CVNAST::ruleSet = options.rules;
}

std::size_t jobsThatFit(std::size_t jobs) {
    constexpr rlim_t filesOfAJob = 4; // to replace a note takes its folder, the note, and the new one twice
    constexpr rlim_t otherFiles = 6;  // standard streams, and what the command was started with
    rlimit limit = {};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0) return jobs;
    const rlim_t free = limit.rlim_cur - std::min(limit.rlim_cur, otherFiles);
    return std::clamp<rlim_t>(free / filesOfAJob, 1, jobs);
}

std::string countOf(std::int64_t count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

Outcome finished(VaultRun& run, std::string output) {
    std::vector<Skipped> named = run.skipped;
    named.insert(named.end(), run.unfinished.begin(), run.unfinished.end());
    Outcome outcome{std::move(output), complaintOf(run), linesOf(std::move(named))};
    if (run.listing.files.empty()) outcome.remark = "there are no notes in " + run.options.file.value_or("");
    return outcome;
}

} // namespace Cli
