#include "corvane/block/BlankLine.h"

#include "corvane/tree/BlockParser.h"

namespace Ondo::Block {

std::int64_t BlankLine::match(BlockParser& parser, std::int64_t line, std::int64_t, Node* parent,
                              ParseAction action) {
    const Lines::Line& blank = parser.lines[line];
    if (blank.contentStart != blank.contentEnd) return 0;
    if (action == ParseAction::Check) return 1;
    auto node = std::make_unique<BlankLineNode>(blank.start, blank.next, line);
    parser.linkPrefix(node.get(), line);
    ParserBase::linkLineEnding(node.get(), blank.contentEnd, blank.next, line);
    parser.mergeNode(parent, std::move(node));
    return 1;
}

void BlankLineNode::toHtml(std::u16string&, std::u16string_view, std::int64_t) const {}

} // namespace Ondo::Block
