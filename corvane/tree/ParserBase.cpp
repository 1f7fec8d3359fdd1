#include "corvane/tree/ParserBase.h"

#include "corvane/scan/Go.h"

namespace Ondo {

namespace {

bool isEmptySpan(std::int64_t start, std::int64_t end) {
    return start == Go::NoPos || end == Go::NoPos || end <= start;
}

} // namespace

Node* ParserBase::linkMarker(Node* parent, NodeType type, std::int64_t start, std::int64_t end,
                             std::int64_t line, Node* maker) {
    if (isEmptySpan(start, end)) return nullptr;
    return parent->linkSubtree(
        std::make_unique<Inline::MarkerNode>(type, start, end, line, maker ? maker : parent));
}

Node* ParserBase::linkSpace(Node* parent, std::int64_t start, std::int64_t end, std::int64_t line) {
    if (isEmptySpan(start, end)) return nullptr;
    return parent->linkSubtree(std::make_unique<Inline::SpaceNode>(start, end, line));
}

Node* ParserBase::linkLineEnding(Node* parent, std::int64_t start, std::int64_t end, std::int64_t line) {
    if (isEmptySpan(start, end)) return nullptr;
    return parent->linkSubtree(std::make_unique<Inline::LineEndingNode>(start, end, line));
}

Node* ParserBase::mergeNode(Node* parent, std::unique_ptr<Node> node, Node* passed) {
    if (parent->category != Node::Category::Document && parent->firstChild)
        return parent->mergeSubtreeOnParsedOffsets(std::move(node), passed);
    return parent->linkSubtree(std::move(node));
}

} // namespace Ondo
