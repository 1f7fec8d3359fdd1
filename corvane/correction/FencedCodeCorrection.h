#pragma once

#include "corvane/correction/Correction.h"
#include "corvane/operation/Operation.h"

namespace CVN::Correction {

struct PendingEdit;
class EditedLine;

/// Keeps the two fences of a code block alike, and closes a block as soon as its opening fence is typed.
///
/// - Backticks typed at one fence of a closed block go into the other one as well, and backticks deleted from
///   one leave the other, as long as both stay fences. The other fence stays as it is where a line of the
///   code would be taken for a fence of the shorter length.
/// - Backticks that bring a run to three or more where a line's content begins make an opening fence. A
///   closing fence of the same length goes on a line of its own behind that line, with the line's prefix, so
///   that it belongs to the same quotes and items; an item's marker becomes blanks, or tabs with the style
///   Tabs. The selection stays with the edit. Nothing is added where a backtick stands in the rest of the
///   line, which makes it text.
/// - Backticks that close a block on a line with only blank lines between it and the closing fence that is
///   there take its place: the other one goes. Like any fence, they may stand behind up to three blanks.
/// - An edit inside or behind the opening fence of a block with only blank lines that leaves no opening fence
///   there, as in "```x`" or "``", takes the closing fence along. An edit in front of it does not.
///
/// The other fence is left alone where the edit by itself makes the fences below pair up better than they do
/// now: it puts back a fence that was missing, such as one of which a backtick was deleted a moment ago. See
/// FencePairs.h for what is better. Only fences of the same container count.
///
/// All of this looks at fences of backticks in blocks of code that begin with them; fences of tildes are left
/// alone, as is the inside of a block, open or closed.
class CORVANE_EXPORT FencedCodeCorrection : public Correction {
public:
    explicit FencedCodeCorrection(Operation::IndentStyle style) : style_(style) {}

    std::vector<Operation::Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::u16string_view replacement, std::int64_t selectionOffset,
                                       std::int64_t selectionLength) const override;

private:
    std::vector<Operation::Result> closedBlock(const PendingEdit& edit, const EditedLine& line) const;

    Operation::IndentStyle style_;
};

} // namespace CVN::Correction
