#include "corvane/operation/InlineWord.h"

#include "corvane/operation/InlineSpans.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Go.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Range;
using Ondo::Tree;

namespace {

bool isWordCharacter(const Tree& tree, std::int64_t offset) {
    if (offset < 0 || offset >= tree.length()) return false;
    const char16_t c = unitAt(tree, offset);
    return !Ondo::Go::unicodeWhitespace(c) && !Ondo::Go::unicodePunctuation(c);
}

std::int64_t wordStart(const Tree& tree, std::int64_t offset) {
    while (isWordCharacter(tree, offset - 1))
        --offset;
    return offset;
}

std::int64_t wordEnd(const Tree& tree, std::int64_t offset) {
    while (isWordCharacter(tree, offset))
        ++offset;
    return offset;
}

/// A marker ends a word, also the one that ends in the dot of a colour.
Range betweenMarkers(const Node::Iterator& leaf, std::int64_t offset, const Range& word) {
    std::int64_t start = word.offset;
    std::int64_t end = word.end();
    for (Node::Iterator at = leaf; at.node && at.end() > start; toPreviousLeaf(at))
        if (isInlineMarker(at.node) && at.end() <= offset) start = at.end();
    for (Node::Iterator at = leaf; at.node && at.offset < end; toNextLeaf(at))
        if (isInlineMarker(at.node) && at.offset >= offset) end = at.offset;
    return {start, end - start};
}

} // namespace

Range wordAround(const Tree& tree, const Node::Iterator& leaf, std::int64_t offset, InlineToggles style) {
    constexpr char16_t apostrophe = u'\'';
    if (const Node::Iterator node = nodeCutAt(tree, offset, {offset, 0}, style); node.node)
        return {node.offset, node->charCount};
    std::int64_t start = wordStart(tree, offset);
    if (unitAt(tree, start - 1) == apostrophe && isWordCharacter(tree, start - 2))
        start = wordStart(tree, start - 1);
    std::int64_t end = wordEnd(tree, offset);
    if (unitAt(tree, end) == apostrophe && isWordCharacter(tree, end + 1)) end = wordEnd(tree, end + 1);
    const Range word = betweenMarkers(leaf, offset, {start, end - start});
    return word.offset == offset || word.end() == offset ? Range{offset, 0} : word;
}

} // namespace CVN::Operation
