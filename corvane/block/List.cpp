#include "corvane/block/List.h"

#include <optional>
#include <tuple>

#include "corvane/block/SavedLines.h"
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

    SavedLines saved(parser.lines);
    const std::int64_t last = takeLines(parser, head, line, lastLine, parent, saved);
    const std::int64_t count = parser.parseBlock(line, last, item.get());
    item->charCount = parser.lines[line + count - 1].next - item->offsetWhenParsed;
    item->lineCount = count;
    saved.restoreFrom(line + count);
    return {count, std::move(item)};
}

/// Whether a marker stands on the line, less than a code block's indentation away.
bool List::startsItem(const BlockParser& parser, std::int64_t line, MarkerType& marker) const {
    const Lines::Line& l = parser.lines[line];
    Go go(parser.text, l.contentStart, l.end);
    marker = matchMarker(go, markerNeedsBlank);
    return marker != MarkerType::none && l.localIndentation() < codeIndentation;
}

/// Rewrites the lines behind the first that may belong to the item; returns the last of them.
std::int64_t List::takeLines(BlockParser& parser, const Head& head, std::int64_t line, std::int64_t lastLine,
                             Node* parent, SavedLines& saved) {
    Lines& lines = parser.lines;
    std::int64_t last = line;
    for (std::int64_t k = line + 1; k <= lastLine; ++k) {
        Lines::Line& l = lines[k];
        if (l.isBlank()) {
            saved.save(k);
            l.setBaseIndentation(l.baseIndentation + head.neededIndentation);
            continue;
        }
        const bool isBehindBlank = k > line + 1 && lines[k - 1].isBlank();
        // An item can begin with at most one blank line.
        const bool hasEndedEmpty = head.isEmpty && last == line && isBehindBlank;
        const auto tab =
            tabContinuesItem ? l.indentationAfterNextTab(l.baseIndentation, parser.text) : std::nullopt;
        const bool isIndented = tab || l.localIndentation() >= head.neededIndentation;
        // A line that an outer container has lost is not this item's by its indentation.
        if (isIndented && !l.lazy && !hasEndedEmpty) {
            saved.save(k);
            l.setBaseIndentation(tab ? *tab : l.baseIndentation + head.neededIndentation);
            last = k;
            continue;
        }
        const bool isTerminated = hasMatchingTerminatingRule(parser, k, lastLine, parent);
        MarkerType marker = MarkerType::none;
        if (!l.lazy && startsItem(parser, k, marker)) {
            // Blank lines between two siblings belong to the earlier one.
            if (marker == head.marker && !isTerminated) last = k - 1;
            break;
        }
        if (isBehindBlank || isTerminated || noLazyContinuation) break;
        saved.save(k);
        l.lazy = true;
        last = k;
    }
    return last;
}

std::int64_t List::match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                         ParseAction action) {
    if (!parser.canNest()) return 0;
    auto [count, item] = parseListItem(parser, line, lastLine, parent, nullptr, action);
    if (count == 0 || action == ParseAction::Check) return count;

    const Lines& lines = parser.lines;
    auto list = std::make_unique<ListNode>(lines[line].start, lines[line].next, line, item->markerType);
    std::int64_t next = line;
    while (count != 0) {
        const ListItemNode* const previous = list->link(std::move(item));
        next += count;
        if (next > lastLine || lines[next].lazy || hasMatchingTerminatingRule(parser, next, lastLine, parent))
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
