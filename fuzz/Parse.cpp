// Any bytes as a note: it parses, tiles, counts its labels and folds, and renders.
//
// The first byte chooses the rule set, the second whether the rest is UTF-8 or code units.

#include "fuzz/Bytes.h"
#include "tests/support/BruteForce.h"

using namespace Ondo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::Bytes bytes(data, size);
    const RuleConfig::RuleSet rules = bytes.ruleSet();
    const bool isUtf8 = bytes.next() % 4 != 0;
    const Tree tree(isUtf8 ? bytes.text(size) : bytes.units(size), rules);
    for (std::string (*check)(const Tree&) : {Test::checkTree, Test::labelsDiffer, Test::foldsDiffer})
        Fuzz::stopIf(tree, check(tree));
    tree.toHtml();
    tree.toIndentedTree();
    return 0;
}
