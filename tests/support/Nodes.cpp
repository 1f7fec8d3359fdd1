#include "tests/support/Nodes.h"

#include <charconv>
#include <utility>

#include "corvane/tree/DocumentNode.h"

namespace Ondo::Test {

namespace {

constexpr std::string_view kinds = "dqipeamsnt";
constexpr NodeType types[] = {ONDO_DOCUMENT_NODE,
                              ONDO_BLOCK_QUOTE_NODE,
                              ONDO_LIST_ITEM_NODE,
                              ONDO_PARAGRAPH_NODE,
                              ONDO_EMPHASE_NODE,
                              ONDO_LINK_TEXT_ATTRIBUTE_NODE,
                              ONDO_EMPHASE_OPEN_MARKER_NODE,
                              ONDO_SPACE_NODE,
                              ONDO_LINE_ENDING_NODE,
                              ONDO_TEXT_NODE};

char kindOf(const Node* node) {
    for (std::size_t i = 0; i < kinds.size(); ++i)
        if (types[i] == node->type) return kinds[i];
    return '?';
}

std::int64_t takeNumber(std::string_view& rest) {
    rest.remove_prefix(1);
    std::int64_t number = 0;
    const char* const end = std::from_chars(rest.data(), rest.data() + rest.size(), number).ptr;
    rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
    return number;
}

Sketch takeSketch(std::string_view& rest) {
    Sketch taken{rest.front(), 0, 0, {}};
    taken.start = takeNumber(rest);
    taken.end = takeNumber(rest);
    if (rest.empty() || rest.front() != '(') return taken;
    while (rest.front() != ')') {
        rest.remove_prefix(1);
        taken.children.push_back(takeSketch(rest));
    }
    rest.remove_prefix(1);
    return taken;
}

Sketch sketchOf(const Node* node, bool isDeep) {
    Sketch made{kindOf(node), node->offsetWhenParsed, node->endWhenParsed(), {}};
    for (const Node* child = node->firstChild; child && isDeep; child = child->nextSibling)
        made.children.push_back(sketchOf(child, true));
    return made;
}

void place(std::vector<Placed>& placed, Placed at) {
    const std::size_t index = placed.size();
    placed.push_back(at);
    ++at.level;
    for (at.node = at.node->firstChild; at.node; at.node = at.node->nextSibling) {
        place(placed, at);
        at.offset += at.node->charCount;
        at.line += at.node->lineCount;
    }
    placed[index].behind = placed.size();
}

} // namespace

Sketch sketch(std::string_view notation) {
    return takeSketch(notation);
}

std::unique_ptr<Node> makeTree(const Sketch& sketch) {
    std::unique_ptr<Node> node;
    if (sketch.kind == 'd')
        node = std::make_unique<DocumentNode>(sketch.start, sketch.end, 0);
    else
        node = std::make_unique<PlainNode>(types[kinds.find(sketch.kind)], sketch.start, sketch.end, 0, 0);
    for (const Sketch& child : sketch.children)
        node->linkSubtree(makeTree(child));
    return node;
}

std::string notation(const Sketch& sketch) {
    std::string out =
        std::string(1, sketch.kind) + std::to_string(sketch.start) + '-' + std::to_string(sketch.end);
    for (std::size_t i = 0; i < sketch.children.size(); ++i)
        out += (i == 0 ? '(' : ' ') + notation(sketch.children[i]);
    return sketch.children.empty() ? out : out + ')';
}

std::string notation(const Node* node) {
    return node ? notation(sketchOf(node, true)) : "null";
}

std::string label(const Node* node) {
    return node ? notation(sketchOf(node, false)) : "null";
}

std::vector<Placed> placedNodes(Node* root) {
    std::vector<Placed> placed;
    place(placed, {root, 0, 0, 0, 0});
    return placed;
}

} // namespace Ondo::Test
