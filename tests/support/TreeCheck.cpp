#include "tests/support/TreeCheck.h"

#include <cstdint>

#include "corvane/scan/Util.h"

namespace Ondo::Test {

namespace {

std::string describe(const Node& node, std::int64_t offset, const std::string& what) {
    return Util::utf8(node.toIndentedTree()) + " at " + std::to_string(offset) + ": " + what;
}

/// Whether a node of one kind may hold a node of the other.
bool mayHold(const Node& parent, const Node& child) {
    using Category = Node::Category;
    if (parent.isLeafKind()) return false;
    if (parent.category == Category::Document) return child.isBlock() && child.category != Category::Document;
    if (parent.category == Category::ContainerBlock) return child.isBlock();
    return !child.isBlock();
}

/// The lines of text that a node's own span ends, plus one for a last line without an ending.
std::int64_t linesIn(std::u16string_view text) {
    std::int64_t lines = 0;
    std::size_t at = 0;
    while (at < text.size()) {
        at = text.find_first_of(u"\r\n", at);
        ++lines;
        if (at == std::u16string_view::npos) break;
        at += text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n' ? 2 : 1;
    }
    return lines;
}

std::string checkNode(const Tree& tree, const Node::Iterator& at) {
    const Node& node = *at;
    const auto error = [&](const std::string& what) { return describe(node, at.offset, what); };
    if (!node.firstChild != !node.lastChild) return error("only one of first and last child is set");
    std::int64_t chars = 0;
    const Node* previous = nullptr;
    for (const Node* child = node.firstChild; child; previous = child, child = child->nextSibling) {
        if (child->parent != &node) return error("a child has another parent");
        if (child->previousSibling != previous) return error("sibling links are not mutual");
        if (!mayHold(node, *child)) return error("holds a " + Util::utf8(child->name()));
        chars += child->charCount;
    }
    if (previous != node.lastChild) return error("the last child is not the end of the list");
    if (node.firstChild && chars != node.charCount) return error("children do not tile it");
    if (node.charCount == 0 && node.category != Node::Category::Document) return error("is empty");
    if (!node.firstChild && !node.isLeafKind() && node.charCount != 0) return error("has text but no leaf");
    const std::u16string_view text = tree.markdownIn({at.offset, node.charCount});
    if (node.isBlock() && node.lineCount != linesIn(text)) return error("line count is wrong");
    if (node.category == Node::Category::LineEnding && text != u"\n" && text != u"\r" && text != u"\r\n")
        return error("is no line ending");
    // Spacing inside a link can hold the whitespace of old printers.
    if (node.category == Node::Category::Space &&
        text.find_first_not_of(u" \t\v\f") != std::u16string_view::npos)
        return error("is not blank");
    if (node.category != Node::Category::LineEnding && node.isLeafKind() &&
        text.find_first_of(u"\r\n") != std::u16string_view::npos)
        return error("a leaf crosses a line ending");
    if (node.startOffset() != at.offset) return error("startOffset differs from the walk");
    if (node.isBlock() && node.startLine() != at.line) return error("startLine differs from the walk");
    if (node.treeLevel() != at.level) return error("treeLevel differs from the walk");
    return {};
}

/// How far above the node its maker is.
std::int64_t stepsToMaker(const Node& node) {
    std::int64_t steps = 0;
    for (const Node* at = &node; at && node.maker && at != node.maker; at = at->parent)
        ++steps;
    return steps;
}

std::string compareNodes(const Node::Iterator& a, const Node::Iterator& b) {
    const auto error = [&](const std::string& what) { return describe(*a, a.offset, what); };
    if (a->type != b->type) return error("is a " + Util::utf8(b->toIndentedTree()) + " in a fresh parse");
    if (a->charCount != b->charCount) return error("length " + std::to_string(a->charCount));
    if (a->lineCount != b->lineCount) return error("line count " + std::to_string(a->lineCount));
    if (a->direction != b->direction)
        return error("direction " + std::to_string(static_cast<int>(a->direction)) + " instead of " +
                     std::to_string(static_cast<int>(b->direction)));
    if (a->folded != b->folded) return error("fold flag");
    if (!a->maker != !b->maker) return error("maker set on one side only");
    if (a->maker && a->maker->type != b->maker->type) return error("maker of another type");
    if (stepsToMaker(*a) != stepsToMaker(*b)) return error("maker on another level");
    if (!a->hasEqualData(*b)) return error("data differ from those of a fresh parse");
    return {};
}

} // namespace

std::string checkTree(const Tree& tree) {
    if (tree.root->charCount != tree.length()) return "the document is not as long as the text";
    for (Node::Iterator at = tree.root->begin(); at.node; ++at) {
        const std::string error = checkNode(tree, at);
        if (!error.empty()) return error;
    }
    return {};
}

std::string difference(const Tree& tree, const Tree& fresh) {
    Node::Iterator a = tree.root->begin();
    Node::Iterator b = fresh.root->begin();
    for (; a.node && b.node; ++a, ++b) {
        const std::string found = compareNodes(a, b);
        if (!found.empty()) return found;
    }
    return !a.node == !b.node ? "" : "one tree has more nodes";
}

std::string differenceFromFreshParse(const Tree& tree) {
    return difference(tree, Tree(std::u16string(tree.markdown()), tree.ruleSet));
}

std::string indentedTree(std::u16string_view text, RuleConfig::RuleSet rules) {
    return Util::utf8(Tree(std::u16string(text), rules).toIndentedTree());
}

std::string html(std::u16string_view text, RuleConfig::RuleSet rules) {
    return Util::utf8(Tree(std::u16string(text), rules).toHtml());
}

std::string visible(std::u16string_view text) {
    return Util::utf8(Util::escape(text));
}

const char* nameOf(RuleConfig::RuleSet rules) {
    constexpr const char* names[] = {"Commonmark", "Extended", "Simplified"};
    return names[rules];
}

} // namespace Ondo::Test
