#include "corvane/operation/OperationIndent.h"

#include <algorithm>

#include "corvane/block/List.h"
#include "corvane/operation/BlockStructure.h"
#include "corvane/scan/Lines.h"

namespace CVN::Operation {

namespace {

using Ondo::Node;

/// The lines between two fences.
bool isFencedContent(const Node* node) {
    return node->type == Ondo::ONDO_FENCED_CODE_CONTENT_ATTRIBUTE_NODE ||
           node->type == Ondo::ONDO_MATH_BLOCK_CONTENT_ATTRIBUTE_NODE;
}

bool endsLine(const Node* node) {
    return node->type == Ondo::ONDO_LINE_ENDING_NODE || node->type == Ondo::ONDO_HARD_LINE_BREAK_NODE ||
           isFencedContent(node);
}

bool startsLine(const Node* space) {
    if (space->previousSibling) return endsLine(space->previousSibling);
    return space->parent->isBlock() || isFencedContent(space->parent);
}

bool isBesideMarkerOrStartsLine(const Node* space) {
    return isContainerMarker(space->nextSibling) || isContainerMarker(space->previousSibling) ||
           startsLine(space);
}

/// What follows the last marker of a blank line indents nothing.
bool isRestOfBlankLine(const Node* space) {
    return space->parent->type == Ondo::ONDO_BLANK_LINE_NODE && space->previousSibling &&
           !isContainerMarker(space->nextSibling);
}

bool isIndentation(const Node* space, const Node* block) {
    return space->type == Ondo::ONDO_SPACE_NODE && isBesideMarkerOrStartsLine(space) &&
           !isRestOfBlankLine(space) && isContainer(block->parent);
}

/// Whether a line, behind a line feed, is no longer the further line of a paragraph.
bool continuesParagraph(const Node::Iterator& line) {
    return !line->isBlock() && line->parentBlock()->type == Ondo::ONDO_PARAGRAPH_NODE;
}

/// The text before the indentation of a line, less its last blanks: what an empty line in its place needs.
std::u16string emptyLineBefore(const Ondo::Tree& tree, std::int64_t lineStart, const IndentInfo& info) {
    std::u16string text(tree.markdownIn({lineStart, info.indentationOffset - lineStart}));
    while (!text.empty() && text.back() == u' ')
        text.pop_back();
    if (text.empty()) return std::u16string(emptyLineAt(tree, lineStart));
    return text + u'\n';
}

std::u16string ordinalOne(const Ondo::Tree& tree, const Node::Iterator& item, const Node::Iterator& marker) {
    const auto type = static_cast<const Ondo::Block::ListItemNode*>(item.node)->markerType;
    std::u16string text = type == Ondo::Block::List::MarkerType::ordered_dot ? u"1." : u"1)";
    if (unitAt(tree, marker.end() - 1) == u' ') text += u' ';
    return text;
}

bool isOrdered(const Node* item) {
    return static_cast<const Ondo::Block::ListItemNode*>(item)->isOrdered();
}

/// What lacks the marker of a quote stands behind all of it.
void toOutermostQuote(Node::Iterator& at) {
    const Node* quote = nullptr;
    for (const Node* node = at.node; node; node = node->parent)
        if (isBlockQuote(node)) quote = node;
    if (quote) climbTo(quote, at);
}

/// By how much an ordered item's marker gets shorter when it counts from 1.
std::int64_t shrinkOf(const Ondo::Tree& tree, const Node::Iterator& item) {
    if (!isOrdered(item.node)) return 0;
    const Node::Iterator marker = markerOf(item);
    return marker->charCount - static_cast<std::int64_t>(ordinalOne(tree, item, marker).size());
}

void setOrdinalToOne(const Ondo::Tree& tree, const Node::Iterator& item, std::vector<Result>& results,
                     std::int64_t selectionOffset, std::int64_t selectionLength) {
    const Node::Iterator marker = markerOf(item);
    std::u16string text = ordinalOne(tree, item, marker);
    if (textOf(tree, marker) == text) return;
    Result::addToList(results, marker.offset, marker->charCount, std::move(text), selectionOffset,
                      selectionLength);
}

/// A marker of a quote that has no blank of its own would take one of the indentation.
void replaceIndentation(const Ondo::Tree& tree, const IndentInfo& info, std::u16string text,
                        std::vector<Result>& results, std::int64_t selectionOffset,
                        std::int64_t selectionLength) {
    if (!text.empty() && unitAt(tree, info.indentationOffset - 1) == u'>') text.insert(0, 1, u' ');
    Result::addToList(results, info.indentationOffset, info.indentationLength, std::move(text),
                      selectionOffset, selectionLength);
}

} // namespace

std::pair<bool, std::int64_t> Indent::spaceAsIndentation(const Node* node,
                                                         std::u16string_view indentationText) {
    return spaceAsIndentation(node, indentationText, node->parentBlock());
}

std::pair<bool, std::int64_t>
Indent::spaceAsIndentation(const Node* node, std::u16string_view indentationText, const Node* block) {
    if (!isIndentation(node, block)) return {false, 0};
    const auto length = static_cast<std::int64_t>(indentationText.size());
    return {true, Ondo::Lines::Line::indentationAtOffsetRelativeToStart(length, 0, indentationText)};
}

std::int64_t Indent::blockNestLevel(const Node* node) {
    std::int64_t level = 0;
    for (; node; node = node->parent)
        if (isBlockQuote(node) || isOfType(node, Ondo::ONDO_LIST_NODE) ||
            isOfType(node, Ondo::ONDO_INDENTED_CODE_NODE))
            ++level;
    return level;
}

const Node* Indent::uppermostDirectAcendentListItem(const Node* item) {
    while (const Node* const around = chainParent(item))
        item = around;
    return item;
}

std::int64_t Indent::logicalIndentation(std::int64_t lineStart, std::int64_t offset, std::int64_t length,
                                        std::u16string_view text) {
    using Ondo::Lines;
    return Lines::Line::indentationAtOffsetRelativeToStart(offset + length, lineStart, text) -
           Lines::Line::indentationAtOffsetRelativeToStart(offset, lineStart, text);
}

std::int64_t Indent::markerIndentWidth(Node* item) {
    return CVN::Operation::markerIndentWidth(item);
}

bool Indent::isAtVirtualBlankLine(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                  const Node* node) {
    return length == 0 && offset == tree.length() && isOfType(node, Ondo::ONDO_LINE_ENDING_NODE);
}

Node::Iterator Indent::findPreviousRelevantListItem(At node, bool virtualBlankLine) {
    if (virtualBlankLine) {
        node.beginningOfLine();
        while (node.node && !node->isBlock())
            toPreviousLine(node);
        toOutermostQuote(node);
    } else {
        node.previousSibling();
    }
    bool passedBlank = false;
    for (; isBlank(node.node) && !itemStartingOn(node).node; node.previousSibling())
        passedBlank = true;
    while (isOfType(node.node, Ondo::ONDO_LIST_NODE)) {
        node.lastChild();
        if (isOfType(node->lastChild, Ondo::ONDO_LIST_NODE)) node.lastChild();
    }
    if (node.node && !isListItem(node.node)) node.parent();
    if (!isListItem(node.node) || (passedBlank && isEmptyItem(node.node))) return {};
    return node;
}

std::optional<IndentInfo> Indent::indentInfo(const At& lineNode, const At& item, const Ondo::Tree& tree) {
    return indentInfoOf(tree, lineNode, item.node, columnsOf(tree, item).content);
}

Indent::Level Indent::nextLevelIndentation(At item, std::int64_t width, const Ondo::Tree& tree) {
    Level next{columnsOf(tree, item).content, item.node, codeIndentation - 1};
    for (item = chainParent(item); item.node; item = chainParent(item)) {
        const std::int64_t content = columnsOf(tree, item).content;
        if (content > width) next = {content, item.node, codeIndentation - 1};
    }
    return next;
}

Indent::Level Indent::previousLevelIndentation(At item, std::int64_t width, const Ondo::Tree& tree) {
    for (; item.node; item = chainParent(item)) {
        const std::int64_t content = columnsOf(tree, item).content;
        if (content < width) return {content, item.node, codeIndentation - 1};
    }
    return {};
}

std::u16string Indent::indentationString(std::int64_t width, const Node* node, IndentStyle style) {
    if (style == IndentStyle::Spaces || width == 0)
        return CVN::Operation::indentationString(width, node, IndentStyle::Spaces);
    return std::u16string(static_cast<std::size_t>(chainDepth(node)), u'\t');
}

/// In the simplified dialect a tab makes a line belong to an item whatever the columns, so that tabs and
/// spaces don't mix: there the lines around tell the style.
IndentStyle Indent::styleFor(const Ondo::Tree& tree, const At& item, const At& beside) const {
    if (!isSimplified(tree)) return style_;
    std::u16string blanks = blanksOfLine(tree, item, item.node) + blanksBelow(tree, item);
    if (beside.node) {
        At last = beside;
        last.lastNodeOfSubtree();
        last.beginningOfLine();
        blanks += blanksOfLine(tree, beside, beside.node) + blanksOfLine(tree, last, beside.node);
    }
    if (blanks.empty()) return style_;
    return hasTab(blanks) ? IndentStyle::Tabs : IndentStyle::Spaces;
}

std::u16string Indent::blanksTo(const Ondo::Tree& tree, const Level& level, std::int64_t startColumn,
                                IndentStyle style) {
    const bool mayExceed = isSimplified(tree) && style == IndentStyle::Tabs;
    std::u16string blanks = indentationString(level.width, level.item, style);
    const std::int64_t excess = widthFrom(startColumn, blanks) - level.width;
    return mayExceed || (excess >= 0 && excess <= level.slack) ? blanks
                                                               : blanksOf(level.width, startColumn, style);
}

std::int64_t Indent::shiftOf(const Move& move) {
    return widthFrom(move.info.startColumn, move.blanks) - move.info.logicalWidth;
}

/// What is nested in the item already, and stays there, must not take in what comes under it.
Indent::Level Indent::levelUnder(const Ondo::Tree& tree, const At& item, const Move* before) {
    const std::int64_t content = columnsOf(tree, item).content;
    const At list = listAtEnd(item);
    if (!list.node) return {content, item.node, codeIndentation - 1};
    At nested = list;
    nested.lastChild();
    if (before && before->item.node == nested.node) nested = before->beside;
    return {content, item.node, std::min(columnsOf(tree, nested).content - content, codeIndentation) - 1};
}

Indent::Level Indent::levelBeside(const Ondo::Tree& tree, At item, std::int64_t width) {
    while (item.node && !isSimplified(tree) && columnsOf(tree, item).marker >= width)
        item = chainParent(item);
    return item.node ? Level{columnsOf(tree, item).marker, chainParent(item.node)} : Level();
}

std::optional<Indent::Move> Indent::moveIn(const Ondo::Tree& tree, const At& line, const Move* before) const {
    const At item = itemStartingOn(line);
    if (!item.node) return std::nullopt;
    const At previous = itemBefore(item);
    if (!previous.node) return std::nullopt;
    // Items that move together stay together.
    const bool isTogether = before && before->item.node == previous.node;
    if (!isTogether && takesWhatFollows(previous.node)) return std::nullopt;
    const auto info = indentInfoOf(tree, line, item.node, 0);
    if (!info) return std::nullopt;
    const At beside = isTogether ? before->beside : previous;
    const Level level = isTogether ? before->level : levelUnder(tree, previous, before);
    const IndentStyle style = isTogether ? before->style : styleFor(tree, item, previous);
    return Move{line,   item,  true,  *info,
                beside, level, style, blanksTo(tree, level, info->startColumn, style)};
}

/// Climbs only from a line that does leave its item: in a long item a climb takes its time.
std::optional<Indent::Move> Indent::leaving(const Ondo::Tree& tree, At line, const Node* first) const {
    if (isBlankLine(line)) return std::nullopt;
    At item = itemStartingOn(line);
    const bool startsItem = item.node;
    const Node* around = item.node;
    if (!startsItem) {
        around = selfOrAncestor(line.node, Ondo::ONDO_LIST_ITEM_NODE);
        if (!around || !isAncestor(around, first)) return std::nullopt;
        const Node* const block = blockHolding(line.node);
        if (block && isFirstIn(around, block)) return std::nullopt;
        if (block) climbTo(block, line);
        line.beginningOfLine();
    }
    const auto info = indentInfoOf(tree, line, around, 0);
    if (!info || info->logicalWidth == 0) return std::nullopt;
    if (!startsItem) {
        item = line;
        climbTo(around, item);
    }
    return Move{line, item, startsItem, *info, {}, {}, style_, {}};
}

std::optional<Indent::Move> Indent::moveOut(const Ondo::Tree& tree, const At& line, const Node* first,
                                            const Move* before) const {
    std::optional<Move> move = leaving(tree, line, first);
    if (!move) return std::nullopt;
    const std::int64_t width = move->info.logicalWidth;
    const Node* const around = move->startsItem ? chainParent(move->item.node) : move->item.node;
    const bool isTogether = before && around && before->beside.node == around;
    if (isTogether && (isSimplified(tree) || before->level.width < width)) {
        move->beside = before->beside;
        move->level = before->level;
        move->style = before->style;
    } else {
        move->beside = move->startsItem ? chainParent(move->item) : move->item;
        move->level = levelBeside(tree, move->beside, width);
        move->style = styleFor(tree, move->item, move->beside);
    }
    // Code is indented once more.
    if (!move->startsItem && isCodeOf(move->item.node, move->line))
        move->level.width += width - columnsOf(tree, move->item).content;
    move->blanks = blanksTo(tree, move->level, move->info.startColumn, move->style);
    return move;
}

bool Indent::isMoving(const Ondo::Tree& tree, const Move& move) const {
    if (isSimplified(tree)) return move.blanks != blanksIn(tree, move.info);
    return action_ == IndentAction::Indent ? shiftOf(move) > 0 : shiftOf(move) < 0;
}

std::vector<Indent::Move> Indent::movesIn(const Ondo::Tree& tree, At line, std::int64_t lastLine) const {
    const Node* const first = line.node;
    std::vector<Move> moves;
    while (line.node && line.offset <= lastLine) {
        const Move* const before = moves.empty() ? nullptr : &moves.back();
        const auto move =
            action_ == IndentAction::Indent ? moveIn(tree, line, before) : moveOut(tree, line, first, before);
        if (!move || !isMoving(tree, *move)) {
            toNextLine(line);
            continue;
        }
        moves.push_back(*move);
        line = move->item;
        line.nextInSequenceSkippingSubtree();
    }
    return moves;
}

Indent::Shift Indent::shiftBelow(const Ondo::Tree& tree, const Move& move, std::int64_t shrink) {
    const std::int64_t depth = chainDepth(move.item.node) - (move.startsItem ? 1 : 0);
    const std::int64_t levels = chainDepth(move.level.item) - depth;
    Shift shift{shiftOf(move) - shrink,    shrink,     move.style, depth, levels,
                blanksIn(tree, move.info), move.blanks};
    if (!isSimplified(tree) || !move.beside.node || !(hasTab(shift.from) || hasTab(shift.to))) return shift;
    const ItemColumns beside = columnsOf(tree, move.beside);
    shift.columns = levels * (beside.content - beside.marker) - shrink;
    return shift;
}

/// In the simplified dialect each tab leads into one item, and only behind them do columns count.
std::u16string Indent::shifted(const Ondo::Tree& tree, const IndentInfo& info, const Shift& shift) {
    const std::u16string blanks = blanksIn(tree, info);
    if (!isSimplified(tree)) {
        const std::int64_t width = std::max<std::int64_t>(info.logicalWidth + shift.columns, 0);
        return width == info.logicalWidth ? blanks : blanksOf(width, info.startColumn, shift.style);
    }
    const std::int64_t tabs = std::count(blanks.begin(), blanks.end(), u'\t');
    if (tabs > 0 && tabs >= shift.depth)
        return widened(withTabs(blanks, shift.levels), tabs == shift.depth ? -shift.shrink : 0);
    if (!hasTab(shift.to) || !blanks.starts_with(shift.from) || hasTab(blanks.substr(shift.from.size())))
        return widened(blanks, shift.columns);
    return shift.to + widened(blanks.substr(shift.from.size()), -shift.shrink);
}

/// Blank lines stay, and a line that lacks the markers of the item's quotes has no place of its own.
void Indent::shiftLine(const Ondo::Tree& tree, const At& line, const At& item, const Shift& shift,
                       std::vector<Result>& results, Selection selection) const {
    const auto info = indentInfoOf(tree, line, item.node, 0);
    if (!info || isLineEnd(tree, info->indentationEnd())) return;
    std::u16string blanks = shifted(tree, *info, shift);
    if (blanks == blanksIn(tree, *info)) return;
    replaceIndentation(tree, *info, std::move(blanks), results, selection.offset, selection.length);
}

/// All lines of a list or item behind the offset `from`, the last one first.
void Indent::shiftLines(const Ondo::Tree& tree, const At& item, std::int64_t from, const Shift& shift,
                        std::vector<Result>& results, Selection selection) const {
    if (shift.columns == 0 && shift.levels == 0 && shift.shrink == 0) return;
    At line = item;
    line.lastNodeOfSubtree();
    line.beginningOfLine();
    for (; line.node && line.offset > from; toPreviousLine(line))
        shiftLine(tree, line, item, shift, results, selection);
}

void Indent::indentLine(const Ondo::Tree& tree, const Move& move, std::vector<Result>& results,
                        Selection selection) const {
    // What belongs to an item whose marker gets shorter stays as far from its text.
    const Shift shift = shiftBelow(tree, move, shrinkOf(tree, move.item));
    shiftLines(tree, move.item, move.line.offset, shift, results, selection);
    if (isOrdered(move.item.node))
        setOrdinalToOne(tree, move.item, results, selection.offset, selection.length);
    replaceIndentation(tree, move.info, move.blanks, results, selection.offset, selection.length);
}

std::int64_t Indent::shiftBehind(const Ondo::Tree& tree, const Move& move, const At& next) const {
    const ItemColumns own = columnsOf(tree, move.item);
    const std::int64_t content = own.content - own.marker + move.level.width;
    const std::int64_t marker = next.node ? columnsOf(tree, next).marker : content;
    if (!move.beside.node) return next.node && marker >= content ? shiftOf(move) : 0;
    const std::int64_t lowest = columnsOf(tree, move.beside).content;
    const bool isByTabs = isSimplified(tree) && move.style == IndentStyle::Tabs;
    const bool belongs = !isByTabs && lowest >= content && marker < content + codeIndentation;
    return belongs && !listAtEnd(move.item).node ? 0 : content - lowest;
}

/// What stands behind an item that leaves the one around it belongs to it from then on: where the texts of
/// the two are not in the same column, it moves too.
void Indent::keepBehind(const Ondo::Tree& tree, const Move& move, std::vector<Result>& results,
                        Selection selection) const {
    At next = move.item;
    next.nextSibling();
    At around = move.beside;
    if (!around.node) {
        around = move.item;
        around.parent();
    }
    const std::int64_t columns = shiftBehind(tree, move, next);
    const Shift shift{columns, 0, move.style, chainDepth(move.beside.node), 0, {}, {}};
    if (!next.node || !move.beside.node || !isOrdered(next.node))
        return shiftLines(tree, around, move.item.end() - 1, shift, results, selection);
    Shift below = shift;
    below.shrink = shrinkOf(tree, next);
    below.columns -= below.shrink;
    shiftLines(tree, around, next.end() - 1, shift, results, selection);
    shiftLines(tree, next, next.offset, below, results, selection);
    setOrdinalToOne(tree, next, results, selection.offset, selection.length);
    shiftLine(tree, next, next, shift, results, selection);
}

void Indent::undentLine(const Ondo::Tree& tree, const Move& move, std::vector<Result>& results,
                        Selection selection) const {
    if (results.empty() && move.startsItem) keepBehind(tree, move, results, selection);
    shiftLines(tree, move.item, move.line.offset, shiftBelow(tree, move, 0), results, selection);
    replaceIndentation(tree, move.info, move.blanks, results, selection.offset, selection.length);
    if (move.startsItem || isSimplified(tree) || !continuesParagraph(move.line)) return;
    Result::addToList(results, move.line.offset, 0, emptyLineBefore(tree, move.line.offset, move.info),
                      selection.offset, selection.length);
}

void Indent::indentBlankLine(const Ondo::Tree& tree, const At& line, std::int64_t offset, bool isVirtual,
                             std::vector<Result>& results, Selection selection) const {
    const At item = findPreviousRelevantListItem(isVirtual ? leafAt(tree, offset) : line, isVirtual);
    if (!item.node) return;
    IndentInfo info{offset, 0, 0, 0, 0};
    if (!isVirtual) {
        const auto found = indentInfo(line, item, tree);
        if (!found) return;
        info = *found;
    }
    const Level level = nextLevelIndentation(item, info.logicalWidth, tree);
    if (info.logicalWidth >= level.width) return;
    replaceIndentation(tree, info, blanksTo(tree, level, info.startColumn, style_), results, selection.offset,
                       selection.length);
}

void Indent::undentBlankLine(const Ondo::Tree& tree, const At& line, Selection range, bool isVirtual,
                             std::vector<Result>& results, Selection selection) const {
    const At item = findPreviousRelevantListItem(isVirtual ? leafAt(tree, range.offset) : line, isVirtual);
    if (!item.node) return;
    Level level;
    if (!isVirtual) {
        const auto info = indentInfo(line, item, tree);
        if (!info) return;
        level = previousLevelIndentation(item, info->logicalWidth, tree);
        if (info->logicalWidth > level.width)
            replaceIndentation(tree, *info, blanksTo(tree, level, info->startColumn, style_), results,
                               selection.offset, selection.length);
    }
    if (level.width > 0 || range.length > 0 || isSimplified(tree)) return;
    // An empty line keeps what is typed next from joining the list.
    const bool hasGap = isVirtual ? isBlankLine(line) : isBlank(line->previousSibling);
    const bool isInDocument = isVirtual || isOfType(line->parent, Ondo::ONDO_DOCUMENT_NODE);
    if (hasGap || !isInDocument) return;
    const std::int64_t at = isVirtual ? range.offset : line.offset;
    Result::addToList(results, at, 0, std::u16string(emptyLineAt(tree, at)), selection.offset,
                      selection.length);
}

std::vector<Result> Indent::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                std::int64_t selectionOffset, std::int64_t selectionLength) const {
    std::vector<Result> results;
    if (!tree.root->firstChild) return results;
    const bool isIndenting = action_ == IndentAction::Indent;
    const Selection selection{selectionOffset, selectionLength};
    const At first = lineAt(tree, offset);
    const At last = lineAt(tree, offset + length);
    const bool isVirtual = isAtVirtualBlankLine(tree, offset, length, leafAt(tree, offset).node);
    if (isVirtual || (first.offset == last.offset && isBlankLine(first))) {
        if (isIndenting)
            indentBlankLine(tree, first, offset, isVirtual, results, selection);
        else
            undentBlankLine(tree, first, {offset, length}, isVirtual, results, selection);
        return results;
    }
    const std::vector<Move> moves = movesIn(tree, first, last.offset);
    for (auto move = moves.rbegin(); move != moves.rend(); ++move)
        isIndenting ? indentLine(tree, *move, results, selection)
                    : undentLine(tree, *move, results, selection);
    return results;
}

} // namespace CVN::Operation
