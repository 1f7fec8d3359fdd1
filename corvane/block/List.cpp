#include "corvane/block/List.h"

#include <optional>
#include <tuple>

#include "corvane/block/LineChanges.h"
#include "corvane/scan/Assert.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/BlockParser.h"

namespace Ondo::Block {

namespace {

constexpr std::int64_t longestNumber = 9;
/// Text that stands this many columns behind its marker is indented code.
constexpr std::int64_t codeIndentation = 4;

constexpr bool isOrderedMarker(List::MarkerType type) {
    return type < List::MarkerType::unordered_asterisk;
}

List::MarkerType bulletType(char16_t c) {
    if (c == u'*') return List::MarkerType::unordered_asterisk;
    return c == u'-' ? List::MarkerType::unordered_dash : List::MarkerType::unordered_plus;
}

/// Moves behind the marker's characters; fails without one.
List::MarkerType matchMarkerCharacters(Go& go) {
    if (go.isNext(Go::characterAnyOf(u"*+-"))) {
        const char16_t c = go.unsafePeekNextCharacter();
        go.nextMatch(Go::always, 1, 1);
        return bulletType(c);
    }
    go.nextMatch(Go::decimalNumber, 1, longestNumber);
    const bool isDot = go.isNext(Go::character(U'.'));
    go.nextMatch(Go::characterAnyOf(u".)"), 1, 1);
    if (go.hasFailed()) return List::MarkerType::none;
    return isDot ? List::MarkerType::ordered_dot : List::MarkerType::ordered_parenthesis;
}

std::int64_t writtenNumber(std::u16string_view text, const Lines::Line& line) {
    Go go(text, line.contentStart, line.end);
    const std::int64_t end = go.nextWhile(Go::decimalNumber);
    return Util::decimalToInteger(go.substring(line.contentStart, end));
}

} // namespace

List::MarkerType List::matchMarker(Go& cursor, bool markerNeedsBlank) {
    Go go = cursor;
    const MarkerType type = matchMarkerCharacters(go);
    const bool isComplete = !markerNeedsBlank && go.pos() == go.maxPos();
    if (type == MarkerType::none || !(isComplete || go.isNext(Go::spaceOrTab))) return MarkerType::none;
    go.nextWhile(Go::character(U' '), 1);
    cursor = go;
    return type;
}

List::TaskType List::matchTask(Go& cursor) {
    cursor.nextMatch(Go::character(U'['), 1, 1);
    const bool isTodo = cursor.isNext(Go::character(U' '));
    cursor.nextMatch(Go::characterAnyOf(u" xX"), 1, 1);
    cursor.nextMatch(Go::character(U']'), 1, 1);
    cursor.nextMatch(Go::character(U' '), 1, 1);
    if (cursor.hasFailed()) return TaskType::none;
    return isTodo ? TaskType::todo : TaskType::done;
}

/// The first line of an item, measured.
struct List::Head {
    MarkerType marker;
    TaskType task;
    std::int64_t markerEnd;         ///< behind marker, its one space and the task box
    bool isEmpty;                   ///< nothing but blanks behind the marker
    std::int64_t textColumn;        ///< right behind the marker: where the line's own text is reckoned from
    std::int64_t contentColumn;     ///< where the text of further lines begins
    std::int64_t neededIndentation; ///< what further lines need, relative to what the container leaves them
};

bool List::matchHead(const BlockParser& parser, std::int64_t line, Head& head) const {
    const Lines::Line& l = parser.lines[line];
    if (l.localIndentation() >= codeIndentation) return false;
    Go go(parser.text, l.contentStart, l.end);
    head.marker = matchMarker(go, markerNeedsBlank);
    if (head.marker == MarkerType::none) return false;
    head.markerEnd = go.pos();
    const bool hasSpace = go.isPrevious(Go::character(U' '));
    const bool hasTab = !hasSpace && go.isNext(Go::character(U'\t'));
    const std::int64_t content = Go(go).nextWhile(Go::spaceOrTab);
    head.isEmpty = content == l.end;

    head.task = TaskType::none;
    if (tasks && content == head.markerEnd && !isOrderedMarker(head.marker)) head.task = matchTask(go);
    if (head.task != TaskType::none) head.markerEnd = go.pos();

    head.textColumn = l.contentColumn + (hasTab ? 1 : 0) + head.markerEnd - l.contentStart;
    const std::int64_t column = l.indentationAtOffset(content, parser.text);
    const bool isReckonedFromMarker = head.isEmpty || column - head.textColumn >= codeIndentation;
    head.contentColumn = isReckonedFromMarker ? head.textColumn : column;
    if (!hasSpace && !hasTab) ++head.contentColumn;
    head.neededIndentation = head.contentColumn - l.followingIndentation;
    return true;
}

/// Whether a first item may end the paragraph above it, if there is one.
bool List::mayInterrupt(const BlockParser& parser, std::int64_t line, const Node* parent,
                        const Head& head) const {
    const Node* const above = parser.lastBlock(parent);
    if (!above || above->type != ONDO_PARAGRAPH_NODE) return true;
    if (head.isEmpty && !emptyItemInterruptsParagraph) return false;
    if (!isOrderedMarker(head.marker) || anyNumberInterruptsParagraph) return true;
    // The characters, not the number: "01." is none, which is stricter than CommonMark.
    const Lines::Line& l = parser.lines[line];
    const Go go(parser.text, l.contentStart, l.end);
    return go.isNextString(u"1.") || go.isNextString(u"1)");
}

/// The lines of an item behind its first. Whether blank lines belong is told by the text behind them.
class List::ItemLines : public BlockParser::Container {
public:
    ItemLines(List& rule, BlockParser& parser, const Head& head, std::int64_t line, std::int64_t lastLine,
              Node* parent)
        : rule_(rule), parser_(parser), head_(head), firstLine_(line), lastLine_(lastLine), parent_(parent),
          depth_(parser.depth()), judgedLine_(line), changes_(parser.lines) {}

    bool takeLine(std::int64_t line) override {
        if (parser_.lines[line].isBlank()) return takeBlankLine(line);
        if (line != judgedLine_) judge(line);
        if (verdict_ != Verdict::Indented && verdict_ != Verdict::Lazy) return false;
        if (verdict_ == Verdict::Indented)
            changes_.shift(line, shift_);
        else
            changes_.markLazy(line);
        hasText_ = true;
        return true;
    }

    void giveBackFrom(std::int64_t line) { changes_.undoFrom(line); }

private:
    enum class Verdict { Ends, EndsAtSibling, Indented, Lazy };

    /// Blank lines between two siblings belong to the earlier one; those behind the last text do not.
    bool takeBlankLine(std::int64_t line) {
        if (line > judgedLine_) {
            std::int64_t text = line + 1;
            while (isAvailable(text) && parser_.lines[text].isBlank())
                ++text;
            judge(text);
        }
        if (verdict_ == Verdict::Ends) return false;
        changes_.shift(line, head_.neededIndentation);
        return true;
    }

    /// Whether the containers around the item have the line.
    bool isAvailable(std::int64_t line) { return line <= lastLine_ && parser_.hasLine(depth_, line); }

    /// Decides about the next line that is not blank; blank lines lie before it, up to the one taken last.
    void judge(std::int64_t line) {
        judgedLine_ = line;
        verdict_ = isAvailable(line) ? verdictOn(line) : Verdict::Ends;
    }

    Verdict verdictOn(std::int64_t line) {
        const Lines::Line& l = parser_.lines[line];
        const bool isBehindBlank = line > firstLine_ + 1 && parser_.lines[line - 1].isBlank();
        // An item can begin with at most one blank line. A line that an outer container has lost is not this
        // item's by its indentation.
        const bool hasEndedEmpty = head_.isEmpty && !hasText_ && isBehindBlank;
        if (!l.lazy && !hasEndedEmpty && isIndented(l)) return Verdict::Indented;
        const bool isTerminated = rule_.hasMatchingTerminatingRule(parser_, line, lastLine_, parent_);
        if (!l.lazy && l.localIndentation() < codeIndentation) {
            Go go(parser_.text, l.contentStart, l.end);
            const MarkerType marker = matchMarker(go, rule_.markerNeedsBlank);
            if (marker == head_.marker && !isTerminated) return Verdict::EndsAtSibling;
            if (marker != MarkerType::none) return Verdict::Ends;
        }
        return isBehindBlank || isTerminated || rule_.noLazyContinuation ? Verdict::Ends : Verdict::Lazy;
    }

    bool isIndented(const Lines::Line& l) {
        const auto tab = rule_.tabContinuesItem ? l.indentationAfterNextTab(l.baseIndentation, parser_.text)
                                                : std::nullopt;
        shift_ = tab ? *tab - l.baseIndentation : head_.neededIndentation;
        return tab || l.localIndentation() >= head_.neededIndentation;
    }

    List& rule_;
    BlockParser& parser_;
    const Head& head_;
    std::int64_t firstLine_;
    std::int64_t lastLine_;
    Node* parent_;
    std::size_t depth_; ///< of the containers around the item
    bool hasText_ = false;
    std::int64_t judgedLine_; ///< the line that the verdict is on
    Verdict verdict_ = Verdict::Ends;
    std::int64_t shift_ = 0; ///< by how much an indented line's base moves
    LineChanges changes_;
};

std::pair<std::int64_t, std::unique_ptr<ListItemNode>>
List::parseListItem(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                    const ListItemNode* previousItem, ParseAction action) {
    Head head{};
    if (!matchHead(parser, line, head)) return {0, nullptr};
    if (previousItem ? previousItem->markerType != head.marker : !mayInterrupt(parser, line, parent, head))
        return {0, nullptr};
    if (action == ParseAction::Check) return {1, nullptr};

    Lines::Line& l = parser.lines[line];
    const std::int64_t written = isOrderedMarker(head.marker) ? writtenNumber(parser.text, l) : 0;
    const std::int64_t first = isOrderedMarker(head.marker) ? written : 1;
    const std::int64_t number = previousItem ? previousItem->number + 1 : first;
    auto item =
        std::make_unique<ListItemNode>(l.start, l.next, line, head.marker, head.task, written, number);
    parser.takePrefix(line, ONDO_LIST_ITEM_MARKER_NODE, head.markerEnd, item.get());
    l.baseIndentation = head.textColumn;
    l.followingIndentation = head.contentColumn;

    ItemLines further(*this, parser, head, line, lastLine, parent);
    const std::int64_t count = parser.parseBlock(line, lastLine, item.get(), &further);
    further.giveBackFrom(line + count);
    item->charCount = parser.lines[line + count - 1].next - item->offsetWhenParsed;
    item->lineCount = count;
    return {count, std::move(item)};
}

std::int64_t List::match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                         ParseAction action) {
    if (!parser.canNest(parent)) return 0;
    auto [count, item] = parseListItem(parser, line, lastLine, parent, nullptr, action);
    if (count == 0 || action == ParseAction::Check) return count;

    const Lines& lines = parser.lines;
    auto list = std::make_unique<ListNode>(lines[line].start, lines[line].next, line, item->markerType);
    std::int64_t next = line;
    while (count != 0) {
        const ListItemNode* const previous = list->link(std::move(item));
        next += count;
        if (next > lastLine || !parser.hasLine(next) || lines[next].lazy ||
            hasMatchingTerminatingRule(parser, next, lastLine, parent))
            break;
        std::tie(count, item) = parseListItem(parser, next, lastLine, parent, previous, action);
    }
    list->charCount = lines[next - 1].next - list->offsetWhenParsed;
    list->lineCount = next - line;
    list->setIsLoose();
    parser.mergeNode(parent, std::move(list));
    return next - line;
}

} // namespace Ondo::Block
