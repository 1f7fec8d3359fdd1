#include "corvane/tree/ParserBase.h"

namespace Ondo {

Node* ParserBase::mergeNode(Node* parent, std::unique_ptr<Node> node, Node* passed) {
    if (parent->category != Node::Category::Document && parent->firstChild)
        return parent->mergeSubtreeOnParsedOffsets(std::move(node), passed);
    return parent->linkSubtree(std::move(node));
}

} // namespace Ondo
