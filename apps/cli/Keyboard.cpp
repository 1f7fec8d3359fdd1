#include "Keyboard.h"

#include <utility>

#include "Caret.h"
#include "corvane/correction/InvalidCharacterCorrection.h"

namespace Cli {

namespace {

using Command = CVNTextOperation::Number;
using Correction = CVNTextCorrection::Number;

/// In the order in which they are asked: the first one with an answer wins. Those of fences come first, since
/// what they answer is a whole edit of its own.
constexpr Correction corrections[] = {
    Correction::fencedCodeCorrectionIn, Correction::mathBlockCorrectionIn,
    Correction::calloutCorrectionIn,    Correction::listItemSpaceCorrectionIn,
    Correction::tableSpaceCorrectionIn,
};

const CVNTextOperation& rowOf(Command command) {
    return CVNTextOperation::all()[static_cast<std::size_t>(command)];
}

const CVNTextCorrection& rowOf(Correction correction) {
    return CVNTextCorrection::all()[static_cast<std::size_t>(correction)];
}

std::int64_t lengthOf(std::u16string_view text) {
    return static_cast<std::int64_t>(text.size());
}

/// Line endings as line feeds, and without NUL.
std::u16string cleaned(std::u16string_view text) {
    const auto results = CVN::Correction::InvalidCharacterCorrection::process(0, 0, text, 0, 0);
    return std::u16string(results.empty() ? text : results.front().replacementString);
}

} // namespace

Keyboard::Keyboard(CVNAST note) : note_(std::move(note)), selection_{note_.markdownLength(), 0} {
    painted_.replace({0, 0}, note_.markdownLength());
    painted_.paint(0, note_.annotatedString());
}

// The road of a key that changes text

Keyboard::Effect Keyboard::offer(Correction correction, CVNRange range, std::u16string_view text,
                                 CVNRange selection) {
    const CVNTextCorrection& row = rowOf(correction);
    const Results results = row.run(note_, range, text, selection);
    return results.empty() ? Effect() : apply(row.name, results);
}

/// The key would replace a range by a text. The corrections are asked before the edit is made, with the
/// selection that it would leave; the command looks at the selection as it is.
Keyboard::Effect Keyboard::change(CVNRange range, std::u16string_view text, const CVNTextOperation* command) {
    const bool isEdit = range.length > 0 || !text.empty();
    const CVNRange behind = {range.location + lengthOf(text), 0};
    for (const Correction number : corrections) {
        if (!isEdit) break; // backspace at the start of the text, delete at its end
        const Effect effect = offer(number, range, text, behind);
        if (effect.by) return effect;
    }
    if (command) {
        const Results results = command->run(note_, selection_, selection_, {});
        if (!results.empty()) return apply(command->name, results);
    }
    return isEdit ? edit(range, text) : Effect();
}

Keyboard::Effect Keyboard::edit(CVNRange range, std::u16string_view text) {
    const CVNRange redraw = note_.replaceRange(range, text);
    painted_.replace(range, lengthOf(text));
    return paint("edit", redraw, {range.location + lengthOf(text), 0});
}

/// Results are made in their order, in the note and in the view; the last one has the selection.
Keyboard::Effect Keyboard::apply(const char* by, const Results& results) {
    const CVNRange redraw = note_.applyTextOperationResults(results);
    for (const CVNASTOperationResult& result : results)
        painted_.replace(result.replacementRange, lengthOf(result.replacementString));
    return paint(by, redraw, results.back().proposedSelection);
}

Keyboard::Effect Keyboard::paint(const char* by, CVNRange redraw, CVNRange selection) {
    painted_.paint(redraw.location, note_.annotatedStringForRange(redraw));
    select(selection);
    return {by, redraw};
}

// Keys

Keyboard::Effect Keyboard::type(std::u16string_view text) {
    return change(selection_, cleaned(text));
}

Keyboard::Effect Keyboard::paste(std::u16string_view text) {
    const std::u16string clean = cleaned(text);
    const CVNRange behind = {selection_.location + lengthOf(clean), 0};
    const Effect effect = offer(Correction::pasteCorrectionIn, selection_, clean, behind);
    return effect.by ? effect : change(selection_, clean);
}

Keyboard::Effect Keyboard::enter() {
    return change(selection_, u"\n", &rowOf(Command::insertNewlineInRange));
}

Keyboard::Effect Keyboard::tab() {
    Effect effect = run(Command::jumpTableCell, {CVNTextArgument{0, {}}});
    if (!effect.by) effect = run(Command::indent);
    return effect.by ? effect : type(u"\t");
}

Keyboard::Effect Keyboard::shiftTab() {
    const Effect effect = run(Command::jumpTableCell, {CVNTextArgument{1, {}}});
    return effect.by ? effect : run(Command::outdent);
}

/// A word that is deleted takes a space along. A single character doesn't: who takes back a typo goes on
/// typing there.
Keyboard::Effect Keyboard::deleteSelection() {
    const Effect effect =
        offer(Correction::deleteWhitespaceCorrectionIn, selection_, {}, {selection_.location, 0});
    return effect.by ? effect : change(selection_, {});
}

Keyboard::Effect Keyboard::backspace() {
    if (selection_.length > 0) return deleteSelection();
    const std::int64_t caret = selection_.location;
    const std::int64_t start = caret > 0 ? Caret::before(note_, caret) : caret;
    return change(CVNRange::between(start, caret), {}, &rowOf(Command::deletePrevious));
}

Keyboard::Effect Keyboard::deleteForward() {
    if (selection_.length > 0) return deleteSelection();
    const std::int64_t caret = selection_.location;
    const std::int64_t end = caret < note_.markdownLength() ? Caret::after(note_, caret) : caret;
    return change(CVNRange::between(caret, end), {}, &rowOf(Command::deleteNext));
}

Keyboard::Effect Keyboard::run(Command command, const CVNTextArguments& arguments) {
    const CVNTextOperation& row = rowOf(command);
    const Results results = row.run(note_, selection_, selection_, arguments);
    return results.empty() ? Effect() : apply(row.name, results);
}

// Moving the caret

Keyboard::Effect Keyboard::select(CVNRange range) {
    selection_ = range;
    goalColumn_.reset();
    return {};
}

Keyboard::Effect Keyboard::drag(CVNRange range) {
    const Effect effect = offer(Correction::selectionCorrectionIn, selection_, {}, range);
    return effect.by ? effect : select(range);
}

Keyboard::Effect Keyboard::left() {
    const std::int64_t start = selection_.location;
    const bool isAtEdge = selection_.length > 0 || start == 0;
    return select({isAtEdge ? start : Caret::before(note_, start), 0});
}

Keyboard::Effect Keyboard::right() {
    const std::int64_t end = selection_.end();
    const bool isAtEdge = selection_.length > 0 || end == note_.markdownLength();
    return select({isAtEdge ? end : Caret::after(note_, end), 0});
}

Keyboard::Effect Keyboard::up() {
    const std::int64_t start = Caret::lineStart(note_, selection_.location);
    if (start == 0) return select({0, 0});
    return moveToLine(selection_.location, Caret::lineStart(note_, Caret::before(note_, start)));
}

Keyboard::Effect Keyboard::down() {
    const std::int64_t end = Caret::lineEnd(note_, selection_.end());
    if (end == note_.markdownLength()) return select({end, 0});
    return moveToLine(selection_.end(), Caret::after(note_, end));
}

Keyboard::Effect Keyboard::moveToLine(std::int64_t from, std::int64_t lineStart) {
    const std::int64_t column = goalColumn_ ? *goalColumn_ : Caret::columnOf(note_, from);
    select({Caret::atColumn(note_, lineStart, column), 0});
    goalColumn_ = column;
    return {};
}

} // namespace Cli
