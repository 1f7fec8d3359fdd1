#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "Painted.h"
#include "corvane/client/CVNAST.h"

namespace Cli {

/// An editor as the person at its keyboard knows it: a note, a selection, and what is painted.
///
/// This is how a host chains the calls of the library. A key that changes text first offers its edit to the
/// corrections, then asks its command if it has one, and makes the edit itself when nobody has an opinion.
/// Whatever changes the text answers with one range, which is annotated and painted.
///
/// Offsets count UTF-16 code units. There is no undo. A `Keyboard` can't be copied.
class Keyboard {
public:
    /// What a key led to.
    struct Effect {
        /// The correction or command that answered, "edit" for the edit as it stands; null when nobody did.
        const char* by = nullptr;
        /// What was painted anew, in the text as it is now; not found when nothing was.
        CVNRange redraw = CVNRange::notFound();
    };

    /// With the caret at the end.
    explicit Keyboard(CVNAST note);

    const CVNAST& note() const { return note_; }
    const Painted& painted() const { return painted_; }
    CVNRange selection() const { return selection_; }

    /// A character that is typed in the selection's place.
    Effect type(std::u16string_view text);
    /// Text that takes the selection's place as one edit.
    Effect paste(std::u16string_view text);
    Effect enter();
    /// Both go to another cell of a table, or else indent and outdent. Where there is nothing to indent, tab
    /// types a tab.
    Effect tab();
    Effect shiftTab();
    /// Both delete the selection, or what a person takes for one character.
    Effect backspace();
    Effect deleteForward();
    /// A command of a menu, which does nothing when it has no opinion.
    Effect run(CVNTextOperation::Number command, const CVNTextArguments& arguments = {});

    // The arrows collapse a selection. Up and down aim at the column that the first of them started from, in
    // code points, and go to an end of the text when there is no other line.

    Effect left();
    Effect right();
    Effect up();
    Effect down();
    /// The range must lie in the text.
    Effect select(CVNRange range);
    /// As select(), but what grows over half of an inline takes in the rest of it.
    Effect drag(CVNRange range);

private:
    using Results = CVNASTTextOperations::Results;

    CVNAST note_;
    Painted painted_;
    CVNRange selection_;
    std::optional<std::int64_t> goalColumn_; ///< while up and down are pressed

    Effect offer(CVNTextCorrection::Number correction, CVNRange range, std::u16string_view text,
                 CVNRange selection);
    Effect change(CVNRange range, std::u16string_view text, const CVNTextOperation* command = nullptr);
    Effect edit(CVNRange range, std::u16string_view text);
    Effect apply(const char* by, const Results& results);
    Effect paint(const char* by, CVNRange redraw, CVNRange selection);
    Effect deleteSelection();
    Effect moveToLine(std::int64_t from, std::int64_t lineStart);
};

} // namespace Cli
