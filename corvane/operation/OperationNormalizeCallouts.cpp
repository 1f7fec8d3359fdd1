#include "corvane/operation/OperationNormalizeCallouts.h"

#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

std::vector<Result> NormalizeCallouts::run(const Ondo::Tree& tree, std::int64_t, std::int64_t,
                                           std::int64_t selectionOffset, std::int64_t selectionLength) const {
    const Ondo::Node* const block = tree.root->firstChild;
    if (!isBlockQuote(block) || !isOfType(block->firstChild, Ondo::ONDO_CALLOUT_HEAD_NODE)) return {};
    return {Result(0, 0, u"\n", selectionOffset + 1, selectionLength)};
}

} // namespace CVN::Operation
