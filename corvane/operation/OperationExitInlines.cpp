#include "corvane/operation/OperationExitInlines.h"

#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

using Ondo::Node;

bool ExitInlines::isNodeClosingInlineMarker(const Node* node) {
    switch (node->type) {
    case Ondo::ONDO_AUTOLINK_CLOSE_MARKER_NODE:
    case Ondo::ONDO_CODE_SPAN_CLOSE_MARKER_NODE:
    case Ondo::ONDO_EMPHASE_CLOSE_MARKER_NODE:
    case Ondo::ONDO_HASHTAG_CLOSE_MARKER_NODE:
    case Ondo::ONDO_HIGHLIGHT_CLOSE_MARKER_NODE:
    case Ondo::ONDO_STRIKETHROUGH_CLOSE_MARKER_NODE:
    case Ondo::ONDO_STRONG_CLOSE_MARKER_NODE:
    case Ondo::ONDO_UNDERLINE_CLOSE_MARKER_NODE:
    case Ondo::ONDO_WIKILINK_CLOSE_MARKER_NODE:
    case Ondo::ONDO_MATH_SPAN_CLOSE_MARKER_NODE:
        return true;
    default:
        return false;
    }
}

std::vector<Result> ExitInlines::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                     std::int64_t, std::int64_t) const {
    if (length > 0 || offset == tree.length()) return {};
    const Node::Iterator leaf = leafAt(tree, offset);
    if (!leaf.node || !isNodeClosingInlineMarker(leaf.node)) return {};
    std::vector<Result> results;
    Result::addToList(results, offset, 0, {}, leaf.end(), 0);
    return results;
}

} // namespace CVN::Operation
