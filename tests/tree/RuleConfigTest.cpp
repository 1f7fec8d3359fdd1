#include "corvane/tree/RuleConfig.h"

#include <gtest/gtest.h>

#include "corvane/block/AtxHeading.h"
#include "corvane/block/BlockQuote.h"
#include "corvane/block/List.h"
#include "corvane/block/SetextHeading.h"
#include "corvane/block/ThematicBreak.h"
#include "corvane/inline/EmphaseStrongBase.h"
#include "corvane/inline/LinkBase.h"
#include "corvane/inline/Wikilink.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

template <class Rules>
std::string names(const Rules& rules) {
    std::string out;
    for (const auto& rule : rules)
        out += (out.empty() ? "" : " ") + std::string(rule->type_name());
    return out;
}

std::string terminating(const RuleConfig& config, std::string_view name) {
    for (const auto& rule : config.blockRules.getAllBlockRules())
        if (rule->type_name() == name) return names(rule->terminatingRules.getAllBlockRules());
    return "none";
}

TEST(RuleConfig, BlockRulesInOrder) {
    const char* const expected[] = {
        ("IndentedCode FencedCode SetextHeading ThematicBreak AtxHeading List LinkReferenceDefinition "
         "HtmlBlock BlockQuote Paragraph BlankLine"),
        ("IndentedCode Yaml Table FencedCode MathBlock SetextHeading ThematicBreak AtxHeading List "
         "FootnoteDefinition LinkReferenceDefinition HtmlBlock BlockQuote Callout Paragraph BlankLine"),
        ("Yaml Table FencedCode MathBlock ThematicBreak AtxHeading List FootnoteDefinition "
         "LinkReferenceDefinition HtmlBlock BlockQuote Callout Paragraph BlankLine"),
    };
    for (const RuleConfig::RuleSet set : allRuleSets)
        EXPECT_EQ(names(RuleConfig(set).blockRules.getAllBlockRules()), expected[set]) << nameOf(set);
    const RuleConfig config(RuleConfig::Extended);
    EXPECT_EQ(names(config.blockRules.getBlockRules(u'-')),
              "IndentedCode Yaml SetextHeading ThematicBreak List Paragraph BlankLine");
    for (const char16_t c : {u'\0', u'a', u'\u007F', u'\u0080', u'\uFFFF'})
        EXPECT_EQ(names(config.blockRules.getBlockRules(c)), "IndentedCode Paragraph BlankLine")
            << static_cast<int>(c);
}

TEST(RuleConfig, InlineRulesInOrder) {
    const std::string all =
        "HardLineBreak BackslashEscape Url Email Entity CodeSpan MathSpan Autolink Folding RawHtml Wikilink "
        "FootnoteReference Image Link EmphaseStrong Highlight UnderlineStrikethrough Color Hashtag Replace "
        "Replace";
    const std::string expected[] = {
        "HardLineBreak BackslashEscape Entity CodeSpan Autolink RawHtml Image Link EmphaseStrong", all, all};
    for (const RuleConfig::RuleSet set : allRuleSets) {
        const RuleConfig config(set);
        EXPECT_EQ(names(config.inlineRules.getAllInlineRules()), expected[set]) << nameOf(set);
        EXPECT_EQ(names(config.attributeRules.getAllInlineRules()), "BackslashEscape Entity");
    }
    const RuleConfig config(RuleConfig::Extended);
    const std::pair<char16_t, const char*> rows[] = {
        {u'\n', "HardLineBreak"},
        {u'.', "Url Email"},
        {u':', "Url"},
        {u'<', "Autolink Folding RawHtml Replace"},
        {u'[', "Wikilink FootnoteReference Link"},
        {u'!', "Image"},
        {u']', "Image Link"},
        {u'#', "Color Hashtag"},
        {u'R', "Color"},
        {u'-', "Replace"},
        {u'a', ""},
        {u'\u2192', ""},
    };
    for (const auto& [c, rules] : rows)
        EXPECT_EQ(names(config.inlineRules.getInlineRules(c)), rules) << static_cast<int>(c);
}

TEST(RuleConfig, TerminatingRules) {
    const std::pair<const char*, std::string> rows[] = {
        {"List", "AtxHeading ThematicBreak BlockQuote FencedCode"},
        {"BlockQuote", "AtxHeading ThematicBreak List FencedCode HtmlBlock"},
        {"SetextHeading", "AtxHeading ThematicBreak BlockQuote List FencedCode HtmlBlock"},
        {"Paragraph", "SetextHeading AtxHeading ThematicBreak BlockQuote List FencedCode HtmlBlock"},
        {"LinkReferenceDefinition",
         "SetextHeading AtxHeading ThematicBreak BlockQuote List FencedCode HtmlBlock"},
    };
    const RuleConfig commonmark(RuleConfig::Commonmark);
    const RuleConfig extended(RuleConfig::Extended);
    const RuleConfig simplified(RuleConfig::Simplified);
    for (const auto& [rule, expected] : rows) {
        EXPECT_EQ(terminating(commonmark, rule), expected) << rule;
        EXPECT_EQ(terminating(extended, rule), expected + " Table MathBlock") << rule;
    }
    for (const char* const rule : {"Table", "MathBlock"}) {
        EXPECT_EQ(terminating(extended, rule), "IndentedCode");
        EXPECT_EQ(terminating(simplified, rule), "");
    }
    EXPECT_EQ(terminating(simplified, "SetextHeading"), "none");
    EXPECT_EQ(terminating(simplified, "Paragraph"),
              "AtxHeading ThematicBreak BlockQuote List FencedCode HtmlBlock Table MathBlock "
              "LinkReferenceDefinition FootnoteDefinition");
}

template <class Rule>
bool option(const RuleConfig& config, const char* name, bool Rule::*value) {
    const std::shared_ptr<RuleBase> rule = config.ruleInstanceByName(name);
    return rule && static_cast<const Rule&>(*rule).*value;
}

bool hasLogogramFlanking(const RuleConfig& config, const char* name) {
    const std::shared_ptr<RuleBase> rule = config.ruleInstanceByName(name);
    return rule && static_cast<const Inline::EmphaseStrongBase&>(*rule).options.logogramFlanking;
}

TEST(RuleConfig, Options) {
    for (const RuleConfig::RuleSet set : allRuleSets) {
        SCOPED_TRACE(nameOf(set));
        const RuleConfig config(set);
        const bool isExtended = set != RuleConfig::Commonmark;
        const bool isSimplified = set == RuleConfig::Simplified;
        EXPECT_EQ(option(config, "AtxHeading", &Block::AtxHeading::requiresSpaceAtLineEnd), isExtended);
        EXPECT_EQ(option(config, "SetextHeading", &Block::SetextHeading::rejectsSingleDash),
                  isExtended && !isSimplified);
        EXPECT_EQ(option(config, "ThematicBreak", &Block::ThematicBreak::rejectsEmphasisLookalikes),
                  isExtended);
        EXPECT_EQ(option(config, "List", &Block::List::tasks), isExtended);
        EXPECT_EQ(option(config, "List", &Block::List::markerNeedsBlank), isExtended);
        EXPECT_EQ(option(config, "List", &Block::List::emptyItemInterruptsParagraph), isExtended);
        EXPECT_EQ(option(config, "List", &Block::List::anyNumberInterruptsParagraph), isExtended);
        EXPECT_EQ(option(config, "List", &Block::List::noLazyContinuation), isSimplified);
        EXPECT_EQ(option(config, "List", &Block::List::tabContinuesItem), isSimplified);
        EXPECT_EQ(option(config, "BlockQuote", &Block::BlockQuote::noLazyContinuation), isSimplified);
        for (const char* const name : {"Link", "Image"})
            EXPECT_EQ(option(config, name, &Inline::LinkBase::allowUndefinedReferences), isExtended) << name;
        EXPECT_EQ(option(config, "Wikilink", &Inline::Wikilink::escapedPipeIsSeparator), isSimplified);
        for (const char* const name : {"EmphaseStrong", "UnderlineStrikethrough", "Highlight"})
            EXPECT_EQ(hasLogogramFlanking(config, name), isSimplified) << name;
    }
}

TEST(RuleConfig, ARemovedRuleIsGoneFromEverywhere) {
    RuleConfig config(RuleConfig::Extended);
    const std::int64_t all = RuleBase::instanceCount;
    EXPECT_EQ(config.ruleInstanceByName("MathBlock")->type_name(), "MathBlock");
    config.removeRuleByName("MathBlock");
    config.removeRuleByName("no such rule");
    EXPECT_EQ(RuleBase::instanceCount, all - 1) << "nothing holds it any more";
    EXPECT_EQ(config.ruleInstanceByName("MathBlock"), nullptr);
    // A rule that is tried everywhere, and one that others end at.
    config.removeRuleByName("IndentedCode");
    config.removeRuleByName("List");
    EXPECT_EQ(RuleBase::instanceCount, all - 3);
    EXPECT_EQ(names(config.blockRules.getBlockRules(u'$')), "Paragraph BlankLine");
    EXPECT_EQ(names(config.blockRules.getBlockRules(0x5B57)), "Paragraph BlankLine");
    EXPECT_EQ(terminating(config, "BlockQuote"), "AtxHeading ThematicBreak FencedCode HtmlBlock Table");

    Tree tree(u"", RuleConfig::Extended);
    tree.removeRuleByName("MathBlock");
    tree.removeRuleByName("MathSpan");
    tree.replace({0, 0}, u"a\n$$\nb\n$$\n");
    EXPECT_EQ(tree.root->firstChild->charCount, tree.length()) << "one paragraph";
    tree.replace({0, 2}, u"");
    EXPECT_EQ(tree.root->firstChild->type, ONDO_PARAGRAPH_NODE);
}

TEST(RuleConfig, TreesThatMoveLeaveNothingBehind) {
    const std::int64_t rules = RuleBase::instanceCount;
    const std::int64_t nodes = Node::instanceCount;
    {
        Tree tree(u"- a\n- b\n\n> c\n", RuleConfig::Extended);
        tree.replaceDeferSync({2, 1}, u"xyz", false);
        const Node* const first = tree.root->firstChild;
        Tree moved(std::move(tree));
        EXPECT_TRUE(moved.root->firstChild == first && !moved.isSynced());
        Tree other(u"```\nother\n", RuleConfig::Commonmark);
        other = std::move(moved);
        EXPECT_EQ(other.ruleSet, RuleConfig::Extended);
        EXPECT_EQ(visible(other.markdown()), "- xyz\\n- b\\n\\n> c\\n");
        other.replace({0, 0}, u"# h\n");
        EXPECT_EQ(checkTree(other) + differenceFromFreshParse(other), "");
        EXPECT_EQ(other.sync().size(), 1U);
        Tree third(u"> - a", RuleConfig::Simplified);
        std::swap(other, third);
        EXPECT_EQ(checkTree(other) + checkTree(third), "");
        EXPECT_EQ(other.ruleSet, RuleConfig::Simplified);
    }
    EXPECT_EQ(RuleBase::instanceCount, rules);
    EXPECT_EQ(Node::instanceCount, nodes);
}

} // namespace
} // namespace Ondo::Test
