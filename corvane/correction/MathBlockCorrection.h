#pragma once

#include "corvane/correction/Correction.h"
#include "corvane/operation/Operation.h"

namespace CVN::Correction {

struct PendingEdit;
class EditedLine;

/// Holds back the fence of a math block until its line is finished, and closes the block then.
///
/// A bare "$$" on a line would open a block that swallows all text behind it while the user is still typing.
/// So an edit that leaves a line with "$$" and nothing else gets a backslash in front of it, "\$$", whether
/// the signs are typed one by one or pasted. From there
///
/// - a line break behind it releases the fence: the backslash goes, and the line break is followed by the
///   prefix of the line, for the math, and by a closing fence on a line of its own, with the caret on the
///   empty line between. Both lines belong to the quotes and items of the first. No closing fence is added
///   where the container ends with an open one, which is the other half of this one;
/// - pasted lines behind it, which begin with a line break, release the fence as well and are all that goes
///   in;
/// - any other edit of the signs that leaves something else than "$$" takes the backslash along, since it
///   holds nothing back any more: "$$x" when a letter is typed, "$" when a sign is deleted;
/// - blanks behind the fence, edits of the backslash, and the deletion of the line ending are left alone. The
/// deletion of one code unit never
///   puts a backslash in: it may be the deletion of that one.
///
/// Inside a math block "$$" closes it. On a line with only blank lines between it and the closing fence that
/// is there, the typed fence takes its place, and the other one goes; it may stand behind up to three blanks.
/// So does the closing fence of a block with only blank lines, when an edit inside or behind the opening one
/// makes it something else. Neither goes where the container ends with an open fence: it opens the block that
/// is open there.
///
/// No opinion where "$$" is no fence: in other blocks than paragraphs, in lines indented like code, and in a
/// rule set without math.
class CORVANE_EXPORT MathBlockCorrection : public Correction {
public:
    explicit MathBlockCorrection(Operation::IndentStyle style) : style_(style) {}

    std::vector<Operation::Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::u16string_view replacement, std::int64_t selectionOffset,
                                       std::int64_t selectionLength) const override;

private:
    std::vector<Operation::Result> releasedFence(const PendingEdit& edit, const EditedLine& line) const;

    Operation::IndentStyle style_;
};

} // namespace CVN::Correction
