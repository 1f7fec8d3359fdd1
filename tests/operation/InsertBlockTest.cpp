#include "corvane/operation/OperationInsertBlock.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::RuleConfig;
using Ondo::Test::expectEach;

const InsertBlock thematicBreak(InsertBlockType::ThematicBreak);
const InsertBlock table(InsertBlockType::Table);

const std::u16string rest = u"  |   |\n|---|---|\n|   |   |";

TEST(InsertBlock, ThematicBreak) {
    for (const RuleConfig::RuleSet rules : Ondo::Test::allRuleSets)
        expectEach(thematicBreak,
                   {
                       {u"‸", u"- - -‸"},
                       {u"a‸", u"a\n- - -‸"},
                       {u"a‸b", u"a\n- - -\n‸b"},
                       {u"‸a", u"- - -\n‸a"},
                       {u"a\n‸\nb", u"a\n- - -‸\nb"},
                       {u"a\r\n‸\r\nb", u"a\r\n- - -‸\r\nb"},
                       {u"a\n⟦b\nc⟧\nd", u"a\n- - -‸\nd"},
                       {u"😀⟦b⟧א", u"😀\n- - -\n‸א"},
                       {u"- a‸\n- b", u"- a\n- - -‸\n- b"},
                       {u"> a‸b", u"> a\n- - -\n‸b"},
                   },
                   rules);
}

TEST(InsertBlock, Table) {
    expectEach(table, {
                          {u"‸", u"| ‸" + rest},
                          {u"a‸", u"a\n| ‸" + rest},
                          {u"a‸b", u"a\n| ‸" + rest + u"\nb"},
                          {u"a\n‸\nb", u"a\n| ‸" + rest + u"\nb"},
                          {u"⟦a⟧\r\nb", u"| ‸" + rest + u"\r\nb"},
                          // Apart from a table above or below
                          {u"| a |\n|---|\n‸\nb", u"| a |\n|---|\n\n| ‸" + rest + u"\nb"},
                          {u"| a |\n|---|\n‸> b", u"| a |\n|---|\n\n| ‸" + rest + u"\n> b"},
                          {u"| a |\n|---|\n‸", u"| a |\n|---|\n\n| ‸" + rest},
                          {u"| a |\n|---|\n\n‸", u"| a |\n|---|\n\n| ‸" + rest},
                          {u"| a |\r\n|---|\r\n \r\n‸\r\nb", u"| a |\r\n|---|\r\n \r\n| ‸" + rest + u"\r\nb"},
                          {u"| a |\n|---|\n ‸", u"| a |\n|---|\n \n| ‸" + rest},
                          {u"| a |\r|---|\r‸", u"| a |\r|---|\r\n\n| ‸" + rest},
                          {u"a‸\n| a |\n|---|", u"a\n| ‸" + rest + u"\n\n| a |\n|---|"},
                          {u"‸\n| a |\n|---|", u"| ‸" + rest + u"\n\n| a |\n|---|"},
                          {u"⟦a\n⟧| a |\n|---|", u"| ‸" + rest + u"\n\n| a |\n|---|"},
                          {u"a‸\n | b |\nc", u"a\n| ‸" + rest + u"\n\n | b |\nc"},
                          {u"a‸\n    | b |\nc", u"a\n| ‸" + rest + u"\n    | b |\nc"},
                          // In the place of one
                          {u"⟦a\n\n| b |\n|---|⟧", u"| ‸" + rest},
                          {u"⟦| b |\n|---|⟧\r\n\r\nc", u"| ‸" + rest + u"\r\n\r\nc"},
                      });
}

TEST(InsertBlock, NotInTablesAndFrontMatter) {
    for (const InsertBlock& command : {thematicBreak, table})
        expectEach(command, {
                                {u"| a‸ |\n|---|", u""},
                                {u"‸| a |\n|---|", u""},
                                {u"| a |\n|-‸--|", u""},
                                {u"| a |\n|---|‸", u""},
                                {u"p ⟦\n| a⟧ |\n|---|", u""},
                                {u"⟦a\n\n| b |\n|---|⟧\n| c |", u""},
                                {u"‸---\nk: v\n---\n", u""},
                                {u"---\nk: ‸v\n---\n", u""},
                                {u"---\nk: v\n---‸\n", u""},
                            });
    expectEach(thematicBreak, {{u"---\nk: v\n---\n‸", u"---\nk: v\n---\n- - -‸"},
                               {u"| a |\n|---|\n‸", u"| a |\n|---|\n- - -‸"}});
}

/// Between paragraphs, wherever the caret stands.
TEST(InsertBlock, IsParsedAsWhatItInserts) {
    for (const RuleConfig::RuleSet rules : Ondo::Test::allRuleSets) {
        const std::u16string note = u"ab\ncd\n\nef\n";
        for (std::size_t at = 0; at <= note.size(); ++at) {
            const auto html = [&](const InsertBlock& command) {
                const Ondo::Tree tree(note, rules);
                const auto caret = static_cast<std::int64_t>(at);
                const auto results = command.run(tree, caret, 0, caret, 0);
                return Ondo::Test::html(Ondo::Test::applied({note, {0, 0}}, results).text, rules);
            };
            EXPECT_NE(html(thematicBreak).find("<hr />"), std::string::npos) << at;
            const bool hasTables = rules != RuleConfig::Commonmark;
            EXPECT_EQ(html(table).find("<table>") != std::string::npos, hasTables) << at;
        }
    }
}

} // namespace
} // namespace CVN::Operation
