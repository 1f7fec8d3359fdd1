#include <gtest/gtest.h>

#include "corvane/operation/OperationNormalizeCallouts.h"
#include "tests/support/Caret.h"

namespace CVN::Operation {
namespace {

using Ondo::RuleConfig;
using Ondo::Test::expectEach;

const NormalizeCallouts normalize;

TEST(NormalizeCallouts, PutsATitleLineAboveACallout) {
    expectEach(normalize, {
                              {u"> [!NOTE]‸", u"\n> [!NOTE]‸"},
                              {u"‸> [!tip] a\r\n> b\r\n", u"\n‸> [!tip] a\r\n> b\r\n"},
                              {u"⟦>[!WARNING]\n\n\U0001F534⟧", u"\n⟦>[!WARNING]\n\n\U0001F534⟧"},
                              {u"   > [!CAUTION] \u05D0‸", u"\n   > [!CAUTION] \u05D0‸"},
                              {u"\n> [!NOTE]‸", u""},
                              {u"---\nk: v\n---\n> [!NOTE]‸", u""},
                              {u"a\n> [!NOTE]‸", u""},
                              {u"> > [!NOTE]‸", u""},
                              {u"- > [!NOTE]‸", u""},
                              {u"> a\n> [!NOTE]‸", u""},
                              {u"> [!NOTES]‸", u""},
                              {u"‸", u""},
                          });
    expectEach(normalize, {{u"> [!NOTE]‸", u""}}, RuleConfig::Commonmark);
    expectEach(normalize, {{u"> [!NOTE]‸", u"\n> [!NOTE]‸"}}, RuleConfig::Simplified);
}

} // namespace
} // namespace CVN::Operation
