#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "corvane/client/CVNRange.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"

/// A node of a CVNAST's tree, for those who only read.
///
/// A value that holds a pointer and owns nothing: stale after the next edit, as are the views that it answers
/// with. A relation that does not exist is null. What nodes of one type know besides stands in a class of
/// CVNASTNodes.h, which as() leads to.
class CORVANE_EXPORT CVNASTNode {
public:
    /// The classes, each named without "CVNAST" and, but for this one, "Node".
    enum class Class : std::uint8_t {
        Node,
        ATXHeading,
        SetextHeading,
        BlockQuote,
        FencedCodeBlock,
        FootnoteDefinition,
        List,
        ListItem,
        TableCell,
        Entity,
        LinkAndImage,
        HTMLInline,
        Wiki
    };
    static constexpr Class wrapperClass = Class::Node;

    const Ondo::Node* node; ///< never null

    /// Null for no node.
    static std::optional<CVNASTNode> nodeForASTNode(const Ondo::Node* node);

    /// The class for nodes of this type; `Node` when there is none of their own.
    Class nodeClass() const;
    /// This node as one of the class T of CVNASTNodes.h; null when that is not the class for its type.
    template <class T>
    std::optional<T> as() const {
        static_assert(T::wrapperClass != Class::Node, "every node is a CVNASTNode");
        if (nodeClass() != T::wrapperClass) return std::nullopt;
        return T(node);
    }

    /// The number of the Ondo::NodeType.
    std::int64_t type() const { return node->type; }
    std::u16string_view typeAsString() const { return node->name(); }
    /// In the document. Walks over the siblings before the node and its ancestors: for single questions, not
    /// for loops.
    CVNRange range() const { return {node->startOffset(), node->charCount}; }

    std::optional<CVNASTNode> parent() const { return nodeForASTNode(node->parent); }
    std::optional<CVNASTNode> firstChild() const { return nodeForASTNode(node->firstChild); }
    std::optional<CVNASTNode> lastChild() const { return nodeForASTNode(node->lastChild); }
    std::optional<CVNASTNode> previousSibling() const { return nodeForASTNode(node->previousSibling); }
    std::optional<CVNASTNode> nextSibling() const { return nodeForASTNode(node->nextSibling); }
    /// The next node and the one before in document order, in which parents come before their children.
    std::optional<CVNASTNode> nextInSequence() const { return nodeForASTNode(node->nextInSequence()); }
    std::optional<CVNASTNode> previousInSequence() const {
        return nodeForASTNode(node->previousInSequence());
    }

    /// CVNDirectionLtrValue or CVNDirectionRtlValue for a node that has a direction of its own, else
    /// CVNDirectionNaturalValue, also where the direction comes from the text before it.
    std::int64_t direction() const;
    /// Class, type and range: "CVNASTATXHeadingNode atx_heading {0, 3}".
    std::u16string description() const;

protected:
    explicit CVNASTNode(const Ondo::Node* node_) : node(node_) {}
};
