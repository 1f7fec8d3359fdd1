#include "corvane/scan/GoLines.h"

#include <algorithm>

namespace Ondo {

GoLines::GoLines(std::u16string_view view, const Lines& lines, std::int64_t firstLine, std::int64_t lastLine,
                 std::int64_t minOffset, std::int64_t maxOffset)
    : Go(view, 0, 0), lines_(&lines), firstLine_(firstLine), lastLine_(lastLine), minOffset_(minOffset),
      maxOffset_(maxOffset) {
    enterLine(firstLine);
}

GoLines::GoLines(std::u16string_view view, const Lines& lines, std::int64_t firstLine, std::int64_t lastLine,
                 LineSource& source)
    : GoLines(view, lines, firstLine, lastLine) {
    source_ = &source;
}

void GoLines::enterLine(std::int64_t line) {
    currentLine_ = line;
    minPos_ = std::max((*lines_)[line].contentStart, minOffset_);
    maxPos_ = (*lines_)[line].contentEnd;
    if (maxOffset_ != NoPos) maxPos_ = std::min(maxPos_, maxOffset_);
    pos_ = minPos_;
}

GoLines& GoLines::to(std::int64_t offset) {
    const bool isOutside = offset < minOffset_ || (maxOffset_ != NoPos && offset > maxOffset_);
    if (offset == NoPos || isOutside) {
        fail();
        return *this;
    }
    // Lines stand in order, so that the one that could hold the offset is the last to start at or before it.
    std::int64_t low = firstLine_;
    std::int64_t high = lastLine_;
    if (offset >= (*lines_)[currentLine_].start && offset < (*lines_)[currentLine_].next)
        low = high = currentLine_;
    while (low < high) {
        const std::int64_t middle = low + (high - low + 1) / 2;
        if ((*lines_)[middle].start <= offset)
            low = middle;
        else
            high = middle - 1;
    }
    const Lines::Line& line = (*lines_)[low];
    if (offset < line.contentStart || offset > line.contentEnd) {
        fail();
        return *this;
    }
    enterLine(low);
    pos_ = offset;
    return *this;
}

std::int64_t GoLines::nextWhileLineEnding(std::int64_t max) {
    for (std::int64_t count = 0; count < max && pos_ == maxPos_ && hasFurtherLine(); ++count)
        enterLine(currentLine_ + 1);
    return pos_;
}

} // namespace Ondo
