#include "corvane/operation/OperationSelectAllText.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::Test::expectEach;

const SelectAllText selectAll;

TEST(SelectAllText, FirstTheCodeThenAll) {
    for (const auto rules : {Ondo::RuleConfig::Extended, Ondo::RuleConfig::Simplified})
        expectEach(selectAll,
                   {
                       {u"a\n\n```\nb‸\nc\n```\nd", u"a\n\n```\n⟦b\nc\n⟧```\nd"},
                       {u"a\n\n```\n⟦b\nc\n⟧```\nd", u"⟦a\n\n```\nb\nc\n```\nd⟧"},
                       {u"```\n⟦b⟧\n```\n", u"```\n⟦b\n⟧```\n"},
                       {u"`‸``\r\n😀\r\n```\r\n", u"```\r\n⟦😀\r\n⟧```\r\n"},
                       {u"$$\n‸x\n$$\n", u"$$\n⟦x\n⟧$$\n"},
                       {u"$$\n⟦x\n⟧$$\n", u"⟦$$\nx\n$$\n⟧"},
                       {u"> - ```\n>   b‸\n>   ```\n", u"> - ```\n⟦>   b\n⟧>   ```\n"},
                       {u"```\nb‸\nc", u"```\n⟦b\nc⟧"},
                       // At the end of the text, without code, and across blocks
                       {u"```\nb‸", u"⟦```\nb⟧"},
                       {u"```\n‸```\n", u"⟦```\n```\n⟧"},
                       {u"```\n⟦b\n```\nc⟧", u"⟦```\nb\n```\nc⟧"},
                       {u"```\n⟦b\n```\n\n```\n⟧c\n```\n", u"⟦```\nb\n```\n\n```\nc\n```\n⟧"},
                   },
                   rules);
}

TEST(SelectAllText, Otherwise) {
    expectEach(selectAll, {
                              {u"‸", u"‸"},
                              {u"a‸b", u"⟦ab⟧"},
                              {u"ab‸", u"⟦ab⟧"},
                              {u"⟦ab⟧", u"⟦ab⟧"},
                              {u"a `b‸` $c$", u"⟦a `b` $c$⟧"},
                              {u"    co‸de", u"⟦    code⟧"},
                              {u"| a‸ |\r\n|---|\r\n", u"⟦| a |\r\n|---|\r\n⟧"},
                          });
}

} // namespace
} // namespace CVN::Operation
