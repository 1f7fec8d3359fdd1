#include "Typist.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <utility>

#include "Note.h"
#include "Ranges.h"
#include "Statistics.h"
#include "TreeCheck.h"

namespace Cli {

namespace {

constexpr const char* treeDiffers = "a tree that differs from a fresh parse";
constexpr const char* paintingDiffers = "attribute runs that differ from a fresh note's";

/// How long a step takes, in nanoseconds.
template <class Step>
std::int64_t durationOf(Step&& step) {
    using namespace std::chrono;
    const auto start = steady_clock::now();
    step();
    return duration_cast<nanoseconds>(steady_clock::now() - start).count();
}

CVNRange unionOf(const std::vector<Ondo::Range>& ranges) {
    CVNRange all = CVNRange::of(ranges.front());
    for (const Ondo::Range& each : ranges)
        all = CVNRange::unite(all, CVNRange::of(each));
    return all;
}

void add(std::vector<std::int64_t>& durations, const std::vector<std::int64_t>& others) {
    std::transform(durations.begin(), durations.end(), others.begin(), durations.begin(), std::plus<>());
}

std::string padded(const std::string& text, std::size_t width) {
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

/// A row of the table of durations.
std::string durationRow(const std::string& name, std::vector<std::int64_t> nanoseconds) {
    constexpr int percents[] = {50, 95, 99, 100};
    const Durations durations(std::move(nanoseconds));
    std::string row = "  " + name + std::string(9 - name.size(), ' ');
    for (const int percent : percents)
        row += padded(oneDecimal(durations.percentile(percent)), 10);
    return row + "\n";
}

/// Adds the last lines of the statistics; the first thing that does not hold is complained of.
void conclude(Outcome& outcome, const std::string& what, const char* complaint, std::string difference) {
    outcome.output += what + (difference.empty() ? ": yes\n" : ": no\n");
    if (difference.empty() || !outcome.complaint.empty()) return;
    outcome.complaint = std::string("the keystrokes leave ") + complaint;
    outcome.detail = std::move(difference);
}

} // namespace

Typist::Typist(const Options& options) : note_(newNote(options)), check_(options.check) {}

void Typist::press(CVNRange range, std::u16string_view text) {
    // As CVNAST::replaceRange() does, in two steps, so that each can be measured.
    std::vector<Ondo::Range> redraw;
    CVNRange restyled;
    CVNAttributedString share;
    replacing_.push_back(durationOf([&] { redraw = note_.ast->replace(range.coreRange(), text); }));
    extending_.push_back(durationOf([&] { restyled = note_.extendReparsedRange(unionOf(redraw)); }));
    annotating_.push_back(durationOf([&] { share = note_.annotatedStringForRange(restyled); }));
    restyledLength_ += restyled.length;
    painted_.replace(range, static_cast<std::int64_t>(text.size()));
    painted_.paint(restyled.location, share);
    if (check_) check(restyled);
}

void Typist::check(CVNRange restyled) const {
    const std::string start = "keystroke " + std::to_string(keystrokes()) + " leaves ";
    if (std::string difference = differenceFromFreshParse(tree()); !difference.empty())
        throw Mismatch{start + treeDiffers, std::move(difference)};
    if (std::string difference = differenceFromFreshPainting(note_, painted_); !difference.empty())
        throw Mismatch{start + paintingDiffers, difference + "  restyled: " + jsonText(restyled) + "\n"};
}

std::string Typist::statistics() const {
    std::vector<std::int64_t> total(replacing_);
    add(total, extending_);
    add(total, annotating_);
    const double count = static_cast<double>(std::max<std::int64_t>(keystrokes(), 1));
    return "keystrokes: " + std::to_string(keystrokes()) + "\n" +
           "microseconds   median       p95       p99       max\n" + durationRow("replace", replacing_) +
           durationRow("extend", extending_) + durationRow("annotate", annotating_) +
           durationRow("total", std::move(total)) +
           "mean length restyled: " + oneDecimal(static_cast<double>(restyledLength_) / count) + "\n" +
           "full reparses: " + std::to_string(tree().fullReparseCount()) + "\n" +
           "nodes alive: " + std::to_string(Ondo::Node::instanceCount) + "\n";
}

Outcome Typist::result() const {
    Outcome outcome{statistics()};
    conclude(outcome, "equal to a fresh parse", treeDiffers, differenceFromFreshParse(tree()));
    conclude(outcome, "painted like a fresh note", paintingDiffers,
             differenceFromFreshPainting(note_, painted_));
    return outcome;
}

} // namespace Cli
