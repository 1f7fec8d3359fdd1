#include "tests/support/Caret.h"

#include <utility>

#include <gtest/gtest.h>

#include "corvane/scan/Assert.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {

namespace {

constexpr char16_t caret = u'‸';
constexpr char16_t selectionStart = u'⟦';
constexpr char16_t selectionEnd = u'⟧';

using CVN::Operation::Result;

std::int64_t sizeOf(std::u16string_view text) {
    return static_cast<std::int64_t>(text.size());
}

/// Takes a mark out of the text; -1 when it isn't there.
std::int64_t takeMark(std::u16string& text, char16_t mark) {
    const auto at = text.find(mark);
    if (at == std::u16string::npos) return -1;
    text.erase(at, 1);
    CORVANE_ASSERT(text.find(mark) == std::u16string::npos, "Caret");
    return static_cast<std::int64_t>(at);
}

bool isIn(std::int64_t offset, std::int64_t length, std::u16string_view text) {
    return offset >= 0 && length >= 0 && offset <= sizeOf(text) && length <= sizeOf(text) - offset;
}

bool isFromEndToStart(const std::vector<Result>& results) {
    for (std::size_t i = 1; i < results.size(); ++i)
        if (results[i].replaceEnd() > results[i - 1].replaceOffset) return false;
    return true;
}

} // namespace

Drawn::Drawn(std::u16string_view drawing) : text(drawing) {
    const std::int64_t at = takeMark(text, caret);
    const std::int64_t start = takeMark(text, selectionStart);
    const std::int64_t end = takeMark(text, selectionEnd);
    CORVANE_ASSERT(at >= 0 ? start < 0 && end < 0 : start >= 0 && start <= end, "Caret");
    selection = at >= 0 ? Range{at, 0} : Range{start, end - start};
}

std::u16string Drawn::drawing() const {
    std::u16string out = text;
    const auto start = static_cast<std::size_t>(selection.offset);
    const auto end = static_cast<std::size_t>(selection.end());
    if (selection.length == 0) return out.insert(start, 1, caret);
    return out.insert(end, 1, selectionEnd).insert(start, 1, selectionStart);
}

Drawn applied(Drawn note, const std::vector<Result>& results) {
    for (const Result& each : results) {
        CORVANE_ASSERT(isIn(each.replaceOffset, each.replaceLength, note.text), "Caret");
        note.text.replace(static_cast<std::size_t>(each.replaceOffset),
                          static_cast<std::size_t>(each.replaceLength), each.replacementString);
        note.selection = {each.selectionOffset, each.selectionLength};
    }
    CORVANE_ASSERT(isIn(note.selection.offset, note.selection.length, note.text), "Caret");
    return note;
}

std::u16string afterOperation(const CVN::Operation::Operation& operation, std::u16string_view drawing,
                              RuleConfig::RuleSet rules) {
    const Drawn before(drawing);
    const Tree tree(before.text, rules);
    const Range& at = before.selection;
    const std::vector<Result> results = operation.run(tree, at.offset, at.length, at.offset, at.length);
    CORVANE_ASSERT(difference(tree, Tree(before.text, rules)).empty(), "Caret");
    return results.empty() ? std::u16string() : applied(before, results).drawing();
}

std::u16string afterCorrection(const CVN::Correction::Correction& correction, std::u16string_view drawing,
                               std::u16string_view replacement, RuleConfig::RuleSet rules) {
    const Drawn before(drawing);
    const Tree tree(before.text, rules);
    const Range& at = before.selection;
    const std::vector<Result> results =
        correction.run(tree, at.offset, at.length, replacement, at.offset + sizeOf(replacement), 0);
    CORVANE_ASSERT(isFromEndToStart(results), "Caret");
    return results.empty() ? std::u16string() : applied(before, results).drawing();
}

void expectEach(const CVN::Operation::Operation& operation, const std::vector<CommandCase>& cases,
                RuleConfig::RuleSet rules) {
    for (const CommandCase& each : cases)
        EXPECT_EQ(visible(afterOperation(operation, each.before, rules)), visible(each.after))
            << "behind " << visible(each.before) << " under " << nameOf(rules);
}

} // namespace Ondo::Test
