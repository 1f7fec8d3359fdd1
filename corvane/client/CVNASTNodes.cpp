#include "corvane/client/CVNASTNodes.h"

#include "corvane/block/AtxHeading.h"
#include "corvane/block/Callout.h"
#include "corvane/block/FencedCode.h"
#include "corvane/block/FootnoteDefinition.h"
#include "corvane/block/List.h"
#include "corvane/block/SetextHeading.h"
#include "corvane/block/Table.h"
#include "corvane/client/AlignmentNumber.h"
#include "corvane/client/CVNMetadata.h"
#include "corvane/inline/Entity.h"
#include "corvane/inline/LinkBase.h"
#include "corvane/inline/RawHtml.h"
#include "corvane/inline/Wikilink.h"

namespace {

using Ondo::Block::List;
using Ondo::Block::ListItemNode;

/// The node behind a wrapper, whose class makes sure of the type.
template <class T>
const T& nodeAs(const CVNASTNode& wrapper) {
    return static_cast<const T&>(*wrapper.node);
}

const Ondo::Node* grandparent(const Ondo::Node* node) {
    return node->parent ? node->parent->parent : nullptr;
}

/// One rule for lists and items, which counts what it reaches: it never reaches a list from an item.
std::int64_t countListsFromGrandparent(const Ondo::Node* node) {
    std::int64_t count = 0;
    for (const Ondo::Node* list = grandparent(node); list && list->type == Ondo::ONDO_LIST_NODE;
         list = grandparent(list))
        ++count;
    return count;
}

} // namespace

std::int64_t CVNASTATXHeadingNode::level() const {
    return nodeAs<Ondo::Block::AtxHeadingNode>(*this).level;
}

std::int64_t CVNASTSetextHeadingNode::level() const {
    return nodeAs<Ondo::Block::SetextHeadingNode>(*this).level;
}

bool CVNASTBlockQuoteNode::isCallout() const {
    return node->firstChild && node->firstChild->type == Ondo::ONDO_CALLOUT_HEAD_NODE;
}

std::int64_t CVNASTBlockQuoteNode::calloutType() const {
    if (!isCallout()) return CVNNotFound;
    return static_cast<std::int64_t>(
        static_cast<const Ondo::Block::CalloutHeadNode*>(node->firstChild)->calloutType);
}

std::u16string_view CVNASTFencedCodeBlockNode::language() const {
    return nodeAs<Ondo::Block::FencedCodeNode>(*this).language;
}

std::u16string_view CVNASTFencedCodeBlockNode::code() const {
    return nodeAs<Ondo::Block::FencedCodeNode>(*this).code;
}

std::u16string_view CVNASTFootnoteDefinitionNode::label() const {
    return nodeAs<Ondo::Block::FootnoteDefinitionNode>(*this).label;
}

bool CVNASTListNode::isOrdered() const {
    return nodeAs<Ondo::Block::ListNode>(*this).isOrdered();
}

std::int64_t CVNASTListNode::nestingLevel() const {
    return countListsFromGrandparent(node);
}

bool CVNASTListItemNode::isTask() const {
    return nodeAs<ListItemNode>(*this).isTask();
}

bool CVNASTListItemNode::isTaskCompleted() const {
    return nodeAs<ListItemNode>(*this).taskType == List::TaskType::done;
}

std::int64_t CVNASTListItemNode::itemIndex() const {
    const auto* first = static_cast<const ListItemNode*>(node->parent->firstChild);
    return nodeAs<ListItemNode>(*this).number - first->number;
}

std::int64_t CVNASTListItemNode::orderedListItemNumber() const {
    return nodeAs<ListItemNode>(*this).writtenNumber;
}

std::int64_t CVNASTListItemNode::nestingLevel() const {
    return countListsFromGrandparent(node);
}

std::int64_t CVNASTTableCellNode::alignment() const {
    return alignmentNumber(nodeAs<Ondo::Block::TableCellNode>(*this).alignment);
}

std::u16string CVNASTEntityNode::toString() const {
    return nodeAs<Ondo::Inline::EntityNode>(*this).toString();
}

std::u16string CVNASTLinkAndImageNode::url() const {
    return nodeAs<Ondo::Inline::LinkBaseNode>(*this).destination();
}

std::u16string CVNASTLinkAndImageNode::title() const {
    return nodeAs<Ondo::Inline::LinkBaseNode>(*this).title();
}

std::u16string_view CVNASTLinkAndImageNode::label() const {
    return nodeAs<Ondo::Inline::LinkBaseNode>(*this).label;
}

std::optional<CVNDictionary> CVNASTHTMLInlineNode::metadata() const {
    return CVNMetadataFromComment(nodeAs<Ondo::Inline::RawHtmlNode>(*this).text);
}

std::u16string CVNASTWikiNode::title() const {
    return nodeAs<Ondo::Inline::WikilinkNode>(*this).encodedSegments();
}

std::u16string_view CVNASTWikiNode::alias() const {
    return nodeAs<Ondo::Inline::WikilinkNode>(*this).alias;
}
