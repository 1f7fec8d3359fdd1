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

const std::u16string& UnusedMarks::operator()(const std::u16string& label) {
    const auto [at, isNew] = marks_.try_emplace(label, u"?");
    std::u16string& mark = at->second;
    while (isNew && footnotes_.lookupFirstReference(label + mark))
        mark += u'?';
    return mark;
}

} // namespace CVN::Operation
