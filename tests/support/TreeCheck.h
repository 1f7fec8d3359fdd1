#pragma once

#include <string>

#include "corvane/tree/Tree.h"

namespace Ondo::Test {

/// Walks the whole tree and returns the first broken invariant in words; empty when all hold: children tile
/// their parent, lengths and line counts add up, categories nest, links are mutual, the computed positions
/// agree with each other.
std::string checkTree(const Tree& tree);

/// Compares two trees in all but the two fields that go stale by design: types, lengths, line counts,
/// directions, fold flags, makers by position, and the data of each class. Returns the first difference in
/// words; empty when there is none.
std::string difference(const Tree& tree, const Tree& fresh);
std::string differenceFromFreshParse(const Tree& tree);

/// The tree of a text as one string, and a text with its control characters made visible.
std::string indentedTree(std::u16string_view text, RuleConfig::RuleSet rules);
std::string html(std::u16string_view text, RuleConfig::RuleSet rules);
std::string visible(std::u16string_view text);

inline constexpr RuleConfig::RuleSet allRuleSets[] = {RuleConfig::Commonmark, RuleConfig::Extended,
                                                      RuleConfig::Simplified};
const char* nameOf(RuleConfig::RuleSet rules);

} // namespace Ondo::Test
