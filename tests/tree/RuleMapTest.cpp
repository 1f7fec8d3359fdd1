#include "corvane/tree/RuleMap.h"

#include <gtest/gtest.h>

#include <random>

#include "corvane/tree/InlineRule.h"

namespace Ondo::Test {
namespace {

class NeverMatching : public InlineRule {
public:
    using InlineRule::InlineRule;
    std::string_view type_name() const override { return "NeverMatching"; }
    std::int64_t match(InlineParserNode&, Node*, GoLines) override { return -1; }
};

using Rules = InlineRuleMap::Rules;

/// Of the characters @ to H and the last one below 128; often none, at times all, or one twice.
std::u16string randomTriggers(std::mt19937_64& random) {
    const std::u16string characters = u"@ABCDEFGH\u007F";
    if (random() % 8 == 0) return {};
    if (random() % 8 == 0) return characters;
    std::u16string triggers;
    for (std::uint64_t i = random() % 5 + 1; i > 0; --i)
        triggers += characters[random() % characters.size()];
    return triggers;
}

/// What the map must give: all rules that name the character, or none at all, in the order of adding.
Rules rulesFor(const Rules& all, char16_t c) {
    Rules rules;
    for (const auto& rule : all)
        if (rule->triggers.empty() || rule->triggers.find(c) != std::u16string::npos) rules.push_back(rule);
    return rules;
}

TEST(RuleMap, GivesEachCharacterItsRulesInOrder) {
    std::mt19937_64 random(11);
    InlineRuleMap map;
    Rules all;
    for (int step = 0; step < 3000; ++step) {
        if (all.size() > 30 || (!all.empty() && random() % 3 == 0)) {
            const auto gone = all.begin() + static_cast<std::ptrdiff_t>(random() % all.size());
            map.removeRule(*gone);
            all.erase(gone);
        } else {
            all.push_back(std::make_shared<NeverMatching>(randomTriggers(random)));
            map.addRule(all.back());
        }
        if (step % 500 == 499) {
            map.clear();
            all.clear();
        }
        ASSERT_EQ(map.getAllRules(), all);
        for (const char16_t c :
             {u'\0', u'?', u'@', u'A', u'D', u'H', u'I', u'\u007F', u'\u0080', u'\uFFFF'}) {
            ASSERT_EQ(map.getRules(c), rulesFor(all, c)) << static_cast<int>(c) << " at " << step;
            ASSERT_EQ(map.isUnused(c), rulesFor(all, c).empty()) << static_cast<int>(c) << " at " << step;
        }
    }
}

} // namespace
} // namespace Ondo::Test
