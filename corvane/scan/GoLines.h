#pragma once

#include "corvane/scan/Go.h"
#include "corvane/scan/Lines.h"

namespace Ondo {

/// Tells whether a table's lines may be read, which a container rewrites only when they are asked for.
class CORVANE_EXPORT LineSource {
public:
    virtual ~LineSource() = default;
    virtual bool hasLine(std::int64_t line) = 0;
};

/// A Go that sees only the content of a run of lines: container prefixes, indentation, trailing blanks and
/// line endings are not there for it.
///
/// The operations of Go stay within the content of the current line; only to() and nextWhileLineEnding()
/// cross from line to line. The table of lines must outlive the cursor.
class CORVANE_EXPORT GoLines : public Go {
public:
    /// Starts on `firstLine`. `minOffset` and `maxOffset` clip the whole; NoPos means no limit.
    GoLines(std::u16string_view view, const Lines& lines, std::int64_t firstLine, std::int64_t lastLine,
            std::int64_t minOffset = NoPos, std::int64_t maxOffset = NoPos);
    /// Crosses only into lines that `source`, which must outlive the cursor, has.
    GoLines(std::u16string_view view, const Lines& lines, std::int64_t firstLine, std::int64_t lastLine,
            LineSource& source);

    std::int64_t currentLine() const { return currentLine_; }
    std::int64_t lastLine() const { return lastLine_; }

    /// A cursor at the same place that knows only the current line.
    Go onLine() const {
        Go go(text, minPos_, maxPos_);
        go.setPos(pos_);
        return go;
    }

    /// Jumps to `offset`. Fails when it lies outside the limits or in no line's content, such as inside an
    /// indentation or a container's prefix.
    GoLines& to(std::int64_t offset);
    /// At the end of a line's content, moves on to the content of the next line, at most `max` times; does
    /// nothing elsewhere, and in the last line.
    std::int64_t nextWhileLineEnding(std::int64_t max = NoLimit);

private:
    void enterLine(std::int64_t line);
    bool hasFurtherLine() const {
        return currentLine_ < lastLine_ && maxPos_ != maxOffset_ &&
               (!source_ || source_->hasLine(currentLine_ + 1));
    }

    const Lines* lines_;
    LineSource* source_ = nullptr;
    std::int64_t currentLine_ = 0;
    std::int64_t firstLine_;
    std::int64_t lastLine_;
    std::int64_t minOffset_;
    std::int64_t maxOffset_;
};

} // namespace Ondo
