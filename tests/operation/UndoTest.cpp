// Commands that undo themselves: the text is that of before when a toggle is asked twice, or an item is moved
// in and out. Where it is not, the reason stands in a table.

#include <gtest/gtest.h>

#include "corvane/operation/OperationIndent.h"
#include "corvane/operation/OperationToggleBlockStyle.h"
#include "corvane/operation/OperationToggleInlineStyle.h"
#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::Range;
using Ondo::Test::Drawn;
using Ondo::Test::visible;

constexpr InlineToggles inlineStyles[] = {
    InlineToggles::Strong,          InlineToggles::Emphase,        InlineToggles::Strikethrough,
    InlineToggles::Underline,       InlineToggles::Highlight,      InlineToggles::HighlightRed,
    InlineToggles::HighlightBlue,   InlineToggles::HighlightGreen, InlineToggles::HighlightYellow,
    InlineToggles::HighlightPurple, InlineToggles::CodeSpan,       InlineToggles::MathSpan};

/// The note behind a command, which gets the selection as its range; the note itself when it has no opinion.
Drawn done(const Operation& operation, const Drawn& note) {
    const Ondo::Tree tree(note.text);
    const Range& at = note.selection;
    return applied(note, operation.run(tree, at.offset, at.length, at.offset, at.length));
}

bool isLetter(char16_t unit) {
    return (unit >= u'a' && unit <= u'z') || unit > 0x7F;
}

/// Where a word begins or ends.
std::vector<std::int64_t> wordEdges(std::u16string_view text) {
    std::vector<std::int64_t> edges;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        const bool isBehind = i > 0 && isLetter(text[i - 1]);
        if (isBehind != (i < text.size() && isLetter(text[i]))) edges.push_back(static_cast<std::int64_t>(i));
    }
    return edges;
}

TEST(Undo, InlineStylesOfWords) {
    constexpr std::u16string_view notes[] = {
        u"one two three",
        u"# one two\n\nthree four\nfive\n",
        u"- one two\n  - three\n- [ ] four five\n",
        u"> one two\n> three\n>\n> 1. four\n> 2. five\n",
        u"| one | two three |\r\n|---|---|\r\n| four | five |\r\n",
        u"אחת שתיים\n",
        u"one 😀 two 字字 three",
    };
    for (const std::u16string_view text : notes) {
        const std::vector<std::int64_t> edges = wordEdges(text);
        for (std::size_t i = 0; i < edges.size(); ++i)
            for (std::size_t j = i + 1; j < edges.size(); ++j)
                for (const InlineToggles style : inlineStyles) {
                    const Drawn before{std::u16string(text), {edges[i], edges[j] - edges[i]}};
                    const Drawn styled = done(ToggleInlineStyle(style), before);
                    const Drawn after = done(ToggleInlineStyle(style), styled);
                    EXPECT_EQ(visible(after.text), visible(before.text))
                        << "style " << static_cast<int>(style) << " by way of " << visible(styled.drawing());
                }
    }
}

TEST(Undo, BlockStylesOfLines) {
    constexpr std::u16string_view notes[] = {
        u"‸one\n", u"one‸ two\n\nthree\n", u"one\n\n⟦two\nthree⟧\n\nfour", u"> one‸\n", u"> ⟦one\n> two⟧\n",
        u"אחת‸\n", u"one\n\ntwo 😀‸\n",
    };
    for (const std::u16string_view drawing : notes)
        for (std::uint32_t style = 0; style <= 17; ++style) {
            const bool isQuote = style == 9 || style >= 12;
            if (isQuote && drawing.starts_with(u'>')) continue; // that one is to leave the quote
            const ToggleBlockStyle toggle(static_cast<BlockToggles>(style));
            const Drawn styled = done(toggle, Drawn(drawing));
            EXPECT_NE(visible(styled.text), visible(Drawn(drawing).text)) << "style " << style;
            EXPECT_EQ(visible(done(toggle, styled).text), visible(Drawn(drawing).text))
                << "style " << style << " by way of " << visible(styled.drawing());
        }
}

TEST(Undo, IndentedItems) {
    constexpr std::u16string_view notes[] = {
        u"- a\n- b‸\n",
        u"- a\n- b‸\n  c\n  - d\n",
        u"- [ ] a\n- [x] ‸b\n",
        u"1) a\n1) b‸",
        u"> - a\n> - b‸\n>   - c\n",
        u"- a\r\n\r\n- b‸\r\n",
        u"- a\n  - b\n  - c‸\n- d\n",
        u"- a\n⟦- b\n- c⟧\n",
        u"* a\n* 😀‸\n\n  ```\n  x\n  ```\n",
    };
    for (const std::u16string_view drawing : notes) {
        const Drawn indented = done(Indent(IndentAction::Indent, IndentStyle::Spaces), Drawn(drawing));
        EXPECT_NE(visible(indented.text), visible(Drawn(drawing).text));
        const Drawn after = done(Indent(IndentAction::Undent, IndentStyle::Spaces), indented);
        EXPECT_EQ(visible(after.drawing()), visible(drawing)) << "by way of " << visible(indented.drawing());
    }
}

TEST(Undo, WhatDoesNotComeBack) {
    const ToggleInlineStyle strong(InlineToggles::Strong);
    const ToggleBlockStyle heading(BlockToggles::Heading1);
    const ToggleBlockStyle bullets(BlockToggles::BulletList);
    const ToggleBlockStyle code(BlockToggles::FencedCode);
    const ToggleBlockStyle callout(BlockToggles::Callout);
    const Indent indent(IndentAction::Indent, IndentStyle::Spaces);
    const Indent undent(IndentAction::Undent, IndentStyle::Spaces);
    const struct {
        const Operation& first;
        const Operation& second;
        std::u16string_view before;
        std::u16string_view after;
        const char* reason;
    } cases[] = {
        {strong, strong, u"⟦a **b** c⟧", u"⟦a b c⟧", "what was bold in part has become bold as a whole"},
        {heading, heading, u"## a‸", u"a‸", "another level was replaced"},
        {heading, heading, u"  a‸", u"a‸", "a heading drops the blanks before it"},
        {bullets, bullets, u"1. a‸", u"a‸", "another marker was replaced"},
        {code, code, u"a‸", u"a‸\n", "the closing fence stood on the last line, without an ending"},
        {callout, callout, u"# a‸", u"‸\n# a", "the label stood on a line of its own"},
        {indent, undent, u"1. a\n2. b‸", u"1. a\n1. b‸", "numbers start again with each level"},
        {indent, undent, u"  - a\n- b‸", u"  - a\n  - b‸", "it comes out where the item above stands"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(visible(done(each.second, done(each.first, Drawn(each.before))).drawing()),
                  visible(each.after))
            << each.reason;
}

} // namespace
} // namespace CVN::Operation
