#include "TreeCheck.h"

#include "LineDiff.h"

namespace Cli {

std::string differenceFromFreshParse(const Ondo::Tree& tree) {
    const Ondo::Tree fresh(std::u16string(tree.markdown()), tree.ruleSet);
    return unifiedDiff(fresh.toIndentedTree(), tree.toIndentedTree(), "fresh parse", "edited tree");
}

} // namespace Cli
