// Any bytes as a note: it parses, tiles, and renders in all rule sets.

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "tests/support/TreeCheck.h"

using namespace Ondo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::u16string text(size / 2, u'\0');
    if (!text.empty()) std::memcpy(text.data(), data, text.size() * 2);
    for (const RuleConfig::RuleSet rules : Test::allRuleSets) {
        const Tree tree(text, rules);
        const std::string broken = Test::checkTree(tree);
        if (!broken.empty()) {
            std::fprintf(stderr, "%s: %s\n", Test::nameOf(rules), broken.c_str());
            std::abort();
        }
        tree.toHtml();
        tree.toIndentedTree();
    }
    return 0;
}
