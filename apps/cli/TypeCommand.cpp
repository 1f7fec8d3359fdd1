#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

#include "Commands.h"
#include "Input.h"
#include "Progress.h"
#include "Statistics.h"
#include "TreeCheck.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/Tree.h"

namespace Cli {

namespace {

/// How the tree differed from a fresh parse, which ends the typing.
struct Mismatch {
    std::int64_t keystroke;
    std::string difference;
};

/// A note that is typed into, and what each keystroke cost.
class Typist {
    Ondo::Tree tree_;
    bool check_;
    std::vector<std::int64_t> nanoseconds_; ///< one a keystroke
    std::int64_t redrawLength_ = 0;

public:
    explicit Typist(const Options& options) : tree_({}, options.rules), check_(options.check) {}

    const Ondo::Tree& tree() const { return tree_; }

    /// Replaces in the tree. Only that is measured; the check throws a Mismatch.
    void press(const Ondo::Range& range, std::u16string_view text) {
        using namespace std::chrono;
        const auto start = steady_clock::now();
        const std::vector<Ondo::Range> redraw = tree_.replace(range, text);
        nanoseconds_.push_back(duration_cast<nanoseconds>(steady_clock::now() - start).count());
        for (const Ondo::Range& each : redraw)
            redrawLength_ += each.length;
        if (check_) check();
    }

    std::string statistics() const;

private:
    std::int64_t keystrokes() const { return static_cast<std::int64_t>(nanoseconds_.size()); }

    void check() const {
        std::string difference = differenceFromFreshParse(tree_);
        if (!difference.empty()) throw Mismatch{keystrokes(), std::move(difference)};
    }
};

std::string Typist::statistics() const {
    const Durations durations(nanoseconds_);
    const double count = static_cast<double>(std::max<std::int64_t>(keystrokes(), 1));
    const std::pair<const char*, std::string> rows[] = {
        {"keystrokes", std::to_string(keystrokes())},
        {"microseconds, median", oneDecimal(durations.percentile(50))},
        {"microseconds, p95", oneDecimal(durations.percentile(95))},
        {"microseconds, p99", oneDecimal(durations.percentile(99))},
        {"microseconds, max", oneDecimal(durations.percentile(100))},
        {"mean redraw length", oneDecimal(static_cast<double>(redrawLength_) / count)},
        {"full reparses", std::to_string(tree_.fullReparseCount())},
        {"nodes alive", std::to_string(Ondo::Node::instanceCount)},
    };
    std::string lines;
    for (const auto& [name, value] : rows)
        lines += std::string(name) + ": " + value + "\n";
    return lines;
}

/// The character at an offset: a code unit, or a surrogate pair.
std::u16string_view characterAt(std::u16string_view text, std::int64_t offset) {
    const std::int64_t count = Ondo::Util::codeUnitCount(Ondo::Util::codePointAt(text, offset));
    return text.substr(static_cast<std::size_t>(offset), static_cast<std::size_t>(count));
}

void typeAll(Typist& typist, std::u16string_view text) {
    const auto length = static_cast<std::int64_t>(text.size());
    Progress progress("typing");
    for (std::int64_t at = 0; at < length;) {
        const std::u16string_view character = characterAt(text, at);
        typist.press({at, 0}, character);
        at += static_cast<std::int64_t>(character.size());
        progress.show(at, length);
    }
}

std::vector<Ondo::Range> paragraphs(const Ondo::Tree& tree) {
    std::vector<Ondo::Range> ranges;
    for (Ondo::Node::Iterator at(tree.root.get()); at.node; at.nextInSequence(true))
        if (at->type == Ondo::ONDO_PARAGRAPH_NODE) ranges.push_back({at.offset, at->charCount});
    return ranges;
}

/// The character in the middle of a paragraph.
Ondo::Range middleOf(const Ondo::Range& paragraph, std::u16string_view text) {
    const std::int64_t middle = paragraph.offset + paragraph.length / 2;
    const bool isPairBefore = middle > 0 && characterAt(text, middle - 1).size() == 2;
    const std::int64_t offset = isPairBefore ? middle - 1 : middle;
    return {offset, static_cast<std::int64_t>(characterAt(text, offset).size())};
}

/// Back from the last paragraph: deletes a character and types it again in one of every `every`.
void retype(Typist& typist, std::u16string_view text, std::int64_t every) {
    const std::vector<Ondo::Range> all = paragraphs(typist.tree());
    const auto count = static_cast<std::int64_t>(all.size());
    Progress progress("retyping");
    for (std::int64_t passed = 0; passed < count; passed += every) {
        const Ondo::Range range = middleOf(all[static_cast<std::size_t>(count - 1 - passed)], text);
        typist.press(range, {});
        typist.press({range.offset, 0}, characterAt(text, range.offset));
        progress.show(passed, count);
    }
}

Outcome mismatch(Mismatch found) {
    return {{},
            "keystroke " + std::to_string(found.keystroke) + " leaves a tree that differs from a fresh parse",
            std::move(found.difference)};
}

Outcome result(const Typist& typist) {
    const std::string statistics = typist.statistics();
    std::string difference = differenceFromFreshParse(typist.tree());
    if (difference.empty()) return {statistics + "equal to a fresh parse: yes\n"};
    return {statistics + "equal to a fresh parse: no\n", "the final tree differs from a fresh parse",
            std::move(difference)};
}

} // namespace

Outcome type(const Options& options) {
    const std::u16string text = readText(options.file);
    Typist typist(options);
    try {
        typeAll(typist, text);
        retype(typist, text, options.every);
    } catch (Mismatch& found) {
        return mismatch(std::move(found));
    }
    return result(typist);
}

} // namespace Cli
