#include <gtest/gtest.h>

#include "corvane/inline/EmphaseStrong.h"
#include "corvane/inline/Highlight.h"
#include "corvane/inline/UnderlineStrikethrough.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/InlineParser.h"
#include "corvane/tree/Parser.h"
#include "corvane/tree/TreeText.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

// The pairing of delimiters against the plain walk that defines it: each closer looks left, over all that was
// recorded, for the first opener that takes it.

namespace Ondo::Test {
namespace {

using Inline::HighlightNode;

constexpr std::u16string_view emoji[] = {u"🔴", u"🔵", u"🟢", u"🟡", u"🟣", u"🟤", u"🟠"};

bool isEmojiAt(std::u16string_view text, std::int64_t offset, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        if (offset >= 0 && text.substr(static_cast<std::size_t>(offset)).starts_with(emoji[i])) return true;
    return false;
}

class PlainWalk : public InlineRule {
public:
    PlainWalk(std::u16string_view characters, bool flanking)
        : InlineRule(characters), logogramFlanking_(flanking) {}
    std::string_view type_name() const override { return "PlainWalk"; }

    void beforeParseNode(InlineParserNode&) override { runs_.clear(); }
    void clearRange(InlineParserNode&, std::int64_t start, std::int64_t end) override {
        std::erase_if(runs_,
                      [&](const Run& run) { return run.offset >= start && run.offset + run.length <= end; });
    }
    std::int64_t match(InlineParserNode& parser, Node*, GoLines go) override;
    void afterParseNode(InlineParserNode& parser, Node* node) override;

private:
    struct Run {
        char16_t character;
        std::int64_t offset;
        std::int64_t line;
        std::int64_t length;
        std::int64_t initialLength;
        bool canOpen;
        bool canClose;
        bool active;
    };

    bool pair(InlineParserNode& parser, Node* node, Run& opener, Run& closer) const;
    static bool finish(HighlightNode* node, std::u16string_view text);
    static std::unique_ptr<Node> make(char16_t character, bool isDouble, std::int64_t start, std::int64_t end,
                                      std::int64_t line, std::int64_t lines);

    bool logogramFlanking_;
    std::vector<Run> runs_;
};

std::int64_t PlainWalk::match(InlineParserNode& parser, Node*, GoLines go) {
    const char16_t c = go.unsafePeekNextCharacter();
    const std::int64_t start = go.pos();
    const bool prevPunct = go.isPrevious(Go::unicodePunctuationOrSymbol) ||
                           (start - 2 >= go.minPos() && isEmojiAt(parser.text, start - 2, 7));
    const bool prevSpace = start == go.minPos() || go.isPrevious(Go::unicodeWhitespace);
    const bool prevLogogram = go.isPrevious(Go::logogram);
    const std::int64_t end = go.nextWhile(Go::character(c));
    const bool nextPunct = go.isNext(Go::unicodePunctuationOrSymbol);
    const bool nextSpace = end == go.maxPos() || go.isNext(Go::unicodeWhitespace);
    const bool nextLogogram = go.isNext(Go::logogram);
    const bool left = !nextSpace && (!nextPunct || prevSpace || prevPunct);
    const bool right = !prevSpace && (!prevPunct || nextSpace || nextPunct);
    bool canOpen = left || (logogramFlanking_ && prevLogogram && !nextSpace);
    bool canClose = right || (logogramFlanking_ && nextLogogram && !prevSpace && !nextSpace);
    if (c == u'_') {
        canOpen = left && (!right || prevPunct);
        canClose = right && (!left || nextPunct);
    }
    runs_.push_back(
        {c, start, go.currentLine(), end - start, end - start, canOpen, canClose, canOpen || canClose});
    return end;
}

void PlainWalk::afterParseNode(InlineParserNode& parser, Node* node) {
    for (std::size_t closer = 1; closer < runs_.size();) {
        Run& run = runs_[closer];
        std::size_t opener = closer;
        bool isPaired = false;
        if (run.active && run.canClose) {
            while (!isPaired && opener-- > 0) {
                Run& o = runs_[opener];
                isPaired =
                    o.character == run.character && o.active && o.canOpen && pair(parser, node, o, run);
            }
            for (std::size_t between = opener + 1; isPaired && between < closer; ++between)
                runs_[between].active = false;
            if (!isPaired && !run.canOpen) run.active = false;
        }
        if (!isPaired || !run.active) ++closer;
    }
}

std::unique_ptr<Node> PlainWalk::make(char16_t character, bool isDouble, std::int64_t start, std::int64_t end,
                                      std::int64_t line, std::int64_t lines) {
    using namespace Inline;
    if (character == u'=')
        return isDouble ? std::make_unique<HighlightNode>(start, end, line, lines) : std::unique_ptr<Node>();
    if (character == u'~' && isDouble) return std::make_unique<StrikethroughNode>(start, end, line, lines);
    if (character == u'~') return std::make_unique<UnderlineNode>(start, end, line, lines);
    if (isDouble) return std::make_unique<StrongNode>(start, end, line, lines);
    return std::make_unique<EmphaseNode>(start, end, line, lines);
}

bool PlainWalk::pair(InlineParserNode& parser, Node* node, Run& opener, Run& closer) const {
    const bool isBoth = (opener.canOpen && opener.canClose) || (closer.canOpen && closer.canClose);
    const std::int64_t sum = opener.initialLength + closer.initialLength;
    const bool areThrees = opener.initialLength % 3 == 0 && closer.initialLength % 3 == 0;
    if (opener.character != u'=' && isBoth && sum % 3 == 0 && !areThrees) return false;
    const std::int64_t width = opener.length >= 2 && closer.length >= 2 ? 2 : 1;
    const std::int64_t openerEnd = opener.offset + opener.length;
    auto made = make(opener.character, width == 2, openerEnd - width, closer.offset + width, opener.line,
                     closer.line - opener.line);
    if (!made) return false;
    // The types of the markers stand directly behind that of the node.
    const auto open = static_cast<NodeType>(made->type + 1);
    const auto close = static_cast<NodeType>(made->type + 2);
    ParserBase::linkMarker(made.get(), open, openerEnd - width, openerEnd, opener.line);
    ParserBase::linkMarker(made.get(), close, closer.offset, closer.offset + width, closer.line);
    if (opener.character == u'=' && !finish(static_cast<HighlightNode*>(made.get()), parser.text))
        return false;
    if (!node->mergeSubtreeOnParsedOffsets(std::move(made))) return false;
    opener.length -= width;
    closer.length -= width;
    closer.offset += width;
    if (opener.length == 0) opener.active = false;
    if (closer.length == 0) closer.active = false;
    return true;
}

bool PlainWalk::finish(HighlightNode* node, std::u16string_view text) {
    Node* const open = node->firstChild;
    for (std::size_t i = 0; i < 5 && node->color == 0; ++i) {
        if (!text.substr(static_cast<std::size_t>(open->endWhenParsed())).starts_with(emoji[i])) continue;
        node->color = static_cast<std::int64_t>(i) + 1;
        node->colorMarker = emoji[i];
    }
    open->charCount += static_cast<std::int64_t>(node->colorMarker.size());
    if (node->charCount == static_cast<std::int64_t>(node->colorMarker.size()) + 4) return false;
    if (Go::unicodeWhitespace(text[static_cast<std::size_t>(open->endWhenParsed())])) return false;
    return !isEmojiAt(text, node->endWhenParsed(), 5);
}

std::u16string note(RandomNote& random, std::size_t length) {
    static constexpr std::u16string_view pieces[] = {
        u"*", u"**",   u"***", u"_",  u"__", u"=",    u"==", u"===", u"~", u"~~", u"~~~", u"a",  u" ", u"b ",
        u"[", u"](u)", u".",   u"字", u"🔴",  u"🟠", u"\n", u"`",   u"(", u"*",  u"_",   u"==", u"a", u"!["};
    std::u16string text;
    while (length-- > 0)
        text += pieces[random.below(std::size(pieces))];
    return text;
}

TEST(Emphasis, EqualsThePlainWalk) {
    for (const RuleConfig::RuleSet set : allRuleSets) {
        RuleConfig config(set);
        RuleConfig plain(set);
        for (const char* const name : {"EmphaseStrong", "Highlight", "UnderlineStrikethrough"}) {
            const auto rule = plain.ruleInstanceByName(name);
            if (!rule) continue;
            const std::u16string characters = rule->triggers;
            plain.removeRuleByName(name);
            plain.inlineRules.addRule(std::make_shared<PlainWalk>(characters, set == RuleConfig::Simplified));
        }
        for (std::uint64_t seed = 0; seed < 20000; ++seed) {
            RandomNote random(seed);
            const std::u16string text = note(random, 2 + random.below(40));
            const auto tree = Parser::parse(text, config);
            const auto expected = Parser::parse(text, plain);
            ASSERT_EQ(Util::utf8(Util::toIndentedTree(tree.get(), text)),
                      Util::utf8(Util::toIndentedTree(expected.get(), text)))
                << nameOf(set) << ' ' << visible(text);
        }
    }
}

} // namespace
} // namespace Ondo::Test
