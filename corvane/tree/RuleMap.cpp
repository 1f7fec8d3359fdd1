#include "corvane/tree/RuleMap.h"

#include "corvane/tree/BlockRule.h"

namespace Ondo {

void BlockRuleMap::removeRule(const std::shared_ptr<BlockRule>& rule) {
    RuleMap::removeRule(rule);
    for (const auto& remaining : getAllBlockRules())
        remaining->terminatingRules.RuleMap::removeRule(rule);
}

void BlockRuleMap::removeRules(const Rules& rules) {
    for (const auto& rule : rules)
        removeRule(rule);
}

} // namespace Ondo
