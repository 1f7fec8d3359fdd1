#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "corvane/tree/BlockRule.h"
#include "corvane/tree/InlineRule.h"
#include "corvane/tree/LabeledConnections.h"
#include "corvane/tree/RuleMap.h"

namespace Ondo {

/// The rule objects of one tree, filed by trigger. The dialect itself (which rules, in which order, what ends
/// what, which options) stands in the tables of RuleConfig.cpp.
class CORVANE_EXPORT RuleConfig {
public:
    enum RuleSet { Commonmark, Extended, Simplified };

    BlockRuleMap blockRules;
    InlineRuleMap inlineRules;
    InlineRuleMap attributeRules; ///< for the text of attributes
    /// The label indexes, which the definition rules own.
    std::vector<LabeledConnections*> connectionGroups;

    /// A reference is one only where its label is defined, so that definitions decide how text far from them
    /// is parsed.
    bool referencesNeedDefinitions = false;

    explicit RuleConfig(RuleSet ruleSet);
    ~RuleConfig();
    RuleConfig(RuleConfig&& other) noexcept;
    RuleConfig& operator=(RuleConfig&& other) noexcept;

    /// By type_name(), among block, inline and attribute rules in this order; null when there is none.
    std::shared_ptr<RuleBase> ruleInstanceByName(std::string_view name) const;
    /// Removes the rule from all maps and from all terminating rules.
    void removeRuleByName(std::string_view name);

    /// Nodes whose meaning changed through an edit elsewhere, since the last reset; in no order.
    std::vector<LabeledNode*> nodesWithIndirectChange() const;
    void resetIndirectChangeTracking();

private:
    void releaseRules();
};

} // namespace Ondo
