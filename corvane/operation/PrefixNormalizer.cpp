#include "corvane/operation/PrefixNormalizer.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <utility>

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

/// The text of a line from an offset on.
std::u16string restOfLine(const Ondo::Tree& tree, std::int64_t offset) {
    std::u16string rest;
    for (char16_t unit = unitAt(tree, offset); unit && unit != u'\n' && unit != u'\r';
         unit = unitAt(tree, ++offset))
        rest += unit;
    return rest;
}

/// Whether a line of a paragraph stays one without the blanks, or the missing marker, that keep it one.
bool continuesParagraph(const Ondo::Tree& tree, std::int64_t textOffset) {
    const char16_t first = unitAt(tree, textOffset);
    if (first > 0x7f || (first >= u'a' && first <= u'z') || (first >= u'A' && first <= u'Z')) return true;
    const Ondo::Tree probe(u"x\n" + restOfLine(tree, textOffset), tree.ruleSet);
    const Node* const block = probe.root->firstChild;
    return block->type == Ondo::ONDO_PARAGRAPH_NODE && !block->nextSibling;
}

/// Whether lines between the fences look like one, and are none by their indentation alone.
bool holdsFenceLikeLines(std::u16string_view block) {
    int count = 0;
    for (auto at = block.find(u'\n'); at != block.npos; at = block.find(u'\n', at)) {
        at = std::min(block.find_first_not_of(u" \t>\n\r", at), block.size());
        for (const std::u16string_view fence : {u"```", u"~~~", u"$$"})
            count += block.substr(at, fence.size()) == fence ? 1 : 0;
    }
    return count > 1;
}

/// Whether a line behind the first looks like what makes a heading of the lines above.
bool holdsUnderline(std::u16string_view text) {
    for (auto at = text.find_first_of(u"\n\r"); at < text.size(); at = text.find_first_of(u"\n\r", at)) {
        at = text.find_first_not_of(u" \t>\n\r", at);
        if (at >= text.size()) return false;
        if (text[at] != u'=' && text[at] != u'-') continue;
        at = text.find_first_not_of(text[at], at);
        at = text.find_first_not_of(u" \t", at);
        if (at >= text.size() || text[at] == u'\n' || text[at] == u'\r') return true;
    }
    return false;
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
    const bool isBare = marker.end == marker.start + 1;
    // A tab gives its first column to the marker.
    const bool isBeforeTab = isBare && marker.end < actual_->size() && actual_->text[marker.end] == u'\t';
    const std::int64_t end = actual_->offset + static_cast<std::int64_t>(marker.end);
    keepsForm_ = isBare && !isBeforeTab && end == keptMarkerEnd_;
    text_ += keepsForm_ ? u">" : u"> ";
    column_ += keepsForm_ ? 1 : 2;
    old_.set(actual_->columns[marker.end] + (isBeforeTab ? 1 : 0));
    new_.set(column_);
}

void PrefixNormalizer::passItemMarker(std::size_t depth, const LinePrefix::Marker& marker) {
    const PrefixColumns columns(*actual_, marker_);
    const std::int64_t start = actual_->columns[marker.start];
    if (last_ != Last::ItemMarker && start > old_.following && keepsPlace(depth))
        writeTo(new_.base + start - old_.following);
    frames_[depth].needed = columns.content - old_.following;
    frames_[depth].newNeeded = column_ + columns.content - start - new_.following;
    lists_[marker.container->parent].lastNeeded = frames_[depth].newNeeded;
    old_ = {columns.text, columns.content};
    new_ = {column_ + columns.text - start, column_ + columns.content - start};
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
        matched_ = {text_, column_, new_, {pending_.begin(), pending_.end() - 1}, false};
    else
        old_.set(old_.base + frame.needed);
}

void PrefixNormalizer::passMissingQuote() {
    indentation(looseLimit());
    if (!isLazy_) matched_ = {text_, column_, new_, {}, true};
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
            at = line.markers[marker++].end;
            base = line.columns[at];
        } else {
            const auto behindTab = isSimplified_ ? line.columnBehindNextTab(at, base) : std::nullopt;
            base = behindTab ? *behindTab : base + frames_[i].needed;
        }
    }
    return line.columns[line.blanksEnd(marker - 1)] - base;
}

bool PrefixNormalizer::isLeftAsItStands(const Node::Iterator& block, std::int64_t surplus) const {
    if (block.offset >= scopeEnd_ || surplus >= codeWidth) return true;
    if (isContainer(block.node)) return false;
    if (!isListItem(block->parent) || isSimplified_) return true;
    if (isFenced(block.node)) return holdsFenceLikeLines(tree_.markdownIn({block.offset, block->charCount}));
    return block->type == Ondo::ONDO_INDENTED_CODE_NODE || block->type == Ondo::ONDO_HTML_BLOCK_NODE;
}

bool PrefixNormalizer::findKeepsPlace(Node::Iterator list, std::size_t depth) const {
    constexpr std::int64_t leastNeeded = 2;
    for (;;) {
        do
            list.nextSibling();
        while (isOfType(list.node, Ondo::ONDO_BLANK_LINE_NODE));
        if (!list.node) return false;
        const LinePrefix first(tree_, list);
        const std::int64_t surplus = surplusOf(first, depth);
        if (surplus < leastNeeded) return false;
        if (list->type != Ondo::ONDO_LIST_NODE || list.offset >= scopeEnd_)
            return isLeftAsItStands(list, surplus);
    }
}

bool PrefixNormalizer::keepsPlace(std::size_t depth) {
    const Node* const list = frames_[depth].container->parent;
    std::optional<bool>& keeps = lists_[list].keepsPlace;
    if (keeps) return *keeps;
    Node::Iterator at = line_;
    toFirstLeaf(at);
    while (at.node != list)
        at.parent();
    keeps = findKeepsPlace(at, depth);
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
    const std::int64_t end = actual_->offset + static_cast<std::int64_t>(actual_->size());
    if (unitAt(tree_, actual_->offset - 1) == u'\r' && unitAt(tree_, end) == u'\n') return;
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
    const std::int64_t column = newFenceColumn_ - (keepsForm_ ? 1 : 0);
    indentation(column);
    writeTo(column);
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
    return newSurplus >= 0 && (newSurplus < codeWidth || !actual_->startsBlock);
}

void PrefixNormalizer::writeText() {
    if (last_ == Last::QuoteMarker || last_ == Last::ItemMarker) return keepBlanksBehindMarker();
    if (isSimplified_ && actual_->block->type == Ondo::ONDO_PARAGRAPH_NODE)
        return writeAndKeepBlanks(surplus());
    const std::int64_t textOffset = actual_->offset + static_cast<std::int64_t>(actual_->size());
    if (surplus() >= codeWidth && (actual_->startsBlock || !continuesParagraph(tree_, textOffset)))
        return writeAndKeepBlanks(surplus());
    indentation(looseLimit());
    dropBlanks();
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
    mustStayLazy_ = text.find(u"]:") != text.npos || holdsUnderline(text + restOfLine(tree_, block.end()));
    return mustStayLazy_;
}

void PrefixNormalizer::writeLazyText() {
    // Without the blanks of the item, but still further in than a block may be, a line could get into the
    // item.
    const bool mayStayLazy = matched_.isBeforeQuote || surplus() < codeWidth;
    const bool staysLazy = mayStayLazy && mustStayLazy();
    if (staysLazy) {
        text_ = matched_.text;
        column_ = matched_.column;
        new_ = matched_.side;
        pending_ = matched_.pending;
    }
    const std::int64_t textOffset = actual_->offset + static_cast<std::int64_t>(actual_->size());
    const bool isPushedIn = staysLazy ? surplus() >= codeWidth : !continuesParagraph(tree_, textOffset);
    const std::int64_t limit = staysLazy ? neededColumn() : looseLimit();
    indentation(isPushedIn ? neededColumn() + codeWidth : limit);
    if (isPushedIn) writeTo(new_.base + codeWidth);
    dropBlanks();
}

// Blanks

/// Text may stand up to three columns further in than it needs, but not in the item before it.
std::int64_t PrefixNormalizer::looseLimit() const {
    if (isSimplified_) return unlimited;
    const Node* before = line_->isBlock() ? line_->previousSibling : nullptr;
    while (isOfType(before, Ondo::ONDO_BLANK_LINE_NODE))
        before = before->previousSibling;
    const auto list = lists_.find(isListItem(before) ? before->parent : before);
    const std::int64_t room = list == lists_.end() ? codeWidth : std::min(codeWidth, list->second.lastNeeded);
    return neededColumn() + room - 1;
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
