#include "corvane/operation/OperationMoveLines.h"

#include <algorithm>
#include <string>

#include "corvane/block/List.h"
#include "corvane/operation/LinePrefix.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/operation/MoveLinesStretch.h"

namespace CVN::Operation {

using Ondo::Node;

namespace {

/// A stretch of lines that moves up over the one right above it.
class UpwardMove {
public:
    UpwardMove(const Ondo::Tree& tree, const LineStretch& upper, const LineStretch& lower);

    /// The selection is carried along with `lines`, one of the two stretches, and with the text elsewhere.
    std::vector<Result> results(const LineStretch& lines, std::int64_t selectionOffset,
                                std::int64_t selectionLength) const;

private:
    /// Digits in the moved text that give way to others.
    struct Digits {
        std::int64_t at = 0; ///< from the start of the moved text
        std::int64_t length = 0;
        std::u16string replacement;
    };

    void takeNumberOfList();
    void keepEndingsApart();
    std::int64_t behindMove(std::int64_t offset, const LineStretch& lines, bool isEnd) const;
    std::int64_t inMovedText(std::int64_t offset) const;
    std::int64_t movedLength() const { return static_cast<std::int64_t>(moved_.size()); }
    std::int64_t deletionStart() const { return lower_.start - takenEnding_; }
    /// By how much the text behind both stretches shifts.
    std::int64_t growth() const;

    const Ondo::Tree& tree_;
    LineStretch upper_;
    LineStretch lower_;
    std::int64_t takenEnding_; ///< the length of the line ending that the lower stretch takes along
    Digits digits_;
    std::u16string moved_;     ///< goes in where the upper stretch starts
    std::int64_t lead_ = 0;    ///< what comes before the lower stretch in it
    std::u16string_view left_; ///< stays where the lower stretch was
};

UpwardMove::UpwardMove(const Ondo::Tree& tree, const LineStretch& upper, const LineStretch& lower)
    : tree_(tree), upper_(upper), lower_(lower),
      takenEnding_(isLineEnding(lower.last.node) ? 0 : upper.last->charCount),
      moved_(tree.markdownIn({lower.start, lower.length()})) {
    moved_ += tree.markdownIn({deletionStart(), takenEnding_});
    if (lower.length() > 0) takeNumberOfList();
    keepEndingsApart();
}

/// Of the first line.
LinePrefix prefixOf(const Ondo::Tree& tree, const LineStretch& lines) {
    Node::Iterator line = lines.first;
    line.beginningOfLine();
    return LinePrefix(tree, line);
}

std::u16string_view digitsAt(const LinePrefix& prefix, const LinePrefix::Marker& marker) {
    const std::u16string_view text = std::u16string_view(prefix.text).substr(marker.start);
    return text.substr(0, std::min(text.find_first_of(u".)"), text.size()));
}

bool isOrdered(const Node* container) {
    return isListItem(container) && static_cast<const Ondo::Block::ListItemNode*>(container)->isOrdered();
}

/// An item that comes before the first one of its ordered list takes over its number.
void UpwardMove::takeNumberOfList() {
    const LinePrefix first = prefixOf(tree_, upper_);
    const LinePrefix prefix = prefixOf(tree_, lower_);
    for (const LinePrefix::Marker& marker : prefix.markers) {
        if (!isOrdered(marker.container)) continue;
        for (const LinePrefix::Marker& other : first.markers) {
            if (other.container != marker.container->parent->firstChild) continue;
            const auto length = static_cast<std::int64_t>(digitsAt(prefix, marker).size());
            digits_ = {static_cast<std::int64_t>(marker.start), length,
                       std::u16string(digitsAt(first, other))};
            moved_.replace(marker.start, digitsAt(prefix, marker).size(), digits_.replacement);
            return;
        }
    }
}

/// Where a line that ends in a lone carriage return would come before an empty line, it gets a line feed of
/// its own, or it would take the one of that line.
void UpwardMove::keepEndingsApart() {
    if (moved_.back() == u'\r' && deletionStart() > upper_.start && unitAt(tree_, upper_.start) == u'\n')
        moved_ += u'\n';
    if (moved_.front() == u'\n' && unitAt(tree_, upper_.start - 1) == u'\r') {
        moved_.insert(0, 1, u'\n');
        lead_ = 1;
    }
    if (unitAt(tree_, upper_.end - 1) == u'\r' && unitAt(tree_, lower_.end) == u'\n') left_ = u"\n";
}

std::int64_t UpwardMove::growth() const {
    return movedLength() + static_cast<std::int64_t>(left_.size()) - lower_.length() - takenEnding_;
}

std::int64_t UpwardMove::inMovedText(std::int64_t offset) const {
    const std::int64_t at = offset - lower_.start;
    const std::int64_t inDigits = std::clamp<std::int64_t>(at - digits_.at, 0, digits_.length);
    const auto replaced = static_cast<std::int64_t>(digits_.replacement.size());
    const std::int64_t shifted = inDigits == digits_.length ? replaced : std::min(inDigits, replaced);
    return upper_.start + lead_ + at - inDigits + shifted;
}

/// Where an offset of the text goes. The end of `lines` is theirs for what ends there, and at the end of the
/// text.
std::int64_t UpwardMove::behindMove(std::int64_t offset, const LineStretch& lines, bool isEnd) const {
    const bool ownsEnd = isEnd || lines.end == tree_.length();
    const bool isTheirs = lines.start <= offset && offset < lines.end + (ownsEnd ? 1 : 0);
    if (isTheirs ? lines.start == upper_.start : upper_.start <= offset && offset < upper_.end)
        return offset + movedLength();
    if (isTheirs || (lower_.start <= offset && offset < lower_.end)) return inMovedText(offset);
    return offset < upper_.start ? offset : offset + growth();
}

std::vector<Result> UpwardMove::results(const LineStretch& lines, std::int64_t selectionOffset,
                                        std::int64_t selectionLength) const {
    // What the selection had of a line ending at the end of the text may be gone.
    const std::int64_t length = tree_.length() + growth();
    const std::int64_t start = std::min(behindMove(selectionOffset, lines, false), length);
    const std::int64_t end =
        std::min(behindMove(selectionOffset + selectionLength, lines, selectionLength > 0), length);
    return {Result(deletionStart(), lower_.length() + takenEnding_, std::u16string(left_), 0, 0),
            Result(upper_.start, 0, moved_, start, std::max<std::int64_t>(end - start, 0))};
}

} // namespace

std::vector<Result> MoveLines::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                   std::int64_t selectionOffset, std::int64_t selectionLength) const {
    const bool up = direction_ == MoveLinesDirection::Up;
    const LineStretch lines = withFoldedSections(linesOf(tree, offset, length));
    if (up ? lines.start == 0 : lines.end == tree.length()) return {};
    if (!leaveTablesWhole(lines, up)) return {};
    const LineStretch passed = up ? lineAbove(tree, lines) : lineBelow(lines);
    const LineStretch& upper = up ? passed : lines;
    const LineStretch& lower = up ? lines : passed;
    if (crossesFrontMatter(tree, upper.start, lower.end) || makesFrontMatter(tree, upper, lower)) return {};
    if (!isPartOfTable(lines) && swapJoinsTables(tree, upper, lower)) return {};
    return UpwardMove(tree, upper, lower).results(lines, selectionOffset, selectionLength);
}

} // namespace CVN::Operation
