// The nodes of lists: looseness and renderings.

#include "corvane/block/List.h"
#include "corvane/scan/Assert.h"
#include "corvane/scan/Util.h"

namespace Ondo::Block {

namespace {

constexpr std::u16string_view markerNames[] = {u"ordered_dot", u"ordered_parenthesis", u"unordered_asterisk",
                                               u"unordered_dash", u"unordered_plus"};

bool isBlank(const Node* node) {
    return node->type == ONDO_BLANK_LINE_NODE;
}

bool isParagraph(const Node* node) {
    return node->type == ONDO_PARAGRAPH_NODE;
}

} // namespace

void ListNode::setIsLoose() {
    isLoose = hasChildWhere([](const Node* item) {
        return item->hasChildWhere(
            [item](const Node* child) { return isBlank(child) && child != item->firstChild; });
    });
}

std::u16string ListNode::toIndentedTree() const {
    if (markerType == List::MarkerType::none) CORVANE_ASSERT(false, "List");
    std::u16string out = Node::toIndentedTree();
    out += u'{';
    out += markerNames[static_cast<std::size_t>(markerType)];
    out += isLoose ? u", loose}" : u", tight}";
    return out;
}

void ListNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    const std::u16string_view tag = isOrdered() ? u"ol" : u"ul";
    const std::int64_t start = static_cast<const ListItemNode*>(firstChild)->number;
    out += u'<';
    out += tag;
    if (start != 1) out += u" start=\"" + Util::toString(start) + u"\"";
    out += u">\n";
    childrenToHtml(out, markdown, offset);
    out += u"</";
    out += tag;
    out += u">\n";
}

bool ListNode::hasEqualData(const Node& other) const {
    const auto& node = static_cast<const ListNode&>(other);
    return markerType == node.markerType && isLoose == node.isLoose;
}

std::u16string ListItemNode::toIndentedTree() const {
    std::u16string out = Node::toIndentedTree() + u"{" + Util::toString(number);
    if (isOrdered()) out += u", " + Util::toString(writtenNumber);
    if (taskType == List::TaskType::todo) out += u", todo";
    if (taskType == List::TaskType::done) out += u", done";
    return out + u"}";
}

void ListItemNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    const bool isLoose = static_cast<const ListNode*>(parent)->isLoose;
    const Node* const first = childWhere([](const Node* child) { return !isBlank(child); });
    out += u"<li>";
    if (first && (isLoose || !isParagraph(first))) out += u'\n';
    for (const Node* child = firstChild; child; child = child->nextSibling) {
        if (isLoose || !isParagraph(child)) {
            child->toHtml(out, markdown, offset);
        } else {
            child->childrenToHtml(out, markdown, offset);
            if (child->nextSibling) out += u'\n';
        }
        offset += child->charCount;
    }
    out += u"</li>\n";
}

bool ListItemNode::hasEqualData(const Node& other) const {
    const auto& node = static_cast<const ListItemNode&>(other);
    return markerType == node.markerType && taskType == node.taskType &&
           writtenNumber == node.writtenNumber && number == node.number;
}

} // namespace Ondo::Block
