// An editor that repaints only the range that an edit returned shows what a fresh object would show.

#include <gtest/gtest.h>

#include "corvane/client/CVNAST.h"
#include "corvane/scan/Util.h"
#include "tests/support/Painted.h"
#include "tests/support/RandomNote.h"
#include "tests/support/RealNotes.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

/// A fold marker with blanks behind it has a run, but hides nothing, so that no block tells of it.
bool hasBlankBehindFoldMarker(std::u16string_view text) {
    return text.find(u"} --> ") != text.npos || text.find(u"} -->\t") != text.npos;
}

CVNAST noteWith(std::u16string_view text, RuleConfig::RuleSet rules) {
    CVNAST note;
    note.ast = std::make_unique<Tree>(std::u16string(text), rules);
    return note;
}

/// Makes one edit, or a batch of a few, and repaints.
void editAndRepaint(RandomNote& random, CVNAST& note, Painted& painted, std::string& story) {
    const std::size_t edits = random.below(5) == 0 ? 1 + random.below(4) : 1;
    CVNRange redraw;
    for (std::size_t i = 0; i < edits; ++i) {
        const std::int64_t length = edits == 1 ? note.markdownLength() : painted.length();
        const Range range = random.range(length);
        const std::u16string text = random.below(4) == 0 ? std::u16string() : random.piece();
        story += '[' + std::to_string(range.offset) + ',' + std::to_string(range.length) + ']' +
                 visible(text) + ' ';
        painted.replace(CVNRange::of(range), static_cast<std::int64_t>(text.size()));
        if (edits == 1)
            redraw = note.replaceRange(CVNRange::of(range), text);
        else
            note.batchReplaceRange(CVNRange::of(range), text);
    }
    if (edits > 1) redraw = note.batchReplaceCommit();
    painted.repaint(note, redraw);
    story += "-> " + std::to_string(redraw.location) + '+' + std::to_string(redraw.length) + '\n';
}

void editAtRandom(std::uint64_t seed, std::u16string_view text, RuleConfig::RuleSet rules, int edits) {
    RandomNote random(seed);
    CVNAST note = noteWith(text, rules);
    Painted painted(note);
    // Where nothing folds, nobody watches whether there is something behind a heading to fold.
    std::vector<CVNAttributeName> skipped;
    if (rules == RuleConfig::Commonmark) skipped.push_back(CVNFoldableAttributeName);
    for (int edit = 0; edit < edits; ++edit) {
        const std::string before = visible(note.markdown());
        std::string story;
        if (hasBlankBehindFoldMarker(note.markdown())) skipped.push_back(CVNFoldAttributeName);
        editAndRepaint(random, note, painted, story);
        if (hasBlankBehindFoldMarker(note.markdown())) skipped.push_back(CVNFoldAttributeName);
        const std::string stale = painted.difference(note, skipped);
        ASSERT_EQ(stale, "") << "seed " << seed << " in " << nameOf(rules) << '\n'
                             << before << '\n'
                             << story << visible(note.markdown());
    }
}

int rounds(int usual) {
    const char* wanted = std::getenv("CORVANE_ROUNDS");
    return wanted ? std::atoi(wanted) : usual;
}

TEST(Repaint, random_notes) {
    const int count = rounds(300);
    for (int seed = 0; seed < count && !testing::Test::HasFatalFailure(); ++seed) {
        RandomNote random(static_cast<std::uint64_t>(seed));
        const std::u16string text = random.note(12);
        editAtRandom(static_cast<std::uint64_t>(seed), text, allRuleSets[seed % 3], 8);
    }
}

TEST(Repaint, real_notes) {
    const std::vector<RealNote> notes = realNotes(4'000);
    const std::size_t count = std::min<std::size_t>(notes.size(), static_cast<std::size_t>(rounds(40)));
    for (std::size_t i = 0; i < count && !testing::Test::HasFatalFailure(); ++i)
        editAtRandom(i, Util::utf16(notes[i * notes.size() / count].text), RuleConfig::Extended, 6);
}

} // namespace
} // namespace Ondo::Test
