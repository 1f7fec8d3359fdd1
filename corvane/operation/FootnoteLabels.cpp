#include "corvane/operation/FootnoteLabels.h"

#include <algorithm>

namespace CVN::Operation {

using Ondo::LabeledConnections;
using Ondo::Tree;

const LabeledConnections* footnotesOf(const Tree& tree) {
    return tree.ruleSet == Ondo::RuleConfig::Commonmark ? nullptr : &tree.getLabeledConnections(u"footnotes");
}

bool isNumericLabel(std::u16string_view label) {
    return !label.empty() && std::all_of(label.begin(), label.end(), Ondo::Go::decimalNumber);
}

std::u16string unusedMark(const LabeledConnections& footnotes, const Ondo::LabeledNode* definition) {
    std::u16string mark = u"?";
    while (footnotes.lookupFirstReference(definition->label + mark))
        mark += u'?';
    return mark;
}

Tree trialParse(const Tree& tree, std::u16string_view text) {
    Tree trial({}, tree.ruleSet);
    for (const std::string_view rule : {"MathSpan", "MathBlock"}) // those that hosts switch off
        if (!tree.ruleConfig().ruleInstanceByName(rule)) trial.removeRuleByName(rule);
    trial.replaceAll(text);
    return trial;
}

} // namespace CVN::Operation
