#pragma once

#include <cstddef>

#include "corvane/tree/Node.h"

/// The nodes that all rules share.

namespace Ondo {

struct LabelGroup;

/// Where a labelled node stands in its index: bookkeeping of LabeledConnections.
struct LabelPlace {
    static constexpr std::size_t merged = static_cast<std::size_t>(-1);

    LabelGroup* group = nullptr;      ///< null for a node in no index
    bool isDefinition = false;        ///< or a reference
    std::size_t inGroup = 0;          ///< place among the nodes of its side and label
    std::size_t inJustAdded = merged; ///< place among the nodes that wait to be merged
};

/// A node that is found by its label: a definition or a reference.
class CORVANE_EXPORT LabeledNode : public Node {
public:
    std::u16string label; ///< normalised
    LabelPlace place;

    /// Nodes of the other side with the same label; 0 for a node in no index.
    std::int64_t connections() const;

    LabeledNode(NodeType type, std::int64_t offset, std::int64_t end, std::int64_t line,
                std::int64_t lineCount, Node* maker, std::u16string label);

    /// Whitespace merged and trimmed, then case folded.
    static std::u16string normalizeLabel(std::u16string_view label);
};

} // namespace Ondo

namespace Ondo::Inline {

/// Syntax characters of a construct. Asserts `maker`.
class CORVANE_EXPORT MarkerNode : public Node {
public:
    MarkerNode(NodeType type_, std::int64_t offset, std::int64_t end, std::int64_t line, Node* maker_)
        : Node(type_, offset, end, line, 0, maker_) {
        CORVANE_ASSERT(maker, "Common");
    }
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
};

/// A run of text that carries a value of its construct; its children are the inline nodes parsed from it.
/// Asserts `maker`.
class CORVANE_EXPORT AttributeNode : public Node {
public:
    AttributeNode(NodeType type, std::int64_t offset, std::int64_t end, std::int64_t line,
                  std::int64_t lineCount, Node* maker);
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
};

class CORVANE_EXPORT TextNode : public Node {
public:
    TextNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_TEXT_NODE, offset, end, line, 0) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    void appendValue(std::u16string& out, std::u16string_view markdown) const override;
};

/// A run of spaces and tabs.
class CORVANE_EXPORT SpaceNode : public Node {
public:
    SpaceNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_SPACE_NODE, offset, end, line, 0) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    /// Only directly before a line ending: there the blanks belong to the value.
    void appendValue(std::u16string& out, std::u16string_view markdown) const override;
};

/// One LF, CR or CR LF.
class CORVANE_EXPORT LineEndingNode : public Node {
public:
    LineEndingNode(std::int64_t offset, std::int64_t end, std::int64_t line)
        : Node(ONDO_LINE_ENDING_NODE, offset, end, line, 1) {}
    /// An LF between siblings; nothing at the edge of the parent.
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    void appendValue(std::u16string& out, std::u16string_view markdown) const override;
};

} // namespace Ondo::Inline
