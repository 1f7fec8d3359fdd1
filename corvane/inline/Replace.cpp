#include "corvane/inline/Replace.h"

#include "corvane/inline/Context.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/InlineParser.h"

namespace Ondo::Inline {

std::int64_t Replace::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    if (!cursor.isNextString(pattern) || !hasOpenLeft(cursor)) return Go::NoPos;
    const std::int64_t start = cursor.pos();
    // Longer arrows stay as they are.
    if (cursor.isPrevious(Go::character(pattern.front()))) return Go::NoPos;
    const std::int64_t end = cursor.nextMatchString(pattern);
    if (!hasOpenRight(cursor) || cursor.isNext(Go::character(pattern.back()))) return Go::NoPos;

    auto replaced = std::make_unique<ReplaceNode>(start, end, cursor.currentLine(), pattern, replacement);
    return parser.merge(node, std::move(replaced)) ? end : Go::NoPos;
}

std::u16string ReplaceNode::toIndentedTree() const {
    return Node::toIndentedTree() + u"{" + Util::escape(replacement) + u"}";
}

void ReplaceNode::toHtml(std::u16string& out, std::u16string_view, std::int64_t) const {
    out += replacement;
}

bool ReplaceNode::hasEqualData(const Node& other) const {
    const auto& node = static_cast<const ReplaceNode&>(other);
    return pattern == node.pattern && replacement == node.replacement;
}

} // namespace Ondo::Inline
