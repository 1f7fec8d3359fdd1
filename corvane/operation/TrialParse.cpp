#include "corvane/operation/TrialParse.h"

#include <string_view>

namespace CVN::Operation {

using Ondo::Tree;

namespace {

/// What hosts switch off.
constexpr std::string_view optionalRules[] = {"MathBlock", "MathSpan"};

} // namespace

Tree emptyTrial(const Tree& note) {
    Tree trial({}, note.ruleSet);
    for (const std::string_view rule : optionalRules)
        if (!note.ruleConfig().ruleInstanceByName(rule)) trial.removeRuleByName(rule);
    return trial;
}

Tree trialParse(const Tree& note, std::u16string_view text) {
    Tree trial = emptyTrial(note);
    trial.replaceAll(text);
    return trial;
}

} // namespace CVN::Operation
