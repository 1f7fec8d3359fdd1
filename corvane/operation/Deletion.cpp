#include "corvane/operation/Deletion.h"

#include <string>

#include "corvane/operation/LineWalk.h"
#include "corvane/operation/OperationIndent.h"
#include "corvane/scan/Assert.h"

namespace CVN::Operation {

using Ondo::Node;

std::vector<Result> deletion(std::int64_t offset, std::int64_t length) {
    return {Result(offset, length, u"", offset, 0)};
}

std::vector<Result> deletion(const Node::Iterator& at) {
    return deletion(at.offset, at->charCount);
}

std::vector<Result> caretOnly(std::int64_t offset) {
    return deletion(offset, 0);
}

std::vector<Result> tableRemoval(Node::Iterator at) {
    while (at.node && at->type != Ondo::ONDO_TABLE_NODE)
        at.parent();
    CORVANE_ASSERT(at.node != nullptr, "Deletion");
    const bool endsLine = at->lastNodeOfSubtree()->category == Node::Category::LineEnding;
    return {Result(at.offset, at->charCount, endsLine ? u"\n" : u"", at.offset, 0)};
}

void toConstruct(Node::Iterator& at) {
    if (isOfType(at.node, Ondo::ONDO_TEXT_NODE)) at.parent();
}

std::vector<Result> outdented(const Ondo::Tree& tree, std::int64_t caret, IndentStyle style) {
    return Indent(IndentAction::Undent, style).run(tree, caret, 0, caret, 0);
}

} // namespace CVN::Operation
