#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "corvane/scan/Assert.h"

namespace Ondo {

class BlockRule;
class InlineRule;

/// Rules by the character that can open their construct. Within one character the order is that of adding,
/// which is the precedence of the dialect.
///
/// Characters with the same rules share one list of them, so that a map is quickly made: each tree has
/// twenty.
template <class Rule>
class RuleMap {
public:
    using Rules = std::vector<std::shared_ptr<Rule>>;
    static constexpr std::size_t mapSize = 128;

    /// Asserts that every trigger is below mapSize.
    void addRule(const std::shared_ptr<Rule>& rule) {
        allRules_.push_back(rule);
        if (rule->triggers.empty()) addEverywhere(rule);
        std::array<std::uint8_t, mapSize + 1> longer{}; // by list: the same with the rule behind; 0: not made
        for (const char16_t trigger : rule->triggers) {
            CORVANE_ASSERT(trigger < mapSize, "RuleMap");
            std::uint8_t& list = listOf_[trigger];
            if (!lists_[list].rules.empty() && lists_[list].rules.back() == rule) continue; // named twice
            if (!longer[list]) longer[list] = makeLonger(list, rule);
            --lists_[list].users;
            list = longer[list];
            ++lists_[list].users;
            isUsed_[trigger] = true;
        }
    }
    void addRules(const Rules& rules) {
        for (const auto& rule : rules)
            addRule(rule);
    }
    void removeRule(const std::shared_ptr<Rule>& rule) {
        const auto removeFrom = [&rule](Rules& rules) {
            rules.erase(std::remove(rules.begin(), rules.end(), rule), rules.end());
        };
        for (List& list : lists_)
            removeFrom(list.rules);
        removeFrom(allRules_);
        for (std::size_t c = 0; c <= mapSize; ++c)
            isUsed_[c] = !lists_[listOf_[c]].rules.empty();
    }
    void removeRules(const Rules& rules) {
        for (const auto& rule : rules)
            removeRule(rule);
    }
    void clear() { *this = RuleMap(); }

    const Rules& getRules(char16_t c) const { return lists_[listOf_[placeOf(c)]].rules; }
    const Rules& getAllRules() const { return allRules_; }
    /// Whether no rule is filed under the character.
    bool isUnused(char16_t c) const { return !isUsed_[placeOf(c)]; }

private:
    struct List {
        Rules rules;
        std::size_t users; ///< places in listOf_
    };

    /// All characters from mapSize on share the last place.
    static constexpr std::size_t placeOf(char16_t c) { return c < mapSize ? c : mapSize; }

    void addEverywhere(const std::shared_ptr<Rule>& rule) {
        for (List& list : lists_)
            list.rules.push_back(rule);
        isUsed_.fill(true);
    }
    /// The place of a list that has no users yet. Each list in use has one, so that there are never more than
    /// places and one.
    std::uint8_t makeLonger(std::size_t list, const std::shared_ptr<Rule>& rule) {
        Rules rules;
        rules.reserve(lists_[list].rules.size() + 1);
        rules = lists_[list].rules;
        rules.push_back(rule);
        auto place = std::find_if(lists_.begin(), lists_.end(), [](const List& at) { return at.users == 0; });
        if (place == lists_.end()) place = lists_.insert(lists_.end(), List{});
        place->rules = std::move(rules);
        return static_cast<std::uint8_t>(place - lists_.begin());
    }

    std::array<std::uint8_t, mapSize + 1> listOf_{};
    std::array<bool, mapSize + 1> isUsed_{}; ///< so that a scan for the next opening touches little memory
    std::vector<List> lists_{List{{}, mapSize + 1}};
    Rules allRules_;
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
