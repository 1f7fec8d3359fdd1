#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

using Ondo::LevelSetting;
using Ondo::Node;

Node::Iterator leafAt(const Ondo::Tree& tree, std::int64_t offset) {
    return tree.iteratorAtOffset(offset, LevelSetting::Leaf);
}

Node::Iterator lineAt(const Ondo::Tree& tree, std::int64_t offset) {
    Node::Iterator line = leafAt(tree, offset);
    if (line.node) line.beginningOfLine();
    return line;
}

void toPreviousLine(Node::Iterator& line) {
    line.previousInSequence();
    if (line.node && line->type != Ondo::ONDO_DOCUMENT_NODE) line.beginningOfLine();
}

void toNextLine(Node::Iterator& line) {
    line.endOfLine();
    line.nextInSequence();
}

void toFirstLeaf(Node::Iterator& at) {
    while (at.node && at->firstChild)
        at.firstChild();
}

void toNextLeaf(Node::Iterator& leaf) {
    leaf.nextInSequence();
    toFirstLeaf(leaf);
}

void toPreviousLeaf(Node::Iterator& leaf) {
    do
        leaf.previousInSequence();
    while (leaf.node && leaf->firstChild);
}

bool isLineStart(const Ondo::Tree& tree, std::int64_t offset) {
    const char16_t before = unitAt(tree, offset - 1);
    if (offset == 0 || before == u'\n') return true;
    return before == u'\r' && unitAt(tree, offset) != u'\n';
}

char16_t unitAt(const Ondo::Tree& tree, std::int64_t offset) {
    if (offset < 0 || offset >= tree.length()) return 0;
    return tree.markdownIn({offset, 1}).front();
}

std::u16string_view emptyLineAt(const Ondo::Tree& tree, std::int64_t lineStart) {
    return unitAt(tree, lineStart - 1) == u'\r' ? u"\n\n" : u"\n";
}

std::u16string_view textOf(const Ondo::Tree& tree, const Node::Iterator& at) {
    return tree.markdownIn({at.offset, at->charCount});
}

bool isContainerMarker(const Node* node) {
    return isOfType(node, Ondo::ONDO_LIST_ITEM_MARKER_NODE) ||
           isOfType(node, Ondo::ONDO_BLOCK_QUOTE_MARKER_NODE);
}

bool isBlockMarker(const Node* node) {
    return node && node->isMarker() && node->maker && node->maker->isBlock();
}

bool isInlineMarker(const Node* node) {
    return node && node->isMarker() && node->maker && node->maker->category == Node::Category::Inline;
}

const Node* selfOrAncestor(const Node* node, std::uint16_t type) {
    while (node && node->type != type)
        node = node->parent;
    return node;
}

bool isVerbatim(const Node* node) {
    return isOfType(node, Ondo::ONDO_FENCED_CODE_NODE) || isOfType(node, Ondo::ONDO_INDENTED_CODE_NODE) ||
           isOfType(node, Ondo::ONDO_YAML_NODE) || isOfType(node, Ondo::ONDO_CODE_SPAN_NODE) ||
           isOfType(node, Ondo::ONDO_MATH_SPAN_NODE) || isOfType(node, Ondo::ONDO_MATH_BLOCK_NODE);
}

bool isInVerbatim(const Node* node) {
    while (node && !isVerbatim(node))
        node = node->parent;
    return node;
}

bool isTableRow(const Node* node) {
    return isOfType(node, Ondo::ONDO_TABLE_HEADER_ROW_NODE) ||
           isOfType(node, Ondo::ONDO_TABLE_DELIMITER_ROW_NODE) ||
           isOfType(node, Ondo::ONDO_TABLE_DATA_ROW_NODE);
}

bool isSimplified(const Ondo::Tree& tree) {
    return tree.ruleSet == Ondo::RuleConfig::Simplified;
}

} // namespace CVN::Operation
