// Any bytes as a note and edits of it: behind each edit the tree equals a fresh parse.
//
// The first byte chooses the rule set, the second how much of what follows is the note. The rest is read as
// edits: offset, length removed, and what is inserted, either a construct of the dialect by its number or a
// length and as many bytes.

#include "fuzz/Bytes.h"
#include "tests/support/BruteForce.h"
#include "tests/support/RandomNote.h"

using namespace Ondo;

namespace {

std::u16string piece(Fuzz::Bytes& bytes) {
    const std::uint8_t kind = bytes.next();
    return kind < 16 ? bytes.text(kind) : std::u16string(Test::construct(kind - 16U));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::Bytes bytes(data, size);
    const RuleConfig::RuleSet rules = bytes.ruleSet();
    const std::size_t share = bytes.next();
    Tree tree(bytes.text(bytes.size() * share / 255), rules);
    // Few edits an input: each costs a fresh parse, and the fuzzer gets on by trying many.
    for (int edit = 0; edit < 16 && !bytes.isEmpty(); ++edit) {
        const std::int64_t offset = bytes.next() * tree.length() / 255;
        const std::int64_t removed = std::min<std::int64_t>(bytes.next() % 16, tree.length() - offset);
        tree.replace({offset, removed}, piece(bytes));
        for (std::string (*check)(const Tree&) :
             {Test::checkTree, Test::labelsDiffer, Test::foldsDiffer, Test::differenceFromFreshParse})
            Fuzz::stopIf(tree, check(tree));
    }
    return 0;
}
