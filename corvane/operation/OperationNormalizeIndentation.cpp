#include "corvane/operation/OperationNormalizeIndentation.h"

#include <string>
#include <utility>

#include "corvane/operation/IndentInfo.h"
#include "corvane/operation/LinePrefix.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/operation/PrefixNormalizer.h"

namespace CVN::Operation {

using Ondo::Node;

bool NormalizeIndentation::shouldNormalizeLine(const Node* block) {
    if (block->hasAncestorOfType(Ondo::ONDO_BLOCK_QUOTE_NODE) ||
        block->hasAncestorOfType(Ondo::ONDO_LIST_NODE) || block->type == Ondo::ONDO_INDENTED_CODE_NODE)
        return true;
    return block->type == Ondo::ONDO_BLANK_LINE_NODE &&
           isOfType(block->previousSibling, Ondo::ONDO_LIST_NODE);
}

namespace {

/// The first-level block at an offset.
Node::Iterator firstLevelBlockAt(const Ondo::Tree& tree, std::int64_t offset) {
    Node::Iterator block = tree.iteratorAtOffset(offset, Ondo::LevelSetting::FirstLevel);
    while (block.node && block.level > 1)
        block.parent();
    return block;
}

} // namespace

std::vector<Result> NormalizeIndentation::run(const Ondo::Tree& tree, std::int64_t offset,
                                              std::int64_t length, std::int64_t selectionOffset,
                                              std::int64_t selectionLength) const {
    if (tree.length() == 0) return {};
    const std::int64_t end = firstLevelBlockAt(tree, offset + length).end();
    PrefixNormalizer lines(tree, style_, selectionLength == 0 ? selectionOffset : -1, end);

    struct Change {
        std::int64_t offset;
        PrefixNormalizer::Expected expected;
    };
    std::vector<Change> changes;
    Node::Iterator line = firstLevelBlockAt(tree, offset);
    while (line.node && line.offset < end) {
        const LinePrefix actual(tree, line);
        if (line.level == 1 && !shouldNormalizeLine(actual.block)) {
            line.nextInSequenceSkippingSubtree();
            continue;
        }
        PrefixNormalizer::Expected expected = lines.expectedIndentation(line, actual);
        if (actual.text.compare(0, expected.length, expected.text) != 0)
            changes.push_back({actual.offset, std::move(expected)});
        toNextLine(line);
    }

    std::vector<Result> results;
    for (auto change = changes.rbegin(); change != changes.rend(); ++change)
        Result::addToList(results, change->offset, static_cast<std::int64_t>(change->expected.length),
                          std::move(change->expected.text), selectionOffset, selectionLength);
    return results;
}

} // namespace CVN::Operation
