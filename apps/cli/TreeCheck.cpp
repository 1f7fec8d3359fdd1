#include "TreeCheck.h"

#include <optional>
#include <vector>

#include "LineDiff.h"
#include "ValueJson.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

/// Where nothing folds, no edit watches whether something stands behind a heading to fold.
std::vector<CVNAttributeName> unwatchedKeys(Ondo::RuleConfig::RuleSet rules) {
    if (rules != Ondo::RuleConfig::Commonmark) return {};
    return {CVNFoldableAttributeName};
}

std::string valueText(const CVNValue* value) {
    return value ? jsonText(*value) : "no value";
}

} // namespace

std::string differenceFromFreshParse(const Ondo::Tree& tree) {
    const Ondo::Tree fresh(std::u16string(tree.markdown()), tree.ruleSet);
    return unifiedDiff(fresh.toIndentedTree(), tree.toIndentedTree(), "fresh parse", "edited tree");
}

std::string differenceFromFreshPainting(const CVNAST& note, const Painted& painted) {
    const CVNAttributedString fresh = CVNAST::fromMarkdown(note.markdown()).annotatedString();
    const std::optional<Painted::Difference> found =
        painted.differenceFrom(fresh, unwatchedKeys(note.ast->ruleSet));
    if (!found) return {};
    return Ondo::Util::utf8(found->key.string()) + " at offset " + std::to_string(found->offset) +
           "\n  painted: " + valueText(found->painted) + "\n  fresh: " + valueText(found->fresh) + "\n";
}

} // namespace Cli
