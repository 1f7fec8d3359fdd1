#include "corvane/client/Annotator.h"

#include <algorithm>
#include <utility>

#include "corvane/block/List.h"
#include "corvane/client/AnnotationRows.h"
#include "corvane/inline/LinkBase.h"

namespace {

using Ondo::Node;

bool isContainer(const Node* node) {
    return node->type == Ondo::ONDO_LIST_NODE || node->type == Ondo::ONDO_LIST_ITEM_NODE ||
           node->type == Ondo::ONDO_BLOCK_QUOTE_NODE;
}

bool isItem(const Node* node) {
    return node->type == Ondo::ONDO_LIST_ITEM_NODE;
}

bool isQuote(const Node* node) {
    return node->type == Ondo::ONDO_BLOCK_QUOTE_NODE;
}

bool isReference(const Node* node) {
    return static_cast<const Ondo::Inline::LinkBaseNode*>(node)->isReference;
}

bool belongsToBlocks(const Node* node) {
    const auto isBelowInline = [](const Node* n) { return n->category < Node::Category::Inline; };
    return isBelowInline(node) || (node->maker && isBelowInline(node->maker)) ||
           node->type == Ondo::ONDO_SPACE_NODE;
}

constexpr std::int64_t noDirection = -1;
constexpr std::int64_t directionValues[] = {noDirection, CVNDirectionLtrValue, CVNDirectionRtlValue,
                                            CVNDirectionNaturalValue, CVNDirectionNaturalValue};

/// By List::MarkerType.
constexpr std::int64_t listSubTypes[] = {CVNListInfo::OrderedDot, CVNListInfo::OrderedParenthesis,
                                         CVNListInfo::Asterisk, CVNListInfo::Dash, CVNListInfo::Plus};
/// By List::TaskType.
constexpr std::int64_t taskTypes[] = {CVNListInfo::Todo, CVNListInfo::Done, CVNListInfo::NoTask};

std::int64_t listSubType(const Ondo::Block::ListItemNode& item) {
    if (item.markerType == Ondo::Block::List::MarkerType::none)
        Ondo::assertionFailed("false", __func__, "CVNAST");
    return listSubTypes[static_cast<std::size_t>(item.markerType)];
}

} // namespace

Annotator::Annotator(const Ondo::Tree& tree, CVNRange range, bool inlinesOnly)
    : tree_(tree), range_(range), inlinesOnly_(inlinesOnly),
      result_(std::u16string(tree.markdownIn(range.coreRange()))), lineStart_(range.location) {}

CVNAttributedString Annotator::run() {
    if (range_.length == 0) return std::move(result_);
    at_ = tree_.iteratorAtOffset(range_.location, Ondo::LevelSetting::Highest);
    enterAncestors();
    for (; at_.node && at_.offset < range_.end(); at_.nextInSequence())
        visit();
    finishLine(range_.end());
    return std::move(result_);
}

/// A walk that begins in the midst of a block knows what is around it, but gives no attributes for it.
void Annotator::enterAncestors() {
    std::vector<Node::Iterator> ancestors;
    for (Node::Iterator above = at_; above.node && above.node->parent;) {
        above.parent();
        ancestors.push_back(above);
    }
    for (; !ancestors.empty(); ancestors.pop_back())
        enter(ancestors.back().node, ancestors.back().offset);
    for (Container& container : containers_)
        container.isVisited = false;
}

void Annotator::enter(const Node* node, std::int64_t offset) {
    if (node->isBlock()) block_ = node;
    if (node->type == Ondo::ONDO_IMAGE_NODE) imageEnd_ = std::max(imageEnd_, offset + node->charCount);
    if (node->type == Ondo::ONDO_LINK_NODE) linkEnd_ = std::max(linkEnd_, offset + node->charCount);
    if (!isContainer(node)) return;
    Container entered{node, offset};
    entered.head = HeadWalk(node);
    if (!containers_.empty()) {
        const Container& around = containers_.back();
        entered.level = around.level + (isItem(around.node) ? 0 : 1);
        if (isItem(node))
            entered.relativeLevel = around.relativeLevel;
        else if (isQuote(node) ? isQuote(around.node) : isItem(around.node))
            entered.relativeLevel = around.relativeLevel + 1;
        if (around.offset == offset) entered.head = around.head;
    }
    entered.head.walk(node);
    containers_.push_back(entered);
}

void Annotator::leaveContainers() {
    while (!containers_.empty() && containers_.back().end() <= at_.offset)
        containers_.pop_back();
}

void Annotator::visit() {
    leaveContainers();
    if (node().type == Ondo::ONDO_BLOCK_QUOTE_MARKER_NODE) noteQuoteMarker();
    if (!isSilent()) {
        enter(&node(), at_.offset);
        addDirection();
        if (!inlinesOnly_ || !belongsToBlocks(&node())) addRows();
    }
    if (node().category == Node::Category::LineEnding) finishLine(at_.end());
}

/// Pictures in pictures, references in pictures, and picture references in links show nothing of their own.
bool Annotator::isSilent() {
    if (at_.offset < silentEnd_) return true;
    const bool isInImage = at_.offset < imageEnd_;
    const bool isInLink = at_.offset < linkEnd_;
    const bool isHidden = node().type == Ondo::ONDO_IMAGE_NODE
                              ? isInImage || (isInLink && isReference(&node()))
                              : node().type == Ondo::ONDO_LINK_NODE && isInImage && isReference(&node());
    if (isHidden) silentEnd_ = at_.end();
    return isHidden;
}

void Annotator::addDirection() {
    const std::int64_t value = directionValues[static_cast<std::size_t>(node().direction)];
    if (value != noDirection) add(CVNDirectionAttributeName, CVNValue::integer(value), nodeRange());
}

void Annotator::addRows() {
    for (const AnnotationRow& row : annotationRows(node().type))
        if (std::optional<CVNValue> value = row.value.of(*this))
            add(row.key, std::move(*value), row.range ? row.range(*this) : nodeRange());
}

void Annotator::add(CVNAttributeName name, CVNValue value, CVNRange range) {
    const CVNRange inside = CVNRange::intersect(range, {0, result_.length()});
    if (inside.length > 0) result_.addAttribute(name, std::move(value), inside);
}

// Questions of the rows

std::u16string_view Annotator::text() const {
    const CVNRange inside = CVNRange::intersect(nodeRange(), {0, result_.length()});
    return allText().substr(static_cast<std::size_t>(inside.location),
                            static_cast<std::size_t>(inside.length));
}

/// A container has walked through its head when it was entered; a block at its start goes on from there.
HeadWalk Annotator::headWalk() const {
    HeadWalk head(&node());
    if (!containers_.empty() && containers_.back().offset == at_.offset) head = containers_.back().head;
    if (containers_.empty() || containers_.back().node != &node()) head.walk(&node());
    return head;
}

CVNRange Annotator::trimmedRange(bool keepLastSpace) const {
    const std::int64_t passed = headWalk().passed(keepLastSpace);
    const CVNRange range = nodeRange();
    return {range.location + passed, range.length - passed};
}

const CVNValue* Annotator::valueBefore(CVNAttributeName name) const {
    return result_.attribute(name, nodeRange().location - 1);
}

CVNRange Annotator::itemRange() const {
    const auto item = std::find_if(containers_.rbegin(), containers_.rend(),
                                   [](const Container& each) { return isItem(each.node); });
    if (item == containers_.rend()) return CVNRange::notFound();
    return {item->offset - range_.location, item->node->charCount};
}

CVNListInfo Annotator::listInfo() const {
    const Container& container = containers_.back();
    if (isQuote(container.node)) return quoteInfo(container);
    const auto& item = static_cast<const Ondo::Block::ListItemNode&>(*container.node);
    const auto& first = static_cast<const Ondo::Block::ListItemNode&>(*item.parent->firstChild);
    CVNListInfo info = CVNListInfo::listInfoWithListType(
        item.isOrdered() ? CVNListInfo::Ordered : CVNListInfo::Unordered, listSubType(item),
        taskTypes[static_cast<std::size_t>(item.taskType)], container.level - 1, item.number - first.number);
    info.orderedListItemNumber = item.number;
    info.relativeListLevel = container.relativeLevel;
    return info;
}

// The items of quotes: one a line. A line belongs to the innermost quote that holds it. Where that quote has
// a marker on it, each quote's item begins at its own marker; where it has none, the line is lazy, and wholly
// that quote's.

CVNListInfo Annotator::quoteInfo(const Container& quote) {
    const Node* first = quote.node->firstChild;
    const bool isCallout = first && first->type == Ondo::ONDO_CALLOUT_HEAD_NODE;
    CVNListInfo info = CVNListInfo::listInfoWithListType(
        CVNListInfo::BlockQuote, isCallout ? CVNListInfo::Callout : CVNListInfo::NoSubType,
        CVNListInfo::NoTask, quote.level, quote.itemIndex);
    info.relativeListLevel = quote.relativeLevel;
    return info;
}

void Annotator::noteQuoteMarker() {
    const auto quote = std::find_if(containers_.rbegin(), containers_.rend(),
                                    [&](const Container& each) { return each.node == node().maker; });
    if (quote == containers_.rend() || !quote->isVisited) return;
    ++quote->itemIndex;
    const Node* before = node().previousSibling;
    const bool isBehindSpace = before && before->type == Ondo::ONDO_SPACE_NODE;
    quoteLines_.push_back({quote->node, at_.offset - (isBehindSpace ? before->charCount : 0),
                           CVNValue::listInfo(quoteInfo(*quote))});
}

const Annotator::Container* Annotator::innermostQuote() const {
    const auto quote = std::find_if(containers_.rbegin(), containers_.rend(), [](const Container& each) {
        return isQuote(each.node) && each.isVisited;
    });
    return quote == containers_.rend() ? nullptr : &*quote;
}

void Annotator::finishLine(std::int64_t end) {
    const Container* innermost = inlinesOnly_ ? nullptr : innermostQuote();
    if (innermost && end > lineStart_) {
        const auto addItem = [&](std::int64_t start, CVNValue value) {
            add(CVNBlockquoteItemAttributeName, std::move(value),
                CVNRange::between(start, end - range_.location));
        };
        const bool isLazy = quoteLines_.empty() || quoteLines_.back().quote != innermost->node;
        if (isLazy)
            addItem(lineStart_ - range_.location, CVNValue::listInfo(quoteInfo(*innermost)));
        else
            for (QuoteLine& line : quoteLines_)
                addItem(line.start - range_.location, std::move(line.value));
    }
    quoteLines_.clear();
    lineStart_ = end;
}
