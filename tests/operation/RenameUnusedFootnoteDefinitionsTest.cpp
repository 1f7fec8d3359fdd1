#include "corvane/operation/OperationRenameUnusedFootnoteDefinitions.h"

#include <gtest/gtest.h>

#include "tests/support/Caret.h"

namespace CVN::Operation {
namespace {

using Ondo::Test::expectEach;

TEST(RenameUnusedFootnoteDefinitions, MarksNumbers) {
    expectEach(
        RenameUnusedFootnoteDefinitions(),
        {
            {u"[^3]: a‸", u"[^3?]: a‸"},
            {u"[^1]\n\n[^1]: a\n[^2]: b\n⟦[^x]⟧: c\n[^3]:", u"[^1]\n\n[^1]: a\n[^2?]: b\n⟦[^x]⟧: c\n[^3?]:"},
            {u"- > [^3]: a\r\n  > [^‸4]: b", u"- > [^3?]: a\r\n  > [^‸4?]: b"},
            {u"[^1\n]: a\n[^1]: ‸b", u"[^1\n?]: a\n[^1?]: ‸b"},
            // That would be referred to.
            {u"[^2?] [^2??]\n\n[^2]: a‸", u"[^2?] [^2??]\n\n[^2???]: a‸"},
            {u"[^1]\n\n[^1]: a\n[^1]: b\n[^2?]: c‸", u""},
            {u"`[^1]` ‸", u""},
            {u"‸", u""},
        });
    expectEach(RenameUnusedFootnoteDefinitions(), {{u"[^3]: a‸", u""}}, Ondo::RuleConfig::Commonmark);
}

} // namespace
} // namespace CVN::Operation
