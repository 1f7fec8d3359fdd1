#include "corvane/operation/PrefixNormalizer.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "corvane/operation/UnindentedText.h"

namespace CVN::Operation {

namespace {

using Ondo::Node;

constexpr std::int64_t codeWidth = 4;

bool isFenced(const Node* block) {
    return block->type == Ondo::ONDO_FENCED_CODE_NODE || block->type == Ondo::ONDO_MATH_BLOCK_NODE;
}

bool isInFencedContent(const Node* leaf) {
    return leaf && (leaf->hasAncestorOfType(Ondo::ONDO_FENCED_CODE_CONTENT_ATTRIBUTE_NODE) ||
                    leaf->hasAncestorOfType(Ondo::ONDO_MATH_BLOCK_CONTENT_ATTRIBUTE_NODE));
}

/// The containers around a block, the outermost first.
std::vector<const Node*> containersAround(const Node* block) {
    std::vector<const Node*> containers;
    for (const Node* each = block->parent; each; each = each->parent)
        if (isContainer(each)) containers.push_back(each);
    std::reverse(containers.begin(), containers.end());
    return containers;
}

/// Whether the block has lines between its fences.
bool holdsFencedContent(const Node* block) {
    return block->hasChildWhere([](const Node* child) {
        return child->type == Ondo::ONDO_FENCED_CODE_CONTENT_ATTRIBUTE_NODE ||
               child->type == Ondo::ONDO_MATH_BLOCK_CONTENT_ATTRIBUTE_NODE;
    });
}

constexpr std::int64_t unlimited = std::numeric_limits<std::int64_t>::max();

} // namespace

PrefixNormalizer::Expected PrefixNormalizer::expectedIndentation(const Node::Iterator& line,
                                                                 const LinePrefix& actual) {
    startLine(line, actual);
    const std::vector<const Node*> containers = containersAround(actual.block);
    for (std::size_t depth = 0; depth < containers.size(); ++depth)
        passContainer(depth, containers[depth]);
    frames_.resize(containers.size());
    writeRest();
    return {at_, std::move(text_)};
}

void PrefixNormalizer::startLine(const Node::Iterator& line, const LinePrefix& actual) {
    line_ = line;
    actual_ = &actual;
    marker_ = at_ = 0;
    old_ = new_ = Side();
    last_ = Last::Nothing;
    isLazy_ = keepsForm_ = false;
    pending_.clear();
    text_.clear();
    column_ = 0;
}

// Containers, from the outermost one inwards

void PrefixNormalizer::passContainer(std::size_t depth, const Node* container) {
    if (depth >= frames_.size() || frames_[depth].container != container) {
        frames_.resize(depth);
        frames_.push_back({container, 0, 0});
    }
    const auto& markers = actual_->markers;
    if (marker_ < markers.size() && markers[marker_].container == container)
        passMarker(depth, markers[marker_]);
    else if (isListItem(container))
        passIndentation(frames_[depth]);
    else
        passMissingQuote();
}

void PrefixNormalizer::passMarker(std::size_t depth, const LinePrefix::Marker& marker) {
    const bool isQuote = isBlockQuote(marker.container);
    // What separates the text of an item from its marker is the item's, even where the text is a container.
    if (last_ == Last::ItemMarker)
        writeTo(column_ + actual_->columns[marker.start] - actual_->columns[at_]);
    else
        indentation(isFenced(actual_->block) ? neededColumn() : looseLimit());
    isQuote ? passQuoteMarker(marker) : passItemMarker(depth, marker);
    at_ = marker.end;
    ++marker_;
    last_ = isQuote ? Last::QuoteMarker : Last::ItemMarker;
}

void PrefixNormalizer::passQuoteMarker(const LinePrefix::Marker& marker) {
    const std::int64_t textColumn = actual_->columnBehindQuote(marker);
    const std::int64_t end = actual_->offset + static_cast<std::int64_t>(marker.end);
    const bool isBare = marker.end == marker.start + 1 && textColumn == actual_->columns[marker.end];
    // The column of a fence counts from the start of its line, so that a column less is one more in the code.
    const bool movesCode =
        actual_->startsBlock && isFenced(actual_->block) && holdsFencedContent(actual_->block);
    keepsForm_ = isBare && !movesCode && end == keptMarkerEnd_;
    text_ += keepsForm_ ? u">" : u"> ";
    column_ += keepsForm_ ? 1 : 2;
    old_.set(textColumn);
    new_.set(column_);
}

void PrefixNormalizer::passItemMarker(std::size_t depth, const LinePrefix::Marker& marker) {
    const PrefixColumns columns(*actual_, marker_);
    const std::int64_t start = actual_->columns[marker.start];
    if (last_ != Last::ItemMarker && start > old_.following && keepsPlace(depth))
        writeTo(new_.base + start - old_.following);
    const std::int64_t moved = column_ - start;
    // One blank in the place of a tab would make a task's box of what looks like one.
    const std::int64_t shift =
        moved != 0 && actual_->isTextBehindNarrowTab(marker) && unitAt(tree_, actual_->textOffset()) == u'['
            ? moved + 1
            : moved;
    frames_[depth].needed = columns.content - old_.following;
    frames_[depth].newNeeded = columns.content + shift - new_.following;
    lists_[marker.container->parent].lastNeeded = frames_[depth].newNeeded;
    old_ = {columns.text, columns.content};
    new_ = {columns.text + shift, columns.content + shift};
    text_ += actual_->text.substr(marker.start, marker.end - marker.start);
    column_ += static_cast<std::int64_t>(marker.end - marker.start);
}

void PrefixNormalizer::passIndentation(const Frame& frame) {
    pending_.push_back(frame.newNeeded);
    last_ = Last::Indentation;
    if (isLazy_) return;
    const std::size_t end = actual_->blanksEnd(marker_ - 1);
    const auto behindTab = isSimplified_ ? actual_->columnBehindNextTab(at_, old_.base) : std::nullopt;
    if (behindTab) return old_.set(*behindTab);
    isLazy_ = !actual_->isBlank && actual_->columns[end] - old_.base < frame.needed;
    if (isLazy_)
        matched_ = {text_, column_, new_, {pending_.begin(), pending_.end() - 1}, frame.newNeeded, false};
    else
        old_.set(old_.base + frame.needed);
}

void PrefixNormalizer::passMissingQuote() {
    indentation(looseLimit());
    if (!isLazy_) matched_ = {text_, column_, new_, {}, 0, true};
    text_ += u"> ";
    column_ += 2;
    new_.set(column_);
    isLazy_ = true;
    last_ = Last::Missing;
}

// Lists that stand further in than they need to move out, unless what follows would end up in their last
// item.

/// The columns by which a line stands further in than the containers above `depth` need.
std::int64_t PrefixNormalizer::surplusOf(const LinePrefix& line, std::size_t depth) const {
    std::int64_t base = 0;
    std::size_t marker = 0;
    std::size_t at = 0;
    for (std::size_t i = 0; i < depth; ++i) {
        if (marker < line.markers.size() && line.markers[marker].container == frames_[i].container) {
            // The marker of a quote: an item that holds a list has its own above.
            at = line.markers[marker].end;
            base = line.columnBehindQuote(line.markers[marker++]);
        } else {
            const auto behindTab = isSimplified_ ? line.columnBehindNextTab(at, base) : std::nullopt;
            base = behindTab ? *behindTab : base + frames_[i].needed;
        }
    }
    return line.columns[line.blanksEnd(marker - 1)] - base;
}

bool PrefixNormalizer::isLeftAsItStands(const Node::Iterator& block, std::int64_t surplus) const {
    if (block.offset >= scopeEnd_) return true;
    if (surplus >= codeWidth) return isSimplified_ || !staysBlock(tree_, block);
    if (isContainer(block.node)) return false;
    if (!isListItem(block->parent)) return true;
    if (isFenced(block.node)) return holdsFenceLikeLines(tree_.markdownIn({block.offset, block->charCount}));
    if (block->type == Ondo::ONDO_PARAGRAPH_NODE) return isSimplified_;
    return block->type == Ondo::ONDO_INDENTED_CODE_NODE || block->type == Ondo::ONDO_HTML_BLOCK_NODE;
}

/// Looks behind a list for the block that decides. The lists before that block share the answer.
void PrefixNormalizer::findKeepsPlace(Node::Iterator block, std::size_t depth) {
    constexpr std::int64_t leastNeeded = 2;
    std::vector<const Node*> lists;
    bool keeps = false;
    while (!keeps && isOfType(block.node, Ondo::ONDO_LIST_NODE) && block.offset < scopeEnd_) {
        lists.push_back(block.node);
        do
            block.nextSibling();
        while (isBlank(block.node));
        if (!block.node) break;
        const std::int64_t surplus = surplusOf(LinePrefix(tree_, block), depth);
        if (surplus < leastNeeded) break;
        const bool isDecided = block->type != Ondo::ONDO_LIST_NODE || block.offset >= scopeEnd_;
        keeps = isDecided && isLeftAsItStands(block, surplus);
    }
    for (const Node* list : lists)
        lists_[list].keepsPlace = keeps;
}

bool PrefixNormalizer::keepsPlace(std::size_t depth) {
    const Node* const list = frames_[depth].container->parent;
    const std::optional<bool>& keeps = lists_[list].keepsPlace;
    if (!keeps) {
        Node::Iterator at = line_;
        toFirstLeaf(at);
        while (at.node != list)
            at.parent();
        findKeepsPlace(at, depth);
    }
    return *keeps;
}

// What stands behind the prefix

void PrefixNormalizer::writeRest() {
    const Node* const block = actual_->block;
    if (block->type == Ondo::ONDO_BLANK_LINE_NODE) return writeBlankLine();
    if (block->type == Ondo::ONDO_INDENTED_CODE_NODE) return writeCode();
    if (block->type == Ondo::ONDO_HTML_BLOCK_NODE) return writeHtml();
    if (isFenced(block) && isInFencedContent(actual_->next)) return writeFencedContent();
    if (isFenced(block) && fence_ != block) return writeFence();
    if (isLazy_) return writeLazyText();
    writeText();
}

void PrefixNormalizer::writeBlankLine() {
    const bool isBehindMarker = last_ == Last::QuoteMarker || last_ == Last::ItemMarker;
    // Without its blanks the line would be half of a CRLF.
    if (unitAt(tree_, actual_->offset - 1) == u'\r' && unitAt(tree_, actual_->textOffset()) == u'\n') return;
    isBehindMarker ? keepBlanksBehindMarker() : dropBlanks();
}

void PrefixNormalizer::writeFence() {
    const Node* const block = actual_->block;
    fence_ = block;
    fenceColumn_ = actual_->textColumn();
    const bool isRisky =
        surplus() > 0 && holdsFenceLikeLines(tree_.markdownIn({actual_->offset, block->charCount}));
    isRisky ? writeAndKeepBlanks(surplus()) : writeText();
    newFenceColumn_ = column_ + fenceColumn_ - actual_->columns[at_];
}

/// Fenced lines give up the columns that the fence stands at.
void PrefixNormalizer::writeFencedContent() {
    // A tab would bring what looks like a closing fence close enough to be one.
    const bool isHeldOff =
        isSimplified_ && surplus() >= codeWidth && mayBeFence(unitAt(tree_, actual_->textOffset()));
    indentation(isHeldOff ? neededColumn() : newFenceColumn_);
    // Where the code begins with the text, the columns before it don't matter.
    const bool isFree = keepsForm_ && actual_->textColumn() <= fenceColumn_;
    if (!isFree) writeTo(newFenceColumn_);
    keepBlanksFrom(fenceColumn_);
}

void PrefixNormalizer::writeCode() {
    const bool isInList = actual_->block->hasAncestorOfType(Ondo::ONDO_LIST_NODE);
    const bool isTab = style_ == IndentStyle::Tabs && !isInList && column_ % codeWidth == 0;
    if (!isTab) return writeAndKeepBlanks(codeWidth);
    text_ += u'\t';
    column_ += codeWidth;
    keepBlanksFrom(old_.base + codeWidth);
}

/// HTML says what stands behind the last marker, blanks and all. They stay where the line is in place by
/// them.
void PrefixNormalizer::writeHtml() {
    if (last_ != Last::Indentation)
        keepBlanksBehindMarker();
    else if (!standsInPendingItems())
        writeAndKeepBlanks(surplus());
}

bool PrefixNormalizer::standsInPendingItems() const {
    const auto& columns = actual_->columns;
    const bool hasTab = actual_->text.find(u'\t', at_) != std::u16string::npos;
    if (hasTab && (isSimplified_ || column_ != columns[at_])) return false;
    const std::int64_t newSurplus = column_ + actual_->textColumn() - columns[at_] - neededColumn();
    return newSurplus >= 0 && (newSurplus < room() || !actual_->startsBlock);
}

void PrefixNormalizer::writeText() {
    if (last_ == Last::QuoteMarker || last_ == Last::ItemMarker) return keepBlanksBehindMarker();
    if (isSimplified_ && actual_->block->type == Ondo::ONDO_PARAGRAPH_NODE)
        return writeAndKeepBlanks(surplus());
    if (surplus() >= codeWidth && !staysWithoutBlanks()) return writeAndKeepBlanks(surplus());
    indentation(looseLimit());
    dropBlanks();
}

bool PrefixNormalizer::staysWithoutBlanks() const {
    if (!actual_->startsBlock) return continuesParagraph(tree_, actual_->textOffset());
    Node::Iterator block = line_;
    while (block.node != actual_->block)
        block.firstChild();
    return !isSimplified_ && staysBlock(tree_, block);
}

/// A paragraph with lazy lines is neither the text of an underline nor a definition. So it keeps them where
/// it would be.
bool PrefixNormalizer::mustStayLazy() {
    if (lazyBlock_ == actual_->block) return mustStayLazy_;
    lazyBlock_ = actual_->block;
    Node::Iterator block = line_;
    while (block.node != lazyBlock_)
        block.parent();
    const std::u16string text(tree_.markdownIn({block.offset, block->charCount}));
    mustStayLazy_ =
        text.find(u"]:") != std::u16string::npos || holdsUnderline(text + restOfLine(tree_, block.end()));
    return mustStayLazy_;
}

/// A line that only its blanks keep from being a block has more of them than a block may, but must not get
/// into the item by these.
bool PrefixNormalizer::mayStandLazy() const {
    return matched_.isBeforeQuote || surplus() < codeWidth || codeWidth < matched_.needed;
}

void PrefixNormalizer::writeLazyText() {
    const bool isPlain = continuesParagraph(tree_, actual_->textOffset());
    // Outside the item a marker that can't end a paragraph would still end the item.
    const bool isFree = isPlain && !mayBeItem(unitAt(tree_, actual_->textOffset()));
    const bool staysLazy = (isFree || mayStandLazy()) && mustStayLazy();
    if (staysLazy) {
        text_ = matched_.text;
        column_ = matched_.column;
        new_ = matched_.side;
        pending_ = matched_.pending;
    }
    const bool isPushedIn = staysLazy ? surplus() >= codeWidth && !isFree : !isPlain;
    const std::int64_t limit = staysLazy ? neededColumn() : looseLimit();
    indentation(isPushedIn ? neededColumn() + codeWidth : limit);
    if (isPushedIn) writeTo(new_.base + codeWidth);
    dropBlanks();
}

// Blanks

/// How many columns further in than it needs a block may not stand: it would be code, or in the item before.
std::int64_t PrefixNormalizer::room() const {
    const Node* before = line_->isBlock() ? line_->previousSibling : nullptr;
    while (isBlank(before))
        before = before->previousSibling;
    const auto list = lists_.find(isListItem(before) ? before->parent : before);
    return list == lists_.end() ? codeWidth : std::min(codeWidth, list->second.lastNeeded);
}

/// The column that tabs in front of a text may reach.
std::int64_t PrefixNormalizer::looseLimit() const {
    return isSimplified_ ? unlimited : neededColumn() + room() - 1;
}

/// The indentation of items that have no marker on the line. A tab for each, or as many blanks as the item
/// needs where a tab is too short for it or goes beyond the column `limit`.
void PrefixNormalizer::indentation(std::int64_t limit) {
    std::int64_t left = neededColumn() - new_.base;
    bool mayBeTab = style_ == IndentStyle::Tabs;
    for (const std::int64_t needed : pending_) {
        left -= needed;
        const std::int64_t target = new_.base + needed;
        const std::int64_t behindTab = columnBehind(u'\t', column_);
        const bool isTab = mayBeTab && (isSimplified_ ? behindTab <= limit - left
                                                      : behindTab >= target && behindTab <= limit);
        if (isTab) {
            text_ += u'\t';
            column_ = behindTab;
        } else {
            writeTo(target);
        }
        // In the simplified dialect what an item holds begins behind the tab; the first tab is that of the
        // outermost item, so that none can follow blanks.
        mayBeTab = isTab || (mayBeTab && !isSimplified_);
        new_.set(isTab && isSimplified_ ? behindTab : target);
    }
    pending_.clear();
}

void PrefixNormalizer::writeTo(std::int64_t column) {
    if (column <= column_) return;
    text_.append(static_cast<std::size_t>(column - column_), u' ');
    column_ = column;
}

/// Writes up to `extra` columns behind what the containers need, and keeps the blanks that stand behind
/// these.
void PrefixNormalizer::writeAndKeepBlanks(std::int64_t extra) {
    indentation(isSimplified_ ? unlimited : neededColumn() + extra);
    writeTo(new_.base + extra);
    keepBlanksFrom(old_.base + extra);
}

/// Leaves the blanks from a column of the line on. Tabs that would end up elsewhere become blanks, but for
/// those that are code; in the simplified dialect all, since a tab there makes an item go on.
void PrefixNormalizer::keepBlanksFrom(std::int64_t column) {
    const auto& columns = actual_->columns;
    while (at_ < actual_->size() && columns[at_] < column)
        ++at_;
    writeTo(column_ + std::max<std::int64_t>(columns[at_] - column, 0));
    const bool hasTab = actual_->text.find(u'\t', at_) != std::u16string::npos;
    const bool isCode = actual_->block->type == Ondo::ONDO_INDENTED_CODE_NODE;
    if (!hasTab || isCode || (column_ == columns[at_] && !isSimplified_)) return;
    writeTo(column_ + actual_->textColumn() - columns[at_]);
    at_ = actual_->size();
}

void PrefixNormalizer::keepBlanksBehindMarker() {
    const bool hasTab = actual_->text.find(u'\t', at_) != std::u16string::npos;
    if (!hasTab || (column_ == actual_->columns[at_] && new_.base == old_.base)) return;
    writeTo(new_.base);
    keepBlanksFrom(old_.base);
}

void PrefixNormalizer::dropBlanks() {
    at_ = actual_->size();
}

} // namespace CVN::Operation
