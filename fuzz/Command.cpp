// Any bytes as a note and commands and corrections on it: what must hold of each, behind each.
//
// The first byte chooses the rule set, the second how much of what follows is the note. The rest is read as
// acts: which one, range and selection, and two texts, each a construct of the dialect by its number or a
// length and as many bytes.

#include "fuzz/Bytes.h"
#include "tests/support/Commands.h"
#include "tests/support/RandomNote.h"

using namespace Ondo;

namespace {

std::u16string piece(Fuzz::Bytes& bytes) {
    const std::uint8_t kind = bytes.next();
    return kind < 16 ? bytes.text(kind) : std::u16string(Test::construct(kind - 16U));
}

CVNRange range(Fuzz::Bytes& bytes, std::int64_t length) {
    const std::int64_t offset = bytes.next() * length / 255;
    return {offset, std::min<std::int64_t>(bytes.next() / 4, length - offset)};
}

Test::Place place(Fuzz::Bytes& bytes, const Test::Act& act, std::int64_t length) {
    Test::Place place{range(bytes, length), {}};
    place.texts = {piece(bytes), piece(bytes), {}};
    place.flag = place.texts[1].size() % 2 == 0;
    if (!act.isOfEdit()) {
        place.selection = range(bytes, length);
    } else {
        place.text = place.texts[0];
        place.selection = {place.range.location + static_cast<std::int64_t>(place.text.size()), 0};
    }
    return place;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::vector<Test::Act> acts = Test::allActs();
    Fuzz::Bytes bytes(data, size);
    const RuleConfig::RuleSet rules = bytes.ruleSet();
    const std::size_t share = bytes.next();
    CVNAST note;
    note.ast = std::make_unique<Tree>(bytes.text(bytes.size() * share / 255), rules);
    for (int act = 0; act < 16 && !bytes.isEmpty(); ++act) {
        const Test::Act& chosen = acts[bytes.next() % acts.size()];
        const Test::Deed deed = carryOut(chosen, note, place(bytes, chosen, note.markdownLength()));
        if (!deed.fault.empty())
            Fuzz::stopIf(*note.ast, chosen.name + ": " + deed.fault + Test::show(deed.results));
    }
    return 0;
}
