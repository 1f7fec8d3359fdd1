#pragma once

#include <memory>
#include <string_view>

#include "corvane/scan/Go.h"
#include "corvane/scan/Lines.h"
#include "corvane/tree/Common.h"
#include "corvane/tree/RuleMap.h"

namespace Ondo {

/// What both parsers hand to their rules: the text, the table of its lines, and the linking of leaves.
class CORVANE_EXPORT ParserBase {
public:
    const std::u16string_view text;
    Lines& lines;

    ParserBase(std::u16string_view text_, Lines& lines_) : text(text_), lines(lines_) {}

    // These link a leaf as last child of `parent` and return it. They do nothing, and return null, when
    // `start` or `end` is -1 or the span is empty.

    /// Without a maker, `parent` is it.
    static Node* linkMarker(Node* parent, NodeType type, std::int64_t start, std::int64_t end,
                            std::int64_t line, Node* maker = nullptr) {
        if (isEmptySpan(start, end)) return nullptr;
        return parent->linkSubtree(
            std::make_unique<Inline::MarkerNode>(type, start, end, line, maker ? maker : parent));
    }
    static Node* linkSpace(Node* parent, std::int64_t start, std::int64_t end, std::int64_t line) {
        if (isEmptySpan(start, end)) return nullptr;
        return parent->linkSubtree(std::make_unique<Inline::SpaceNode>(start, end, line));
    }
    static Node* linkLineEnding(Node* parent, std::int64_t start, std::int64_t end, std::int64_t line) {
        if (isEmptySpan(start, end)) return nullptr;
        return parent->linkSubtree(std::make_unique<Inline::LineEndingNode>(start, end, line));
    }

    /// Links `node` as last child of the document or of a childless parent, and lays it over what is there
    /// elsewhere. A node that crosses an existing one is dropped: the result is null. For `passed` see
    /// Node::mergeSubtreeOnParsedOffsets.
    static Node* mergeNode(Node* parent, std::unique_ptr<Node> node, Node* passed = nullptr);

private:
    static bool isEmptySpan(std::int64_t start, std::int64_t end) {
        return start == Go::NoPos || end == Go::NoPos || end <= start;
    }
};

} // namespace Ondo
