// What must hold of every command and correction, of any note, range and selection. CORVANE_SEED and
// CORVANE_ROUNDS set seed and length.

#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/support/Commands.h"
#include "tests/support/Print.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

std::uint64_t environmentNumber(const char* name, std::uint64_t otherwise) {
    const char* const value = std::getenv(name);
    return value ? std::strtoull(value, nullptr, 10) : otherwise;
}

/// A tag, target, URL or text: mostly one that the notes have.
std::u16string argument(RandomNote& random) {
    constexpr std::u16string_view known[] = {
        u"t",   u"a", u"a b", u"k",   u"g",   u"l",      u"b/c", u"j k", u"u v",  u"x\ny\n", u"#",  u"",
        u"/a/", u"f", u"1",   u"\\/", u"- a", u"[b]: x", u"]",   u"|",   u"&amp", u"ÄB",     u"/u", u"a.png"};
    return random.below(3) == 0 ? random.piece() : std::u16string(known[random.below(std::size(known))]);
}

Place placeOf(const Act& act, RandomNote& random, std::int64_t length) {
    Place place{CVNRange::of(random.range(length)), {}};
    if (random.below(4) == 0) place.range = CVNRange::of(random.range(length));
    if (random.below(6) == 0) place.range.length = length - place.range.location;
    for (std::u16string& text : place.texts)
        text = argument(random);
    place.flag = random.below(2) == 0;
    place.selection = place.range;
    if (act.isOfEdit()) {
        constexpr std::u16string_view typed[] = {u"`",  u"``", u"```", u"$", u"$$",
                                                 u"\n", u"",   u"x",   u" ", u"|"};
        place.text = random.below(4) == 0 ? random.piece() : std::u16string(typed[random.below(10)]);
        place.selection = {place.range.location + static_cast<std::int64_t>(place.text.size()), 0};
    } else if (random.below(5) == 0 || act.correction) {
        place.selection = CVNRange::of(random.range(length));
    }
    return place;
}

TEST(CommandProperty, OfRandomNotes) {
    const std::vector<Act> acts = allActs();
    const std::uint64_t seed = environmentNumber("CORVANE_SEED", 1);
    RandomNote random(seed);
    for (std::uint64_t round = 0; round < environmentNumber("CORVANE_ROUNDS", 1500); ++round) {
        const std::u16string text = random.note(8);
        CVNAST note;
        note.ast = std::make_unique<Tree>(text, allRuleSets[random.below(3)]);
        for (int step = 0; step < 30; ++step) {
            const Act& act = acts[random.below(acts.size())];
            const std::u16string before(note.markdown());
            const Place place = placeOf(act, random, note.markdownLength());
            const Deed deed = carryOut(act, note, place);
            ASSERT_EQ(deed.fault, "")
                << act.name << " at " << show(place) << " in " << visible(before) << " under "
                << nameOf(note.ast->ruleSet) << show(deed.results) << "\nseed " << seed << " round " << round;
        }
    }
}

} // namespace
} // namespace Ondo::Test
