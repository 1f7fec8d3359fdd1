#include "corvane/tree/InlineParser.h"

#include "corvane/scan/Assert.h"
#include "corvane/scan/HtmlSyntax.h"

namespace Ondo {

namespace {

GoLines contentCursor(const Node* node, std::u16string_view text, const Lines& lines) {
    const std::int64_t further = node->lineCount - (node->category == Node::Category::InlineBlock ? 1 : 0);
    return {text,
            lines,
            node->lineWhenParsed,
            node->lineWhenParsed + further,
            node->offsetWhenParsed,
            node->endWhenParsed()};
}

/// The next position that may open a construct, behind the cursor's. A letter opens none behind a letter.
std::int64_t nextOpening(const Go& cursor, std::u16string_view text, const InlineRuleMap& rules) {
    const char16_t* const units = text.data();
    const std::int64_t end = cursor.maxPos();
    std::int64_t at = cursor.pos() + 1;
    for (; at < end; ++at)
        if (!rules.isUnused(units[at]) &&
            !(HtmlSyntax::isLetter(units[at]) && HtmlSyntax::isLetter(units[at - 1])))
            break;
    return at;
}

/// The line of text that stands between `previous` and whatever follows it below `node`.
std::int64_t lineBehind(Node* previous, const Node* node) {
    if (!previous) return node->lineWhenParsed;
    const Node* const last = previous->lastNodeOfSubtree();
    return last->lineWhenParsed + (last->category == Node::Category::LineEnding ? 1 : 0);
}

void fillGap(Node* node, Node* next, std::int64_t from, std::int64_t to) {
    if (from >= to) return;
    Node* const previous = next ? next->previousSibling : node->lastChild;
    node->linkSubtree(std::make_unique<Inline::TextNode>(from, to, lineBehind(previous, node)), next);
}

} // namespace

InlineParserNode::InlineParserNode(std::u16string_view text_, Lines& lines_, const InlineRuleMap& inlineRules,
                                   const InlineRuleMap& attributeRules)
    : ParserBase(text_, lines_), inlineRules_(inlineRules), attributeRules_(attributeRules) {}

void InlineParserNode::parseBlock(Node* blockNode) {
    CORVANE_ASSERT(blockNode->isBlock(), "InlineParser");
    parseInlineBlocks(blockNode);
    addTextNodes(blockNode);
}

void InlineParserNode::parseInlineBlocks(Node* blockNode) {
    // The parse of a node may move or delete what follows inside it, so the next one is sought afterwards.
    const Node* const end = blockNode->nextInSequenceSkippingSubtree();
    for (Node* node = blockNode; node != end;) {
        const bool isContainer = node->category <= Node::Category::ContainerBlock;
        if (node->category == Node::Category::InlineBlock) parseNode(node, inlineRules_);
        node = isContainer ? node->nextInSequence() : node->nextInSequenceSkippingSubtree();
    }
}

void InlineParserNode::parseNode(Node* node, const InlineRuleMap& rules) {
    Node* const outerMerged = std::exchange(merged_, nullptr);
    for (const auto& rule : rules.getAllInlineRules())
        if (rule->keepsNodeState) rule->beforeParseNode(*this);
    GoLines cursor = contentCursor(node, text, lines);
    while (!cursor.hasFailed()) {
        if (cursor.pos() == cursor.maxPos()) {
            offerLineEnding(node, cursor, rules);
            if (cursor.nextWhileLineEnding() == cursor.maxPos()) break;
        } else if (!matchRules(node, cursor, rules)) {
            cursor.setPos(nextOpening(cursor, text, rules));
        }
    }
    for (const auto& rule : rules.getAllInlineRules())
        if (rule->keepsNodeState) rule->afterParseNode(*this, node);
    merged_ = outerMerged;
}

Node* InlineParserNode::mergeInline(Node* node, std::unique_ptr<Node> subtree) {
    Node* passed = merged_;
    while (passed && passed->endWhenParsed() > subtree->offsetWhenParsed)
        passed = passed->previousSibling;
    Node* const merged = node->mergeSubtreeOnParsedOffsets(std::move(subtree), passed);
    if (merged && merged->parent == node) merged_ = merged;
    return merged;
}

Node* InlineParserNode::childAt(const Node* node, std::int64_t offset) const {
    Node* child = merged_;
    while (child && child->offsetWhenParsed > offset)
        child = child->previousSibling;
    if (!child) child = node->firstChild;
    while (child && child->endWhenParsed() <= offset)
        child = child->nextSibling;
    return child && child->offsetWhenParsed <= offset ? child : nullptr;
}

bool InlineParserNode::matchRules(Node* node, GoLines& cursor, const InlineRuleMap& rules) {
    for (const auto& rule : rules.getInlineRules(cursor.unsafePeekNextCharacter())) {
        const std::int64_t next = rule->match(*this, node, cursor);
        if (next == Go::NoPos) continue;
        cursor.to(next);
        return true;
    }
    return false;
}

void InlineParserNode::offerLineEnding(Node* node, const GoLines& cursor, const InlineRuleMap& rules) {
    for (const auto& rule : rules.getInlineRules(u'\n'))
        rule->match(*this, node, cursor);
}

void InlineParserNode::parseAttribute(Node* attribute) {
    parseNode(attribute, attributeRules_);
    addTextNodes(attribute);
}

std::u16string InlineParserNode::attributeString(std::u16string_view view, const Node* attribute) {
    std::u16string value;
    for (const Node* child = attribute->firstChild; child; child = child->nextSibling)
        child->appendValue(value, view);
    return value;
}

void InlineParserNode::claimRange(std::int64_t start, std::int64_t end) {
    for (const auto& rule : inlineRules_.getAllInlineRules())
        if (rule->keepsNodeState) rule->clearRange(*this, start, end);
}

void InlineParserNode::addTextNodes(Node* top) {
    Node* node = top;
    Node* child = node->firstChild;
    std::int64_t position = node->offsetWhenParsed;
    while (true) {
        if (!child) {
            fillGap(node, nullptr, position, node->endWhenParsed());
            if (node == top) return;
            position = node->endWhenParsed();
            child = node->nextSibling;
            node = node->parent;
            continue;
        }
        fillGap(node, child, position, child->offsetWhenParsed);
        position = child->endWhenParsed();
        if (child->isLeafKind()) {
            child = child->nextSibling;
        } else {
            node = child;
            position = node->offsetWhenParsed;
            child = node->firstChild;
        }
    }
}

} // namespace Ondo
