#include "corvane/operation/OperationUpdateLinks.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using namespace Ondo::Test;

TEST(UpdateLinks, FindsDestinationsHoweverTheyAreWritten) {
    for (const Ondo::RuleConfig::RuleSet rules : allRuleSets)
        expectEach(UpdateLinks(u"a b(é).png", u"c d(2).png"),
                   {
                       {u"‸[x](a%20b%28%C3%A9%29.png)", u"‸[x](c%20d%282%29.png)"},
                       {u"‸[x](a%20b(%C3%A9).png)", u"‸[x](c%20d%282%29.png)"},
                       {u"‸![x](<a b(é).png> \"t\")", u"‸![x](<c%20d%282%29.png> \"t\")"},
                       {u"‸[x](<a b\\(&eacute;).png>)", u"‸[x](<c%20d%282%29.png>)"},
                       {u"‸[x](a b(é).png)", u""},
                       {u"‸[x](A%20b%28%C3%A9%29.png)", u""},
                       {u"‸`[x](<a b(é).png>)`", u""},
                       {u"‸", u""},
                   },
                   rules);
}

TEST(UpdateLinks, ChangesDestinationsAlone) {
    expectEach(UpdateLinks(u"u", u"v"),
               {
                   {u"> - [u](u)\n>   ![*u*‸](u 'u')\n", u"> - [u](v)\n>   ![*u*‸](v 'u')\n"},
                   {u"[![x](u)](u)‸", u"[![x](v)](v)‸"},
                   {u"| [x](u) |\r\n|-|\r\n| ![‸](u) |", u"| [x](v) |\r\n|-|\r\n| ![‸](v) |"},
                   {u"‸[x](u/v) <u> [u]\n\n[u]: u", u""},
                   {u"[x](u)<!-- {\"preview\":\"true\"} -->‸", u"[x](v)<!-- {\"preview\":\"true\"} -->‸"},
               });
}

TEST(UpdateLinks, UrlsThatNeedCare) {
    expectEach(UpdateLinks(u"u", u"tel:+1 (2)"),
               {{u"‸[x](u) [y](<u>)", u"‸[x](<tel:+1 (2)>) [y](<tel:+1 (2)>)"}});
    expectEach(UpdateLinks(u"u", u"tel:1\x7F"), {{u"‸[x](u)", u"‸[x](<tel:1\x7F>)"}});
    for (const std::u16string_view unwritable : {u"tel:<1>", u"tel:+1|2"})
        expectEach(UpdateLinks(u"u", unwritable), {{u"| ‸[x](u) |\n|-|", u""}});
    expectEach(UpdateLinks(u"u", u""), {{u"‸[x](u)", u""}});
    expectEach(UpdateLinks(u"", u"u"), {{u"‸[x]() [y] [z](<>)", u""}});
    expectEach(UpdateLinks(u" ", u"u"), {{u"‸[x]() [y] [z](<>)", u""}});
    expectEach(UpdateLinks(u"a b", u"a b"), {{u"‸[x](a%20b)", u""}});
}

} // namespace
} // namespace CVN::Operation
