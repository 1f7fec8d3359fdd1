#include <iterator>
#include <memory>

#include "capi/Arguments.h"
#include "capi/Handles.h"

using namespace CApi;

namespace {

/// By number.
constexpr Ondo::RuleConfig::RuleSet ruleSets[] = {Ondo::RuleConfig::Commonmark, Ondo::RuleConfig::Extended,
                                                  Ondo::RuleConfig::Simplified};

} // namespace

corvane_status corvane_set_rule_set(corvane_rule_set rules) {
    if (rules != CORVANE_RULES_EXTENDED && rules != CORVANE_RULES_SIMPLIFIED) return CORVANE_ERROR_NUMBER;
    CVNAST::setUsesSimplifiedRuleSet(rules == CORVANE_RULES_SIMPLIFIED);
    return CORVANE_OK;
}

corvane_status corvane_note_create(corvane_note** note) {
    if (!note) return CORVANE_ERROR_NULL;
    *note = new corvane_note;
    return CORVANE_OK;
}

/// The variable with the rule set of the process stays untouched, so that this needs no turn-taking of
/// threads.
corvane_status corvane_note_create_with_rules(corvane_rule_set rules, corvane_note** note) {
    if (!note) return CORVANE_ERROR_NULL;
    if (rules < 0 || rules >= std::ssize(ruleSets)) return CORVANE_ERROR_NUMBER;
    auto made = std::make_unique<corvane_note>();
    const Ondo::RuleConfig::RuleSet ruleSet = ruleSets[rules];
    if (made->ast.ast->ruleSet != ruleSet)
        made->ast.ast = std::make_unique<Ondo::Tree>(std::u16string(), ruleSet);
    *note = made.release();
    return CORVANE_OK;
}

void corvane_note_destroy(corvane_note* note) {
    delete note;
}

// Options

namespace {

corvane_status disableMath(corvane_note& note) {
    if (!note.hasMath) return CORVANE_OK;
    if (note.isPending()) return CORVANE_ERROR_PENDING;
    if (note.ast.markdownLength() > 0) return CORVANE_ERROR_NOT_EMPTY;
    note.ast.disableMath();
    note.hasMath = false;
    return CORVANE_OK;
}

} // namespace

corvane_status corvane_note_parse_inlines_only(corvane_note* note, int32_t inlines_only) {
    if (!note) return CORVANE_ERROR_NULL;
    const corvane_status status = inlines_only ? disableMath(*note) : CORVANE_OK;
    if (status == CORVANE_OK) note->ast.parseInlinesOnly = inlines_only != 0;
    return status;
}

corvane_status corvane_note_disable_math(corvane_note* note) {
    return note ? disableMath(*note) : CORVANE_ERROR_NULL;
}

// Text

corvane_status corvane_note_length(const corvane_note* note, int64_t* length) {
    if (!note || !length) return CORVANE_ERROR_NULL;
    *length = note->ast.markdownLength();
    return CORVANE_OK;
}

corvane_status corvane_note_text(const corvane_note* note, const corvane_unit** text, int64_t* length) {
    if (!note || !text || !length) return CORVANE_ERROR_NULL;
    *text = note->ast.markdown().data();
    *length = note->ast.markdownLength();
    return CORVANE_OK;
}

corvane_status corvane_note_copy_text(const corvane_note* note, int64_t location, int64_t length,
                                      corvane_unit* buffer) {
    if (!note || (!buffer && length > 0)) return CORVANE_ERROR_NULL;
    if (!isWithin(location, length, note->ast.markdownLength())) return CORVANE_ERROR_RANGE;
    note->ast.markdownIn({location, length}).copy(buffer, static_cast<std::size_t>(length));
    return CORVANE_OK;
}

corvane_status corvane_note_html(const corvane_note* note, corvane_string** html) {
    return note && html ? give(note->ast.ast->toHtml(), html) : CORVANE_ERROR_NULL;
}

corvane_status corvane_note_tree(const corvane_note* note, corvane_string** tree) {
    return note && tree ? give(note->ast.ast->toIndentedTree(), tree) : CORVANE_ERROR_NULL;
}
