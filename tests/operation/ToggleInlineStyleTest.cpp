#include "corvane/operation/OperationToggleInlineStyle.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {

namespace {

using CVN::Operation::InlineToggles;
using CVN::Operation::Result;
using CVN::Operation::ToggleInlineStyle;

constexpr InlineToggles styles[] = {
    InlineToggles::Strong,          InlineToggles::Emphase,        InlineToggles::Strikethrough,
    InlineToggles::Underline,       InlineToggles::Highlight,      InlineToggles::HighlightRed,
    InlineToggles::HighlightBlue,   InlineToggles::HighlightGreen, InlineToggles::HighlightYellow,
    InlineToggles::HighlightPurple, InlineToggles::NoInlineToggle, InlineToggles::CodeSpan,
    InlineToggles::MathSpan,
};

void expectEachOf(InlineToggles style, const std::vector<CommandCase>& cases) {
    expectEach(ToggleInlineStyle(style), cases);
}

// At a caret

TEST(ToggleInlineStyleTest, InsertsAPairAndTakesItBack) {
    const std::vector<std::pair<std::u16string_view, std::u16string_view>> pairs = {
        {u"‸", u"**‸**"},
        {u"a ‸ b", u"a **‸** b"},
        {u"a ‸bc", u"a **‸**bc"},
        {u"a\n‸", u"a\n**‸**"},
        {u"- ‸", u"- **‸**"},
        {u"- ‸\nb", u"- **‸**\nb"},
        {u"# ‸", u"# **‸**"},
        {u"> a\n> ‸", u"> a\n> **‸**"},
        {u"| ‸a |\n|---|\n", u"| **‸**a |\n|---|\n"},
        {u"`a`‸ b", u"`a`**‸** b"},
        {u"[‸a](b)", u"[**‸**a](b)"},
        {u"مرحبا ‸", u"مرحبا **‸**"},
        {u"a\r\n‸\r\nb", u"a\r\n**‸**\r\nb"},
        {u"ab  ‸\ncd", u"ab  **‸**\ncd"},
        {u"- ab ‸ \n  cd", u"- ab **‸** \n  cd"},
        {u"==🔵‸ab==", u"==🔵**‸**ab=="},
        // At the very edge of what takes no style inside
        {u"    ab‸", u"    ab**‸**"},
        {u"‸    ab", u"**‸**    ab"},
        {u"<div>‸", u"<div>**‸**"},
        {u"```\na\n```‸", u"```\na\n```**‸**"},
        {u"$$\na\n$$\n‸", u"$$\na\n$$\n**‸**"},
    };
    for (const auto& [without, with] : pairs)
        expectEachOf(InlineToggles::Strong, {{without, with}, {with, without}});
    expectEachOf(InlineToggles::Strikethrough, {{u"a\n\n‸", u"a\n\n~~‸~~"}, {u"a\n\n~~‸~~", u"a\n\n‸"}});
    expectEachOf(InlineToggles::Highlight, {{u"a\n‸", u"a\n==‸=="}, {u"a\n==‸==\nb", u"a\n‸\nb"}});
    expectEachOf(InlineToggles::HighlightRed, {{u"a ‸", u"a ==🔴‸=="}, {u"a ==🔴‸==", u"a ‸"}});
    expectEachOf(InlineToggles::CodeSpan, {{u"a ‸", u"a `‸`"}, {u"`‸`", u"‸"}});
    expectEachOf(InlineToggles::MathSpan, {{u"‸", u"$‸$"}, {u"$‸$\n", u"‸\n"}});
}

TEST(ToggleInlineStyleTest, TellsOneDelimiterFromTwo) {
    expectEachOf(InlineToggles::Emphase, {
                                             {u"*‸*", u"‸"},
                                             {u"**‸**", u"***‸***"},
                                             {u"***‸***", u"**‸**"},
                                             {u"**a‸**", u"**a*‸***"},
                                             {u"*a‸*", u"*a*‸"},
                                             {u"**a**‸ b", u"**a***‸* b"},
                                         });
    expectEachOf(InlineToggles::Strong, {{u"***‸***", u"*‸*"}});
    expectEachOf(InlineToggles::Underline, {{u"b ~~‸~~ a", u"b ~~~‸~~~ a"}, {u"~‸~ a", u"‸ a"}});
}

TEST(ToggleInlineStyleTest, StepsOverTheMarkerAtTheCaret) {
    expectEachOf(InlineToggles::Strong, {
                                            {u"**a‸** b", u"**a**‸ b"},
                                            {u"‸**a** b", u"**‸a** b"},
                                            {u"**‸a** b", u"‸**a** b"},
                                            {u"**a**‸ b", u"**a‸** b"},
                                            {u"**a**‸", u"**a‸**"},
                                        });
    expectEachOf(InlineToggles::Highlight, {{u"==a==‸==b==", u"==a====‸b=="}});
    expectEachOf(InlineToggles::HighlightRed, {{u"==🔴a‸==", u"==🔴a==‸"}, {u"==🔴‸a==", u"‸==🔴a=="}});
}

TEST(ToggleInlineStyleTest, TogglesTheWordAroundTheCaret) {
    expectEachOf(InlineToggles::Emphase, {
                                             {u"say don‸'t now", u"say *don‸'t* now"},
                                             {u"say do‸n't now", u"say *do‸n't* now"},
                                             {u"say don't‸ now", u"say don't*‸* now"},
                                         });
    expectEachOf(InlineToggles::Strong, {
                                            {u"- [ ] bu‸y milk", u"- [ ] **bu‸y** milk"},
                                            {u"> # ti‸tle #\n", u"> # **ti‸tle** #\n"},
                                            {u"| o‸ne | b |\n|---|---|\n", u"| **o‸ne** | b |\n|---|---|\n"},
                                            {u"ca‸fé🎉, x", u"**ca‸fé🎉**, x"},
                                            {u"مر‸حبا", u"**مر‸حبا**"},
                                            {u"日‸本", u"**日‸本**"},
                                            {u"[a b‸c](d) e", u"[a **b‸c**](d) e"},
                                            {u"[^1]: no‸te", u"[^1]: **no‸te**"},
                                            {u"==🔵wo‸rd==", u"==🔵**wo‸rd**=="},
                                        });
}

TEST(ToggleInlineStyleTest, TakesWhatMustStayWholeAsAWord) {
    expectEachOf(InlineToggles::Strong, {
                                            {u"x #a‸b/c y", u"x **#a‸b/c** y"},
                                            {u"x #a ‸b# y", u"x **#a ‸b#** y"},
                                            {u"x [[a‸b]] y", u"x **[[a‸b]]** y"},
                                            {u"x http://a‸b.c y", u"x **http://a‸b.c** y"},
                                            {u"x m‸e@b.de y", u"x **m‸e@b.de** y"},
                                            {u"x <http://a‸b.c> y", u"x **<http://a‸b.c>** y"},
                                            {u"x #ff‸0000 y", u"x **#ff‸0000** y"},
                                            {u"x &am‸p; y", u"x **&am‸p;** y"},
                                            {u"x[^‸1]\n\n[^1]: a", u"x**[^‸1]**\n\n[^1]: a"},
                                            {u"[a b](u‸rl) x", u"**[a b](u‸rl)** x"},
                                            {u"![a‸b](u) x", u"**![a‸b](u)** x"},
                                            {u"[a‸b] x\n\n[ab]: /u", u"**[a‸b]** x\n\n[ab]: /u"},
                                        });
}

TEST(ToggleInlineStyleTest, TogglesTheRunAroundTheCaret) {
    expectEachOf(InlineToggles::Strong, {
                                            {u"- **bo‸ld text** b", u"- bo‸ld text b"},
                                            {u"> **a\n> b‸c** d", u"> a\n> b‸c d"},
                                            {u"__a‸b__ c", u"a‸b c"},
                                            {u"**a #b‸c d**", u"a #b‸c d"},
                                        });
    expectEachOf(InlineToggles::CodeSpan, {{u"``a ` b‸c`` d", u"a ` b‸c d"}});
    expectEachOf(InlineToggles::Highlight, {{u"==🔴a‸b==", u"==a‸b=="}, {u"==a‸b==", u"a‸b"}});
    expectEachOf(InlineToggles::HighlightBlue, {{u"x ==a‸b== y", u"x ==🔵a‸b== y"}});
    expectEachOf(InlineToggles::NoInlineToggle, {{u"==🔴a‸b== c", u"a‸b c"}, {u"a ‸ b", u""}});
}

TEST(ToggleInlineStyleTest, LeavesCodeAndSyntaxOfBlocksAlone) {
    for (const InlineToggles style : {InlineToggles::Strong, InlineToggles::HighlightRed})
        expectEachOf(style, {
                                {u"`a‸b`", u""},
                                {u"`⟦a⟧b`", u""},
                                {u"$a‸b$", u""},
                                {u"```\na‸b\n```\n", u""},
                                {u"```\n⟦ab\n⟧```\n", u""},
                                {u"    a‸b", u""},
                                {u"    ab‸\n    c", u""},
                                {u"<div>\na‸b\n</div>", u""},
                                {u"---\na: b‸\n---\n", u""},
                                {u"$$\na‸\n$$\n", u""},
                                {u"‸- a", u""},
                                {u"‸# a", u""},
                                {u"|a‸|b|\n|-|-|\n", u""},
                                {u"| a |\n|‸ --- |\n", u""},
                                {u"⟦---⟧", u""},
                                {u"⟦- ⟧", u""},
                                {u"[a]: b‸\n", u""},
                                {u"[^a‸b]: c", u""},
                                {u"⟦ \n\n⟧", u""},
                            });
}

// On a selection

TEST(ToggleInlineStyleTest, PutsMarkersAroundTheWords) {
    expectEachOf(InlineToggles::Strong,
                 {
                     {u"a ⟦b c⟧ d", u"a **⟦b c⟧** d"},
                     {u"a⟦ b \t⟧c", u"a **⟦b⟧** \tc"},
                     {u"# ⟦a⟧ #\n", u"# **⟦a⟧** #\n"},
                     {u"⟦# a #⟧\n", u"⟦# **a** #⟧\n"},
                     {u"⟦a\n⟧b", u"⟦**a**\n⟧b"},
                     {u"⟦- a⟧", u"⟦- **a**⟧"},
                     {u"⟦> [!NOTE] a⟧\n> b", u"⟦> [!NOTE] **a**⟧\n> b"},
                     {u"⟦a\n===\n⟧", u"⟦**a**\n===\n⟧"},
                     {u"⟦[^1]: a⟧\n", u"⟦[^1]: **a**⟧\n"},
                     {u"⟦# a <!-- {\"fold\":true} -->⟧\nb", u"⟦# **a** <!-- {\"fold\":true} -->⟧\nb"},
                     {u"a ⟦👍🏽⟧b", u"a **⟦👍🏽⟧**b"},
                     {u"a  ⟦\nb⟧", u"a  ⟦\n**b**⟧"},
                 });
}

TEST(ToggleInlineStyleTest, GivesEachLineAndCellAPairOfItsOwn) {
    expectEachOf(
        InlineToggles::Strong,
        {
            {u"⟦a\n\nb⟧", u"⟦**a**\n\n**b**⟧"},
            {u"x ⟦a\r\nb⟧ y", u"x ⟦**a**\r\n**b**⟧ y"},
            {u"⟦- a\n  1) b\n\n     c\n- [x] d⟧", u"⟦- **a**\n  1) **b**\n\n     **c**\n- [x] **d**⟧"},
            {u"> - ⟦a\n>   b\n> # c⟧ #", u"> - ⟦**a**\n>   **b**\n> # **c**⟧ #"},
            {u"⟦a \\\nb  \nc \nd⟧", u"⟦**a** \\\n**b**  \n**c** \n**d**⟧"},
            {u"⟦a\n```\nb\n```\nc⟧", u"⟦**a**\n```\nb\n```\n**c**⟧"},
            {u"⟦a\n\n[a]: b\n---\nc⟧", u"⟦**a**\n\n[a]: b\n---\n**c**⟧"},
            {u"|⟦a|b |c⟧|\n|-|-|-|\n", u"|**⟦a**|**b** |**c⟧**|\n|-|-|-|\n"},
            {u"| ⟦a | b⟧ |\n|---|---|\n", u"| ⟦**a** | **b**⟧ |\n|---|---|\n"},
            {u"| aa⟦a | b |\n|---|---|\n|  | c⟧cc |\n",
             u"| aa⟦**a** | **b** |\n|---|---|\n|  | **c**⟧cc |\n"},
        });
}

TEST(ToggleInlineStyleTest, JoinsLinesOverAConstructThatBeginsOrEndsInTheRange) {
    expectEachOf(InlineToggles::Strong,
                 {
                     {u"⟦a *b\nc* d⟧\ne", u"⟦**a *b\nc* d**⟧\ne"},
                     {u"⟦*a\nb*⟧", u"⟦***a\nb***⟧"},
                     {u"x *a ⟦b\nc* d⟧", u"x *a ⟦**b\nc* d**⟧"},
                     {u"x *a ⟦**b\nc* d**⟧", u"x *a ⟦b\nc* d⟧"},
                     {u"> *a ⟦b\n> c⟧ d*", u"> *a ⟦**b**\n> **c**⟧ d*"},
                     {u"==a ⟦b\nc⟧ d==", u"==a ⟦**b**\n**c**⟧ d=="},
                     {u"*a [b ⟦c\nd⟧ e](u) f*", u"*a [b ⟦**c**\n**d**⟧ e](u) f*"},
                     {u"*a ⟦b [c\nd](u) e\nf⟧ g*", u"*a ⟦**b [c\nd](u) e**\n**f**⟧ g*"},
                     {u"**a [b ⟦c\nd⟧ e](u) f**", u"**a** [b ⟦c\nd⟧ e](u) **f**"},
                 });
    expectEachOf(InlineToggles::Emphase, {{u"**⟦ab\ncd⟧**", u"**⟦*ab*\n*cd*⟧**"}});
    expectEachOf(InlineToggles::HighlightRed, {{u"==🔵a ⟦b\nc⟧ d==", u"==🔵a== ==🔴⟦b\nc⟧== ==🔵d=="}});
}

TEST(ToggleInlineStyleTest, JoinsWhatIsStyledInPart) {
    expectEachOf(InlineToggles::Strong, {
                                            {u"a ⟦b **c** d⟧", u"a **⟦b c d⟧**"},
                                            {u"a **b ⟦c** d⟧", u"a **b ⟦c d**⟧"},
                                            {u"⟦a **b⟧ c**", u"⟦**a b⟧ c**"},
                                            {u"**a**⟦ ⟧**b**", u"**a⟦ ⟧b**"},
                                            {u"**a**⟦ ⟧*b*", u""},
                                            {u"**a**⟦ ⟧ **b**", u""},
                                            {u"**a**⟦b⟧", u"**a⟦b⟧**"},
                                            {u"⟦a⟧**b**", u"**⟦a⟧b**"},
                                            {u"⟦a **b\nc** d⟧", u"⟦**a b\nc d**⟧"},
                                            {u"⟦**a**\nb⟧", u"⟦**a**\n**b**⟧"},
                                            {u"⟦`a` b⟧", u"**⟦`a` b⟧**"},
                                            {u"⟦a `b⟧c`", u"**⟦a `bc`⟧**"},
                                        });
    expectEachOf(InlineToggles::CodeSpan, {{u"a ⟦b `c` d⟧", u"a `⟦b c d⟧`"}});
    expectEachOf(InlineToggles::Emphase, {{u"⟦a _b_⟧", u"*⟦a b*⟧"}, {u"_a ⟦b_ c⟧", u"*a ⟦b c*⟧"}});
}

TEST(ToggleInlineStyleTest, ReplacesAnotherColor) {
    expectEachOf(InlineToggles::HighlightRed, {
                                                  {u"==⟦a⟧==", u"==🔴⟦a⟧=="},
                                                  {u"==a ⟦b⟧ c==", u"==a== ==🔴⟦b⟧== ==c=="},
                                                  {u"⟦==a== b⟧", u"⟦==🔴a b⟧=="},
                                                  {u"==a ⟦b== c⟧", u"==a== ==🔴⟦b c⟧=="},
                                                  {u"⟦a ==b⟧ c==", u"==🔴⟦a b⟧== ==c=="},
                                                  {u"⟦a ==🔵b== c⟧", u"==🔴⟦a b c⟧=="},
                                                  {u"> ==a\n> ⟦b⟧==", u"> ==a==\n> ==🔴⟦b⟧=="},
                                              });
    expectEachOf(InlineToggles::NoInlineToggle,
                 {{u"==🔴a ⟦b⟧ c==", u"==🔴a== ⟦b⟧ ==🔴c=="}, {u"⟦a ==b== c⟧", u"⟦a b c⟧"}, {u"⟦a⟧", u""}});
}

TEST(ToggleInlineStyleTest, RemovesFromRuns) {
    expectEachOf(InlineToggles::Strong,
                 {
                     {u"**⟦a⟧**", u"⟦a⟧"},
                     {u"⟦**a**⟧", u"⟦a⟧"},
                     {u"**a ⟦b⟧ c**", u"**a** ⟦b⟧ **c**"},
                     {u"**⟦a⟧ b**", u"⟦a⟧ **b**"},
                     {u"__a ⟦b⟧__", u"**a** ⟦b⟧"},
                     {u"⟦**a**\n\n- **b**  \n  **c**⟧", u"⟦a\n\n- b  \n  c⟧"},
                     {u"> **a\n> ⟦b⟧\n> c**", u"> **a**\n> ⟦b⟧\n> **c**"},
                     {u"⟦**a**__b__⟧ c", u"⟦ab⟧ c"},
                     {u"**a *⟦b⟧ c* d**", u"**a** *⟦b⟧ c* **d**"},
                     {u"**[a ⟦b⟧](u) c**", u"[a ⟦b⟧](u) **c**"},
                     {u"***⟦a⟧***", u"*⟦a⟧*"},
                     {u"| ⟦**a** | **b**⟧ |\n|---|---|\n", u"| ⟦a | b⟧ |\n|---|---|\n"},
                 });
    expectEachOf(InlineToggles::CodeSpan, {{u"``a ` b ⟦c⟧``", u"``a ` b`` ⟦c⟧"}, {u"`⟦a⟧`", u"⟦a⟧"}});
}

TEST(ToggleInlineStyleTest, MovesEdgesOutOfWhatMustStayWhole) {
    expectEachOf(InlineToggles::Strong,
                 {
                     {u"#t⟦ag b⟧", u"**⟦#tag b⟧**"},
                     {u"⟦a [[b⟧c]]", u"**⟦a [[bc]]⟧**"},
                     {u"[a ⟦b](u) c⟧", u"**⟦[a b](u) c⟧**"},
                     {u"[a ⟦b⟧](u)", u"[a **⟦b⟧**](u)"},
                     {u"⟦[a](u)⟧<!-- {\"embed\":\"true\"} -->", u"**⟦[a](u)<!-- {\"embed\":\"true\"} -->⟧**"},
                     {u"⟦*a⟧* b", u"**⟦*a*⟧** b"},
                     {u"==⟦a⟧ b==", u"==**⟦a⟧** b=="},
                     {u"~~a⟦~~ b⟧", u"~~a⟦~~ **b**⟧"},
                 });
}

TEST(ToggleInlineStyleTest, RemovesMarkersThatDoNotParse) {
    expectEachOf(InlineToggles::Strikethrough, {
                                                   {u"don~~⟦'t st⟧~~op", u"don⟦'t st⟧op"},
                                                   {u"don⟦~~'t st~~⟧op", u"don⟦'t st⟧op"},
                                                   {u"x\\~~⟦a⟧~~", u"x\\~~~~⟦a⟧~~~~"},
                                               });
    expectEachOf(InlineToggles::MathSpan, {{u"$⟦a⟧$5", u"⟦a⟧5"}, {u"$⟦a⟧$5 $x$", u"⟦a⟧5 $x$"}});
    expectEachOf(InlineToggles::Emphase, {{u"*⟦a*b⟧*", u"⟦a*b⟧"}});
    expectEachOf(InlineToggles::CodeSpan, {{u"x `⟦`⟧` y", u"x ⟦`⟧ y"}, {u"x ⟦`⟧ y", u"x `⟦`⟧` y"}});
    expectEachOf(InlineToggles::Highlight, {{u"==🔴a==⟦b⟧==🔵c==", u"==🔴a====⟦b⟧====🔵c=="}});
    expectEachOf(InlineToggles::Strong, {
                                            {u"(**⟦http://a.b⟧**)", u"(⟦http://a.b⟧)"},
                                            {u"a **⟦b *c⟧** d*", u"a ⟦b *c⟧ d*"},
                                            {u"**⟦2 *3⟧** x", u"⟦2 *3⟧ x"},
                                            {u"**⟦\\\\*a⟧** b", u"⟦\\\\*a⟧ b"},
                                            {u"a *b **⟦c* d⟧** e", u"a *b ⟦c* d⟧ e"},
                                            {u"**⟦a *b⟧** c*", u"⟦a *b⟧ c*"},
                                            {u"***⟦a⟧***", u"*⟦a⟧*"},
                                        });
    expectEachOf(InlineToggles::Emphase, {{u"**⟦a⟧**", u"***⟦a⟧***"}, {u"***⟦a⟧***", u"**⟦a⟧**"}});
}

struct ListCase {
    std::u16string_view text;
    Range range;
    Range selection;
    std::vector<Result> results;
};

/// What stays as it is may still be written again; the selection takes a marker in with the last edit of its
/// line.
TEST(ToggleInlineStyleTest, ListsEachEditWithItsSelection) {
    const ListCase cases[] = {
        {u"**a b c**",
         {4, 1},
         {4, 1},
         {{7, 2, u"**", 4, 1}, {6, 0, u"**", 4, 1}, {3, 0, u"**", 6, 1}, {0, 2, u"**", 6, 1}}},
        {u"a\nb",
         {0, 3},
         {0, 3},
         {{3, 0, u"**", 0, 3}, {2, 0, u"**", 0, 7}, {1, 0, u"**", 0, 9}, {0, 0, u"**", 0, 11}}},
        {u"**a** **b**", {5, 1}, {5, 1}, {{6, 2, u"", 5, 1}, {3, 2, u"", 3, 1}}},
        {u"abc de", {0, 3}, {0, 6}, {{3, 0, u"**", 0, 8}, {0, 0, u"**", 2, 8}}},
        // A caret takes in nothing behind it
        {u"a\nbcd",
         {0, 3},
         {3, 0},
         {{3, 0, u"**", 5, 0}, {2, 0, u"**", 7, 0}, {1, 0, u"**", 9, 0}, {0, 0, u"**", 11, 0}}},
    };
    for (const ListCase& each : cases)
        EXPECT_EQ(ToggleInlineStyle(InlineToggles::Strong)
                      .run(Tree(std::u16string(each.text)), each.range.offset, each.range.length,
                           each.selection.offset, each.selection.length),
                  each.results)
            << visible(each.text);
}

TEST(ToggleInlineStyleTest, TwiceGivesTheTextBack) {
    const std::u16string_view drawings[] = {
        u"one ⟦two⟧ three",
        u"o⟦n⟧e",
        u"⟦one\ntwo⟧",
        u"⟦- one\n  - [ ] two\n> three⟧ four",
        u"wo‸rd",
        u"a ⟦👍🏽⟧ b",
        u"⟦(one)⟧two",
        u"one⟦.⟧",
        u"x ‸ y",
        u"⟦one \r\n\r\ntwo⟧",
        u"| ⟦a | b⟧ |\n|---|---|\n",
        u"⟦مرحبا بك⟧",
        u"# ⟦one⟧ #",
        u"[⟦one⟧](two)",
        u"a #t⟦ag⟧ b",
        u"don⟦'t⟧ do",
    };
    for (const InlineToggles style : styles) {
        if (style == InlineToggles::NoInlineToggle) continue;
        for (const std::u16string_view drawing : drawings) {
            const std::u16string once = afterOperation(ToggleInlineStyle(style), drawing);
            ASSERT_FALSE(once.empty()) << visible(drawing);
            EXPECT_EQ(visible(Drawn(afterOperation(ToggleInlineStyle(style), once)).text),
                      visible(Drawn(drawing).text))
                << "behind " << visible(once);
        }
    }
}

/// Cuts a random note anywhere, with a selection that need not be the range.
TEST(ToggleInlineStyleTest, AnswersWithinTheTextWhateverTheRange) {
    RandomNote random(20);
    for (int i = 0; i < 300; ++i) {
        const std::u16string text = random.note(1 + random.below(12));
        const Tree tree(text, allRuleSets[random.below(std::size(allRuleSets))]);
        for (const InlineToggles style : styles) {
            const Range range = random.range(tree.length());
            const Range selection = random.range(tree.length());
            const std::vector<Result> results = ToggleInlineStyle(style).run(
                tree, range.offset, range.length, selection.offset, selection.length);
            applied(Drawn(text, selection), results);
            for (std::size_t k = 1; k < results.size(); ++k)
                EXPECT_LE(results[k].replaceEnd(), results[k - 1].replaceOffset) << visible(text);
        }
    }
}

} // namespace

} // namespace Ondo::Test
