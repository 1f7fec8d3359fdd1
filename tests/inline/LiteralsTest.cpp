#include <gtest/gtest.h>

#include <random>

#include "corvane/inline/CodeSpan.h"
#include "corvane/inline/MathSpan.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/Parser.h"
#include "corvane/tree/TreeText.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

/// The rule without what it remembers of openers that found no partner.
template <class Rule>
class Forgetful : public Rule {
public:
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override {
        this->beforeParseNode(parser);
        return Rule::match(parser, node, cursor);
    }
};

template <class Rule>
std::string treeBy(const std::u16string& text, const std::shared_ptr<Rule>& rule) {
    RuleConfig config(RuleConfig::Extended);
    config.removeRuleByName(rule->type_name());
    config.inlineRules.addRule(rule);
    const std::unique_ptr<Node> root = Parser::parse(text, config);
    return Util::utf8(Util::toIndentedTree(root.get(), text));
}

template <class Rule>
void expectSameWithoutMemory(std::initializer_list<std::u16string_view> pieces) {
    std::mt19937 random(7);
    for (int i = 0; i < 3000; ++i) {
        std::u16string text = u"a";
        for (int n = 0; n < 24; ++n)
            text += pieces.begin()[random() % pieces.size()];
        EXPECT_EQ(treeBy(text, std::make_shared<Rule>()), treeBy(text, std::make_shared<Forgetful<Rule>>()))
            << visible(text);
    }
}

TEST(Literals, WhatIsRememberedOfFailuresChangesNothing) {
    expectSameWithoutMemory<Inline::CodeSpan>({u"`", u"`", u"``", u"```", u"\\", u"a", u" a", u"\na"});
    expectSameWithoutMemory<Inline::MathSpan>(
        {u" $a", u" $a", u"$ ", u"$$", u"$", u"[", u"](", u"](", u")", u"\\", u"a", u"\na "});
}

std::u16string repeated(std::u16string_view unit, int count) {
    std::u16string text;
    for (; count > 0; --count)
        text += unit;
    return text;
}

/// Nothing is timed here, but what takes more than about linear time would not come to an end.
TEST(Literals, ManyOpenersAndBreaksTakeLinearTime) {
    constexpr int many = 100000;
    std::u16string runs;
    for (int length = 1; length < 1500; ++length)
        runs += repeated(u"`", length) + u' ';
    for (const std::u16string& text : {repeated(u"a  \n", many) + u"b", repeated(u"a\\\n", many) + u"b", runs,
                                       u"`" + repeated(u" `` ```", many), repeated(u"$b ", many),
                                       repeated(u"$b ", many) + u"]( $c d$", repeated(u"$b](", many)}) {
        const Tree tree(text, RuleConfig::Extended);
        EXPECT_EQ(tree.root->charCount, tree.length());
    }
}

/// The corpus can't say this arrow.
TEST(Literals, ArrowToTheRight) {
    EXPECT_EQ(html(u"-> a (->) b->c --> <->", RuleConfig::Extended),
              "<p>\u2192 a (\u2192) b-&gt;c --&gt; \u2190&gt;</p>\n");
    EXPECT_EQ(indentedTree(u"->", RuleConfig::Simplified),
              "document\n  paragraph\n    replace{\u2192}\n      text(->)\n");
}

} // namespace
} // namespace Ondo::Test
