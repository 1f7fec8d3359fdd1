#include "corvane/operation/OperationRenumberOrderedList.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "corvane/block/List.h"
#include "corvane/operation/IndentInfo.h"
#include "corvane/operation/InlineRuns.h"
#include "corvane/operation/LinePrefix.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Util.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Block::ListItemNode;

namespace {

constexpr std::int64_t longestNumber = 9;

bool isBlankUnit(char16_t c) {
    return c == u' ' || c == u'\t';
}

/// 0 stands for the end of the text.
bool isLineEndingUnit(char16_t c) {
    return c == 0 || c == u'\n' || c == u'\r';
}

/// No block starts with such a unit.
bool isLetter(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c >= 0x80;
}

std::u16string spaces(std::int64_t count) {
    return std::u16string(static_cast<std::size_t>(count), u' ');
}

/// Behind the last tab; 0 without one.
std::int64_t endOfTabs(std::u16string_view blanks) {
    return static_cast<std::int64_t>(blanks.rfind(u'\t') + 1);
}

struct Change {
    std::int64_t offset;
    std::int64_t length;
    std::u16string text;
};

/// Walks over lists from their start, and gathers the changes in document order.
class Renumbering {
public:
    explicit Renumbering(const Ondo::Tree& tree) : tree_(tree), isSimplified_(isSimplified(tree)) {}

    /// `at` starts a line.
    void walk(Node::Iterator at, std::int64_t end) {
        startLine(at.offset);
        countQuotesAround(at.node);
        for (; at.node && at.offset < end; at.nextInSequence()) {
            leaveFrames(at.offset);
            if (isContainer(at.node)) frames_.push_back({at.node, at.end(), {}});
            if (!at->firstChild) visitLeaf(at);
        }
    }

    const std::vector<Change>& changes() const { return changes_; }

private:
    /// A container; for an item whose marker has come, also where its text stands, in columns from the last
    /// quote's marker, and by how many columns it moves against what is around it.
    struct Frame {
        const Node* container;
        std::int64_t end;
        std::optional<std::int64_t> textColumn;
        std::int64_t newTextColumn = 0;
        std::int64_t shift = 0;
    };

    void leaveFrames(std::int64_t offset) {
        for (; !frames_.empty() && frames_.back().end <= offset; frames_.pop_back())
            left_ = frames_.back();
    }

    void startLine(std::int64_t offset) {
        read_ = offset;
        column_ = newColumn_ = base_ = newBase_ = quotes_ = 0;
        opensLine_ = true;
    }

    void countQuotesAround(const Node* node) {
        for (const Node* around = node->parent; around; around = around->parent)
            quotesAround_ += isBlockQuote(around) ? 1 : 0;
    }

    void visitLeaf(const Node::Iterator& leaf) {
        if (isLineEnding(leaf.node)) return startLine(leaf.end());
        const bool isQuoteMarker = isOfType(leaf.node, Ondo::ONDO_BLOCK_QUOTE_MARKER_NODE);
        if (opensLine_ && isOfType(leaf.node, Ondo::ONDO_SPACE_NODE)) visitOpeningSpace(leaf);
        if (isOfType(leaf.node, Ondo::ONDO_LIST_ITEM_MARKER_NODE)) visitMarker(leaf);
        if (isQuoteMarker) visitQuoteMarker(leaf);
        opensLine_ = isQuoteMarker;
    }

    void visitQuoteMarker(const Node::Iterator& marker) {
        readTo(marker.end());
        base_ = column_;
        newBase_ = newColumn_;
        ++quotes_;
    }

    /// Reads the line up to an offset for its columns.
    void readTo(std::int64_t offset) {
        const std::u16string_view text = tree_.markdownIn({read_, offset - read_});
        column_ += widthFrom(column_, text);
        newColumn_ += widthFrom(newColumn_, text);
        read_ = offset;
    }

    /// Blanks at the start of a line, or behind the marker of a quote, are what the items want that stand in
    /// as many quotes. Where a tab is enough for an item, each tab serves one.
    std::int64_t shiftOf(std::u16string_view blanks) const {
        std::int64_t tabs = isSimplified_ ? std::count(blanks.begin(), blanks.end(), u'\t') : 0;
        std::int64_t quotes = quotesAround_;
        std::int64_t shift = 0;
        for (const Frame& frame : frames_) {
            if (isBlockQuote(frame.container))
                ++quotes;
            else if (quotes == quotes_ && --tabs < 0)
                shift += frame.shift;
        }
        return shift;
    }

    /// Lazy text that is indented too far to start a block must not come to start one: it moves with the
    /// items that it is indented for. Where the text of the next item comes so near that the line would be
    /// one of its own, it is indented too far for that one instead, unless it is mere text. Null for other
    /// lines.
    std::optional<std::int64_t> shiftOfLazyText(const Node::Iterator& space,
                                                std::u16string_view blanks) const {
        if (isSimplified_ || isLineEndingUnit(unitAt(tree_, space.end()))) return std::nullopt;
        const std::int64_t column = column_ + widthFrom(column_, blanks) - base_;
        const std::int64_t newColumn = newColumn_ + widthFrom(newColumn_, blanks) - newBase_;
        std::int64_t outer = 0;
        std::int64_t shift = 0;
        std::optional<std::int64_t> limit;
        std::int64_t innermost = 0;
        std::int64_t quotes = quotesAround_;
        for (const Frame& frame : frames_) {
            quotes += isBlockQuote(frame.container) ? 1 : 0;
            if (quotes != quotes_ || !frame.textColumn) continue;
            innermost = frame.newTextColumn;
            if (limit) continue;
            if (column < *frame.textColumn) {
                limit = frame.newTextColumn;
            } else {
                outer = *frame.textColumn;
                shift += frame.shift;
            }
        }
        if (!limit || column - outer < codeIndentation) return std::nullopt;
        const bool staysText = newColumn + shift < *limit || isLetter(unitAt(tree_, space.end()));
        return staysText ? shift : innermost + codeIndentation - newColumn;
    }

    void visitOpeningSpace(const Node::Iterator& space) {
        readTo(space.offset);
        const std::u16string blanks(textOf(tree_, space));
        const std::int64_t end = newColumn_ + widthFrom(newColumn_, blanks);
        const auto lazyShift = shiftOfLazyText(space, blanks);
        const std::int64_t shift = lazyShift ? *lazyShift : shiftOf(blanks) - intrusion(space, end);
        const std::int64_t newEnd = end + (shift < 0 ? shortened(space, blanks, -shift) : shift);
        if (shift > 0) change(space.offset + endOfTabs(blanks), 0, spaces(shift));
        column_ += widthFrom(column_, blanks);
        newColumn_ = newEnd;
        read_ = space.end();
    }

    /// By how much an item that starts here would stand in the one before, whose marker gets shorter.
    std::int64_t intrusion(Node::Iterator space, std::int64_t newEnd) const {
        space.nextInSequence();
        const bool isItem = isOfType(space.node, Ondo::ONDO_LIST_ITEM_MARKER_NODE);
        if (!isItem || left_.shift >= 0 || space->maker->previousSibling != left_.container) return 0;
        return std::max<std::int64_t>(0, newEnd - newBase_ + shiftOf({}) - left_.newTextColumn + 1);
    }

    /// Takes columns off blanks, as far as they go; answers by how many the end moves. A tab gives way to as
    /// many spaces as are left of it, but stays where it serves an item whatever its width.
    std::int64_t shortened(const Node::Iterator& space, std::u16string_view blanks, std::int64_t columns) {
        const std::int64_t tabs = endOfTabs(blanks);
        const std::int64_t behindTabs = sizeOf(blanks) - tabs;
        if (tabs == 0 || isSimplified_ || behindTabs >= columns) {
            const std::int64_t length = std::min(columns, behindTabs);
            if (length > 0) change(space.offset + tabs, length, {});
            return -length;
        }
        const std::int64_t end = newColumn_ + widthFrom(newColumn_, blanks);
        const std::int64_t left = std::max<std::int64_t>(0, widthFrom(column_, blanks) - columns);
        change(space.offset, sizeOf(blanks), spaces(left));
        return newColumn_ + left - end;
    }

    void visitMarker(const Node::Iterator& marker) {
        const auto* const item = static_cast<const ListItemNode*>(marker->maker);
        readTo(marker.offset);
        const std::int64_t digits = item->isOrdered() ? digitCount(marker) : 0;
        const std::u16string number = newNumber(item);
        const std::int64_t newDigits = number.empty() ? digits : sizeOf(number);
        setTextColumns(item, contentWidth(marker, column_, digits, digits),
                       contentWidth(marker, newColumn_, newDigits, digits));
        if (number.empty()) return;
        change(marker.offset, digits, number);
        read_ += digits;
        column_ += digits;
        newColumn_ += newDigits;
    }

    /// Empty for an item that keeps what it has.
    static std::u16string newNumber(const ListItemNode* item) {
        if (!item->isOrdered() || item->writtenNumber == item->number) return {};
        std::u16string number = Ondo::Util::toString(item->number);
        return sizeOf(number) > longestNumber ? std::u16string() : number;
    }

    /// The marker stands in the innermost block of its line, so the item need not be the last frame.
    void setTextColumns(const Node* item, std::int64_t width, std::int64_t newWidth) {
        const auto isItems = [item](const Frame& frame) { return frame.container == item; };
        const auto frame = std::find_if(frames_.rbegin(), frames_.rend(), isItems);
        if (frame == frames_.rend()) return;
        frame->textColumn = column_ - base_ + width;
        frame->newTextColumn = newColumn_ - newBase_ + newWidth;
        frame->shift = newWidth - width;
    }

    std::int64_t digitCount(const Node::Iterator& marker) const {
        std::u16string_view text = textOf(tree_, marker);
        return sizeOf(text.substr(0, text.find_first_of(u".)")));
    }

    /// From the start of a marker to the text of its item, in columns. A tab between them gives or takes.
    std::int64_t contentWidth(const Node::Iterator& marker, std::int64_t column, std::int64_t digits,
                              std::int64_t writtenDigits) const {
        const std::int64_t markerEnd = column + digits + 1;
        const std::int64_t behind = marker.offset + writtenDigits + 1;
        std::int64_t text = markerEnd;
        std::int64_t at = behind;
        for (; isBlankUnit(unitAt(tree_, at)); ++at)
            text = columnBehind(unitAt(tree_, at), text);
        const char16_t next = unitAt(tree_, at);
        const bool isEmpty = isLineEndingUnit(next);
        const bool isCode = text - (markerEnd + 1) >= codeIndentation;
        return (isEmpty || isCode ? markerEnd + 1 : text) - column;
    }

    void change(std::int64_t offset, std::int64_t length, std::u16string text) {
        changes_.push_back({offset, length, std::move(text)});
    }

    const Ondo::Tree& tree_;
    bool isSimplified_;
    std::vector<Frame> frames_;     ///< the containers around, from the first line walked on
    Frame left_ = {nullptr, 0, {}}; ///< the container that ended last
    std::int64_t quotesAround_ = 0; ///< those beyond them
    std::vector<Change> changes_;

    // The line at hand
    std::int64_t read_ = 0;      ///< how far it is read for the columns
    std::int64_t column_ = 0;    ///< there, as the note stands
    std::int64_t newColumn_ = 0; ///< and as it will
    std::int64_t base_ = 0;      ///< behind the last quote's marker, as the note stands
    std::int64_t newBase_ = 0;   ///< and as it will
    std::int64_t quotes_ = 0;    ///< whose marker has come
    bool opensLine_ = true;      ///< nothing but quotes' markers has
};

/// From a node to the outermost list around it; stays where there is none.
void toOutermostList(Node::Iterator& at) {
    Node::Iterator list;
    for (Node::Iterator around = at; around.node; around.parent())
        if (isOfType(around.node, Ondo::ONDO_LIST_NODE)) list = around;
    if (list.node) at = list;
}

} // namespace

std::vector<Result> RenumberOrderedList::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                             std::int64_t selectionOffset,
                                             std::int64_t selectionLength) const {
    Node::Iterator first = leafAt(tree, offset);
    Node::Iterator last = leafAt(tree, offset + length);
    if (!first->parent) return {};
    toOutermostList(first);
    toOutermostList(last);
    first.beginningOfLine();
    Renumbering renumbering(tree);
    renumbering.walk(first, last.end());
    std::vector<Result> results;
    const std::vector<Change>& changes = renumbering.changes();
    for (auto change = changes.rbegin(); change != changes.rend(); ++change)
        Result::addToList(results, change->offset, change->length, change->text, selectionOffset,
                          selectionLength);
    return results;
}

} // namespace CVN::Operation
