#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <vector>

#include "corvane/scan/Assert.h"

namespace Ondo {

class BlockRule;
class InlineRule;

/// Rules by the character that can open their construct. Within one character the order is that of adding,
/// which is the precedence of the dialect.
template <class Rule>
class RuleMap {
public:
    using Rules = std::vector<std::shared_ptr<Rule>>;
    static constexpr std::size_t mapSize = 128;

    /// Asserts that every trigger is below mapSize.
    void addRule(const std::shared_ptr<Rule>& rule) {
        allRules_.push_back(rule);
        for (const char16_t trigger : rule->triggers) {
            CORVANE_ASSERT(trigger < mapSize, "RuleMap");
            table_[trigger].push_back(rule);
            isUsed_[trigger] = true;
        }
        if (!rule->triggers.empty()) return;
        for (Rules& rules : table_)
            rules.push_back(rule);
        isUsed_.fill(true);
        fallbackRules_.push_back(rule);
    }
    void addRules(const Rules& rules) {
        for (const auto& rule : rules)
            addRule(rule);
    }
    void removeRule(const std::shared_ptr<Rule>& rule) {
        const auto removeFrom = [&rule](Rules& rules) {
            rules.erase(std::remove(rules.begin(), rules.end(), rule), rules.end());
        };
        std::for_each(table_.begin(), table_.end(), removeFrom);
        removeFrom(fallbackRules_);
        removeFrom(allRules_);
        for (std::size_t c = 0; c < mapSize; ++c)
            isUsed_[c] = !table_[c].empty();
    }
    void removeRules(const Rules& rules) {
        for (const auto& rule : rules)
            removeRule(rule);
    }
    void clear() { *this = RuleMap(); }

    const Rules& getRules(char16_t c) const { return c < mapSize ? table_[c] : fallbackRules_; }
    const Rules& getAllRules() const { return allRules_; }
    /// Whether no rule is filed under the character.
    bool isUnused(char16_t c) const { return c < mapSize ? !isUsed_[c] : fallbackRules_.empty(); }

private:
    std::array<Rules, mapSize> table_;
    std::array<bool, mapSize> isUsed_{}; ///< so that a scan for the next opening touches little memory
    Rules allRules_;
    Rules fallbackRules_;
};

class BlockRuleMap : public RuleMap<BlockRule> {
public:
    const Rules& getBlockRules(char16_t c) const { return getRules(c); }
    const Rules& getAllBlockRules() const { return getAllRules(); }
    /// Removes the rule from the terminating rules of all other rules, too.
    void removeRule(const std::shared_ptr<BlockRule>& rule);
    void removeRules(const Rules& rules);
};

class InlineRuleMap : public RuleMap<InlineRule> {
public:
    const Rules& getInlineRules(char16_t c) const { return getRules(c); }
    const Rules& getAllInlineRules() const { return getAllRules(); }
};

} // namespace Ondo
