#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/tree/Node.h"

namespace Ondo::Test {

/// A node of any type, without data of its own.
class PlainNode : public Node {
public:
    using Node::Node;
    void toHtml(std::u16string&, std::u16string_view, std::int64_t) const override {}
};

/// A tree as a value, for making trees by hand and for algorithms that share nothing with those under test.
///
/// Its notation is a letter for the type, the range when parsed, and the children in brackets, such as
/// "p0-9(t0-4 e4-9(m4-5 t5-9))". The letters: d document, q quote, i list item, p paragraph, e emphasis,
/// a attribute, m marker, s space, n line ending, t text; any other type is printed as "?".
struct Sketch {
    char kind;
    std::int64_t start;
    std::int64_t end;
    std::vector<Sketch> children;
};

Sketch sketch(std::string_view notation);
std::unique_ptr<Node> makeTree(const Sketch& sketch);
inline std::unique_ptr<Node> makeTree(std::string_view notation) {
    return makeTree(sketch(notation));
}

std::string notation(const Sketch& sketch);
/// "null" when there is no node; label() leaves out the children.
std::string notation(const Node* node);
std::string label(const Node* node);

/// A node and where it stands, from sums over everything before it.
struct Placed {
    Node* node;
    std::int64_t offset;
    std::int64_t line;
    std::int64_t level;
    std::size_t behind; ///< the index behind the subtree
};

/// All nodes of a tree, in document order.
std::vector<Placed> placedNodes(Node* root);

} // namespace Ondo::Test
