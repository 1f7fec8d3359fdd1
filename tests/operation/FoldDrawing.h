#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "corvane/inline/Folding.h"
#include "tests/support/Caret.h"

namespace Ondo::Test {

/// Drawings of notes with folds: `▸` stands for the comment of one, `◦` for that of a preview.
inline std::u16string withComments(std::u16string_view drawing) {
    std::u16string text;
    for (const char16_t unit : drawing) {
        if (unit == u'▸')
            text += Inline::Folding::comment;
        else if (unit == u'◦')
            text += u"<!-- {\"preview\":\"true\"} -->";
        else
            text += unit;
    }
    return text;
}

/// As expectEach().
inline void expectFolds(const CVN::Operation::Operation& operation, const std::vector<CommandCase>& cases,
                        RuleConfig::RuleSet rules = RuleConfig::Extended) {
    for (const CommandCase& each : cases)
        expectEach(operation, {{withComments(each.before), withComments(each.after)}}, rules);
}

} // namespace Ondo::Test
