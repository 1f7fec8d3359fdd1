#include "corvane/operation/OperationRemoveLink.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using namespace Ondo::Test;

TEST(RemoveLink, FindsVariants) {
    for (const Ondo::RuleConfig::RuleSet rules : allRuleSets) {
        expectEach(RemoveLink(u"a b(é).png"),
                   {
                       {u"x![i](a%20b%28%C3%A9%29.png)‸", u"x‸"},
                       {u"x [i](<a b(é).png> \"t\") ‸y", u"x  ‸y"},
                       {u"‸[i](a b.png) [i](<A b(é).png>)", u""},
                   },
                   rules);
        expectEach(RemoveLink(u"a%20b"), {{u"[i](<a b>)[j](a%20b)‸c", u"‸c"}}, rules);
    }
}

TEST(RemoveLink, TakesAllOfALink) {
    expectEach(RemoveLink(u"u"), {
                                     {u"> - [a *b‸*\n>   c](u)d", u"> - ‸d"},
                                     {u"⟦a[b](u)c[d](u)⟧e", u"⟦ac⟧e"},
                                     // what stands inside goes with it, and the link around it stays
                                     {u"‸![a [b](u) c](u)d", u"‸d"},
                                     {u"‸[![a](u)](v)", u"‸[](v)"},
                                     // references by what they are defined as
                                     {u"‸[a][r] [r] ![r][] [s]\n\n[r]: u", u"‸   [s]\n\n[r]: u"},
                                     {u"‸`[a](u)` \\[a](u) <u:u> [[u]]", u""},
                                     {u"| ‸[a](u) |\r\n|-|\r\n| b |", u"| ‸ |\r\n|-|\r\n| b |"},
                                 });
}

TEST(RemoveLink, TakesTheMetadataDirectlyBehind) {
    expectEach(RemoveLink(u"u"),
               {
                   {u"‸[a](u)<!-- {\"preview\":\"true\"} --> b", u"‸ b"},
                   {u"![a](u)<!-- {\"embed\":\"true\", \"preview\":\"true\"} -->‸", u"‸"},
                   {u"‸[a](u) <!-- {\"preview\":\"true\"} -->", u"‸ <!-- {\"preview\":\"true\"} -->"},
                   {u"‸[a](u)<!-- b -->", u"‸<!-- b -->"},
                   {u"‸# [a](u)<!-- {\"fold\":true} -->", u"‸# <!-- {\"fold\":true} -->"},
               });
}

TEST(RemoveLink, NothingForAnEmptyUrl) {
    for (const std::u16string_view url : {u"", u" ", u"\n"})
        expectEach(RemoveLink(url), {{u"‸[a]() [b] [c](<>)", u""}, {u"‸", u""}});
}

} // namespace
} // namespace CVN::Operation
